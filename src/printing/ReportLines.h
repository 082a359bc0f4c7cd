// The lines of a report, from the top of a page down: headings, rows of captions and values,
// paragraphs. What belongs together stays on one page; long values are broken into lines and run
// on over pages.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "printing/clsPageControl.h"

namespace orvik {

class Printer;

struct ReportRow {
  std::string caption;
  std::string value;
};

class ReportLines {
 public:
  // Begins at the printer's current position, where a header has left it. Both outlive the lines.
  ReportLines(Printer& printer, clsPageControl& pages);

  // A heading, on the same page as `following` of whatever comes below it (the printer's units).
  void Heading(std::string_view text, float following);
  void Heading(std::string_view text) { Heading(text, LineHeight(ReportFont::kBody)); }

  // The columns of all rows from now on hold captions at least as wide as this one, so that the
  // values of several sections are aligned.
  void AlignTo(std::string_view caption);

  // Captions in one column and their values in another, which begins after the widest caption.
  void Rows(std::span<const ReportRow> rows);

  void Paragraph(std::string_view text, int font);

  void NewPage();

  // Goes down; at most to the end of the page.
  void Skip(float height);

  float Y() const { return y_; }
  float Room() const;                          // from here to the end of the page
  float LineHeight(int font) const;            // from one line to the next
  float HeightOfHeading() const;               // with its distance to what is above
  float HeightOfRows(std::size_t rows) const;  // of one line each

 private:
  void Use(int font);
  void Need(float height);
  void Row(const ReportRow& row, float valueColumn);
  void Lines(std::string_view text, float x, int font);
  float Column(std::span<const ReportRow> rows);

  Printer& printer_;
  clsPageControl& pages_;
  float y_;
  float leastCaption_ = 0;
  bool atTop_ = true;  // nothing is above on this page
};

}  // namespace orvik
