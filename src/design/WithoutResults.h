// Why a project has no results.
#pragma once

#include <string>

namespace orvik {

struct Project;

// The message that the error bar shows; without one, what has not been chosen or placed yet. Empty
// where there are results.
std::string WhyNoResult(const Project& project, const std::string& shown);

}  // namespace orvik
