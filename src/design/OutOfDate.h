// Which results still belong to what the fields show: between a keystroke and the next
// recalculation some do not.
#pragma once

#include <cstdint>

namespace orvik {

enum class Field : std::uint8_t;
struct Project;

// True where `field` shows a result in `now` that was made from other inputs: `then` is the project
// as it was when its results were written. A number that is typed itself is no result, and an empty
// field shows none.
bool IsOutOfDate(Field field, const Project& then, const Project& now);

}  // namespace orvik
