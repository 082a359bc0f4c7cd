// The result of a project in words.
#pragma once

#include <string>

namespace orvik {

struct Project;

// One sentence that names every quantity with its unit in full and says which was found, or "No
// result:" and the reason. The numbers are the fields' own texts; `shown` is the message of the
// error bar.
std::string ResultInWords(const Project& project, const std::string& shown);

// True where the project is solved: every quantity of the site has its value.
bool HasResult(const Project& project, const std::string& shown);

}  // namespace orvik
