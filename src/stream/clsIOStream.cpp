#include "stream/clsIOStream.h"

#include <cmath>
#include <utility>

#include "base/FileBytes.h"
#include "base/NumberText.h"
#include "base/Paths.h"
#include "base/Rounding.h"
#include "base/RuntimeErrors.h"
#include "base/TextEncoding.h"

namespace orvik {
namespace {

using enum enumIOStreamMode;

constexpr std::int16_t kOpenFileNumber =
    1;  // each stream owns its own handle; the number only tells open from closed
constexpr char kCr = '\r';
constexpr char kLf = '\n';

// Moves past the CR or CR LF at `position`.
void SkipLineEnd(std::string_view text, std::size_t& position) {
  ++position;
  if (text[position - 1] == kCr && position < text.size() && text[position] == kLf) ++position;
}

// The characters up to the next CR; `position` moves past the line end.
std::string_view TakeLine(std::string_view text, std::size_t& position) {
  const std::size_t begin = position;
  position = std::min(text.find(kCr, begin), text.size());
  const std::string_view line = text.substr(begin, position - begin);
  if (position < text.size()) SkipLineEnd(text, position);
  return line;
}

bool IsLineEnd(char c) {
  return c == kCr || c == kLf;
}

void SkipBlanks(std::string_view text, std::size_t& position) {
  while (position < text.size() && text[position] == ' ') ++position;
}

// The next field: blanks and line ends before it are skipped; the delimiter after it is consumed
// too, so that a whole line can be read next. A blank is only a delimiter where no comma or line
// end follows it.
std::string_view TakeField(std::string_view text, std::size_t& position) {
  while (position < text.size() && (text[position] == ' ' || IsLineEnd(text[position]))) ++position;
  const std::size_t begin = position;
  while (position < text.size() && text[position] != ',' && text[position] != ' ' &&
         !IsLineEnd(text[position])) {
    ++position;
  }
  const std::string_view field = text.substr(begin, position - begin);
  SkipBlanks(text, position);
  if (position < text.size() && text[position] == ',') {
    ++position;
  } else if (position < text.size() && IsLineEnd(text[position])) {
    SkipLineEnd(text, position);
  }
  return field;
}

}  // namespace

bool clsIOStream::IsReadingFile() const {
  return mode_ == AsciiFileInput && fileNumber_ != 0;
}

void clsIOStream::OpenInput(std::string_view path) {
  fileText_ = DecodeFileText(ReadFileBytes(path).value_or(""));
  readPosition_ = 0;
}

bool clsIOStream::OpenFile(std::string_view strFileName, enumIOStreamMode Mode) {
  const std::string name(strFileName);  // it may be this stream's own buffer, which closing empties
  if (IsOpened()) CloseFile();
  switch (Mode) {
    case AsciiFileInput:
      OpenInput(name);
      fileName_ = name;
      fileNumber_ = kOpenFileNumber;
      break;
    case AsciiFileOutput:
      if (IsWholeName(name)) output_.open(PathFromUtf8(name), std::ios::binary | std::ios::trunc);
      fileName_ = name;
      fileNumber_ = kOpenFileNumber;
      break;
    case AsciiBufferInput:
      if (name.empty()) return false;
      buffer_ = name;
      readPosition_ = 0;
      break;
    case AsciiBufferOutput:
      buffer_.clear();
      readPosition_ = 0;
      break;
    default:
      return false;
  }
  mode_ = Mode;
  return true;
}

bool clsIOStream::CloseFile() {
  switch (mode_) {
    case AsciiFileInput:
    case AsciiFileOutput:
      if (fileNumber_ == 0) return false;
      if (output_.is_open()) output_.close();
      output_.clear();
      fileText_.clear();
      fileNumber_ = 0;
      fileName_.clear();
      break;
    case AsciiBufferInput:
    case AsciiBufferOutput:
      if (buffer_.empty()) return false;
      buffer_.clear();
      readPosition_ = 0;
      break;
    default:
      return false;
  }
  mode_ = None;
  return true;
}

bool clsIOStream::IsOpened() const {
  if (mode_ == AsciiFileInput || mode_ == AsciiFileOutput) return fileNumber_ != 0;
  return mode_ != None;
}

bool clsIOStream::EndOfFile() const {
  if (IsReadingFile()) return readPosition_ >= fileText_.size();
  if (mode_ == AsciiBufferInput) return readPosition_ >= buffer_.size();
  return true;
}

bool clsIOStream::EndsWithinLine() const {
  return IsReadingFile() && !fileText_.empty() && !IsLineEnd(fileText_.back());
}

bool clsIOStream::WriteString(std::string_view txt) {
  if (mode_ == AsciiFileOutput && fileNumber_ != 0) {
    output_ << txt << kCr << kLf;
    return true;
  }
  if (mode_ != AsciiBufferOutput) return false;
  buffer_.append(txt);
  buffer_ += {kCr, kLf};
  readPosition_ = buffer_.size();
  return true;
}

bool clsIOStream::NextBufferLine(std::string& line) {
  if (mode_ != AsciiBufferInput || readPosition_ >= buffer_.size()) return false;
  line = TakeLine(buffer_, readPosition_);
  return true;
}

bool clsIOStream::NextField(std::string& field) {
  field = TakeField(fileText_, readPosition_);
  return !field.empty() || readPosition_ < fileText_.size();
}

bool clsIOStream::ScanString(std::string& TargetString) {
  if (!IsReadingFile()) return NextBufferLine(TargetString);
  if (!EndOfFile()) TargetString = TakeLine(fileText_, readPosition_);
  return true;
}

bool clsIOStream::ScanSingle(float& sVal) {
  std::string text;
  if (IsReadingFile()) {
    if (!NextField(text)) return true;
    const float value = ToSingle(ParseNumber(text));
    if (std::isfinite(value)) sVal = value;
    return true;
  }
  if (!NextBufferLine(text) || !IsNumericText(text)) return false;
  const float value = ToSingle(ParseNumber(text));
  if (!std::isfinite(value)) return false;
  sVal = value;
  return true;
}

bool clsIOStream::ScanInteger(std::int16_t& i) {
  std::string text;
  if (IsReadingFile()) {
    if (!NextField(text)) return true;
    try {
      i = ToInt16(ParseNumber(text));
    } catch (const OverflowError&) {
      // A number beyond 16 bits is a failed read, which file mode does not report.
    }
    return true;
  }
  if (!NextBufferLine(text)) return false;
  const auto value = ParseWholeNumber(text);
  if (value) i = *value;
  return value.has_value();
}

}  // namespace orvik
