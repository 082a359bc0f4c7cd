// Comma-separated text, line by line and field by field.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvik {

// Walks over the lines of a text; lines end at LF or CR LF.
class CsvLines {
 public:
  explicit CsvLines(std::string_view text) : rest_(text) {}

  // The next line without its end; nothing at the end of the text.
  std::optional<std::string_view> Next();

  // Number of the line that Next gave last; 1 is the first.
  int LineNumber() const { return lineNumber_; }

 private:
  std::string_view rest_;
  int lineNumber_ = 0;
};

// The fields of one line. A field may stand in double quotes, a doubled quote inside them is a
// quote; blanks around a field are not part of it. `fields` is filled anew; its memory is kept
// between calls. False for a quote that is not closed.
bool SplitCsvLine(std::string_view line, std::vector<std::string>& fields);

}  // namespace orvik
