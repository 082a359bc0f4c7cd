// A good project file to spoil line by line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvik::test {

// Tampa, EIA 5 ac, 5 ac irrigated; the tail of `mode` follows line 14.
inline std::vector<std::string> ProjectLines(const std::string& mode = "2",
                                             const std::vector<std::string>& tail = {"60",
                                                                                     "0.875"}) {
  std::vector<std::string> lines{"KAV3.3.01", "ORVIK Stormwater Harvesting Module",
                                 "Pond",      "Citrus",
                                 "07-12",     "Engineer",
                                 "Chief",     "today",
                                 "22",        "Tampa",
                                 mode,        "10",
                                 "0.5",       "5"};
  lines.insert(lines.end(), tail.begin(), tail.end());
  return lines;
}

inline std::string ProjectText(const std::vector<std::string>& lines = ProjectLines()) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

// The lines of a text whose every line ends with CR LF.
inline std::vector<std::string> Lines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const auto end = text.find("\r\n");
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 2);
  }
  return lines;
}

}  // namespace orvik::test
