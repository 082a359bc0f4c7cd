#include "printing/clsFont.h"

#include <cmath>
#include <optional>

#include "base/NumberText.h"
#include "base/Rounding.h"
#include "base/Text.h"

namespace orvik {
namespace {

constexpr std::string_view kKey = "Font=";

bool TakeKey(std::string_view& text) {
  if (!StartsWithIgnoringCase(text, kKey)) return false;
  text.remove_prefix(kKey.size());
  return true;
}

// Cuts off the part after the last comma, and the comma; a font's name may contain commas itself.
std::optional<std::string_view> TakeLastPart(std::string_view& text) {
  const std::size_t comma = text.rfind(',');
  if (comma == std::string_view::npos) return std::nullopt;
  const std::string_view part = Trim(text.substr(comma + 1));
  text = text.substr(0, comma);
  return part;
}

bool ReadFlag(std::string_view& text, bool& flag) {
  const auto part = TakeLastPart(text);
  if (part != "1" && part != "0") return false;
  flag = part == "1";
  return true;
}

bool ReadSize(std::string_view& text, float& size) {
  const auto part = TakeLastPart(text);
  if (!part || !IsNumericText(*part)) return false;
  size = ToSingle(ParseNumber(*part));
  return size > 0 && std::isfinite(size);
}

std::string FlagText(bool flag) {
  return flag ? ",1" : ",0";
}

}  // namespace

bool clsFont::ReadFont(std::string_view text) {
  text = Trim(text);
  clsFont read;
  if (!TakeKey(text)) return false;
  for (bool* flag : {&read.strikethrough, &read.underline, &read.italic, &read.bold}) {
    if (!ReadFlag(text, *flag)) return false;
  }
  if (!ReadSize(text, read.size)) return false;
  read.name = Trim(text);
  if (read.name.empty()) return false;
  *this = read;
  return true;
}

std::string clsFont::WriteFont() const {
  return std::string(kKey) + name + "," + ConvertToString(size) + FlagText(bold) +
         FlagText(italic) + FlagText(underline) + FlagText(strikethrough);
}

}  // namespace orvik
