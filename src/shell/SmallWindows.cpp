#include "shell/SmallWindows.h"

#include <utility>

#include "chart/ctrlStormwaterReuse.h"
#include "shell/MainWindowTable.h"
#include "shell/frmAbout.h"
#include "shell/frmClimateStations.h"

namespace orvik {

SmallWindows::SmallWindows(Toolkit& toolkit, Desktop& desktop, ctrlStormwaterReuse& chart,
                           std::string dataFolder)
    : toolkit_(toolkit),
      desktop_(desktop),
      chart_(chart),
      dataFolder_(std::move(dataFolder)),
      mnuHelp_Map_(toolkit.MakeMenuItem("mnuHelp_Map")),
      mnuHelp_About_(toolkit.MakeMenuItem("mnuHelp_About")),
      cmdMap_(toolkit, "cmdMap", ButtonCaption::kMap, [this] { cmdMap_Click(); }) {
  mnuHelp_Map_->Caption("Station &map");
  mnuHelp_Map_->OnClick = [this] { cmdMap_Click(); };
  mnuHelp_About_->Caption("&About this module");
  mnuHelp_About_->OnClick = [this] { mnuHelp_About_Click(); };
}

SmallWindows::~SmallWindows() = default;

void SmallWindows::cmdMap_Click() {
  const auto toolkit = toolkit_.ForAnotherWindow();
  frmClimateStations(*toolkit, desktop_, dataFolder_).ShowModally();
  chart_.Refresh();
}

void SmallWindows::mnuHelp_About_Click() {
  const auto toolkit = toolkit_.ForAnotherWindow();
  frmAbout(*toolkit).ShowModally();
}

}  // namespace orvik
