// The hints about the project that was read.
#pragma once

#include <string>
#include <vector>

#include "design/Hints.h"

namespace orvik {

struct ProjectReading;

// What is to be said of a project, beside its messages. `path` is that of its file; empty for a
// text that a host passed, of which only its content is spoken of: it need not end with a line end.
std::vector<Hint> HintsOf(const ProjectReading& reading, const std::string& path);

}  // namespace orvik
