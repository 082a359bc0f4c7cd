// The texts of the about box.
#pragma once

#include <string>
#include <string_view>

#include "base/ModuleVersion.h"

namespace orvik::AboutText {

inline constexpr std::string_view kTitle = kModuleTitle;
inline constexpr std::string_view kCopyright =
    "Copyright (c) 2026 The ORVIK stormwater harvesting module authors";
inline constexpr std::string_view kOk = "OK";

// "Version 3.3.0001".
std::string Version();

// Where the curves come from and the licences; lines end at CR LF.
std::string Details();

}  // namespace orvik::AboutText
