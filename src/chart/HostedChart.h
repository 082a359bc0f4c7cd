// The design chart in the window that shows it.
#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "platform/Toolkit.h"

namespace orvik {

class ctrlStormwaterReuse;

class HostedChart {
 public:
  // `chart` outlives this.
  HostedChart(Toolkit& toolkit, std::string_view name, ctrlStormwaterReuse& chart);
  HostedChart(const HostedChart&) = delete;
  HostedChart& operator=(const HostedChart&) = delete;
  ~HostedChart();

  Widget& Place() { return *host_; }  // the chart's place, visibility and enabled state

  std::function<void()> OnCopy;       // the user wants the chart on the clipboard
  std::function<Spoken()> ReadAloud;  // what a screen reader says of the chart

 private:
  std::unique_ptr<ControlHost> host_;
  ctrlStormwaterReuse& chart_;
};

}  // namespace orvik
