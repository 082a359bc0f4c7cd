// The menu bar of a window, and the items that the form holds of it.
#pragma once

#include <windows.h>

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "platform/FormDesign.h"
#include "platform/Toolkit.h"

namespace orvik {

class NativeMenuItem;

// Builds the system's menu from the living items, in the order and under the parents that the
// design gives them.
class NativeMenuBar {
 public:
  NativeMenuBar(HWND window, const FormDesign& design) : window_(window), design_(design) {}
  NativeMenuBar(const NativeMenuBar&) = delete;
  NativeMenuBar& operator=(const NativeMenuBar&) = delete;
  ~NativeMenuBar();

  // Items register themselves, and unregister.
  void Add(NativeMenuItem& item) { items_.push_back(&item); }
  void Remove(NativeMenuItem& item);

  // What the items show has changed: their presence and captions, or only their state.
  void Rebuild();
  void UpdateState(const NativeMenuItem& item) const;

  // Raises OnClick of the item with this command number. False where there is none that the user
  // can reach now.
  bool Run(WORD command) const;

  // The command number of the item whose shortcut key this message is, where the user can reach it
  // now; 0 for none.
  WORD CommandOfKey(const MSG& message) const;

  // The window is being destroyed, or can show its menu now.
  void Detach();
  void Attach();

 private:
  struct Row {
    const WidgetDesign* design;
    NativeMenuItem* item;
    WORD command;
  };

  std::vector<Row> Rows() const;
  std::vector<Row> RowsBelow(std::span<const Row> rows, std::string_view parent) const;
  bool IsReachable(const Row& row, std::span<const Row> rows) const;
  HMENU Build(std::span<const Row> rows) const;

  HWND window_;
  const FormDesign& design_;
  std::vector<NativeMenuItem*> items_;
  bool isAttached_ = false;  // until then the menu would be built again for each item
};

class NativeMenuItem final : public MenuItem {
 public:
  NativeMenuItem(std::shared_ptr<NativeMenuBar> bar, std::string_view name);
  NativeMenuItem(const NativeMenuItem&) = delete;
  NativeMenuItem& operator=(const NativeMenuItem&) = delete;
  ~NativeMenuItem() override;

  const std::string& Name() const { return name_; }

  bool Visible() const override { return visible_; }
  void Visible(bool visible) override;
  bool Enabled() const override { return enabled_; }
  void Enabled(bool enabled) override;
  void Move(int, int, int, int) override {}  // a menu has its place by the design
  std::string Caption() const override { return caption_; }
  void Caption(std::string_view caption) override;
  bool Checked() const override { return checked_; }
  void Checked(bool checked) override;

 private:
  std::shared_ptr<NativeMenuBar> bar_;
  std::string name_;
  std::string caption_;
  bool visible_ = true;
  bool enabled_ = true;
  bool checked_ = false;
};

}  // namespace orvik
