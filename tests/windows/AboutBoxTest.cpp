// The about box over the real main window.
#include <gtest/gtest.h>

#include "FormOnScreen.h"
#include "base/BuildVersion.h"
#include "shell/AboutDesign.h"
#include "shell/AboutTexts.h"

namespace orvik {
namespace {

using test::FormOnScreen;
using test::FormUser;

class AboutBox : public testing::Test {
 protected:
  FormUser Open() {
    form_.ClickMenu("mnuHelp_About");
    return form_.WaitForWindow("About this module", AboutDesign::Get());
  }

  FormOnScreen form_{2};
};

TEST_F(AboutBox, ShowsTheVersionThatTheTitleBarHas) {
  const FormUser about = Open();
  EXPECT_EQ(about.Text("lblTitle"), "ORVIK 3.3 Stormwater Harvesting Module");
  EXPECT_EQ(about.Text("txtVersion"), "Version " + BuildVersionText());
  EXPECT_NE(form_.Caption().find("(Ver " + BuildVersionText() + ")"), std::string::npos);
  EXPECT_EQ(about.Text("txtDetails"), AboutText::Details());
}

TEST_F(AboutBox, OkEnterEscAndTheFrameCloseIt) {
  for (const char* way : {"click", "enter", "enter in the text", "esc", "frame"}) {
    FormUser about = Open();
    EXPECT_TRUE(about.Until([&] { return about.Focus() == "cmdOK"; })) << about.Focus();
    const std::string_view how = way;
    if (how == "enter in the text") about.Click("txtDetails");
    if (how == "click") about.Click("cmdOK");
    if (how.starts_with("enter")) about.Press({VK_RETURN, {}});
    if (how == "esc") about.Press({VK_ESCAPE, {}});
    if (how == "frame") about.CloseByFrame();
    ASSERT_TRUE(form_.UntilBack()) << way;
    EXPECT_TRUE(form_.Until([&] { return form_.Focus() == "cmbClimateStation"; })) << way;
  }
}

TEST_F(AboutBox, ItsSizeIsFixedAndItsTextsCannotBeChanged) {
  const FormUser about = Open();
  const LONG_PTR style = ::GetWindowLongPtrW(about.Window(), GWL_STYLE);
  EXPECT_EQ(style & (WS_THICKFRAME | WS_MAXIMIZEBOX | WS_MINIMIZEBOX), 0);
  for (const char* text : {"txtVersion", "txtDetails"}) {
    EXPECT_NE(::GetWindowLongPtrW(about.Find(text), GWL_STYLE) & ES_READONLY, 0) << text;
  }
}

TEST_F(AboutBox, TabWalksFromOkToTheTextsAndBack) {
  const FormUser about = Open();
  for (const char* next : {"txtVersion", "txtDetails", "cmdOK"}) {
    about.Press({VK_TAB, {}});
    EXPECT_TRUE(about.Until([&] { return about.Focus() == next; })) << next;
  }
}

TEST_F(AboutBox, TheVersionCanBeCopied) {
  const FormUser about = Open();
  about.Press({VK_TAB, {}});
  ASSERT_TRUE(about.Until([&] { return about.Focus() == "txtVersion"; }));
  about.Press({'A', {VK_CONTROL}});
  about.Press({'C', {VK_CONTROL}});
  EXPECT_TRUE(about.Until([&] { return test::ClipboardText() == "Version " + BuildVersionText(); }))
      << test::ClipboardText();
}

}  // namespace
}  // namespace orvik
