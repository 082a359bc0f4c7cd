// The line at the foot of the window: whether the project is saved, the name of its file, and
// whether results are out of date.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Desktop.h"
#include "platform/Toolkit.h"

namespace orvik {

namespace StatusText {
inline constexpr std::string_view kUnsaved = "Unsaved changes";
inline constexpr std::string_view kSavedExample = "Saved 00:00";  // as wide as any time
inline constexpr std::string_view kUntitled = "untitled";
inline constexpr std::string_view kOutOfDate = "Grey results are out of date: press Enter or F5";
}  // namespace StatusText

// What the line says of a project.
struct SaveState {
  bool hasUnsavedChanges = false;
  std::optional<ClockTime> savedAt;  // in this window; nothing where it was not
  std::optional<std::string> path;   // empty: untitled; nothing where there are no files
};

class StatusLine {
 public:
  explicit StatusLine(Toolkit& toolkit);
  StatusLine(const StatusLine&) = delete;
  StatusLine& operator=(const StatusLine&) = delete;
  ~StatusLine() = default;

  void Show(const SaveState& state);
  void ShowOutOfDate(bool isOutOfDate);

 private:
  std::unique_ptr<Panel> picStatus_;
  std::unique_ptr<Label> lblSaved_;
  std::unique_ptr<Label> lblFile_;
  std::unique_ptr<Label> lblOutOfDate_;
};

}  // namespace orvik
