#include "platform/win32/MenuKey.h"

#include <windows.h>

#include "base/NumberText.h"

namespace orvik {
namespace {

// Takes the prefix off the text where it is there.
bool Take(std::string_view& text, std::string_view prefix) {
  if (!text.starts_with(prefix)) return false;
  text.remove_prefix(prefix.size());
  return true;
}

std::uint16_t VirtualKey(std::string_view name) {
  constexpr int kFunctionKeys = 24;
  if (name.size() == 1) {
    const char c = name.front();
    const bool isOwnCode = (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    return isOwnCode ? static_cast<std::uint16_t>(c) : std::uint16_t{0};
  }
  if (!Take(name, "F")) return 0;
  const auto number = ParseWholeNumber(name);
  if (!number || *number < 1 || *number > kFunctionKeys) return 0;
  return static_cast<std::uint16_t>(VK_F1 + *number - 1);
}

}  // namespace

std::optional<MenuKey> KeyOfCaption(std::string_view caption) {
  const std::size_t tab = caption.find('\t');
  if (tab == std::string_view::npos) return std::nullopt;
  std::string_view name = caption.substr(tab + 1);
  MenuKey key;
  key.control = Take(name, "Ctrl+");
  key.shift = Take(name, "Shift+");
  key.alt = Take(name, "Alt+");
  key.virtualKey = VirtualKey(name);
  if (key.virtualKey == 0) return std::nullopt;
  return key;
}

}  // namespace orvik
