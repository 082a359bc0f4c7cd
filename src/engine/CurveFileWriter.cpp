#include "engine/CurveFileWriter.h"

#include "base/FixedText.h"
#include "base/NumberText.h"
#include "engine/CurveSet.h"

namespace orvik {
namespace {

void AddLine(std::string& text, const std::string& line) {
  text += line;
  text += "\r\n";
}

void AddNumber(std::string& text, double value) {
  AddLine(text, ConvertToString(value));
}

std::string CoefficientText(double value) {
  return FixedText(value, kCoefficientDecimals);
}

void AddCurve(std::string& text, const EfficiencyCurve& curve) {
  AddLine(text, ConvertToString(curve.E));
  AddNumber(text, curve.VStart);
  AddNumber(text, curve.VEnd);
  for (const double coefficient : {curve.A, curve.B, curve.C, curve.D}) {
    AddLine(text, CoefficientText(coefficient));
  }
}

}  // namespace

double RoundCoefficient(double value) {
  return ParseNumber(CoefficientText(value));
}

std::string CurveFileText(const CurveSet& set) {
  std::string text;
  AddLine(text, set.title);
  for (const double number :
       {set.VMin, set.VMax, set.VInterval, set.RMin, set.RMax, set.RInterval}) {
    AddNumber(text, number);
  }
  AddLine(text, std::to_string(set.curves.size()));
  for (const EfficiencyCurve& curve : set.curves) AddCurve(text, curve);
  AddLine(text, std::to_string(set.labels.size()));
  for (const CurveLabel& label : set.labels) {
    AddLine(text, label.Text);
    AddLine(text, ConvertToString(label.V) + "," + ConvertToString(label.R));
  }
  return text;
}

}  // namespace orvik
