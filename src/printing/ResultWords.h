// The result of a project in words.
#pragma once

#include <string>

#include "chart/ctrlStormwaterReuse.h"
#include "project/ProjectForm.h"

namespace orvik {

// One sentence that names every quantity with its unit in full and says which was found, or begins
// with "No result:" and tells why. The numbers are the fields' own texts.
std::string ResultInWords(ProjectForm& form, const ctrlStormwaterReuse& chart);

// True where the project is solved: every quantity of the site has its value.
bool HasResult(ProjectForm& form, const ctrlStormwaterReuse& chart);

}  // namespace orvik
