#include "shell/frmClimateStations.h"

#include <utility>

#include "base/Paths.h"
#include "platform/Desktop.h"
#include "shell/ClimateStationsDesign.h"

namespace orvik {
namespace {

std::unique_ptr<Window> MakeWindow(Toolkit& toolkit) {
  toolkit.Design(ClimateStationsDesign::Get());
  return toolkit.MakeWindow("frmClimateStations");
}

}  // namespace

std::string StationMapPath(std::string_view dataFolder) {
  return std::string(dataFolder) + "Help" + kPathSeparator + "ReuseClimateStations.PNG";
}

frmClimateStations::frmClimateStations(Toolkit& toolkit, Desktop& desktop,
                                       std::string_view dataFolder)
    : window_(MakeWindow(toolkit)),
      ctrlPictureViewer1_(toolkit, "ctrlPictureViewer1", "Map of the climate stations") {
  window_->Caption("Climate stations");
  window_->OnCancel = [this] { window_->Visible(false); };
  Form_Load(desktop, dataFolder);
}

void frmClimateStations::Form_Load(Desktop& desktop, std::string_view dataFolder) {
  const std::string path = StationMapPath(dataFolder);
  if (!FileExists(path)) return;
  if (auto map = desktop.ReadPicture(path)) ctrlPictureViewer1_.Viewer().Show(*std::move(map));
}

}  // namespace orvik
