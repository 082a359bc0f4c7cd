// The project as text, one value per line.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "design/Project.h"

namespace orvik {

class clsIOStream;

// Line 1 "KAV3.3.01"; 2 the module's title; 3 to 8 the fields of description; 9 and 10 the climate
// station's list index (0-based, -1 none) and name; 11 the solve-for index; 12 to 14 basin area,
// runoff coefficient and irrigation area. Then, in the interactive mode: 1 or 0 for a hotspot and,
// where there is one, its R and V; in the typed modes: the two given values. Nothing that can be
// computed is stored. After these lines, and only where there is one, the kept point: a point that
// the interactive mode could not show.

// Writes the project to a stream that is open for output. Blanks around a value are left out, and a
// line end inside one becomes a blank, since a value is a line. False at the first failed write.
bool WriteProject(clsIOStream& stream, const Project& project);

// What could be read of a project, in the order of its lines; what comes after the first fault has
// no value.
struct ProjectReading {
  std::array<std::optional<std::string>, kFields> texts;  // by Field
  std::optional<std::int16_t> station;                    // the list index, any number
  std::optional<std::int16_t> mode;                       // the list index, any number
  std::optional<StoredPoint> point;
  std::optional<StoredPoint> keptPoint;
  Message refusal;              // why the first line is not that of a project file of this version
  bool isWhole = false;         // every line was read
  bool blockEndsEarly = false;  // what follows the lines has no closing line, and was not read

  // What a hint may say of it.
  std::string firstLine;
  std::string stationName;          // as the file has it
  int lines = 0;                    // that were read
  bool endsEarly = false;           // before its last line
  bool endsWithinLine = false;      // its last line has no line end; only in a file
  std::optional<int> lineFeedLine;  // the first that has a line feed in it, from 1
  std::optional<int> badLine;       // a line that should be a whole number, from 1

  const std::optional<std::string>& Text(Field field) const {
    return texts[static_cast<std::size_t>(field)];
  }

  // The user's point, whether or not it could be shown when the project was written.
  const std::optional<StoredPoint>& OwnPoint() const { return point ? point : keptPoint; }

  // An index outside its list chooses nothing.
  SolveFor Mode() const { return SolveForOfIndex(mode.value_or(-1)); }
};

// Reads a project from a stream that is open for input. A fault is: another first line (with a
// refusal), a text that ends early, an index that is not a whole number of 16 bits.
ProjectReading ReadProject(clsIOStream& stream);

}  // namespace orvik
