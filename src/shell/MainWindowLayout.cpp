#include "shell/MainWindowLayout.h"

#include <algorithm>
#include <string>

#include "controls/ctrlHintBar.h"
#include "design/SolveFor.h"
#include "engine/ClimateStations.h"
#include "shell/MainWindowTable.h"
#include "shell/Paddings.h"
#include "shell/StatusLine.h"

namespace orvik {
namespace {

// Lengths for 96 dots per inch.
constexpr int kMargin = 12;         // round each page and between its columns
constexpr int kMarkLeft = 3;        // of the mark in the margin beside a field
constexpr int kGap = 6;             // between widgets that belong together
constexpr int kToolbarPadding = 6;  // above and below the toolbar's buttons
constexpr int kNumberWidth = 104;   // of a field for a number
constexpr int kListSides = 32;      // of a list left and right of its text, together
constexpr int kTextWidth = 460;     // of a field for a text
constexpr int kRowGapLeast = 2;
constexpr int kRowGapMost = 8;
constexpr int kGroupGap = 10;  // above a heading, besides the row gap
constexpr int kDescriptionLines = 5;
constexpr int kHintLines = 2;
constexpr int kHintPadding = 4;    // of the strip above and below its lines
constexpr int kStatusPadding = 4;  // of the status line above and below its text
constexpr int kChartLeastWidth = 420;
constexpr int kChartComfortWidth = 800;
constexpr int kChartComfortHeight = 560;

// The chart's numbers and titles need room beside its frame, whose own shape is 4:3: the control
// must be so much wider than high, and this many pixels more.
constexpr int kChartShapeWidth = 5;
constexpr int kChartShapeHeight = 4;
constexpr int kChartSideRoom = 70;

std::string WithoutMnemonic(std::string_view caption) {
  std::string text(caption);
  std::erase(text, '&');
  return text;
}

// Of the climate station whose name is the longest on the screen.
int WidthOfStations(const TextMeasures& measures) {
  int width = 0;
  for (std::int16_t i = 1; i <= NumRainfallStations(); ++i) {
    width = std::max(width, measures.width(ClimateStationName(i)));
  }
  return width;
}

// One layout in the making: places are added as widgets are met.
class Layout {
 public:
  Layout(Size inner, const TextMeasures& measures)
      : inner_(inner), m_(measures), stationWidth_(WidthOfStations(measures)) {}

  std::vector<Placement> Run() {
    LayOutToolbar();
    const int top = ToolbarHeight();
    const int bottom = inner_.height - FootHeight();
    Place("picProject", {0, top, inner_.width, bottom});
    Place("picData", {0, top, inner_.width, bottom});
    LayOutProject();
    LayOutData({inner_.width, bottom - top});
    LayOutHint(bottom);
    LayOutStatus(inner_.height - StatusHeight());
    return std::move(places_);
  }

  Size Minimum() const {
    const int page = S(kMargin) + RowsHeight(S(kRowGapLeast)) + BarHeight();
    return {std::max(ToolbarWidth(), ColumnRight() + S(kMargin) + S(kChartLeastWidth) + S(kMargin)),
            ToolbarHeight() + std::max(page, ProjectHeight()) + FootHeight()};
  }

  Size Comfortable() const {
    const int page =
        S(kMargin) + std::max(S(kChartComfortHeight), RowsHeight(S(kRowGapMost))) + BarHeight();
    return {
        std::max(ToolbarWidth(), ColumnRight() + S(kMargin) + S(kChartComfortWidth) + S(kMargin)),
        ToolbarHeight() + page + FootHeight()};
  }

 private:
  int S(int length) const { return m_.Scale(length); }
  int TextWidth(std::string_view caption) const { return m_.width(WithoutMnemonic(caption)); }
  int FieldHeight() const { return m_.lineHeight + S(kFieldPadding); }
  int ButtonHeight() const { return m_.lineHeight + S(kButtonPadding); }
  int ButtonWidth(std::string_view caption) const { return TextWidth(caption) + S(kButtonSides); }
  int ToolbarHeight() const { return ButtonHeight() + 2 * S(kToolbarPadding); }
  int BarHeight() const { return FieldHeight() + 2 * S(kMargin); }  // with the space round it

  void Place(std::string_view name, const Area& area) { places_.push_back({name, area}); }

  // A text of one line, its middle at the height of the field beside it.
  void PlaceText(std::string_view name, int left, int right, int fieldTop) {
    const int top = fieldTop + (FieldHeight() - m_.lineHeight) / 2;
    Place(name, {left, top, right, top + m_.lineHeight});
  }

  // --- Toolbar ---

  int LeftButtonsWidth() const {
    return ButtonWidth(ButtonCaption::kProjectPage) + ButtonWidth(ButtonCaption::kDataPage) +
           S(kMargin) + ButtonWidth(ButtonCaption::kReCalc) + S(kGap) +
           ButtonWidth(ButtonCaption::kMap);
  }

  int ToolbarWidth() const {
    return S(kMargin) + LeftButtonsWidth() + 2 * S(kMargin) +
           ButtonWidth(ButtonCaption::kSaveExit) + S(kGap) +
           ButtonWidth(ButtonCaption::kDiscardExit) + S(kMargin);
  }

  void LayOutToolbar() {
    Place("picToolbar", {0, 0, inner_.width, ToolbarHeight()});
    int left = S(kMargin);
    const auto button = [&](std::string_view name, std::string_view caption, int gapAfter) {
      const int width = ButtonWidth(caption);
      Place(name, {left, S(kToolbarPadding), left + width, S(kToolbarPadding) + ButtonHeight()});
      left += width + gapAfter;
    };
    button("optPage(1)", ButtonCaption::kProjectPage, 0);
    button("optPage(2)", ButtonCaption::kDataPage, S(kMargin));
    button("cmdReCalc", ButtonCaption::kReCalc, S(kGap));
    button("cmdMap", ButtonCaption::kMap, 0);
    left = inner_.width - S(kMargin) - ButtonWidth(ButtonCaption::kDiscardExit) - S(kGap) -
           ButtonWidth(ButtonCaption::kSaveExit);
    button("cmdSaveExit", ButtonCaption::kSaveExit, S(kGap));
    button("cmdDiscardExit", ButtonCaption::kDiscardExit, 0);
  }

  // --- Project page ---

  int RowHeight(const FieldRow& row) const {
    return row.kind == FieldKind::Wrapped ? kDescriptionLines * m_.lineHeight + S(kFieldPadding)
                                          : FieldHeight();
  }

  int ProjectHeight() const {
    int height = 2 * S(kMargin);
    for (const FieldRow& row : ProjectRows()) height += RowHeight(row) + S(kRowGapMost);
    return height;
  }

  void LayOutProject() {
    int labelWidth = 0;
    for (const FieldRow& row : ProjectRows()) {
      labelWidth = std::max(labelWidth, TextWidth(row.label.caption));
    }
    const int margin = 2 * S(kMargin);
    const int left = margin + labelWidth + S(kMargin);
    const int right = std::min(left + S(kTextWidth), inner_.width - margin);
    int top = S(kMargin) + S(kRowGapMost);
    for (const FieldRow& row : ProjectRows()) {
      PlaceText(row.label.name, margin, margin + labelWidth, top);
      if (row.kind == FieldKind::Date) {
        LayOutDate(row.field, left, top);
      } else {
        Place(row.field, {left, top, right, top + RowHeight(row)});
      }
      top += RowHeight(row) + S(kRowGapMost);
    }
  }

  void LayOutDate(std::string_view field, int left, int top) {
    const int right = left + S(kNumberWidth);
    Place(field, {left, top, right, top + FieldHeight()});
    Place("cmdToday", {right + S(kGap), top, right + S(kGap) + ButtonWidth(ButtonCaption::kToday),
                       top + FieldHeight()});
  }

  // --- Data page ---

  int LabelWidth() const {
    int width = 0;
    for (const FieldGroup& group : DataGroups()) {
      for (const FieldRow& row : group.rows) width = std::max(width, TextWidth(row.label.caption));
    }
    for (const SiteQuantity quantity :
         {SiteQuantity::ReuseRate, SiteQuantity::Efficiency, SiteQuantity::StorageVolume}) {
      width = std::max(width, TextWidth(SiteQuantityCaption(quantity)));
    }
    return width;
  }

  int UnitWidth() const {
    int width = 0;
    for (const FieldGroup& group : DataGroups()) {
      for (const FieldRow& row : group.rows) width = std::max(width, TextWidth(row.unit.caption));
    }
    return width;
  }

  int FieldLeft() const { return S(kMargin) + LabelWidth() + S(kGap); }

  // Lists reach to the right end of the units; the longest station name must fit.
  int ColumnRight() const {
    const int fields = S(kNumberWidth) + S(kGap) + UnitWidth();
    return FieldLeft() + std::max(fields, stationWidth_ + S(kListSides));
  }

  int RowsHeight(int rowGap) const {
    int height = 0;
    for (const FieldGroup& group : DataGroups()) {
      height +=
          m_.lineHeight + rowGap + static_cast<int>(group.rows.size()) * (FieldHeight() + rowGap);
    }
    return height + (static_cast<int>(DataGroups().size()) - 1) * S(kGroupGap);
  }

  // The largest gap with which the rows fit.
  int RowGap(int height) const {
    for (int gap = S(kRowGapMost); gap > S(kRowGapLeast); --gap) {
      if (RowsHeight(gap) <= height) return gap;
    }
    return S(kRowGapLeast);
  }

  void LayOutData(Size page) {
    const int bottom = page.height - BarHeight();
    LayOutRows(RowGap(bottom - S(kMargin)));
    LayOutChart({ColumnRight() + S(kMargin), S(kMargin), page.width - S(kMargin), bottom});
    const int top = bottom + S(kMargin);
    const int right = page.width - S(kMargin);
    const int button = ButtonWidth(ButtonCaption::kErrorHelp);
    const int left = S(kMargin) + TextWidth(MessageRow().label.caption) + S(kGap);
    PlaceText(MessageRow().label.name, S(kMargin), left - S(kGap), top);
    Place(MessageRow().field, {left, top, right - button - S(kGap), top + FieldHeight()});
    Place("cmdErrorHelp", {right - button, top, right, top + FieldHeight()});
  }

  // --- Below the pages ---

  int HintHeight() const { return kHintLines * m_.lineHeight + 2 * S(kHintPadding); }
  int StatusHeight() const { return m_.lineHeight + 2 * S(kStatusPadding); }
  int FootHeight() const { return HintHeight() + S(kGap) + StatusHeight(); }

  // The strip's symbol takes a square at its left.
  void LayOutHint(int top) {
    const Size strip{inner_.width - 2 * S(kMargin), HintHeight()};
    Place("picHint", {S(kMargin), top, S(kMargin) + strip.width, top + strip.height});
    const int caption = strip.height;
    const int text = caption + m_.width(ctrlHintBar::kCaption) + S(kMargin);
    const int first = S(kHintPadding);
    Place("lblHint", {caption, first, text - S(kGap), first + m_.lineHeight});
    Place("txtHint", {text, first, strip.width - S(kGap), first + kHintLines * m_.lineHeight});
  }

  void LayOutStatus(int top) {
    Place("picStatus", {0, top, inner_.width, top + StatusHeight()});
    const auto text = [&](std::string_view name, int left, int right) {
      Place(name, {left, S(kStatusPadding), right, S(kStatusPadding) + m_.lineHeight});
    };
    const int saved =
        S(kMargin) + std::max(m_.width(StatusText::kUnsaved), m_.width(StatusText::kSavedExample));
    const int right = inner_.width - S(kMargin);
    const int outOfDate = right - m_.width(StatusText::kOutOfDate);
    text("lblSaved", S(kMargin), saved);
    text("lblFile", saved + 2 * S(kMargin), outOfDate - S(kMargin));
    text("lblOutOfDate", outOfDate, right);
  }

  void LayOutRows(int rowGap) {
    int top = S(kMargin);
    for (const FieldGroup& group : DataGroups()) {
      Place(group.heading.name, {S(kMargin), top, ColumnRight(), top + m_.lineHeight});
      top += m_.lineHeight + rowGap;
      for (const FieldRow& row : group.rows) {
        LayOutRow(row, top);
        top += FieldHeight() + rowGap;
      }
      top += S(kGroupGap);
    }
  }

  void LayOutRow(const FieldRow& row, int top) {
    const int fieldRight = row.isList ? ColumnRight() : FieldLeft() + S(kNumberWidth);
    PlaceText(row.label.name, S(kMargin), FieldLeft() - S(kGap), top);
    Place(row.field, {FieldLeft(), top, fieldRight, top + FieldHeight()});
    if (!row.unit.name.empty()) {
      PlaceText(row.unit.name, fieldRight + S(kGap), ColumnRight(), top);
    }
    if (!row.mark.empty()) PlaceText(row.mark, S(kMarkLeft), S(kMargin), top);
  }

  // As large as the room allows in a shape in which its height is the limit.
  void LayOutChart(Area room) {
    const int width = room.right - room.left;
    const int height = (width - S(kChartSideRoom)) * kChartShapeHeight / kChartShapeWidth;
    room.bottom = std::min(room.bottom, room.top + height);
    Place("ctrlStormwaterReuse1", room);
  }

  Size inner_;
  const TextMeasures& m_;
  int stationWidth_;  // of the longest name
  std::vector<Placement> places_;
};

}  // namespace

Size MinimumMainWindow(const TextMeasures& measures) {
  return Layout({}, measures).Minimum();
}

Size ComfortableMainWindow(const TextMeasures& measures) {
  return Layout({}, measures).Comfortable();
}

std::vector<Placement> LayOutMainWindow(Size inner, const TextMeasures& measures) {
  const Size least = MinimumMainWindow(measures);
  return Layout({std::max(inner.width, least.width), std::max(inner.height, least.height)},
                measures)
      .Run();
}

}  // namespace orvik
