// The hints about files that cannot be used, or only with care.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "design/Hints.h"

namespace orvik {

enum class TextFault : std::uint8_t;
struct LoadedCurves;

// What is wrong with the file as a whole; nothing for TextFault::None.
std::optional<Hint> HintOf(TextFault fault, const std::string& path);

// Why no curves were loaded, or what is to be said of those that were.
std::vector<Hint> HintsOf(const LoadedCurves& loaded);

}  // namespace orvik
