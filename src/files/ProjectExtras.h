// What a project file holds after its lines: entries of a name and a text. Whoever reads a project
// by its lines alone stops before them.
#pragma once

#include <map>
#include <string>

namespace orvik {

class clsIOStream;

// Names consist of letters, digits and periods. A name that is not known is ignored.
using ProjectExtras = std::map<std::string, std::string, std::less<>>;

// A heading, a line for each entry and a closing line; nothing at all where there is no entry. As
// in the lines before, blanks around a text are left out and a line end inside one becomes a blank.
// False at the first failed write.
bool WriteExtras(clsIOStream& stream, const ProjectExtras& extras);

struct ExtrasReading {
  ProjectExtras entries;
  bool isWhole = true;  // false where a heading has no closing line
};

// The entries that follow in the stream. None where something else follows, or where they have no
// closing line: half of them could be half a number.
ExtrasReading ReadExtras(clsIOStream& stream);

}  // namespace orvik
