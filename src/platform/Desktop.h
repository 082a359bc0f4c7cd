// What the module asks of the user's desktop. The real one is in win32/, a twin without a screen in
// headless/.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Printer.h"
#include "platform/Surface.h"

namespace orvik {

enum class MessageIcon : std::uint8_t { None, Exclamation };

// What a file dialog is asked to show. Texts as the common file dialog takes them.
struct FileDialog {
  std::string filter;            // pairs of description and pattern, each ended by "|"
  int filterIndex = 1;           // 1-based: the pair that is preselected
  std::string startFolder;       // empty: the system's own choice
  std::string defaultExtension;  // appended to a name that the user types without one; no period
  bool overwritePrompt = false;  // ask before an existing file is chosen for saving
  bool hideReadOnly = false;     // no "open as read-only" box
  bool explorerStyle = false;
  bool longNames = false;
  bool operator==(const FileDialog&) const = default;
};

enum class PageOpening : std::uint8_t {
  Opened,
  NoProgram,  // no program is registered for such files
  Failed,
};

// What is put on the clipboard: a text, and a picture as drawing and as pixels.
struct ClipboardContent {
  std::string text;
  Size pictureSize;  // pixels
  std::function<void(Surface& surface)> paint;
};

struct CalendarDate {
  int year;
  int month;  // 1...12
  int day;    // 1...31
  bool operator==(const CalendarDate&) const = default;
};

struct ClockTime {
  CalendarDate date;
  int hour;    // 0...23
  int minute;  // 0...59
  int second;  // 0...60
  bool operator==(const ClockTime&) const = default;
};

class Desktop {
 public:
  Desktop() = default;
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;
  virtual ~Desktop() = default;

  // Shows a message with an OK button and waits until it is read.
  virtual void ShowMessage(std::string_view text, std::string_view title, MessageIcon icon) = 0;

  // Shows what went wrong.
  void ShowError(std::string_view text) { ShowMessage(text, "Error", MessageIcon::Exclamation); }

  // Asks a question with the buttons Yes and No; true for Yes.
  virtual bool AskYesNo(std::string_view text, std::string_view title) = 0;

  // The system beep.
  virtual void Beep() = 0;

  // The path that the user chose, empty when the dialog was cancelled.
  virtual std::string ChooseFileToOpen(const FileDialog& dialog) = 0;
  virtual std::string ChooseFileToSave(const FileDialog& dialog) = 0;

  // The user's personal documents folder; nothing where the system cannot tell it.
  virtual std::optional<std::string> DocumentsFolder() = 0;

  // The user's folder for what programs keep between two runs; see base/UserFolders.
  virtual std::optional<std::string> StateFolder() = 0;

  // Today's date in the user's time zone.
  virtual CalendarDate Today() = 0;

  // Opens a help page in the user's browser.
  virtual PageOpening OpenPage(const std::string& path) = 0;

  // Reads a picture file of a format that the system knows (PNG among them); transparent parts
  // become white. Nothing where the file is missing, damaged or too large.
  virtual std::optional<Picture> ReadPicture(const std::string& path) = 0;

  // Replaces what is on the clipboard. False where another program keeps the clipboard open.
  virtual bool CopyToClipboard(const ClipboardContent& content) = 0;

  // Date and time of day in the user's time zone.
  virtual ClockTime Now() = 0;

  // The user's default printer; null where no printer can be reached.
  virtual std::unique_ptr<Printer> OpenPrinter() = 0;
};

}  // namespace orvik
