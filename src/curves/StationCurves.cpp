#include "curves/StationCurves.h"

#include "curves/ChartAxes.h"
#include "curves/StationSources.h"
#include "engine/ClimateStations.h"

namespace orvik {

StationCurves MakeStationCurves(const std::string& rainFolder, std::int16_t station,
                                const PondOptions& options, const ChartAxes& axes) {
  const std::string name(ClimateStationName(station));
  StationCurves result;
  result.station = station;
  result.options = options;
  result.record = ReadRainRecord(rainFolder + name + ".csv", RainUnit::Inches);
  result.years = SelectRainYears(result.record);
  const std::string title =
      CurveTitle(name, SourceText(SourceOfStation(station)), result.record, result.years, options);
  result.made = MakeCurves(BuildPondDays(result.years, options), axes, title);
  result.record.days = {};
  result.years.daily = {};
  result.years.dates = {};
  return result;
}

}  // namespace orvik
