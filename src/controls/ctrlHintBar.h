// The strip for what is said beside the messages: one sentence or more in the system's colours for
// information, with a small symbol. While there is nothing to say its room is left empty, so that
// nothing else moves.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/Toolkit.h"

namespace orvik {

class ctrlHintBar {
 public:
  static constexpr std::string_view kCaption = "Hint";

  explicit ctrlHintBar(Toolkit& toolkit);
  ctrlHintBar(const ctrlHintBar&) = delete;
  ctrlHintBar& operator=(const ctrlHintBar&) = delete;
  ~ctrlHintBar() = default;

  // Lines are divided by CR LF. An empty text hides the strip.
  std::string Text() const { return Text1_->Text(); }
  void Text(std::string_view text);

 private:
  std::unique_ptr<Panel> strip_;
  std::unique_ptr<Label> label_;  // names the text to a screen reader
  std::unique_ptr<TextBox> Text1_;
};

// The strip's background, frame and symbol: a disc with an "i" at its left, in a square as high as
// the strip.
void PaintHintStrip(Surface& surface, Size size);

}  // namespace orvik
