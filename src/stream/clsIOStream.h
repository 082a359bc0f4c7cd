// The one text reader and writer of the module: lines and numbers from a file or from a text in
// memory.
#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>

namespace orvik {

// Values as in the type library. Any 16-bit value may arrive from a host.
enum class enumIOStreamMode : std::int16_t {
  None = 0,               // closed
  AsciiFileInput = 1,     // a text file, for reading
  AsciiFileOutput = 2,    // a text file, created or emptied, for writing
  AsciiBufferInput = 3,   // reading out of a text given when opening
  AsciiBufferOutput = 4,  // appending to a text in memory
};

// Every operation returns True or False and reports nothing else. In the file modes a failed open,
// read or write is ignored and returns True: ask EndOfFile before each read. A file that could not
// be opened is at its end, and so is one that could not be read to its end: half a file must not be
// taken for the whole.
//
// Lines end at CR or CR LF; a lone LF is part of the line. Files are read as UTF-8 (a byte-order
// mark is skipped) where their bytes are valid UTF-8, else as Windows-1252, and written as UTF-8
// without a mark. Lines are written with CR LF.
//
// The two input modes take numbers differently: from a file the next field (fields end at a comma,
// a blank or a line end; several may share a line), from a buffer always one whole line.
//
// The destructor closes the file.
class clsIOStream {
 public:
  clsIOStream() = default;
  clsIOStream(const clsIOStream&) = delete;
  clsIOStream& operator=(const clsIOStream&) = delete;

  // The next number, in single precision. File: a field that is not a number reads as its numeric
  // prefix, else 0; nothing left, or a value beyond single precision, leaves `sVal`; True in every
  // case. Buffer: False, and `sVal` as it was, for a line that is not a number; the line is
  // consumed.
  bool ScanSingle(float& sVal);

  // `strFileName` is a path, or the text itself in mode AsciiBufferInput (an empty one is refused).
  // An open stream is closed first. False for a mode outside 1...4.
  bool OpenFile(std::string_view strFileName, enumIOStreamMode Mode);

  // True if something was closed. A buffer's text is gone after closing; an empty output buffer
  // stays open (False).
  bool CloseFile();

  bool IsOpened() const;

  // The path given to OpenFile in a file mode, else empty.
  std::string FileName() const { return fileName_; }

  // The next line, without its end. A file with nothing left leaves `TargetString` and returns
  // True; a buffer returns False.
  bool ScanString(std::string& TargetString);

  // `txt` and CR LF.
  bool WriteString(std::string_view txt);

  // True at the end of the input, and in every mode that is not input.
  bool EndOfFile() const;

  // True where the last line of an input file has no line end, as in a file that was cut short. It
  // need not have been read yet.
  bool EndsWithinLine() const;

  // As ScanSingle, for a whole number of 16 bits. File: fractions are rounded half to even, values
  // beyond 16 bits leave `i`. Buffer: only an optional sign and digits are accepted.
  bool ScanInteger(std::int16_t& i);

  // The text of a buffer stream.
  std::string Buffer() const { return buffer_; }

 private:
  bool IsReadingFile() const;
  bool NextBufferLine(std::string& line);
  bool NextField(std::string& field);
  void OpenInput(std::string_view path);

  std::int16_t fileNumber_ = 0;  // 0: no file is open
  std::string fileName_;
  enumIOStreamMode mode_ = enumIOStreamMode::None;
  std::string buffer_;
  std::size_t readPosition_ =
      0;  // 0-based index of the next character of the buffer or of the file's text

  std::string fileText_;  // the whole input file, decoded
  std::ofstream output_;
};

}  // namespace orvik
