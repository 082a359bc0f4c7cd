// The commands that open the module's two small windows: the station map and the about box.
#pragma once

#include <memory>
#include <string>

#include "controls/HostedButton.h"

namespace orvik {

class Desktop;
class MenuItem;
class Toolkit;
class ctrlStormwaterReuse;

class SmallWindows {
 public:
  // `toolkit` is the main window's; `dataFolder` has a separator at its end.
  SmallWindows(Toolkit& toolkit, Desktop& desktop, ctrlStormwaterReuse& chart,
               std::string dataFolder);
  SmallWindows(const SmallWindows&) = delete;
  SmallWindows& operator=(const SmallWindows&) = delete;
  ~SmallWindows();

  // Shows the station map until the user closes it, then redraws the design chart.
  void cmdMap_Click();

  // Shows the about box until the user closes it.
  void mnuHelp_About_Click();

 private:
  Toolkit& toolkit_;
  Desktop& desktop_;
  ctrlStormwaterReuse& chart_;
  std::string dataFolder_;
  std::unique_ptr<MenuItem> mnuHelp_Map_;
  std::unique_ptr<MenuItem> mnuHelp_About_;
  HostedButton cmdMap_;
};

}  // namespace orvik
