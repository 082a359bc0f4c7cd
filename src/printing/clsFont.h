// A font of the report.
#pragma once

#include <string>
#include <string_view>

namespace orvik {

struct clsFont {
  std::string name;
  float size = 0;  // points, 72 to the inch
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikethrough = false;
  bool operator==(const clsFont&) const = default;

  // Takes the font from a text as WriteFont makes it; the key may be in any case of letters, with
  // blanks round every part. False, and the font as it was, where the text is none, or its size is
  // not a number above zero.
  bool ReadFont(std::string_view text);

  // "Font=Arial,11,1,0,0,0": name, size, bold, italic, underline, strikethrough (1 = yes, 0 = no).
  std::string WriteFont() const;
};

}  // namespace orvik
