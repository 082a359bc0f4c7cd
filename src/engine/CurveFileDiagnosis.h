// Why a curve file cannot be read, in words that help to repair it.
#pragma once

#include <string>

namespace orvik {

// "its lines must end with CR LF" for a file whose lines end with LF alone, as editors and version
// control systems can leave it: it reads as a single line. The words follow "cannot be read: ".
// Empty where nothing more is known than that the file is damaged, or where it cannot be opened.
std::string DiagnoseCurveFile(const std::string& path);

}  // namespace orvik
