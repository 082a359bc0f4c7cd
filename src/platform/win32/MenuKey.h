// The shortcut key of a menu item, as the item's caption names it.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orvik {

struct MenuKey {
  std::uint16_t virtualKey = 0;
  bool control = false;
  bool shift = false;
  bool alt = false;
  bool operator==(const MenuKey&) const = default;
};

// The key after the caption's tab: "Ctrl+O", "Ctrl+Shift+S", "F5", "Ctrl+1". Nothing where there is
// none, or one that is no letter, digit or function key.
std::optional<MenuKey> KeyOfCaption(std::string_view caption);

}  // namespace orvik
