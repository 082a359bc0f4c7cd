#include "controls/PictureView.h"

#include <algorithm>
#include <cmath>

namespace orvik {
namespace {

int Whole(double length) {
  return static_cast<int>(std::lround(length));
}

}  // namespace

void PictureView::PictureSize(Size size) {
  across_.picture = size.width;
  down_.picture = size.height;
  Fit();
}

void PictureView::WindowSize(Size size) {
  const bool wasFitted = IsEmpty() || IsFitted();
  const auto change = [](Side& side, int window) {
    side.start += (window - side.window) / 2.0;
    side.window = window;
  };
  change(across_, size.width);
  change(down_, size.height);
  if (wasFitted) return Fit();
  zoom_ = std::max(zoom_, FittedZoom());
  Limit();
}

bool PictureView::IsEmpty() const {
  return std::min({across_.picture, down_.picture, across_.window, down_.window}) <= 0;
}

double PictureView::FittedZoom() const {
  return std::min({double{kMostZoom}, double(across_.window) / across_.picture,
                   double(down_.window) / down_.picture});
}

bool PictureView::IsFitted() const {
  return !IsEmpty() && zoom_ <= FittedZoom();
}

bool PictureView::CanPan() const {
  return !IsEmpty() && !IsFitted();
}

void PictureView::Fit() {
  zoom_ = IsEmpty() ? 1 : FittedZoom();
  Limit();
}

void PictureView::ZoomAbout(double x, double y, double factor) {
  if (IsEmpty()) return;
  const double zoom = std::clamp(zoom_ * factor, FittedZoom(), kMostZoom);
  const auto stretch = [&](Side& side, double at) {
    side.start = at - (at - side.start) * zoom / zoom_;
  };
  stretch(across_, x);
  stretch(down_, y);
  zoom_ = zoom;
  Limit();
}

void PictureView::ZoomAboutMiddle(double factor) {
  ZoomAbout(across_.window / 2.0, down_.window / 2.0, factor);
}

void PictureView::Pan(double right, double down) {
  across_.start += right;
  down_.start += down;
  Limit();
}

Area PictureView::Place() const {
  if (IsEmpty()) return {};
  const int left = Whole(across_.start);
  const int top = Whole(down_.start);
  return {left, top, left + Whole(across_.picture * zoom_), top + Whole(down_.picture * zoom_)};
}

void PictureView::Limit(Side& side, double zoom) {
  const double beyond = side.window - side.picture * zoom;
  side.start = beyond >= 0 ? beyond / 2 : std::clamp(side.start, beyond, 0.0);
}

void PictureView::Limit() {
  Limit(across_, zoom_);
  Limit(down_, zoom_);
}

}  // namespace orvik
