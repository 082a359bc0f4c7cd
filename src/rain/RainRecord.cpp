#include "rain/RainRecord.h"

#include <algorithm>
#include <initializer_list>
#include <optional>

#include "base/FileBytes.h"
#include "base/FileError.h"
#include "base/NumberText.h"
#include "base/Paths.h"
#include "base/PrintableText.h"
#include "base/Text.h"
#include "base/TextEncoding.h"
#include "rain/CsvText.h"
#include "rain/RainDate.h"

namespace orvik {
namespace {

constexpr std::size_t kMostErrorsShown = 5;

// A longer line is no row of a table; it is refused before it is split.
constexpr std::size_t kMostLineBytes = 65536;

// The wettest day ever measured, 72 inches, read in the unit that makes most of it: a number of
// hundredths of an inch or of tenths of a millimetre that is taken for inches is up to 254 times
// too large. The mean annual rainfall finds such a mistake and names the right unit; a depth beyond
// this makes no sense in any unit.
constexpr double kMostDepthIn = 72 * 254;

// A row of the file; each has a date.
struct Row {
  std::chrono::sys_days date;
  std::optional<double> depth;  // in the file's unit
  int line;
};

// The columns' positions in a line, from 0.
struct ColumnPlaces {
  std::size_t date;
  std::size_t depth;
  std::optional<std::size_t> station;
};

std::string JoinNames(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : ", ") + name;
  return text;
}

std::optional<std::size_t> FindColumn(const std::vector<std::string>& header,
                                      const std::string& name) {
  const auto found = std::ranges::find_if(
      header, [&](const std::string& h) { return EqualIgnoringCase(h, name); });
  if (found == header.end()) return std::nullopt;
  return static_cast<std::size_t>(found - header.begin());
}

// The column with the given name; without one, the first that has a usual name.
std::size_t RequireColumn(const std::vector<std::string>& header, const std::string& given,
                          std::initializer_list<const char*> customary, const std::string& what) {
  if (!given.empty()) {
    if (const auto place = FindColumn(header, given)) return *place;
    throw FileError("The file has no column \"" + given +
                    "\". Its columns are: " + JoinNames(header) + ".");
  }
  for (const char* name : customary) {
    if (const auto place = FindColumn(header, name)) return *place;
  }
  throw FileError("The file has no column with a known name for the " + what +
                  ". Its columns are: " + JoinNames(header) + ".");
}

ColumnPlaces FindColumns(const std::vector<std::string>& header, const RainColumns& columns) {
  return {
      RequireColumn(header, columns.date, {"date", "day", "obs_date", "observation_date"}, "date"),
      RequireColumn(
          header, columns.depth,
          {"precipitation_in", "precipitation_mm", "precipitation", "prcp", "precip", "rainfall_in",
           "rainfall_mm", "rainfall", "rain_in", "rain_mm", "rain", "depth"},
          "rainfall depth"),
      FindColumn(header, "station")};
}

std::string LineTooLong() {
  return "it has more than " + std::to_string(kMostLineBytes) + " bytes";
}

std::string Quote(std::string_view text) {
  return "\"" + Quotable(text) + "\"";
}

bool IsDigits(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

// Added to the sentence that refuses a depth where it looks like "12,7"; else empty.
std::string DecimalCommaHint(std::string_view depth) {
  const auto comma = std::min(depth.find(','), depth.size());
  if (depth.size() > kMostQuoted) return {};
  const std::string whole(depth.substr(0, comma));
  const std::string fraction(depth.substr(std::min(comma + 1, depth.size())));
  if (!IsDigits(whole) || !IsDigits(fraction)) return {};
  return "; if " + whole + "," + fraction +
         " is one number, write it with a decimal point: " + whole + "." + fraction;
}

// Reads the rows of a file, and collects a sentence about each that cannot be read.
class RowReader {
 public:
  RowReader(const ColumnPlaces& places, std::size_t columns, RainUnit unit, RainFindings& findings)
      : places_(places), columns_(columns), unit_(unit), findings_(findings) {}

  void Read(std::string_view line, int lineNumber) {
    if (line.size() > kMostLineBytes) return Refuse(lineNumber, LineTooLong());
    if (line.find_first_not_of(" \t,") == std::string_view::npos) return;
    if (!SplitCsvLine(line, fields_)) {
      return Refuse(lineNumber, "a quotation mark is not closed");
    }
    if (places_.date >= fields_.size() || places_.depth >= fields_.size()) {
      return Refuse(lineNumber, "there are fewer fields than columns");
    }
    if (fields_.size() > columns_) {
      return Refuse(lineNumber, "there are more fields than columns" + SplitNumberHint());
    }
    const auto date = ParseRainDate(fields_[places_.date]);
    if (!date) return Refuse(lineNumber, Quote(fields_[places_.date]) + " is not a date");
    if (!KeepStation()) {
      return Refuse(lineNumber, "the station is " + Quotable(fields_[*places_.station]) + ", but " +
                                    Quotable(station_) +
                                    " in the rows above; keep the rows of one station");
    }
    Row row{*date, std::nullopt, lineNumber};
    if (!ReadDepth(fields_[places_.depth], row)) {
      return Refuse(lineNumber, Quote(fields_[places_.depth]) + " is not a rainfall depth" +
                                    DecimalCommaHint(fields_[places_.depth]));
    }
    if (row.depth && !(*row.depth / UnitsPerInch(unit_) <= kMostDepthIn)) {
      return Refuse(lineNumber, Quote(fields_[places_.depth]) +
                                    " is more rain than any day can have, in whatever unit; if it "
                                    "is a code for a missing value, leave the depth empty");
    }
    rows_.push_back(row);
  }

  std::vector<Row> Finish() {
    if (errorCount_ > 0) {
      const std::size_t more = errorCount_ - std::min(errorCount_, kMostErrorsShown);
      if (more > 0) errors_ += "\n... and " + std::to_string(more) + " more.";
      throw FileError(errors_);
    }
    if (rows_.empty()) throw FileError("The file has no rows of rainfall.");
    findings_.rows = static_cast<int>(rows_.size());
    return std::move(rows_);
  }

 private:
  void Refuse(int lineNumber, const std::string& why) {
    if (++errorCount_ > kMostErrorsShown) return;
    errors_ +=
        (errors_.empty() ? "Line " : "\nLine ") + std::to_string(lineNumber) + ": " + why + ".";
  }

  // An unquoted depth with a decimal comma is two fields: "12,7" would be read as 12.
  std::string SplitNumberHint() const {
    if (places_.depth + 1 >= fields_.size()) return {};
    return DecimalCommaHint(fields_[places_.depth] + "," + fields_[places_.depth + 1]);
  }

  // False for a row whose station is not that of the rows above.
  bool KeepStation() {
    if (!places_.station || *places_.station >= fields_.size()) return true;
    if (station_.empty()) station_ = fields_[*places_.station];
    return station_ == fields_[*places_.station];
  }

  // Empty and "M" are missing, "T" is a trace.
  bool ReadDepth(const std::string& text, Row& row) {
    if (text.empty() || text == "M") {
      ++findings_.missing;
    } else if (text == "T") {
      ++findings_.trace;
      row.depth = 0;
    } else if (!IsNumericText(text)) {
      return false;
    } else if (const double depth = ParseNumber(text); depth < 0) {
      if (findings_.negative++ == 0) findings_.firstNegativeLine = row.line;
    } else {
      row.depth = depth;
    }
    return true;
  }

  ColumnPlaces places_;
  std::size_t columns_;  // as many as the header has
  RainUnit unit_;
  RainFindings& findings_;
  std::vector<std::string> fields_;
  std::vector<Row> rows_;
  std::string station_;
  std::string errors_;
  std::size_t errorCount_ = 0;
};

// Appends the day of rows [first, last), which have the same date: the first value counts.
void AppendDay(const std::vector<Row>& rows, std::size_t first, std::size_t last,
               RainRecord& record) {
  RainFindings& findings = record.findings;
  findings.duplicate += static_cast<int>(last - first) - 1;
  std::optional<double> depth;
  for (std::size_t i = first; i < last; ++i) {
    if (!rows[i].depth) continue;
    if (!depth) {
      depth = rows[i].depth;
    } else if (*depth != *rows[i].depth && findings.conflicting++ == 0) {
      findings.firstConflictingLine = rows[i].line;
    }
  }
  if (depth) record.days.push_back({rows[first].date, *depth / UnitsPerInch(record.unit)});
}

void CountGap(std::chrono::sys_days before, std::chrono::sys_days after, RainFindings& findings) {
  const auto days = static_cast<int>((after - before).count()) - 1;
  if (days <= 0) return;
  ++findings.gaps;
  findings.gapDays += days;
}

void AppendDays(std::vector<Row>& rows, RainRecord& record) {
  std::ranges::stable_sort(rows, {}, &Row::date);
  record.first = rows.front().date;
  record.last = rows.back().date;
  for (std::size_t first = 0; first < rows.size();) {
    std::size_t last = first + 1;
    while (last < rows.size() && rows[last].date == rows[first].date) ++last;
    AppendDay(rows, first, last, record);
    if (last < rows.size()) CountGap(rows[first].date, rows[last].date, record.findings);
    first = last;
  }
}

}  // namespace

RainRecord ParseRainRecord(std::string_view text, RainUnit unit, const RainColumns& columns) {
  CsvLines lines(text);
  std::vector<std::string> header;
  const auto first = lines.Next();
  if (first && first->size() > kMostLineBytes) throw FileError("Line 1: " + LineTooLong() + ".");
  if (!first || !SplitCsvLine(*first, header)) {
    throw FileError("The file has no header line with the names of its columns.");
  }
  RainRecord record;
  record.unit = unit;
  RowReader reader(FindColumns(header, columns), header.size(), unit, record.findings);
  while (const auto line = lines.Next()) reader.Read(*line, lines.LineNumber());
  std::vector<Row> rows = reader.Finish();
  AppendDays(rows, record);
  return record;
}

RainRecord ReadRainRecord(const std::string& path, RainUnit unit, const RainColumns& columns) {
  const auto bytes = FileExists(path) ? ReadFileBytes(path) : std::nullopt;
  if (!bytes) throw FileError("The rainfall file " + path + " cannot be read.");
  if (IsUtf16(*bytes)) {
    throw FileError("The rainfall file " + path +
                    " is encoded as UTF-16. Save it as UTF-8 in an editor.");
  }
  try {
    return ParseRainRecord(DecodeFileText(*bytes), unit, columns);
  } catch (const FileError& error) {
    throw FileError("The rainfall file " + path + " cannot be used.\n" + error.what());
  }
}

std::string DescribeFindings(const RainRecord& record) {
  const RainFindings& found = record.findings;
  const auto count = [](int n, const char* one, const char* many) {
    return std::to_string(n) + (n == 1 ? one : many);
  };
  std::string text =
      "The record runs from " + IsoDate(record.first) + " to " + IsoDate(record.last) + ": " +
      count(static_cast<int>(record.days.size()), " day", " days") + " with a value, " +
      count(found.missing, " row", " rows") + " without, " + count(found.gaps, " gap", " gaps") +
      " (" + count(found.gapDays, " day", " days") + " without a row).";
  if (found.trace > 0) {
    text += "\nTraces of rain, counted as zero: " + count(found.trace, " row.", " rows.");
  }
  if (found.duplicate > 0) {
    text += "\nRepeated dates: " + count(found.duplicate, " row", " rows") +
            "; the first value counts.";
  }
  if (found.conflicting > 0) {
    text +=
        "\nRepeated dates with a different depth: " + count(found.conflicting, " row", " rows") +
        ", the first in line " + std::to_string(found.firstConflictingLine) + ".";
  }
  if (found.negative > 0) {
    text += "\nNegative depths, taken as missing: " + count(found.negative, " row", " rows") +
            ", the first in line " + std::to_string(found.firstNegativeLine) + ".";
  }
  return text;
}

}  // namespace orvik
