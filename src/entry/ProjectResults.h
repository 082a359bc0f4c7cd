// The three results that the host of the module gets back, as text.
#pragma once

#include <string>

#include "project/ProjectForm.h"

namespace orvik {

// All are empty where no solve-for mode is chosen.

// Gallons per day; empty also where the site's reuse rate or the irrigation area is not a number,
// or the result is too large for single precision.
std::string ReuseRateResult(ProjectForm& form);

std::string EfficiencyResult(ProjectForm& form);     // percent, as the field shows it
std::string StorageVolumeResult(ProjectForm& form);  // acre-feet, as the field shows it

}  // namespace orvik
