// Where a picture lies in the window that shows it: how large it is shown, and which part of it.
#pragma once

#include "platform/Surface.h"

namespace orvik {

// All lengths are pixels of the window, fractions included, but for the picture's own size. The
// zoom lies between that of the fitted picture and the most; along a side on which the picture is
// shorter than the window it stands in the middle, along any other it covers the window.
class PictureView {
 public:
  static constexpr double kMostZoom = 8;

  // A picture without pixels, or a window without, shows nothing. Another picture is fitted. In a
  // window of another size a fitted picture is fitted anew; of any other the middle stays.
  void PictureSize(Size size);
  void WindowSize(Size size);

  bool IsEmpty() const;
  double Zoom() const { return zoom_; }  // pixels of the window for each pixel of the picture
  bool IsFitted() const;                 // the whole picture, as large as the window has room
  bool CanPan() const;                   // there is more of it beyond the window's edges

  void Fit();

  // What is at the point stays there, as far as the limits allow.
  void ZoomAbout(double x, double y, double factor);
  void ZoomAboutMiddle(double factor);

  // Moves the picture, as far as the limits allow.
  void Pan(double right, double down);

  // Where the whole picture lies, in whole pixels; it may reach beyond the window.
  Area Place() const;

 private:
  // One side: the picture's and the window's length, and where the picture begins.
  struct Side {
    int picture = 0;
    int window = 0;
    double start = 0;
  };

  double FittedZoom() const;
  static void Limit(Side& side, double zoom);
  void Limit();

  Side across_;
  Side down_;
  double zoom_ = 1;
};

}  // namespace orvik
