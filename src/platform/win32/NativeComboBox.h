// A drop-down list without free text on the system's own control.
#pragma once

#include "platform/Toolkit.h"
#include "platform/win32/ChildWindow.h"

namespace orvik {

class NativeComboBox final : public NativeWidget<ComboBox> {
 public:
  NativeComboBox(HINSTANCE module, HWND parent);

  void Clear() override;
  void AddItem(std::string_view text) override;
  std::int16_t ListCount() const override;
  std::string List(std::int16_t index) const override;
  std::int16_t ListIndex() const override;
  void ListIndex(std::int16_t index) override;

 protected:
  LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void RaiseChange();
  void CommitOpenList();
  bool IsDropped() const;

  std::int16_t raisedFor_ = -1;  // the index that OnClick was last raised for
};

// Puts the closed list, whose height the system derives from its font, in the middle of the area;
// the list that drops down shows up to a dozen items. Pixels of the parent.
void PlaceComboBox(HWND comboBox, const RECT& area);

}  // namespace orvik
