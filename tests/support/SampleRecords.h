// Rainfall records for tests.
#pragma once

#include <vector>

#include "pond/PondDays.h"
#include "rain/RainYears.h"

namespace orvik::test {

// Kept years of these daily depths, from January 1, 2001 on: the first year has `firstYearDays` of
// them, each other one up to 365. A year that ends early is enough for a sum by hand.
RainYears YearsOf(std::vector<double> daily, std::size_t firstYearDays);

// The same depth on every day of so many years.
RainYears ConstantRain(double depthIn, int years);

// Six years of rain in which nothing repeats, from a fixed seed; about 55 inches a year.
RainYears IrregularRain();

}  // namespace orvik::test
