#include "printing/ReportLines.h"

#include <algorithm>

#include "base/PrintableText.h"
#include "base/Text.h"
#include "printing/FitText.h"

namespace orvik {
namespace {

constexpr float kLineSpacing = 1.2F;    // of the text's height
constexpr float kHeadingSpace = 0.75F;  // above a heading, in its lines
constexpr float kIndent = 1.2F;         // of captions, in body lines
constexpr float kColumnGap = 2;         // between captions and values, in body lines
constexpr float kMostCaption = 0.6F;    // of the body's width

// Some pages; of a longer text, which nobody types, the report has the beginning and "...".
constexpr std::size_t kMostPrinted = 12000;

// One line of printable text: what breaks lines or moves the pen is a blank.
std::string Printable(std::string_view text) {
  return std::string(Trim(PrintableText(FoldLineEnds(text), kMostPrinted)));
}

}  // namespace

ReportLines::ReportLines(Printer& printer, clsPageControl& pages)
    : printer_(printer), pages_(pages), y_(printer.CurrentY()) {}

void ReportLines::Use(int font) {
  pages_.SetPrinterFont(printer_, pages_.Font(font));
}

float ReportLines::LineHeight(int font) const {
  return kLineSpacing * pages_.HeightOfFont(font);
}

float ReportLines::HeightOfHeading() const {
  return (atTop_ ? 1 : 1 + kHeadingSpace) * LineHeight(ReportFont::kHeading);
}

float ReportLines::HeightOfRows(std::size_t rows) const {
  return static_cast<float>(rows) * LineHeight(ReportFont::kBody);
}

float ReportLines::Room() const {
  return std::max(0.0F, pages_.FreeArea().Bottom - y_);
}

void ReportLines::NewPage() {
  pages_.NewPage(printer_);
  y_ = printer_.CurrentY();
  atTop_ = true;
}

// Starts a new page where this height does not fit on the present one, unless that is blank.
void ReportLines::Need(float height) {
  if (!atTop_ && !pages_.Fits(y_, height)) NewPage();
}

void ReportLines::Skip(float height) {
  y_ = std::min(y_ + height, pages_.FreeArea().Bottom);
  atTop_ = false;
}

void ReportLines::Heading(std::string_view text, float following) {
  Need(HeightOfHeading() + following);
  if (!atTop_) y_ += kHeadingSpace * LineHeight(ReportFont::kHeading);
  Use(ReportFont::kHeading);
  pages_.PrintString(printer_, pages_.BodyLeft(), y_, text);
  Skip(LineHeight(ReportFont::kHeading));
}

void ReportLines::AlignTo(std::string_view caption) {
  Use(ReportFont::kBody);
  leastCaption_ = printer_.TextWidth(caption);
}

float ReportLines::Column(std::span<const ReportRow> rows) {
  Use(ReportFont::kBody);
  const float lines = pages_.HeightOfFont(ReportFont::kBody);
  float widest = leastCaption_;
  for (const ReportRow& row : rows) widest = std::max(widest, printer_.TextWidth(row.caption));
  const float body = pages_.BodyRight() - pages_.BodyLeft();
  return pages_.BodyLeft() + kIndent * lines + std::min(widest, kMostCaption * body) +
         kColumnGap * lines;
}

void ReportLines::Rows(std::span<const ReportRow> rows) {
  const float column = Column(rows);
  for (const ReportRow& row : rows) Row(row, column);
}

// The caption is level with the value's first line, whichever of the two is higher.
void ReportLines::Row(const ReportRow& row, float valueColumn) {
  Use(ReportFont::kBody);
  const std::string value = Printable(row.value);
  Need(std::max(printer_.TextHeight(row.caption), printer_.TextHeight(value)));
  const float indent = kIndent * pages_.HeightOfFont(ReportFont::kBody);
  pages_.PrintString(printer_, pages_.BodyLeft() + indent, y_, row.caption);
  Lines(value, valueColumn, ReportFont::kBody);
}

void ReportLines::Paragraph(std::string_view text, int font) {
  Lines(Printable(text), pages_.BodyLeft() + kIndent * pages_.HeightOfFont(ReportFont::kBody),
        font);
}

void ReportLines::Lines(std::string_view text, float x, int font) {
  Use(font);
  const auto width = [&](std::string_view part) { return printer_.TextWidth(part); };
  for (const std::string& line : WrapText(text, pages_.BodyRight() - x, width)) {
    if (!line.empty()) pages_.PrintString(printer_, x, y_, line);
    const float height = std::max(pages_.HeightOfFont(font), printer_.TextHeight(line));
    Skip(kLineSpacing * height);
  }
}

}  // namespace orvik
