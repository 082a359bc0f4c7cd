// Why a curve file cannot be read, in words that help to mend it.
#pragma once

#include <string>

namespace orvik {

// "its lines must end with CR LF" for a file whose lines end with LF alone (an editor or a version
// control system made them so), which reads as one single line; to be set behind "cannot be read:
// ". Empty where nothing more is known than that the file is damaged, or where it cannot be opened.
std::string DiagnoseCurveFile(const std::string& path);

}  // namespace orvik
