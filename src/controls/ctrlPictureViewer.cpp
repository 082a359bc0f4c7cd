#include "controls/ctrlPictureViewer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "controls/PictureScaling.h"

namespace orvik {
namespace {

constexpr double kZoomStep = 1.25;  // of one notch of the wheel, or one key
constexpr double kArrowSteps = 10;  // by the arrow keys over the width or height of the control

// What a key does: the factor of the zoom (0 fits), and the way that the picture moves.
struct KeyStep {
  std::int16_t code;
  double zoom;
  int right = 0;
  int down = 0;
};

constexpr std::array kKeySteps = {
    KeyStep{0xBB, kZoomStep},      // "+" beside the digits
    KeyStep{0x6B, kZoomStep},      // "+" of the block of numbers
    KeyStep{0xBD, 1 / kZoomStep},  // "-" likewise
    KeyStep{0x6D, 1 / kZoomStep},
    KeyStep{0x30, 0},  // "0" likewise
    KeyStep{0x60, 0},
    KeyStep{0x25, 1, 1, 0},   // left: what is further left comes into view
    KeyStep{0x27, 1, -1, 0},  // right
    KeyStep{0x26, 1, 0, 1},   // up
    KeyStep{0x28, 1, 0, -1},  // down
};

const KeyStep* FindStep(std::int16_t keyCode) {
  const auto* const found = std::ranges::find(kKeySteps, keyCode, &KeyStep::code);
  return found == kKeySteps.end() ? nullptr : &*found;
}

}  // namespace

void ctrlPictureViewer::Show(Picture picture) {
  if (!IsConsistent(picture)) throw std::invalid_argument("The picture is not of its size.");
  picture_ = std::move(picture);
  view_.PictureSize(picture_.size);
  RedrawView();
}

void ctrlPictureViewer::Resize(int width, int height) {
  size_ = {width, height};
  view_.WindowSize(size_);
  RedrawView();
}

// What was scaled for the view before is of no use any more.
void ctrlPictureViewer::RedrawView() {
  shown_ = {};
  if (host_) host_->Invalidate();
}

// --- Painting ---

void ctrlPictureViewer::Paint(Surface& surface) {
  const Area all{0, 0, size_.width, size_.height};
  surface.FillArea(all, kButtonFace);
  if (view_.IsEmpty()) return;
  const Area place = view_.Place();
  const Area seen = Intersection(place, all);
  if (shown_.pixels.empty()) {
    shown_ = ScalePicture(picture_, {place.right - place.left, place.bottom - place.top},
                          {seen.left - place.left, seen.top - place.top, seen.right - place.left,
                           seen.bottom - place.top});
  }
  surface.CopyPicture(shown_, seen);
}

// --- Mouse ---

void ctrlPictureViewer::MouseDown(double x, double y) {
  if (!view_.CanPan()) return;
  if (host_) host_->CaptureMouse();
  isDragging_ = true;
  dragX_ = x;
  dragY_ = y;
}

void ctrlPictureViewer::MouseMove(double x, double y) {
  if (!isDragging_) return;
  view_.Pan(x - std::exchange(dragX_, x), y - std::exchange(dragY_, y));
  RedrawView();
}

void ctrlPictureViewer::MouseUp() {
  if (!std::exchange(isDragging_, false)) return;
  if (host_) host_->ReleaseMouse();
}

void ctrlPictureViewer::CaptureLost() {
  isDragging_ = false;
}

void ctrlPictureViewer::DoubleClick() {
  view_.Fit();
  RedrawView();
}

void ctrlPictureViewer::MouseWheel(double notches, double x, double y) {
  const double factor = std::pow(kZoomStep, notches);
  const bool isInside = 0 <= x && x < size_.width && 0 <= y && y < size_.height;
  isInside ? view_.ZoomAbout(x, y, factor) : view_.ZoomAboutMiddle(factor);
  RedrawView();
}

PointerShape ctrlPictureViewer::Pointer() const {
  return view_.CanPan() ? PointerShape::Hand : PointerShape::Arrow;
}

// --- Keys ---

void ctrlPictureViewer::KeyDown(std::int16_t keyCode) {
  const KeyStep* step = FindStep(keyCode);
  if (!step) return;
  view_.ZoomAboutMiddle(step->zoom);
  view_.Pan(step->right * size_.width / kArrowSteps, step->down * size_.height / kArrowSteps);
  RedrawView();
}

bool ctrlPictureViewer::WantsKey(std::int16_t keyCode) {
  return FindStep(keyCode) != nullptr;
}

}  // namespace orvik
