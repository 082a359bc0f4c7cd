// The about box: the module's title and version, its licence, and where its curves come from.
#pragma once

#include <memory>

#include "controls/HostedButton.h"
#include "platform/Toolkit.h"

namespace orvik {

class frmAbout {
 public:
  // Loaded, and not yet shown. `toolkit` is for this window alone.
  explicit frmAbout(Toolkit& toolkit);
  frmAbout(const frmAbout&) = delete;
  frmAbout& operator=(const frmAbout&) = delete;
  ~frmAbout() = default;

  // Shows the window and waits until the user closes it: by OK, Enter, Esc or its frame.
  void ShowModally() { window_->ShowModally(); }

 private:
  void Close() { window_->Visible(false); }

  std::unique_ptr<Window> window_;
  std::unique_ptr<Label> lblTitle_;
  std::unique_ptr<TextBox> txtVersion_;
  std::unique_ptr<Label> lblCopyright_;
  std::unique_ptr<TextBox> txtDetails_;
  HostedButton cmdOK_;
};

}  // namespace orvik
