#include "controls/ctrlHintBar.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace orvik {
namespace {

void PaintFrame(Surface& surface, Size size) {
  const int right = size.width - 1;
  const int bottom = size.height - 1;
  const std::array<Point, 5> corners{Point{0, 0}, Point{right, 0}, Point{right, bottom},
                                     Point{0, bottom}, Point{0, 0}};
  surface.Polyline(corners, {kButtonShadow, 1, DrawMode::Copy});
}

void PaintDisc(Surface& surface, Point centre, int radius) {
  std::array<Point, 32> rim;
  for (std::size_t i = 0; i < rim.size(); ++i) {
    const double angle = 2 * std::numbers::pi * static_cast<double>(i) / rim.size();
    rim[i] = {centre.x + static_cast<int>(std::lround(radius * std::cos(angle))),
              centre.y + static_cast<int>(std::lround(radius * std::sin(angle)))};
  }
  surface.FillPolygon(rim, kHighlight);
}

// The letter "i" as a dot and a stem, which needs no font.
void PaintLetter(Surface& surface, Point centre, int radius) {
  const int half = std::max(1, radius / 6);
  const auto block = [&](int top, int bottom) {
    surface.FillArea({centre.x - half, centre.y + top, centre.x + half, centre.y + bottom},
                     kHighlightText);
  };
  block(-radius * 2 / 3, -radius * 2 / 3 + 2 * half);
  block(-radius / 5, radius * 2 / 3);
}

}  // namespace

void PaintHintStrip(Surface& surface, Size size) {
  surface.FillArea({0, 0, size.width, size.height}, kInfoBackground);
  PaintFrame(surface, size);
  const Point centre{size.height / 2, size.height / 2};
  const int radius = size.height / 4;
  PaintDisc(surface, centre, radius);
  PaintLetter(surface, centre, radius);
}

ctrlHintBar::ctrlHintBar(Toolkit& toolkit)
    : strip_(toolkit.MakePanel("picHint")),
      label_(toolkit.MakeLabel("lblHint")),
      Text1_(toolkit.MakeTextBox("txtHint")) {
  label_->Caption(kCaption);
  strip_->OnPaint = PaintHintStrip;
  Text1_->Locked(true);
  Text1_->ForeColor(kInfoText);
  Text1_->BackColor(kInfoBackground);
  strip_->Visible(false);
}

// Shown before the text is set: what is hidden is not announced.
void ctrlHintBar::Text(std::string_view text) {
  strip_->Visible(!text.empty());
  Text1_->Text(text);
}

}  // namespace orvik
