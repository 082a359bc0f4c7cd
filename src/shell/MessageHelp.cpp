#include "shell/MessageHelp.h"

#include <utility>

#include "base/NumberText.h"
#include "base/Paths.h"
#include "controls/ctrlErrorMessageBar.h"
#include "design/Messages.h"
#include "platform/Desktop.h"
#include "shell/MainWindowTable.h"

namespace orvik {

std::string HelpPagePath(std::string_view dataFolder, std::int16_t topic) {
  const bool isNegative = topic < 0;
  const std::string digits = WithLeadingZeros(isNegative ? -int{topic} : int{topic}, 3);
  return std::string(dataFolder) + "Help" + kPathSeparator + "Topic" + (isNegative ? "-" : "") +
         digits + ".htm";
}

MessageHelp::MessageHelp(Toolkit& toolkit, Desktop& desktop, ctrlErrorMessageBar& bar,
                         std::string dataFolder)
    : desktop_(desktop),
      bar_(bar),
      dataFolder_(std::move(dataFolder)),
      mnuHelp_(toolkit.MakeMenuItem("mnuHelp")),
      mnuHelp_Message_(toolkit.MakeMenuItem("mnuHelp_Message")),
      cmdErrorHelp_(toolkit, "cmdErrorHelp", ButtonCaption::kErrorHelp,
                    [this] { cmdErrorHelp_Click(); }) {
  mnuHelp_->Caption("&Help");
  mnuHelp_Message_->Caption("&Explain the message\tF1");
  mnuHelp_Message_->OnClick = [this] { cmdErrorHelp_Click(); };
  bar_.OnMessageChange = [this] { FollowMessage(); };
  FollowMessage();
}

MessageHelp::~MessageHelp() {
  bar_.OnMessageChange = nullptr;
}

bool MessageHelp::HasTopic() const {
  return bar_.ExtendedHelpTopic() != 0;
}

void MessageHelp::FollowMessage() {
  cmdErrorHelp_.Place().Enabled(HasTopic());
  mnuHelp_Message_->Enabled(HasTopic());
}

void MessageHelp::cmdErrorHelp_Click() {
  if (!HasTopic()) return;
  const std::string page = HelpPagePath(dataFolder_, bar_.ExtendedHelpTopic());
  if (!FileExists(page)) return;
  switch (desktop_.OpenPage(page)) {
    case PageOpening::Opened:
      return;
    case PageOpening::NoProgram:
      return desktop_.ShowError(Sentence({MessageId::NoBrowser}));
    case PageOpening::Failed:
      return desktop_.ShowMessage(Sentence({MessageId::PageNotOpened}), "URL Failed",
                                  MessageIcon::Exclamation);
  }
}

}  // namespace orvik
