// The three results that a host of the module gets back, as text.
#pragma once

#include <string>

namespace orvik {

struct Project;

// All are empty where no solve-for mode is chosen.

// Gallons per day; empty also where the site's reuse rate or the irrigation area is not a number,
// or the result is too large for single precision.
std::string ReuseRateResult(const Project& project);

std::string EfficiencyResult(const Project& project);     // percent, as the field shows it
std::string StorageVolumeResult(const Project& project);  // acre-feet, as the field shows it

}  // namespace orvik
