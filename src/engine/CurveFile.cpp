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

bool HasExtent(double min, double max) {
  return max > min && std::isfinite(max - min);
}

bool AreFinite(const std::vector<double>& values) {
  return std::ranges::all_of(values, [](double value) { return std::isfinite(value); });
}

// A stream on a file never reports a failed read: a file that ends early would go on as zeros,
// which are wrong curves. So each read asks first.
class CurveFileReader {
 public:
  CurveFileReader(clsIOStream& stream, CurveSet& set) : stream_(stream), set_(set) {}

  CurveReading Read() {
    if (ReadHeader() && ReadCurves() && !IsAtEndOfCurves()) ReadLabels();
    reading_.endsWithinLine = stream_.EndsWithinLine();
    return reading_;
  }

 private:
  bool Fail(CurveFault fault) {
    reading_.fault = fault;
    return false;
  }

  bool Expect(bool isAsItShould, CurveFault fault) { return isAsItShould || Fail(fault); }

  bool ReadLine(std::string& line) {
    if (stream_.EndOfFile()) return Fail(endsHere_);
    return stream_.ScanString(line);
  }

  bool ReadCount(std::int16_t& count) {
    if (stream_.EndOfFile()) return Fail(endsHere_);
    return stream_.ScanInteger(count);
  }

  // One whole line as a number; letters read as 0, a value beyond a double is a fault.
  bool ReadNumber(double& value) {
    std::string line;
    if (!ReadLine(line)) return false;
    value = ParseNumber(line);
    return Expect(std::isfinite(value), CurveFault::UnusableNumber);
  }

  bool ReadHeader() {
    return ReadLine(set_.title) && ReadNumber(set_.VMin) && ReadNumber(set_.VMax) &&
           ReadNumber(set_.VInterval) && ReadNumber(set_.RMin) && ReadNumber(set_.RMax) &&
           ReadNumber(set_.RInterval) &&
           Expect(HasExtent(set_.VMin, set_.VMax) && HasExtent(set_.RMin, set_.RMax),
                  CurveFault::AxisWithoutExtent);
  }

  bool ReadE(float& E) {
    // An E that single precision cannot hold leaves the value as it is here.
    E = std::numeric_limits<float>::quiet_NaN();
    if (stream_.EndOfFile()) return Fail(endsHere_);
    return stream_.ScanSingle(E) &&
           Expect(std::isfinite(E), stream_.EndOfFile() ? endsHere_ : CurveFault::UnusableNumber);
  }

  bool ReadCurve(EfficiencyCurve& curve) {
    if (!ReadE(curve.E) || !ReadNumber(curve.VStart) || !ReadNumber(curve.VEnd) ||
        !ReadNumber(curve.A) || !ReadNumber(curve.B) || !ReadNumber(curve.C) ||
        !ReadNumber(curve.D)) {
      return false;
    }
    if (!(curve.VStart > 0)) return Fail(CurveFault::UnusableNumber);
    SampleCurve(curve);
    return Expect(AreFinite(curve.V) && AreFinite(curve.R), CurveFault::UnusableNumber);
  }

  bool ReadCurves() {
    std::int16_t count = 0;
    if (!ReadCount(count)) return false;
    if (count < 1) return Fail(CurveFault::NoCurves);
    endsHere_ = CurveFault::EndsWithinCurves;
    set_.curves.clear();
    for (int i = 0; i < count; ++i) {
      if (!ReadCurve(set_.curves.emplace_back())) return false;
    }
    // Without its line end, the last coefficient may have lost digits.
    return Expect(!stream_.EndOfFile() || !stream_.EndsWithinLine(), endsHere_);
  }

  bool IsAtEndOfCurves() {
    set_.labels.clear();
    return stream_.EndOfFile();
  }

  bool ReadLabel(CurveLabel& label) {
    std::string position;
    return ReadLine(label.Text) && ReadLine(position) &&
           Expect(SplitXandY(position, label.V, label.R), CurveFault::LabelWithoutPlace);
  }

  void ReadLabels() {
    endsHere_ = CurveFault::EndsWithinLabels;
    std::int16_t count = 0;
    reading_.hasLabelCount = ReadCount(count);
    for (int i = 0; i < count; ++i) {
      if (!ReadLabel(set_.labels.emplace_back())) return;
    }
  }

  clsIOStream& stream_;
  CurveSet& set_;
  CurveReading reading_;
  CurveFault endsHere_ = CurveFault::EndsBeforeCurves;
};

}  // namespace

CurveReading ReadCurveFile(clsIOStream& stream, CurveSet& set) {
  return CurveFileReader(stream, set).Read();
}

}  // namespace orvik
