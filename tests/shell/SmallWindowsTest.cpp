// The station map and the about box, opened from the main window.
#include <algorithm>

#include "base/BuildVersion.h"
#include "base/Paths.h"
#include "shell/AboutDesign.h"
#include "shell/AboutTexts.h"
#include "shell/ClimateStationsDesign.h"
#include "shell/SmallWindows.h"
#include "shell/frmClimateStations.h"
#include "support/EvenLetters.h"
#include "support/FormFixture.h"
#include "support/RecordingHost.h"

namespace orvik {
namespace {

using test::FormFixture;

Picture SmallPicture() {
  return {{2, 1}, {0x112233, 0x445566}};
}

class SmallWindowsTest : public FormFixture {
 protected:
  std::string ViewerTells() {
    return toolkit_.Find<HeadlessControlHost>("ctrlPictureViewer1").Announcement().value;
  }
  // How the work in the window of this name ends is told.
  int Shown(std::string_view window) const {
    const auto found = shown_.find(window);
    return found == shown_.end() ? 0 : found->second;
  }
  void Count(const std::string& window, std::function<void()> work = {}) {
    toolkit_.WhenShown(window, [this, window, work = std::move(work)] {
      ++shown_[window];
      if (work) work();
    });
  }
  // The path, with the system's separators.
  std::string WriteMap() const {
    folder_.Write("Help/ReuseClimateStations.PNG", "a map");
    return folder_.Path() + "Help" + kPathSeparator + "ReuseClimateStations.PNG";
  }

  std::map<std::string, int, std::less<>> shown_;
};

// --- The station map ---

TEST_F(SmallWindowsTest, TheMapOpensFromItsButtonAndFromTheMenuInBothModes) {
  Count("frmClimateStations");
  int opened = 0;
  for (const std::int16_t mode : {std::int16_t{1}, std::int16_t{2}}) {
    form_->Mode(mode);
    toolkit_.ClickButton("cmdMap");
    EXPECT_EQ(Shown("frmClimateStations"), ++opened) << mode;
    toolkit_.ClickMenu("mnuHelp_Map");
    EXPECT_EQ(Shown("frmClimateStations"), ++opened) << mode;
  }
}

TEST_F(SmallWindowsTest, TheMapsPictureIsThatOfTheHelpFolder) {
  const std::string path = WriteMap();
  desktop_.AnswerPicture(SmallPicture());
  std::string told;
  std::string caption;
  Count("frmClimateStations", [&] {
    toolkit_.Find<HeadlessControlHost>("ctrlPictureViewer1").OnResize(10, 10);
    told = ViewerTells();
    caption = toolkit_.Caption("frmClimateStations");
  });
  toolkit_.ClickButton("cmdMap");
  EXPECT_EQ(told, "zoom 500 %");
  EXPECT_EQ(caption, "Climate stations");
  EXPECT_THAT(desktop_.ReadPictures(), testing::ElementsAre(path));
  EXPECT_EQ(StationMapPath(folder_.Path()), path);
}

TEST_F(SmallWindowsTest, AMissingOrDamagedPictureLeavesTheViewerEmptyWithoutAMessage) {
  std::string told;
  Count("frmClimateStations", [&] { told = ViewerTells(); });
  toolkit_.ClickButton("cmdMap");
  EXPECT_EQ(told, "no picture");
  EXPECT_TRUE(desktop_.ReadPictures().empty()) << "there is no file to read";
  WriteMap();
  desktop_.AnswerPicture(std::nullopt);
  told.clear();
  toolkit_.ClickButton("cmdMap");
  EXPECT_EQ(told, "no picture");
  EXPECT_TRUE(desktop_.Messages().empty());
  EXPECT_EQ(desktop_.Beeps(), 0);
}

TEST(SmallWindowsChart, IsRedrawnOnceTheMapIsClosed) {
  test::UserToolkit toolkit;
  test::AnsweringDesktop desktop;
  ctrlStormwaterReuse chart("");
  test::RecordingHost host;
  chart.AttachHost(&host);
  SmallWindows windows(toolkit, desktop, chart, "");
  toolkit.WhenShown("frmClimateStations", [&] { host.Log("the map"); });
  host.Take();
  windows.cmdMap_Click();
  EXPECT_THAT(host.Take(), testing::ElementsAre("the map", "invalidate"));
  chart.AttachHost(nullptr);
}

TEST_F(SmallWindowsTest, EscClosesTheMap) {
  bool isVisible = true;
  Count("frmClimateStations", [&] {
    toolkit_.Find<HeadlessWindow>("frmClimateStations").OnCancel();
    isVisible = toolkit_.IsVisible("frmClimateStations");
  });
  toolkit_.ClickButton("cmdMap");
  EXPECT_FALSE(isVisible);
}

TEST(ClimateStationsDesignTest, TheViewerFillsTheWindowAtEachSize) {
  for (const Size inner : {Size{320, 240}, Size{900, 700}, Size{3840, 2100}}) {
    const auto places = ClimateStationsDesign::Get().LayOut(inner, {});
    ASSERT_EQ(places.size(), 1U);
    EXPECT_EQ(places[0].name, "ctrlPictureViewer1");
    EXPECT_EQ(places[0].area, (Area{0, 0, inner.width, inner.height}));
  }
}

// --- The about box ---

TEST_F(SmallWindowsTest, TheAboutBoxShowsTitleVersionAndDetails) {
  std::string title;
  std::string version;
  std::string details;
  bool canBeChanged = true;
  Count("frmAbout", [&] {
    title = toolkit_.Caption("lblTitle");
    version = Text("txtVersion");
    details = Text("txtDetails");
    canBeChanged = !toolkit_.Find<HeadlessTextBox>("txtVersion").Locked() ||
                   !toolkit_.Find<HeadlessTextBox>("txtDetails").Locked();
  });
  toolkit_.ClickMenu("mnuHelp_About");
  EXPECT_EQ(Shown("frmAbout"), 1);
  EXPECT_EQ(title, "ORVIK 3.3 Stormwater Harvesting Module");
  EXPECT_EQ(version, "Version " + BuildVersionText());
  EXPECT_NE(toolkit_.Caption("Form1").find(BuildVersionText()), std::string::npos);
  EXPECT_THAT(details, testing::HasSubstr("NOAA"));
  EXPECT_THAT(details, testing::HasSubstr("GCC Runtime Library Exception"));
  EXPECT_FALSE(canBeChanged);
}

// The licence in the box is the licence that comes with the files.
TEST_F(SmallWindowsTest, TheAboutBoxQuotesTheLicenceToTheLetter) {
  std::string licence = test::ReadBytes(ORVIK_LICENSE);
  ASSERT_FALSE(licence.empty());
  std::string shown =
      "MIT License " + std::string(AboutText::kCopyright) + " " + AboutText::Details();
  const auto oneLine = [](std::string text) {
    std::ranges::replace(text, '\r', ' ');
    std::ranges::replace(text, '\n', ' ');
    const auto areBlanks = [](char a, char b) { return a == ' ' && b == ' '; };
    text.erase(std::unique(text.begin(), text.end(), areBlanks), text.end());
    return text;
  };
  shown = oneLine(shown);
  licence = oneLine(licence);
  const auto terms = licence.find("Permission is hereby granted");
  ASSERT_NE(terms, std::string::npos);
  EXPECT_THAT(licence, testing::HasSubstr(AboutText::kCopyright));
  while (!licence.empty() && licence.back() == ' ') licence.pop_back();
  EXPECT_THAT(shown, testing::HasSubstr(licence.substr(terms)));
}

TEST_F(SmallWindowsTest, OkEnterAndEscCloseTheAboutBox) {
  const std::function<void()> ways[] = {
      [&] { toolkit_.ClickButton("cmdOK"); },
      [&] { toolkit_.Find<HeadlessWindow>("frmAbout").OnAccept(); },
      [&] { toolkit_.Find<HeadlessWindow>("frmAbout").OnCancel(); },
  };
  for (const auto& way : ways) {
    bool isVisible = true;
    Count("frmAbout", [&] {
      way();
      isVisible = toolkit_.IsVisible("frmAbout");
    });
    toolkit_.ClickMenu("mnuHelp_About");
    EXPECT_FALSE(isVisible);
  }
}

TEST(AboutDesignTest, EverythingHasItsPlaceFromTopToBottom) {
  for (const int dpi : {96, 120, 144, 192}) {
    const TextMeasures measures = test::EvenLetters(dpi);
    const Size inner = AboutDesign::Get().InitialSize(measures);
    const auto places = AboutDesign::Get().LayOut(inner, measures);
    ASSERT_EQ(places.size(), AboutDesign::Get().Widgets().size());
    int bottom = 0;
    for (std::size_t i = 0; i < places.size(); ++i) {
      const auto& [name, area] = places[i];
      EXPECT_EQ(name, AboutDesign::Get().Widgets()[i].name);
      EXPECT_GE(area.top, bottom) << name << " at " << dpi;
      EXPECT_GE(area.bottom - area.top, measures.lineHeight) << name;
      EXPECT_GT(area.left, 0) << name;
      EXPECT_LT(area.right, inner.width) << name;
      bottom = area.bottom;
    }
    EXPECT_EQ(inner.height - bottom, measures.Scale(16)) << "the margin";
    EXPECT_GE(places[0].area.right - places[0].area.left, measures.width(AboutText::kTitle));
    EXPECT_GE(places[2].area.right - places[2].area.left, measures.width(AboutText::kCopyright));
  }
}

}  // namespace
}  // namespace orvik
