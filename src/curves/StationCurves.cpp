#include "curves/StationCurves.h"

#include "curves/ChartAxes.h"
#include "curves/StationSources.h"
#include "engine/ClimateStations.h"

namespace orvik {

StationCurves MakeStationCurves(const std::string& rainFolder, std::int16_t station,
                                const PondOptions& options, const ChartAxes& axes) {
  const std::string name(ClimateStationName(station));
  StationCurves result;
  result.Station = station;
  result.Options = options;
  result.Record = ReadRainRecord(rainFolder + name + ".csv", RainUnit::Inches);
  result.Years = SelectRainYears(result.Record);
  const std::string title =
      CurveTitle(name, SourceText(SourceOfStation(station)), result.Record, result.Years, options);
  result.Made = MakeCurves(BuildPondDays(result.Years, options), axes, title);
  result.Record.Days = {};
  result.Years.Daily = {};
  result.Years.Dates = {};
  return result;
}

}  // namespace orvik
