// The help page that explains a message of the error bar.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "controls/HostedButton.h"
#include "platform/Toolkit.h"

namespace orvik {

class Desktop;
class ctrlErrorMessageBar;

// The path of a topic's page in the data folder (with a separator at its end): topic 1 is
// "Help\Topic001.htm".
std::string HelpPagePath(std::string_view dataFolder, std::int16_t topic);

// The button beside the error bar and its twin in the Help menu: both can be used while the shown
// message has a help topic. Takes over the bar's event.
class MessageHelp {
 public:
  MessageHelp(Toolkit& toolkit, Desktop& desktop, ctrlErrorMessageBar& bar, std::string dataFolder);
  MessageHelp(const MessageHelp&) = delete;
  MessageHelp& operator=(const MessageHelp&) = delete;
  ~MessageHelp();

  // Opens the page of the shown message's topic; nothing where there is no topic or no page. A
  // message box says why an existing page could not be opened.
  void cmdErrorHelp_Click();

 private:
  bool HasTopic() const;
  void FollowMessage();

  Desktop& desktop_;
  ctrlErrorMessageBar& bar_;
  std::string dataFolder_;
  std::unique_ptr<MenuItem> mnuHelp_;
  std::unique_ptr<MenuItem> mnuHelp_Message_;
  HostedButton cmdErrorHelp_;
};

}  // namespace orvik
