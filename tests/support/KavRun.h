// One run of the command line inside the test program.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "cli/Kav.h"

namespace orvik::test {

struct KavRun {
  int exitCode;
  std::string out;
  std::string err;
};

// `programFolder` is where the data lies, with a separator at its end.
inline KavRun RunKavWith(const std::vector<std::string>& arguments,
                         const std::string& programFolder) {
  std::ostringstream out;
  std::ostringstream err;
  Console console{out, err, false, programFolder};
  const int exitCode = RunKav(arguments, console);
  return {exitCode, out.str(), err.str()};
}

}  // namespace orvik::test
