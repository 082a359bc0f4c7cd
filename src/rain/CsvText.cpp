#include "rain/CsvText.h"

#include <algorithm>

#include "base/Text.h"

namespace orvik {
namespace {

// Reads a quoted field whose opening quote is at `at`; moves `at` past the closing quote.
bool ReadQuoted(std::string_view line, std::size_t& at, std::string& field) {
  for (++at; at < line.size(); ++at) {
    if (line[at] != '"') {
      field += line[at];
    } else if (at + 1 < line.size() && line[at + 1] == '"') {
      field += line[at++];
    } else {
      ++at;
      return true;
    }
  }
  return false;
}

}  // namespace

std::optional<std::string_view> CsvLines::Next() {
  if (rest_.empty()) return std::nullopt;
  const auto end = rest_.find('\n');
  std::string_view line = rest_.substr(0, end);
  rest_ = end == std::string_view::npos ? std::string_view() : rest_.substr(end + 1);
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  ++lineNumber_;
  return line;
}

bool SplitCsvLine(std::string_view line, std::vector<std::string>& fields) {
  std::size_t count = 0;
  std::size_t at = 0;
  while (true) {
    if (fields.size() == count) fields.emplace_back();
    std::string& field = fields[count++];
    field.clear();
    while (at < line.size() && line[at] == ' ') ++at;
    if (at < line.size() && line[at] == '"' && !ReadQuoted(line, at, field)) return false;
    const auto comma = std::min(line.find(',', at), line.size());
    field += Trim(line.substr(at, comma - at));
    if (comma == line.size()) break;
    at = comma + 1;
  }
  fields.resize(count);
  return true;
}

}  // namespace orvik
