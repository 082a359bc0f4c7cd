#include "shell/StatusLine.h"

#include "base/NumberText.h"
#include "base/Paths.h"

namespace orvik {
namespace {

std::string SavedText(const SaveState& state) {
  if (state.hasUnsavedChanges) return std::string(StatusText::kUnsaved);
  if (!state.savedAt) return {};
  return "Saved " + WithLeadingZeros(state.savedAt->hour, 2) + ":" +
         WithLeadingZeros(state.savedAt->minute, 2);
}

// As a label's caption, in which "&" marks a mnemonic.
std::string Literal(std::string_view text) {
  std::string literal;
  for (const char character : text) literal.append(character == '&' ? 2 : 1, character);
  return literal;
}

std::string FileText(const SaveState& state) {
  if (!state.path) return {};
  return state.path->empty() ? std::string(StatusText::kUntitled)
                             : Literal(FileNameOf(*state.path));
}

// A line divides it from the page.
void PaintStatus(Surface& surface, Size size) {
  surface.FillArea({0, 0, size.width, size.height}, kButtonFace);
  surface.Line({0, 0}, {size.width, 0}, {kButtonShadow, 1, DrawMode::Copy});
}

}  // namespace

StatusLine::StatusLine(Toolkit& toolkit)
    : picStatus_(toolkit.MakePanel("picStatus")),
      lblSaved_(toolkit.MakeLabel("lblSaved")),
      lblFile_(toolkit.MakeLabel("lblFile")),
      lblOutOfDate_(toolkit.MakeLabel("lblOutOfDate")) {
  picStatus_->OnPaint = PaintStatus;
}

void StatusLine::Show(const SaveState& state) {
  lblSaved_->Caption(SavedText(state));
  lblFile_->Caption(FileText(state));
}

void StatusLine::ShowOutOfDate(bool isOutOfDate) {
  lblOutOfDate_->Caption(isOutOfDate ? StatusText::kOutOfDate : std::string_view());
}

}  // namespace orvik
