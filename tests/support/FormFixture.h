// The project's fields, or the whole window, without a screen, over curve files of their own,
// worked as a user works them.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>

#include "base/NumberText.h"
#include "entry/Form1.h"
#include "support/AnsweringDesktop.h"
#include "support/CurveFileText.h"
#include "support/TempFolder.h"
#include "support/UserToolkit.h"

namespace orvik::test {

// Curves over a wide chart, V to 20 and R to 10: at any V, E = 50 + 10 (R + ln V - 4).
inline CurveFileText WideCurves() {
  CurveFileText file;
  file.header = {"0", "20", "5", "0", "10", "1"};
  file.curves = {{"50", "1", "20", "4", "-1", "0", "0"},
                 {"70", "1", "20", "6", "-1", "0", "0"},
                 {"90", "1", "20", "8", "-1", "0", "0"}};
  return file;
}

// A user before the project's fields, and curves to work with.
class UserFixture : public testing::Test {
 protected:
  // Tampa has the narrow curves (V to 7, R to 0.4), Orlando the wide ones, Miami a file that is
  // damaged; the other stations have none.
  UserFixture() {
    folder_.Write("KAV Data/Tampa.crv", LogarithmicCurves().Text());
    folder_.Write("KAV Data/Orlando.crv", WideCurves().Text());
    folder_.Write("KAV Data/Miami.crv", "Nothing else");
  }

  void Type(std::string_view field, std::string_view text) { toolkit_.Type(field, text); }
  void Enter(std::string_view field) { toolkit_.PressKey(field, '\r'); }
  void TypeAndEnter(std::string_view field, std::string_view text) {
    Type(field, text);
    Enter(field);
  }
  void Choose(std::string_view list, std::string_view item) { toolkit_.Choose(list, item); }
  void PressReCalc() { toolkit_.ClickButton("cmdReCalc"); }
  std::string Text(std::string_view field) const { return toolkit_.Text(field); }
  std::string Message() const { return toolkit_.Text("txtErrMsg"); }
  double Number(std::string_view field) const { return ParseNumber(Text(field)); }

  // Basin 10 ac with C = 0.5, so EIA 5 ac; 5 ac to irrigate. Then V = 2.4 S and R = Q / 7.
  void TypeSite(std::string_view station = "Tampa") {
    Choose("cmbClimateStation", station);
    Type("txtBasinArea", "10");
    Type("txtRunoffCoefficient", "0.5");
    Type("txtIrrigationArea", "5");
  }

  // A solved project in the mode "Efficiency": S = 1.25 ac-ft and Q = 0.875 in/week, so V = 3 in
  // and R = 0.125 in/day.
  void SolveForEfficiency() {
    TypeSite();
    Choose("cmbSolveFor", "Efficiency");
    Type("txtSolveFor(1)", "1.25");
    TypeAndEnter("txtSolveFor(2)", "0.875");
  }

  TempFolder folder_;
  AnsweringDesktop desktop_;
  UserToolkit toolkit_;
};

class FormFixture : public UserFixture {
 protected:
  bool HotspotIsVisible() { return form_->Chart().HotSpotVisibile(); }

  std::unique_ptr<Form1> form_ = std::make_unique<Form1>(toolkit_, desktop_, folder_.Path());
};

}  // namespace orvik::test
