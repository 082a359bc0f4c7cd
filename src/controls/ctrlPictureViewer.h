// A picture to look at: fitted to the control, zoomed by the wheel or keys, and dragged.
#pragma once

#include <cstdint>

#include "controls/PictureView.h"
#include "platform/Host.h"
#include "platform/Surface.h"
#include "platform/Toolkit.h"

namespace orvik {

class ctrlPictureViewer {
 public:
  ctrlPictureViewer() = default;
  ctrlPictureViewer(const ctrlPictureViewer&) = delete;
  ctrlPictureViewer& operator=(const ctrlPictureViewer&) = delete;
  ~ctrlPictureViewer() = default;

  // The window that shows the viewer, null for none. It outlives the viewer or is taken away before
  // it goes.
  void AttachHost(Host* host) { host_ = host; }

  // The picture, fitted; one without pixels leaves the viewer empty. Throws std::invalid_argument
  // for pixels that are more or fewer than its size says.
  void Show(Picture picture);

  // The control's inner size in pixels.
  void Resize(int width, int height);

  // Paints the whole control.
  void Paint(Surface& surface);

  // The mouse with its primary button; x and y are pixels of the control, and any value is allowed.
  // A drag takes the picture with it.
  void MouseDown(double x, double y);
  void MouseMove(double x, double y);
  void MouseUp();
  void CaptureLost();  // the system took the mouse away: the drag ends
  void DoubleClick();  // fits

  // Zooms about the point, or about the middle where it is outside. `notches` of the wheel, away
  // from the user; fractions count.
  void MouseWheel(double notches, double x, double y);

  // "+" and "-" zoom about the middle, "0" fits, the arrow keys lead the view over the picture.
  void KeyDown(std::int16_t keyCode);
  static bool WantsKey(std::int16_t keyCode);  // whether KeyDown heeds it

  // A hand while the picture can be dragged.
  PointerShape Pointer() const;

  const PictureView& View() const { return view_; }

 private:
  void RedrawView();

  Host* host_ = nullptr;
  Picture picture_;
  PictureView view_;
  Size size_;
  Picture shown_;  // what the view shows of the picture, in its size; empty where that has changed
  bool isDragging_ = false;
  double dragX_ = 0;
  double dragY_ = 0;
};

}  // namespace orvik
