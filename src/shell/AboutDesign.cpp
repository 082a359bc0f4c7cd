#include "shell/AboutDesign.h"

#include <algorithm>
#include <array>

#include "shell/AboutTexts.h"
#include "shell/Paddings.h"

namespace orvik {
namespace {

// Lengths for 96 dots per inch.
constexpr int kMargin = 16;
constexpr int kGap = 4;          // between lines that belong together
constexpr int kGroupGap = 12;    // above and below the details
constexpr int kTextWidth = 480;  // of the details, for some eighty letters in a line
constexpr int kDetailLines = 14;
constexpr int kButtonWidth = 80;
constexpr int kTextInset = 2;  // above and below the line of a text box without a frame, together

constexpr std::string_view kOk = "cmdOK";

// In the order of reading.
constexpr std::array kWidgets = {
    WidgetDesign{"lblTitle", "", WidgetStyle::Heading},
    WidgetDesign{"txtVersion", "", WidgetStyle::Bare},
    WidgetDesign{"lblCopyright", ""},
    WidgetDesign{"txtDetails", "", WidgetStyle::Wrapped},
    WidgetDesign{kOk, ""},
};

// From top to bottom, each as wide as the window has room.
class Column {
 public:
  Column(int width, const TextMeasures& measures)
      : left_(measures.Scale(kMargin)), right_(width - left_), top_(left_) {}

  void Add(std::string_view name, int height, int gapAfter) {
    places_.push_back({name, {left_, top_, right_, top_ + height}});
    top_ += height + gapAfter;
  }

  // At the right, and the margin below it.
  void AddButton(std::string_view name, Size size) {
    places_.push_back({name, {right_ - size.width, top_, right_, top_ + size.height}});
    top_ += size.height + left_;
  }

  int Height() const { return top_; }
  std::vector<Placement> Take() { return std::move(places_); }

 private:
  int left_;
  int right_;
  int top_;
  std::vector<Placement> places_;
};

Column Fill(int width, const TextMeasures& m) {
  Column column(width, m);
  column.Add("lblTitle", m.lineHeight, m.Scale(kGap));
  column.Add("txtVersion", m.lineHeight + kTextInset, m.Scale(kGap));
  column.Add("lblCopyright", m.lineHeight, m.Scale(kGroupGap));
  column.Add("txtDetails", kDetailLines * m.lineHeight + m.Scale(kFieldPadding),
             m.Scale(kGroupGap));
  column.AddButton(
      kOk, {std::max(m.Scale(kButtonWidth), m.width(AboutText::kOk) + m.Scale(kButtonSides)),
            m.lineHeight + m.Scale(kButtonPadding)});
  return column;
}

int Width(const TextMeasures& measures) {
  const int text = std::max({measures.Scale(kTextWidth), measures.width(AboutText::kTitle),
                             measures.width(AboutText::kCopyright)});
  return text + 2 * measures.Scale(kMargin);
}

}  // namespace

std::span<const WidgetDesign> AboutDesign::Widgets() const {
  return kWidgets;
}

std::string_view AboutDesign::FirstFocus() const {
  return kOk;
}

Size AboutDesign::MinimumSize(const TextMeasures& measures) const {
  return InitialSize(measures);
}

Size AboutDesign::InitialSize(const TextMeasures& measures) const {
  const int width = Width(measures);
  return {width, Fill(width, measures).Height()};
}

std::vector<Placement> AboutDesign::LayOut(Size inner, const TextMeasures& measures) const {
  return Fill(inner.width, measures).Take();
}

const AboutDesign& AboutDesign::Get() {
  static const AboutDesign design;
  return design;
}

}  // namespace orvik
