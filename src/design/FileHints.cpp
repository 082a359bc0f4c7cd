#include "design/FileHints.h"

#include "base/TextFault.h"
#include "engine/CurveLoading.h"

namespace orvik {
namespace {

Hint HintOf(CurveFault fault, const std::string& path) {
  switch (fault) {
    case CurveFault::EndsBeforeCurves:
      return {HintId::CurveFileEndsBeforeCurves, {path}};
    case CurveFault::EndsWithinCurves:
      return {HintId::CurveFileEndsWithinCurves, {path}};
    case CurveFault::EndsWithinLabels:
      return {HintId::CurveFileEndsWithinLabels, {path}};
    case CurveFault::AxisWithoutExtent:
      return {HintId::CurveFileAxisWithoutExtent, {path}};
    case CurveFault::NoCurves:
      return {HintId::CurveFileHasNoCurves, {path}};
    case CurveFault::LabelWithoutPlace:
      return {HintId::CurveFileLabelWithoutPlace, {path}};
    case CurveFault::UnusableNumber:
    case CurveFault::None:
      break;
  }
  return {HintId::CurveFileUnusableNumber, {path}};
}

std::vector<Hint> HintsOfLoaded(const LoadedCurves& loaded) {
  std::vector<Hint> hints;
  if (!loaded.reading.hasLabelCount) hints.push_back({HintId::CurvesWithoutLabels, {loaded.path}});
  if (loaded.reading.endsWithinLine) hints.push_back({HintId::PossiblyCutShort, {loaded.path}});
  return hints;
}

}  // namespace

std::optional<Hint> HintOf(TextFault fault, const std::string& path) {
  switch (fault) {
    case TextFault::Missing:
      return Hint{HintId::FileMissing, {path}};
    case TextFault::IsFolder:
      return Hint{HintId::FileIsFolder, {path}};
    case TextFault::Unreadable:
      return Hint{HintId::FileUnreadable, {path}};
    case TextFault::Empty:
      return Hint{HintId::FileEmpty, {path}};
    case TextFault::IsUtf16:
      return Hint{HintId::FileIsUtf16, {path}};
    case TextFault::HasOnlyLineFeeds:
      return Hint{HintId::FileHasOnlyLineFeeds, {path}};
    case TextFault::None:
      break;
  }
  return std::nullopt;
}

std::vector<Hint> HintsOf(const LoadedCurves& loaded) {
  switch (loaded.outcome) {
    case LoadOutcome::Loaded:
      return HintsOfLoaded(loaded);
    case LoadOutcome::FolderMissing:
      return {{HintId::CurveFolderMissing, {loaded.path}}};
    case LoadOutcome::FileMissing:
      return {{HintId::CurveFileMissing, {loaded.path}}};
    case LoadOutcome::Unreadable:
      return {HintOf(loaded.textFault, loaded.path)
                  .value_or(HintOf(loaded.reading.fault, loaded.path))};
    case LoadOutcome::Cleared:
      break;
  }
  return {};
}

}  // namespace orvik
