#include "design/Conversions.h"

#include "base/NumberText.h"
#include "base/Quotient.h"
#include "base/Rounding.h"
#include "design/NumberInput.h"

namespace orvik {
namespace {

constexpr QuantityCheck kNormalizedStorage{.empty = MessageId::NormalizedStorageEmpty,
                                           .notNumeric = MessageId::NormalizedStorageNotNumeric};
constexpr QuantityCheck kEiaOfStorage{.empty = MessageId::StorageEiaEmpty,
                                      .notNumeric = MessageId::StorageEiaNotNumeric};
constexpr QuantityCheck kNormalizedReuse{.empty = MessageId::NormalizedReuseEmpty,
                                         .notNumeric = MessageId::NormalizedReuseNotNumeric};
constexpr QuantityCheck kEiaOfReuse{.empty = MessageId::ReuseEiaEmpty,
                                    .notNumeric = MessageId::ReuseEiaNotNumeric};
constexpr QuantityCheck kIrrigationAreaOfReuse{
    .empty = MessageId::ReuseIrrigationAreaEmpty,
    .notNumeric = MessageId::ReuseIrrigationAreaNotNumeric};

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
                                    Message& message) {
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
                                Message& message) {
  message = {};
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
