#include "shell/frmAbout.h"

#include <string>

#include "shell/AboutDesign.h"
#include "shell/AboutTexts.h"

namespace orvik {
namespace {

std::unique_ptr<Window> MakeWindow(Toolkit& toolkit) {
  toolkit.Design(AboutDesign::Get());
  return toolkit.MakeWindow("frmAbout");
}

std::unique_ptr<Label> MakeLabel(Toolkit& toolkit, std::string_view name,
                                 std::string_view caption) {
  auto label = toolkit.MakeLabel(name);
  label->Caption(caption);
  return label;
}

// A text to read and to copy.
std::unique_ptr<TextBox> MakeText(Toolkit& toolkit, std::string_view name, std::string_view text,
                                  Colour background) {
  auto box = toolkit.MakeTextBox(name);
  box->Text(text);
  box->Locked(true);
  box->BackColor(background);
  return box;
}

}  // namespace

frmAbout::frmAbout(Toolkit& toolkit)
    : window_(MakeWindow(toolkit)),
      lblTitle_(MakeLabel(toolkit, "lblTitle", AboutText::kTitle)),
      txtVersion_(MakeText(toolkit, "txtVersion", AboutText::Version(), kButtonFace)),
      lblCopyright_(MakeLabel(toolkit, "lblCopyright", AboutText::kCopyright)),
      txtDetails_(MakeText(toolkit, "txtDetails", AboutText::Details(), kWindowBackground)),
      cmdOK_(toolkit, "cmdOK", AboutText::kOk, [this] { Close(); }) {
  window_->Caption("About this module");
  window_->OnAccept = [this] { Close(); };
  window_->OnCancel = [this] { Close(); };
}

}  // namespace orvik
