// Daily water balance of a reuse pond: how much of the runoff is used with a storage volume and a
// reuse rate.
//
// Each day, per unit of equivalent impervious area (EIA): the storage takes the day's runoff, what
// exceeds V spills, then up to R is used. Rain on the pond and its evaporation cancel over a year
// and groundwater exchange is zero, so neither appears. The storage starts empty. Efficiency E =
// used / runoff over the counted days, in percent.
#pragma once

#include <vector>

namespace orvik {

struct PondDays;

// One pond: storage volume and mean reuse rate.
struct PondCell {
  double V;  // inches on the EIA
  double R;  // inches per day on the EIA
};

// The water balance of one pond over the counted days, inches on the EIA:
// storageBefore + runoff = used + spilled + storageAfter, up to rounding.
struct PondBalance {
  double runoff = 0;
  double used = 0;
  double spilled = 0;
  double storageBefore = 0;
  double storageAfter = 0;
  double Efficiency() const { return used / runoff * 100; }  // percent
};

// One pond, all terms of its balance.
PondBalance SimulatePond(const PondDays& days, const PondCell& cell);

// E (percent) of many ponds at once; element i is that of cells[i]. The numbers equal those of
// SimulatePond bit for bit.
std::vector<double> SimulateEfficiencies(const PondDays& days, const std::vector<PondCell>& cells);

}  // namespace orvik
