#include "design/Calculate.h"

#include "base/NumberText.h"
#include "base/RuntimeErrors.h"
#include "design/Conversions.h"
#include "design/NumberInput.h"
#include "design/PointByNumbers.h"
#include "engine/FramedCurves.h"

namespace orvik {
namespace {

constexpr QuantityCheck kBasinArea{.empty = MessageId::BasinAreaEmpty,
                                   .notNumeric = MessageId::BasinAreaNotNumeric,
                                   .range = Range::AboveZero,
                                   .outOfRange = MessageId::BasinAreaNotPositive};
constexpr QuantityCheck kRunoffCoefficient{.empty = MessageId::RunoffCoefficientEmpty,
                                           .notNumeric = MessageId::RunoffCoefficientNotNumeric,
                                           .range = Range::UpToOne,
                                           .outOfRange = MessageId::RunoffCoefficientOutOfRange};
constexpr QuantityCheck kIrrigationArea{.empty = MessageId::IrrigationAreaEmpty,
                                        .notNumeric = MessageId::IrrigationAreaNotNumeric,
                                        .range = Range::AboveZero,
                                        .outOfRange = MessageId::IrrigationAreaNotPositive};
constexpr QuantityCheck kStorageVolume{.empty = MessageId::StorageVolumeEmpty,
                                       .notNumeric = MessageId::StorageVolumeNotNumeric,
                                       .range = Range::FromZero,
                                       .outOfRange = MessageId::StorageVolumeNegative};
constexpr QuantityCheck kReuseRate{.empty = MessageId::ReuseRateEmpty,
                                   .notNumeric = MessageId::ReuseRateNotNumeric,
                                   .range = Range::FromZero,
                                   .outOfRange = MessageId::ReuseRateNegative};
constexpr QuantityCheck kEfficiency{.empty = MessageId::EfficiencyEmpty,
                                    .notNumeric = MessageId::EfficiencyNotNumeric,
                                    .range = Range::FromZero,
                                    .outOfRange = MessageId::EfficiencyNegative};

// The areas that the conversions need, acres.
struct Areas {
  float EIA;
  float irrigation;
};

// One run. What it has written stays in the result, even if it ends early.
class Calculation {
 public:
  Calculation(const Project& project, const FramedCurves* curves)
      : project_(project), curves_(curves) {
    result_.point = project.point;
  }

  Result Run() {
    Guarded([this] { Recalculate(); });
    return std::move(result_);
  }

  Result Follow() {
    Guarded([this] { FollowPoint(); });
    return std::move(result_);
  }

 private:
  void Recalculate();
  void PlaceByNumbers();
  void EmptyResults();
  void EmptyNormalized();
  std::optional<Areas> CheckAreas();
  std::optional<float> Check(Field field, const QuantityCheck& check);
  void SolveForEfficiency(const Areas& areas);
  void SolveForStorageVolume(const Areas& areas);
  void SolveForReuseRate(const Areas& areas);

  void FollowPoint();
  void ShowR(bool intoSlot);
  void ShowE(bool intoSlot);
  void ShowV(bool intoSlot);
  void ShowPointMessage();

  // A numeric fault of the work becomes a message.
  template <typename Work>
  void Guarded(Work&& work) {
    try {
      work();
    } catch (const NumericError& fault) {
      Say(NumericFaultMessage(fault));
    }
  }

  void Say(Message message) { result_.messages.push_back(std::move(message)); }
  void Write(Field field, std::string text) { result_.Write(field, std::move(text)); }

  // The field's text as it is by now.
  const std::string& Text(Field field) const {
    const auto& written = result_.texts[static_cast<std::size_t>(field)];
    return written ? *written : project_.Text(field);
  }

  const Project& project_;
  const FramedCurves* curves_;
  Result result_;
};

void Calculation::Recalculate() {
  const bool followsPoint =
      project_.mode == SolveFor::Interactive && curves_ && project_.takesPointByHand;
  // Before the fields are emptied: numbers typed there live on as the place of the point, even if
  // the validation stops this run.
  if (followsPoint) PlaceByNumbers();
  // A typed mode's point is a result: it goes with the others, so that a run that stops leaves
  // none.
  if (IsTypedMode(project_.mode)) result_.point.isShown = false;
  EmptyResults();
  const auto areas = CheckAreas();
  if (!areas) return;
  switch (project_.mode) {
    case SolveFor::None:
      break;
    case SolveFor::Interactive:
      if (followsPoint) FollowPoint();
      break;
    case SolveFor::Efficiency:
      SolveForEfficiency(*areas);
      break;
    case SolveFor::StorageVolume:
      SolveForStorageVolume(*areas);
      break;
    case SolveFor::ReuseRate:
      SolveForReuseRate(*areas);
      break;
  }
}

void Calculation::PlaceByNumbers() {
  PlacePointByNumbers(result_.point, project_, curves_);
}

void Calculation::EmptyResults() {
  Write(Field::EquivalentImperviousArea, "");
  if (project_.mode == SolveFor::Interactive) {  // there all slots are results
    Write(Field::SolveFor1, "");
    Write(Field::SolveFor2, "");
  }
  Write(Field::SolveFor3, "");
  EmptyNormalized();
}

void Calculation::EmptyNormalized() {
  Write(Field::R, "");
  Write(Field::E, "");
  Write(Field::V, "");
}

// --- Validation ---

std::optional<Areas> Calculation::CheckAreas() {
  const auto basin = Check(Field::BasinArea, kBasinArea);
  if (!basin) return std::nullopt;
  const auto runoff = Check(Field::RunoffCoefficient, kRunoffCoefficient);
  if (!runoff) return std::nullopt;
  const float EIA = *runoff * *basin;
  Write(Field::EquivalentImperviousArea, ConvertToString(EIA));
  const auto irrigation = Check(Field::IrrigationArea, kIrrigationArea);
  if (!irrigation) return std::nullopt;
  if (project_.station < 0) {
    Say({MessageId::StationNotSelected});
    return std::nullopt;
  }
  return Areas{EIA, *irrigation};
}

std::optional<float> Calculation::Check(Field field, const QuantityCheck& check) {
  Message message;
  const auto value = CheckQuantity(Text(field), check, message);
  if (!value) Say(message);
  return value;
}

// --- The typed modes. S: acre-feet; Q: inches per week; V, R: normalized. Each number passes
// through the text of its field, in single precision. ---

void Calculation::SolveForEfficiency(const Areas& areas) {
  const auto S = Check(Field::SolveFor1, kStorageVolume);
  if (!S) return;
  Write(Field::V, ConvertToString(StorageToNormalized(*S, areas.EIA)));
  const auto Q = Check(Field::SolveFor2, kReuseRate);
  if (!Q) return;
  Write(Field::R, ConvertToString(ReuseToNormalized(*Q, areas.EIA, areas.irrigation)));
  const auto E = PlaceUsingRV(result_.point, curves_, ParseNumber(Text(Field::R)),
                              ParseNumber(Text(Field::V)));
  if (!E) return Say(result_.point.message);
  Write(Field::E, *E);
  Write(Field::SolveFor3, *E);
}

void Calculation::SolveForStorageVolume(const Areas& areas) {
  const auto E = Check(Field::SolveFor1, kEfficiency);
  if (!E) return;
  Write(Field::E, ConvertToString(*E));
  const auto Q = Check(Field::SolveFor2, kReuseRate);
  if (!Q) return;
  Write(Field::R, ConvertToString(ReuseToNormalized(*Q, areas.EIA, areas.irrigation)));
  const auto V = PlaceUsingER(result_.point, curves_, Text(Field::E), ParseNumber(Text(Field::R)));
  if (!V) return Say(result_.point.message);
  Write(Field::V, *V);
  Write(Field::SolveFor3, ConvertToString(StorageFromNormalized(ReadSingle(*V), areas.EIA)));
}

void Calculation::SolveForReuseRate(const Areas& areas) {
  const auto E = Check(Field::SolveFor1, kEfficiency);
  if (!E) return;
  Write(Field::E, ConvertToString(*E));
  const auto S = Check(Field::SolveFor2, kStorageVolume);
  if (!S) return;
  Write(Field::V, ConvertToString(StorageToNormalized(*S, areas.EIA)));
  const auto R = PlaceUsingEV(result_.point, curves_, Text(Field::E), ParseNumber(Text(Field::V)));
  if (!R) {
    Say(result_.point.message);
    if (project_.takesPointByHand) result_.point.isShown = false;
    return;
  }
  Write(Field::R, *R);
  Write(Field::SolveFor3,
        ConvertToString(ReuseFromNormalized(ReadSingle(*R), areas.EIA, areas.irrigation)));
}

// --- The point's numbers into the fields ---

void Calculation::FollowPoint() {
  const bool isInteractive = !IsTypedMode(project_.mode);
  if (isInteractive) {
    for (int slot = 1; slot <= kSolveForSlots; ++slot) Write(SlotField(slot), "");
  }
  EmptyNormalized();
  result_.messages.clear();

  const bool siteIsUsable = IsDefinedNumber(Text(Field::EquivalentImperviousArea)) &&
                            IsDefinedNumber(Text(Field::IrrigationArea));
  ShowR(isInteractive && siteIsUsable);
  ShowE(isInteractive && siteIsUsable);
  ShowV(isInteractive && siteIsUsable);
  if (!siteIsUsable) Say({MessageId::MissingData});
}

void Calculation::ShowR(bool intoSlot) {
  if (!result_.point.isShown) return ShowPointMessage();
  Write(Field::R, ConvertToString(SingleR(result_.point)));
  if (!intoSlot) return;
  Guarded([this] {
    std::string site;
    Message message;
    const bool isConverted =
        NormalizedReuseToSiteReuse(Text(Field::R), Text(Field::EquivalentImperviousArea),
                                   Text(Field::IrrigationArea), site, message);
    isConverted ? Write(Field::SolveFor1, site) : Say(message);
  });
}

void Calculation::ShowE(bool intoSlot) {
  if (!result_.point.HasE()) return ShowPointMessage();
  Write(Field::E, ConvertToString(SingleE(result_.point)));
  if (intoSlot) Write(Field::SolveFor2, Text(Field::E));
}

void Calculation::ShowV(bool intoSlot) {
  if (!result_.point.isShown) return ShowPointMessage();
  Write(Field::V, ConvertToString(SingleV(result_.point)));
  if (!intoSlot) return;
  Guarded([this] {
    std::string site;
    Message message;
    const bool isConverted = NormalizedStorageToSiteStorage(
        Text(Field::V), Text(Field::EquivalentImperviousArea), site, message);
    isConverted ? Write(Field::SolveFor3, site) : Say(message);
  });
}

// Where the point was only taken away, the last outcome is a success; that is no message.
void Calculation::ShowPointMessage() {
  if (result_.point.message.id != MessageId::Success) Say(result_.point.message);
}

}  // namespace

Result Calculate(const Project& project, const FramedCurves* curves) {
  return Calculation(project, curves).Run();
}

Result FollowPoint(const Project& project) {
  return Calculation(project, nullptr).Follow();
}

Project WithResult(Project project, const Result& result) {
  for (std::size_t i = 0; i < kFields; ++i) {
    if (result.texts[i]) project.texts[i] = *result.texts[i];
  }
  project.point = result.point;
  return project;
}

// --- Before a recalculation ---

bool IsDataDefined(const Project& project, bool isLoaded) {
  const auto isDefined = [&](Field field) { return IsDefinedNumber(project.Text(field)); };
  if (!isLoaded || !isDefined(Field::BasinArea) || !isDefined(Field::RunoffCoefficient) ||
      !isDefined(Field::IrrigationArea)) {
    return false;
  }
  if (IsTypedMode(project.mode)) return isDefined(Field::SolveFor1) && isDefined(Field::SolveFor2);
  if (project.mode == SolveFor::None) return false;
  return project.takesPointByHand || GuessBestInteractiveSolution(project, isLoaded) >= 1;
}

std::optional<std::string> EquivalentImperviousArea(const Project& project) {
  const std::string& area = project.Text(Field::BasinArea);
  const std::string& runoff = project.Text(Field::RunoffCoefficient);
  if (!IsDefinedNumber(area) || !IsDefinedNumber(runoff)) return std::nullopt;
  const float EIA = ReadSingle(runoff) * ReadSingle(area);
  return ConvertToString(EIA);
}

}  // namespace orvik
