// Why a project has no results.
#pragma once

#include "design/Project.h"

namespace orvik {

// The message that the error bar shows; without one, what has not been chosen or placed yet. Empty
// where there are results.
std::string WhyNoResult(const Project& project, const std::string& shown);

}  // namespace orvik
