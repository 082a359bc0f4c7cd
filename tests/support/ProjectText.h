// A good project file to spoil line by line.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "design/Fields.h"

namespace orvik::test {

// The places of a project's lines, from 0: the magic line and the title, the fields of description,
// however many there are, the station's index and name, the mode, and three numbers of the site.
inline const std::size_t kDescriptionLines =
    static_cast<std::size_t>(std::ranges::count_if(Fields(), &FieldDesign::IsDescription));
inline const std::size_t kStationLine = 2 + kDescriptionLines;
inline const std::size_t kStationNameLine = kStationLine + 1;
inline const std::size_t kModeLine = kStationLine + 2;
inline const std::size_t kBasinAreaLine = kModeLine + 1;
inline const std::size_t kTailLine = kBasinAreaLine + 3;
inline constexpr std::size_t kProjectNameLine = 2;
inline constexpr std::size_t kDescriptionLine = 3;

// What the good project says in a field of description.
inline std::string DescriptionText(Field field) {
  switch (field) {
    case Field::ProjectName:
      return "Pond";
    case Field::Description:
      return "Citrus";
    case Field::ProjectNumber:
      return "07-12";
    case Field::Engineer:
      return "Engineer";
    case Field::SupervisingEngineer:
      return "Chief";
    case Field::Date:
      return "today";
    default:
      return PlainCaption(field);
  }
}

// Tampa, EIA 5 ac, 5 ac irrigated; the tail of `mode` follows the irrigation area.
inline std::vector<std::string> ProjectLines(const std::string& mode = "2",
                                             const std::vector<std::string>& tail = {"60",
                                                                                     "0.875"}) {
  std::vector<std::string> lines{"KAV3.3.01", "ORVIK Stormwater Harvesting Module"};
  for (const FieldDesign& field : Fields()) {
    if (field.IsDescription()) lines.push_back(DescriptionText(field.id));
  }
  const std::string_view site[] = {"22", "Tampa", mode, "10", "0.5", "5"};
  lines.insert(lines.end(), std::begin(site), std::end(site));
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
