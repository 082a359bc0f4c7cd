#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

#include "engine/ClimateStations.h"
#include "shell/MainWindowLayout.h"
#include "shell/MainWindowTable.h"
#include "shell/StatusLine.h"
#include "support/EvenLetters.h"

namespace orvik {
namespace {

struct Screen {
  Size inner;
  int dpi;
};

// Inner sizes of windows from 900 x 600 to a 4K screen, at the scalings in which they have room.
std::vector<Screen> Screens() {
  std::vector<Screen> screens;
  for (const int dpi : {96, 120, 144, 168, 192, 240, 288}) {
    const Size least = MinimumMainWindow(test::EvenLetters(dpi));
    for (const Size outer : {Size{900, 600}, Size{1024, 768}, Size{1366, 728}, Size{1920, 1040},
                             Size{2560, 1400}, Size{3840, 2160}, Size{3840, 1200}}) {
      const Size inner{outer.width - 16, outer.height - 60};  // frame, caption and menu bar
      const bool hasRoom = inner.width >= least.width && inner.height >= least.height;
      if (hasRoom) screens.push_back({inner, dpi});
    }
    screens.push_back({least, dpi});
  }
  return screens;
}

std::map<std::string, Area> Places(const Screen& screen) {
  std::map<std::string, Area> places;
  for (const Placement& place : LayOutMainWindow(screen.inner, test::EvenLetters(screen.dpi))) {
    EXPECT_TRUE(places.emplace(place.name, place.area).second) << place.name << " has two places";
  }
  return places;
}

std::string Name(const Screen& screen) {
  return std::to_string(screen.inner.width) + " x " + std::to_string(screen.inner.height) + " at " +
         std::to_string(screen.dpi) + " dpi";
}

bool Overlap(const Area& a, const Area& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

bool IsMenu(const WidgetDesign& widget) {
  return widget.name.starts_with("mnu");
}

TEST(MainWindowLayout, EveryWidgetHasAPlaceWithArea) {
  for (const Screen& screen : Screens()) {
    const auto places = Places(screen);
    for (const WidgetDesign& widget : MainWindowWidgets()) {
      if (IsMenu(widget)) continue;
      const auto place = places.find(std::string(widget.name));
      ASSERT_NE(place, places.end()) << widget.name;
      EXPECT_GT(place->second.right, place->second.left) << widget.name << ", " << Name(screen);
      EXPECT_GT(place->second.bottom, place->second.top) << widget.name << ", " << Name(screen);
    }
  }
}

TEST(MainWindowLayout, NothingLiesOutsideItsParent) {
  for (const Screen& screen : Screens()) {
    auto places = Places(screen);
    places[""] = {0, 0, screen.inner.width, screen.inner.height};
    for (const WidgetDesign& widget : MainWindowWidgets()) {
      if (IsMenu(widget)) continue;
      const Area& own = places.at(std::string(widget.name));
      const Area& parent = places.at(std::string(widget.parent));
      EXPECT_GE(own.left, 0) << widget.name << ", " << Name(screen);
      EXPECT_GE(own.top, 0) << widget.name << ", " << Name(screen);
      EXPECT_LE(own.right, parent.right - parent.left) << widget.name << ", " << Name(screen);
      EXPECT_LE(own.bottom, parent.bottom - parent.top) << widget.name << ", " << Name(screen);
    }
  }
}

TEST(MainWindowLayout, NothingOverlapsOnAPage) {
  for (const Screen& screen : Screens()) {
    const auto places = Places(screen);
    for (const WidgetDesign& a : MainWindowWidgets()) {
      for (const WidgetDesign& b : MainWindowWidgets()) {
        const bool areTwoOfAPage = &a < &b && a.parent == b.parent && !a.parent.empty();
        if (IsMenu(a) || !areTwoOfAPage) continue;
        EXPECT_FALSE(Overlap(places.at(std::string(a.name)), places.at(std::string(b.name))))
            << a.name << " and " << b.name << ", " << Name(screen);
      }
    }
  }
}

TEST(MainWindowLayout, ThePagesShareTheAreaBetweenToolbarAndHint) {
  for (const Screen& screen : Screens()) {
    const auto places = Places(screen);
    const Area& toolbar = places.at("picToolbar");
    const Area expected{0, toolbar.bottom, screen.inner.width, places.at("picHint").top};
    EXPECT_EQ(toolbar.top, 0);
    EXPECT_EQ(toolbar.right, screen.inner.width);
    EXPECT_EQ(places.at("picProject"), expected) << Name(screen);
    EXPECT_EQ(places.at("picData"), expected) << Name(screen);
  }
}

// So the chart cannot move under the mouse when a hint comes or goes: it never has their room.
TEST(MainWindowLayout, HintAndStatusLineLieBelowEachOtherAtTheFootOfTheWindow) {
  for (const Screen& screen : Screens()) {
    const auto places = Places(screen);
    const Area& hint = places.at("picHint");
    const Area& status = places.at("picStatus");
    EXPECT_LT(hint.bottom, status.top) << Name(screen);
    EXPECT_EQ(status.bottom, screen.inner.height) << Name(screen);
    EXPECT_EQ(status.right, screen.inner.width) << Name(screen);
    const TextMeasures measures = test::EvenLetters(screen.dpi);
    const Area& text = places.at("txtHint");
    EXPECT_GE(text.bottom - text.top, 2 * measures.lineHeight) << Name(screen);
    EXPECT_GE(text.right - text.left, measures.Scale(500)) << Name(screen);
  }
}

TEST(MainWindowLayout, TheTextsOfTheStatusLineAreNotCutOff) {
  for (const Screen& screen : Screens()) {
    const auto places = Places(screen);
    const TextMeasures measures = test::EvenLetters(screen.dpi);
    const auto width = [&](const char* name) {
      return places.at(name).right - places.at(name).left;
    };
    EXPECT_GE(width("lblSaved"), measures.width("Unsaved changes")) << Name(screen);
    EXPECT_GE(width("lblSaved"), measures.width("Saved 14:05")) << Name(screen);
    EXPECT_GE(width("lblFile"), measures.Scale(200)) << Name(screen);
    EXPECT_GE(width("lblOutOfDate"), measures.width(StatusText::kOutOfDate)) << Name(screen);
  }
}

TEST(MainWindowLayout, NineHundredBySixHundredIsEnoughAtFullSize) {
  const Size least = MinimumMainWindow(test::EvenLetters(96));
  EXPECT_LE(least.width, 900 - 16);
  EXPECT_LE(least.height, 600 - 60);
}

TEST(MainWindowLayout, A4KScreenIsEnoughAtThreeTimesTheSize) {
  const Size least = MinimumMainWindow(test::EvenLetters(288));
  EXPECT_LE(least.width, 3840 - 16);
  EXPECT_LE(least.height, 2160 - 60);
}

TEST(MainWindowLayout, ASmallerWindowIsLaidOutAsTheSmallestThatFits) {
  const TextMeasures measures = test::EvenLetters(96);
  EXPECT_EQ(LayOutMainWindow({100, 50}, measures),
            LayOutMainWindow(MinimumMainWindow(measures), measures));
}

// Whoever reads a printed report finds each line of it on the screen.
TEST(MainWindowLayout, CaptionsAreNotCutOff) {
  for (const Screen& screen : Screens()) {
    const auto places = Places(screen);
    const TextMeasures measures = test::EvenLetters(screen.dpi);
    for (const LabelDesign& label : MainWindowLabels()) {
      std::string shown(label.caption);
      std::erase(shown, '&');
      const Area& place = places.at(std::string(label.name));
      EXPECT_GE(place.right - place.left, measures.width(shown))
          << label.name << ", " << Name(screen);
      EXPECT_GE(place.bottom - place.top, measures.lineHeight) << label.name;
    }
  }
}

// A list has 32 pixels at the left and right of its text and for its arrow, at 96 dots per inch.
TEST(MainWindowLayout, TheListHasRoomForEveryStation) {
  for (const Screen& screen : Screens()) {
    const TextMeasures measures = test::EvenLetters(screen.dpi);
    const Area list = Places(screen).at("cmbClimateStation");
    for (std::int16_t i = 1; i <= NumRainfallStations(); ++i) {
      EXPECT_GE(list.right - list.left, measures.width(ClimateStationName(i)) + measures.Scale(32))
          << ClimateStationName(i) << ", " << Name(screen);
    }
  }
}

// Letters of a font in which the name that has most of them is not the widest.
TEST(MainWindowLayout, TheListIsMeasuredForTheWidestNameNotForTheLongestText) {
  TextMeasures measures = test::EvenLetters(96);
  measures.width = [](std::string_view text) {
    return text == "Orlando" ? 500 : 6 * static_cast<int>(text.size());
  };
  const auto places = LayOutMainWindow({1600, 900}, measures);
  const auto list = std::ranges::find(places, "cmbClimateStation", &Placement::name);
  ASSERT_NE(list, places.end());
  EXPECT_EQ(list->area.right - list->area.left, 500 + 32);
}

TEST(MainWindowLayout, TheChartIsWideEnoughForItsNumbersAndTitles) {
  for (const Screen& screen : Screens()) {
    const Area chart = Places(screen).at("ctrlStormwaterReuse1");
    EXPECT_GE(chart.right - chart.left, (chart.bottom - chart.top) * 5 / 4) << Name(screen);
    EXPECT_GE(chart.right - chart.left, test::EvenLetters(screen.dpi).Scale(420)) << Name(screen);
    EXPECT_GE(chart.bottom - chart.top, test::EvenLetters(screen.dpi).Scale(260)) << Name(screen);
  }
}

TEST(MainWindowLayout, TheChartTakesTheRoomOfALargerWindow) {
  const Area small = Places({{1100, 700}, 96}).at("ctrlStormwaterReuse1");
  const Area large = Places({{1900, 1000}, 96}).at("ctrlStormwaterReuse1");
  EXPECT_EQ(large.right - small.right, 800);
  EXPECT_GE(large.bottom - small.bottom, 290);
}

TEST(MainWindowLayout, TheExitButtonsStayAtTheRight) {
  for (const int width : {900, 1400, 3800}) {
    const auto places = Places({{width, 700}, 96});
    EXPECT_EQ(places.at("cmdDiscardExit").right, width - 12);
    EXPECT_LT(places.at("cmdSaveExit").right, places.at("cmdDiscardExit").left);
  }
}

TEST(MainWindowLayout, ALabelIsLevelWithItsFieldAndDirectlyLeftOfIt) {
  const auto places = Places({{1100, 700}, 96});
  for (const FieldGroup& group : DataGroups()) {
    for (const FieldRow& row : group.rows) {
      const Area& label = places.at(std::string(row.label.name));
      const Area& field = places.at(std::string(row.field));
      EXPECT_NEAR(label.top + label.bottom, field.top + field.bottom, 1) << row.field;
      EXPECT_EQ(field.left - label.right, 6) << row.field;
      if (row.unit.name.empty()) continue;
      const Area& unit = places.at(std::string(row.unit.name));
      EXPECT_EQ(unit.left - field.right, 6) << row.field;
      EXPECT_EQ(unit.top, label.top) << row.field;
    }
  }
}

}  // namespace
}  // namespace orvik
