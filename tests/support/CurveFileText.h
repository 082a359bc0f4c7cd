// Texts of small curve files whose answers are known in closed form.
#pragma once

#include <string>
#include <vector>

namespace orvik::test {

// One curve as it stands in a file; texts, so that a test can spoil any of them.
struct CurveText {
  std::string E, VStart, VEnd, A, B, C, D;
};

struct CurveFileText {
  std::string title = "Test station";
  std::vector<std::string> header = {"0", "7", "1", "0", "0.4", "0.1"};
  std::vector<CurveText> curves;
  std::vector<std::string> labels;  // text and position in turn

  // The file: every value on a line of its own, CR LF.
  std::string Text() const;
};

// Three curves R = A - 0.05 ln V with A = 0.15, 0.20, 0.25 for E = 50, 70, 90, from V = 1, 1.5, 2
// to 7: at any V, E = 50 + 400 (R + 0.05 ln V - 0.15).
CurveFileText LogarithmicCurves();

}  // namespace orvik::test
