#include "project/Conversions.h"

#include "base/NumberText.h"
#include "base/Quotient.h"
#include "base/Rounding.h"
#include "project/NumberInput.h"

namespace orvik {
namespace {

constexpr QuantityCheck kNormalizedStorage{
    .empty = "The normalized storage volume has not been defined.",
    .notNumeric = "The normalized storage volume is not numeric."};
constexpr QuantityCheck kEiaOfStorage{
    .empty = "The equivalent impervious area (EIA) has not been calculated.",
    .notNumeric = "The equivalent impervious area (EIA) does not evaluate to a number."};

constexpr QuantityCheck kNormalizedReuse{
    .empty = "The normalized reuse rate is undefined.",
    .notNumeric = "The normalized reuse rate does not evaluate to a number."};
// "equivalend" is how users of the module have always read it.
constexpr QuantityCheck kEiaOfReuse{
    .empty = "The equivalend impervious area has not been calculated.",
    .notNumeric = "The equivalend impervious area does not evaluate to a number."};
constexpr QuantityCheck kIrrigationAreaOfReuse{
    .empty = "The irrigation area has not been specified.",
    .notNumeric = "The irrigation area does not evaluate to a number."};

}  // namespace

float StorageToNormalized(float S, float EIA) {
  const float inches = S * kInchesPerFoot;
  return Quotient(inches, EIA);
}

float StorageFromNormalized(float V, float EIA) {
  const float acreInches = V * EIA;
  return acreInches / kInchesPerFoot;
}

float ReuseToNormalized(float Q, float EIA, float irrigationArea) {
  const float acreInchesPerWeek = irrigationArea * Q;
  const float perWeekOnEIA = Quotient(acreInchesPerWeek, EIA);
  return perWeekOnEIA / kDaysPerWeek;
}

float ReuseFromNormalized(float R, float EIA, float irrigationArea) {
  const float acreInchesPerDay = R * EIA;
  const float perDayOnSite = Quotient(acreInchesPerDay, irrigationArea);
  return perDayOnSite * kDaysPerWeek;
}

bool NormalizedStorageToSiteStorage(std::string_view V, std::string_view EIA, std::string& site,
                                    std::string& message) {
  const auto volume = CheckQuantity(V, kNormalizedStorage, message);
  if (!volume) return false;
  const auto area = CheckQuantity(EIA, kEiaOfStorage, message);
  if (!area) return false;
  const float feet = *volume / kInchesPerFoot;
  site = ConvertToString(feet * *area);
  return true;
}

bool NormalizedReuseToSiteReuse(std::string_view R, std::string_view EIA,
                                std::string_view irrigationArea, std::string& site,
                                std::string& message) {
  message.clear();
  const auto rate = CheckQuantity(R, kNormalizedReuse, message);
  if (!rate) return false;
  const auto area = CheckQuantity(EIA, kEiaOfReuse, message);
  if (!area) return false;
  const auto irrigated = CheckQuantity(irrigationArea, kIrrigationAreaOfReuse, message);
  if (!irrigated) return false;
  site = ConvertToString(ReuseFromNormalized(*rate, *area, *irrigated));
  return true;
}

std::string InchesPerWeek_To_GPD(std::string_view rate, std::string_view area) {
  const float feetPerDay = ToSingle(ParseNumber(rate) / kInchesPerFoot / kDaysPerWeek);
  const float squareFeet = ToSingle(ParseNumber(area) * kSquareFeetPerAcre);
  const float cubicFeetPerDay = feetPerDay * squareFeet;
  return ConvertToString(cubicFeetPerDay * kGallonsPerCubicFoot);
}

}  // namespace orvik
