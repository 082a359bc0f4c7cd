// Prints solved values over all stations: the question, the text that a user sees, and the bits
// behind it, separated by tabs. The same source runs on every system so that the outputs can be
// compared.
//   solved_values DATA-FOLDER      (with a path separator at its end)
#include <bit>
#include <cstdio>
#include <string>

#include "base/NumberText.h"
#include "chart/ctrlStormwaterReuse.h"
#include "engine/ClimateStations.h"
#include "platform/headless/HeadlessDesktop.h"

namespace {

using orvik::ConvertToString;

void Print(const std::string& question, bool solved, const std::string& text, double value,
           const orvik::ctrlStormwaterReuse& chart) {
  const auto bits = std::bit_cast<std::uint64_t>(solved ? value : 0.0);
  std::printf("%s\t%s\t%016llx\n", question.c_str(), solved ? text.c_str() : chart.ErrMsg().c_str(),
              static_cast<unsigned long long>(bits));
}

// Rates, volumes and efficiencies off the grid of the curves' own numbers.
void PrintStation(orvik::ctrlStormwaterReuse& chart, const std::string& station) {
  for (int i = 0; i < 12; ++i) {
    const std::string V = ConvertToString(0.7 + i * 0.5713);
    const std::string E = ConvertToString(50.3 + i * 4.0371);
    for (int j = 0; j < 12; ++j) {
      const std::string R = ConvertToString(0.051 + j * 0.01717);
      const std::string V2 = ConvertToString(0.71 + j * 0.5517);
      std::string text;
      bool solved = chart.SetHotspotUsing_RV(R, V, text);
      Print(station + " R=" + R + " V=" + V, solved, text, chart.Point().E, chart);
      solved = chart.SetHotspotUsing_ER(E, R, text);
      Print(station + " E=" + E + " R=" + R, solved, text, chart.Point().V, chart);
      solved = chart.SetHotspotUsing_EV(E, V2, text);
      Print(station + " E=" + E + " V=" + V2, solved, text, chart.Point().R, chart);
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  orvik::HeadlessDesktop desktop;
  orvik::ctrlStormwaterReuse chart(argv[1]);
  for (std::int16_t i = 1; i <= orvik::NumRainfallStations(); ++i) {
    chart.SetCurveData(i);
    if (chart.IsLoaded()) PrintStation(chart, std::string(orvik::ClimateStationName(i)));
  }
  return 0;
}
