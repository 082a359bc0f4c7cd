// The places for values in the sentences of the tables.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace orvik {

// The pattern with each "{}" replaced by the next value, in their order; a place without a value
// becomes empty. Values are not searched for places.
std::string FilledIn(std::string_view pattern, std::span<const std::string> values);

}  // namespace orvik
