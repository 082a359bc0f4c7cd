// Why a project has no results.
#pragma once

#include <string>

#include "chart/ctrlStormwaterReuse.h"
#include "project/ProjectForm.h"

namespace orvik {

// The message of the error bar; without one, what has not been chosen or placed yet. Empty where
// the results are there.
std::string WhyWithoutResults(ProjectForm& form, const ctrlStormwaterReuse& chart);

}  // namespace orvik
