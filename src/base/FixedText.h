// Numbers in tables: a fixed number of decimals.
#pragma once

#include <string>

namespace orvik {

// "0.60" for 0.6 with two decimals. For finite values of moderate size.
std::string FixedText(double value, int decimals);

}  // namespace orvik
