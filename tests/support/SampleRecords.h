// Rainfall records for tests.
#pragma once

#include <vector>

#include "pond/PondDays.h"
#include "rain/RainYears.h"

namespace orvik::test {

// Kept years of these daily depths; the first `firstYearDays` of them are the first year.
RainYears YearsOf(std::vector<double> daily, std::size_t firstYearDays);

// The same depth on every day of so many years.
RainYears ConstantRain(double depthIn, int years);

// Six years of rain in which nothing repeats, from a fixed seed; about 55 inches a year.
RainYears IrregularRain();

}  // namespace orvik::test
