// A picture viewer in the window that shows it.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "controls/ctrlPictureViewer.h"
#include "platform/Toolkit.h"

namespace orvik {

class HostedPictureViewer {
 public:
  // `title` is what a screen reader calls the picture; its value is the zoom.
  HostedPictureViewer(Toolkit& toolkit, std::string_view name, std::string title);
  HostedPictureViewer(const HostedPictureViewer&) = delete;
  HostedPictureViewer& operator=(const HostedPictureViewer&) = delete;
  ~HostedPictureViewer();

  ctrlPictureViewer& Viewer() { return viewer_; }

 private:
  Spoken ReadAloud() const;

  std::unique_ptr<ControlHost> host_;
  ctrlPictureViewer viewer_;
  std::string title_;
};

}  // namespace orvik
