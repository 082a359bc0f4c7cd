#include "platform/win32/NativeMenu.h"

#include <algorithm>

#include "platform/win32/MenuKey.h"
#include "platform/win32/WideText.h"

namespace orvik {
namespace {

constexpr WORD kFirstCommand = 0x1000;  // above the numbers of dialog keys and of controls

UINT EnabledFlag(const NativeMenuItem& item) {
  return item.Enabled() ? MF_ENABLED : MF_GRAYED;
}

UINT CheckedFlag(const NativeMenuItem& item) {
  return item.Checked() ? MF_CHECKED : MF_UNCHECKED;
}

bool IsDown(int virtualKey) {
  return ::GetKeyState(virtualKey) < 0;
}

}  // namespace

// --- Life ---

NativeMenuBar::~NativeMenuBar() {
  Detach();
}

// The system destroys a menu together with its window, and only then.
void NativeMenuBar::Detach() {
  window_ = nullptr;
}

void NativeMenuBar::Attach() {
  isAttached_ = true;
  Rebuild();
}

void NativeMenuBar::Remove(NativeMenuItem& item) {
  std::erase(items_, &item);
  if (::IsWindowVisible(window_)) Rebuild();
}

// --- Rows ---

std::vector<NativeMenuBar::Row> NativeMenuBar::Rows() const {
  std::vector<Row> rows;
  WORD command = kFirstCommand;
  for (const WidgetDesign& design : design_.Widgets()) {
    ++command;
    const auto item = std::ranges::find_if(
        items_, [&](const NativeMenuItem* candidate) { return candidate->Name() == design.name; });
    if (item != items_.end()) rows.push_back({&design, *item, command});
  }
  return rows;
}

std::vector<NativeMenuBar::Row> NativeMenuBar::RowsBelow(std::span<const Row> rows,
                                                         std::string_view parent) const {
  std::vector<Row> below;
  for (const Row& row : rows) {
    if (row.design->parent == parent && row.item->Visible()) below.push_back(row);
  }
  return below;
}

bool NativeMenuBar::IsReachable(const Row& row, std::span<const Row> rows) const {
  if (!row.item->Visible() || !row.item->Enabled()) return false;
  const auto parent = std::ranges::find_if(
      rows, [&](const Row& candidate) { return candidate.design->name == row.design->parent; });
  return parent == rows.end() || IsReachable(*parent, rows);
}

// --- The system's menu ---

void NativeMenuBar::Rebuild() {
  if (!isAttached_ || !window_) return;
  const std::vector<Row> rows = Rows();
  const HMENU before = ::GetMenu(window_);
  ::SetMenu(window_, rows.empty() ? nullptr : Build(rows));
  if (before) ::DestroyMenu(before);
}

HMENU NativeMenuBar::Build(std::span<const Row> rows) const {
  const HMENU bar = ::CreateMenu();
  for (const Row& top : RowsBelow(rows, "")) {
    const HMENU menu = ::CreatePopupMenu();
    for (const Row& row : RowsBelow(rows, top.design->name)) {
      const bool isFirst = ::GetMenuItemCount(menu) == 0;
      if (row.design->style == WidgetStyle::Separated && !isFirst) {
        ::AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
      }
      ::AppendMenuW(menu, MF_STRING | EnabledFlag(*row.item) | CheckedFlag(*row.item), row.command,
                    WideFromUtf8(row.item->Caption()).c_str());
    }
    ::AppendMenuW(bar, MF_POPUP | EnabledFlag(*top.item), reinterpret_cast<UINT_PTR>(menu),
                  WideFromUtf8(top.item->Caption()).c_str());
  }
  return bar;
}

void NativeMenuBar::UpdateState(const NativeMenuItem& item) const {
  if (!isAttached_ || !window_) return;
  const HMENU bar = ::GetMenu(window_);
  for (const Row& row : Rows()) {
    if (row.item != &item) continue;
    ::EnableMenuItem(bar, row.command, MF_BYCOMMAND | EnabledFlag(item));
    ::CheckMenuItem(bar, row.command, MF_BYCOMMAND | CheckedFlag(item));
  }
}

// --- Commands ---

bool NativeMenuBar::Run(WORD command) const {
  const std::vector<Row> rows = Rows();
  for (const Row& row : rows) {
    if (row.command != command || !IsReachable(row, rows)) continue;
    const std::function<void()> click = row.item->OnClick;  // the handler may destroy the item
    if (click) click();
    return true;
  }
  return false;
}

WORD NativeMenuBar::CommandOfKey(const MSG& message) const {
  if (message.message != WM_KEYDOWN && message.message != WM_SYSKEYDOWN) return 0;
  const MenuKey pressed{static_cast<std::uint16_t>(message.wParam), IsDown(VK_CONTROL),
                        IsDown(VK_SHIFT), IsDown(VK_MENU)};
  const std::vector<Row> rows = Rows();
  for (const Row& row : rows) {
    if (KeyOfCaption(row.item->Caption()) == pressed && IsReachable(row, rows)) return row.command;
  }
  return 0;
}

// --- An item ---

NativeMenuItem::NativeMenuItem(std::shared_ptr<NativeMenuBar> bar, std::string_view name)
    : bar_(std::move(bar)), name_(name) {
  bar_->Add(*this);
}

NativeMenuItem::~NativeMenuItem() {
  bar_->Remove(*this);
}

void NativeMenuItem::Visible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  bar_->Rebuild();
}

void NativeMenuItem::Enabled(bool enabled) {
  enabled_ = enabled;
  bar_->UpdateState(*this);
}

void NativeMenuItem::Caption(std::string_view caption) {
  if (caption == caption_) return;
  caption_ = caption;
  bar_->Rebuild();
}

void NativeMenuItem::Checked(bool checked) {
  checked_ = checked;
  bar_->UpdateState(*this);
}

}  // namespace orvik
