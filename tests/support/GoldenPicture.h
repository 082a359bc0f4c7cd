// Pictures against those that were looked at and kept in a folder golden/. A picture may differ in
// at most one of 500 pixels by more than 32 of 255 in a channel: other versions of a font library
// smooth letters a little differently, nothing else may.
//
// A picture that differs is left in the build's folder pictures/, beside its reference and the
// difference. To take the new pictures as the references, look at them first, then run the tests
// with ORVIK_UPDATE_GOLDEN=1.
#pragma once

#include <functional>
#include <string>

#include "platform/Surface.h"

namespace orvik::test {

struct GoldenFolders {
  std::string golden;    // the references; with a separator at its end, as the next one
  std::string pictures;  // for those that differ
  // PNG files of the test's own back end. Reading gives an empty picture where there is no file.
  std::function<Picture(const std::string& path)> read;
  std::function<void(const std::string& path, const Picture& picture)> write;
};

// Fails the test where the picture is not as its reference `name`.
void ExpectGolden(const std::string& name, const Picture& output, const GoldenFolders& folders);

}  // namespace orvik::test
