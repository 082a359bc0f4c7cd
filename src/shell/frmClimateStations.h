// The map of the climate stations, in a window over the main one.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "controls/HostedPictureViewer.h"
#include "platform/Toolkit.h"

namespace orvik {

class Desktop;

// The map's picture in the data folder (with a separator at its end).
std::string StationMapPath(std::string_view dataFolder);

class frmClimateStations {
 public:
  // Loaded with the map (or empty where its file cannot be read), and not yet shown. `toolkit` is
  // for this window alone.
  frmClimateStations(Toolkit& toolkit, Desktop& desktop, std::string_view dataFolder);
  frmClimateStations(const frmClimateStations&) = delete;
  frmClimateStations& operator=(const frmClimateStations&) = delete;
  ~frmClimateStations() = default;

  // Shows the window and waits until the user closes it.
  void ShowModally() { window_->ShowModally(); }

  const ctrlPictureViewer& Viewer() { return ctrlPictureViewer1_.Viewer(); }

 private:
  void Form_Load(Desktop& desktop, std::string_view dataFolder);

  std::unique_ptr<Window> window_;
  HostedPictureViewer ctrlPictureViewer1_;
};

}  // namespace orvik
