#include "engine/CurveFile.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include "base/NumberText.h"
#include "engine/CurveSet.h"
#include "stream/clsIOStream.h"

namespace orvik {
namespace {

// A stream on a file never reports a failed read: a file that ends early would go on as zeros,
// which are wrong curves. So each read asks first.
bool ScanLine(clsIOStream& stream, std::string& line) {
  return !stream.EndOfFile() && stream.ScanString(line);
}

bool ScanCount(clsIOStream& stream, std::int16_t& count) {
  return !stream.EndOfFile() && stream.ScanInteger(count);
}

// One whole line as a number; letters read as 0, a value beyond a double fails.
bool ScanNumber(clsIOStream& stream, double& value) {
  std::string line;
  if (!ScanLine(stream, line)) return false;
  value = ParseNumber(line);
  return std::isfinite(value);
}

bool HasExtent(double min, double max) {
  return max > min && std::isfinite(max - min);
}

bool ReadHeader(clsIOStream& stream, CurveSet& set) {
  return ScanLine(stream, set.title) && ScanNumber(stream, set.VMin) &&
         ScanNumber(stream, set.VMax) && ScanNumber(stream, set.VInterval) &&
         ScanNumber(stream, set.RMin) && ScanNumber(stream, set.RMax) &&
         ScanNumber(stream, set.RInterval) && HasExtent(set.VMin, set.VMax) &&
         HasExtent(set.RMin, set.RMax);
}

bool AreFinite(const std::vector<double>& values) {
  return std::ranges::all_of(values, [](double value) { return std::isfinite(value); });
}

bool ReadCurve(clsIOStream& stream, EfficiencyCurve& curve) {
  // An E that single precision cannot hold leaves the value as it is here and is refused below.
  curve.E = std::numeric_limits<float>::quiet_NaN();
  if (stream.EndOfFile() || !stream.ScanSingle(curve.E) || !ScanNumber(stream, curve.VStart) ||
      !ScanNumber(stream, curve.VEnd) || !ScanNumber(stream, curve.A) ||
      !ScanNumber(stream, curve.B) || !ScanNumber(stream, curve.C) ||
      !ScanNumber(stream, curve.D)) {
    return false;
  }
  if (!std::isfinite(curve.E) || !(curve.VStart > 0)) return false;
  SampleCurve(curve);
  return AreFinite(curve.V) && AreFinite(curve.R);
}

bool ReadCurves(clsIOStream& stream, CurveSet& set) {
  std::int16_t count = 0;
  if (!ScanCount(stream, count) || count < 1) return false;
  set.curves.clear();
  for (int i = 0; i < count; ++i) {
    if (!ReadCurve(stream, set.curves.emplace_back())) return false;
  }
  return true;
}

bool ReadLabel(clsIOStream& stream, CurveLabel& label) {
  std::string position;
  return ScanLine(stream, label.Text) && ScanLine(stream, position) &&
         SplitXandY(position, label.V, label.R);
}

bool ReadLabels(clsIOStream& stream, CurveSet& set) {
  std::int16_t count = 0;
  if (!ScanCount(stream, count)) return false;
  set.labels.clear();
  for (int i = 0; i < count; ++i) {
    if (!ReadLabel(stream, set.labels.emplace_back())) return false;
  }
  return true;
}

}  // namespace

bool ReadCurveFile(clsIOStream& stream, CurveSet& set) {
  return ReadHeader(stream, set) && ReadCurves(stream, set) && ReadLabels(stream, set);
}

}  // namespace orvik
