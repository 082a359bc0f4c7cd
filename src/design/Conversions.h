// Between normalized values (on the EIA) and site values. Single precision throughout, in the order
// of operations as written.
#pragma once

#include <string>
#include <string_view>

#include "design/Messages.h"

namespace orvik {

inline constexpr float kInchesPerFoot = 12.0F;
inline constexpr float kDaysPerWeek = 7.0F;
inline constexpr double kSquareFeetPerAcre = 43560.0;
inline constexpr float kGallonsPerCubicFoot = 7.480519F;

// The formulas. S: storage, acre-feet. V: storage, inches on the EIA. Q: reuse rate, inches per
// week over the irrigation area. R: reuse rate, inches per day on the EIA. Areas in acres.
float StorageToNormalized(float S, float EIA);                        // S x 12 / EIA
float StorageFromNormalized(float V, float EIA);                      // V x EIA / 12
float ReuseToNormalized(float Q, float EIA, float irrigationArea);    // IA x Q / EIA / 7
float ReuseFromNormalized(float R, float EIA, float irrigationArea);  // R x EIA / IA x 7

// For values that the chart reports: texts in, text out; V / 12 x EIA and R x EIA / IA x 7. False,
// and the reason in `message`, where a text is empty or not numeric. Throws NumericError where
// single precision cannot hold the result or the irrigation area is zero.
bool NormalizedStorageToSiteStorage(std::string_view V, std::string_view EIA, std::string& site,
                                    Message& message);
bool NormalizedReuseToSiteReuse(std::string_view R, std::string_view EIA,
                                std::string_view irrigationArea, std::string& site,
                                Message& message);

// Gallons per day of a rate (inches per week) over an area (acres). A text that is not numeric
// counts as 0. Throws OverflowError where single precision cannot hold the result.
std::string InchesPerWeek_To_GPD(std::string_view rate, std::string_view area);

}  // namespace orvik
