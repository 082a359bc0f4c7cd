// Comma-separated text, line by line and field by field.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvik {

// Goes through the lines of a text, which end with LF or CR LF.
class CsvLines {
 public:
  explicit CsvLines(std::string_view text) : rest_(text) {}

  // The next line without its end; nothing at the end of the text.
  std::optional<std::string_view> Next();

  // The number of the line that Next returned last, from 1.
  int LineNumber() const { return lineNumber_; }

 private:
  std::string_view rest_;
  int lineNumber_ = 0;
};

// Splits a line into its fields. A field may be quoted ("), with a quote inside it doubled; blanks
// around a field are dropped. `fields` is overwritten, and its memory reused from call to call.
// False for a quote that is not closed.
bool SplitCsvLine(std::string_view line, std::vector<std::string>& fields);

}  // namespace orvik
