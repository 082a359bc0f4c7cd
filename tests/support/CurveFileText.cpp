#include "support/CurveFileText.h"

namespace orvik::test {

std::string CurveFileText::Text() const {
  std::string text;
  const auto line = [&](const std::string& value) { text += value + "\r\n"; };
  line(title);
  for (const std::string& value : header) line(value);
  line(std::to_string(curves.size()));
  for (const CurveText& c : curves) {
    for (const std::string& value : {c.E, c.VStart, c.VEnd, c.A, c.B, c.C, c.D}) line(value);
  }
  line(std::to_string(labels.size() / 2));
  for (const std::string& value : labels) line(value);
  return text;
}

CurveFileText LogarithmicCurves() {
  CurveFileText file;
  file.curves = {{"50", "1", "7", "0.15", "-0.05", "0", "0"},
                 {"70", "1.5", "7", "0.20", "-0.05", "0", "0"},
                 {"90", "2", "7", "0.25", "-0.05", "0", "0"}};
  file.labels = {"E=50%", "2.5,0.12", "E=90%", "3, 0.2"};
  return file;
}

}  // namespace orvik::test
