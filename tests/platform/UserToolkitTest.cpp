#include <gtest/gtest.h>

#include <stdexcept>

#include "support/UserToolkit.h"

namespace orvik {
namespace {

TEST(UserToolkit, TypingReplacesTheTextKeyByKey) {
  test::UserToolkit toolkit;
  const auto box = toolkit.MakeTextBox("txtEngineer");
  std::string seen;
  box->OnChange = [&] { seen += box->Text() + "|"; };
  toolkit.Type("txtEngineer", "ab");
  toolkit.Type("txtEngineer", "ñ°中");
  EXPECT_EQ(seen, "a|ab||ñ|ñ°|ñ°中|");
}

TEST(UserToolkit, AKeyHandlerSeesCharactersAndCanReplaceThem) {
  test::UserToolkit toolkit;
  const auto box = toolkit.MakeTextBox("txtEngineer");
  box->OnKeyPress = [](std::int16_t& key) {
    if (key == 0xF1) key = 0x4E2D;  // ñ becomes 中
    if (key == 'b') key = 0xE9;     // b becomes é
  };
  toolkit.Type("txtEngineer", "ñab");
  EXPECT_EQ(box->Text(), "中aé");
}

TEST(UserToolkit, LeavesTheOldFieldWhenTheFocusMoves) {
  test::UserToolkit toolkit;
  const auto first = toolkit.MakeTextBox("first");
  const auto second = toolkit.MakeTextBox("second");
  int left = 0;
  first->OnLeave = [&] { ++left; };
  toolkit.Type("first", "1");
  toolkit.PressKey("first", '\r');
  EXPECT_EQ(left, 0);
  toolkit.Type("second", "2");
  EXPECT_EQ(left, 1);
  toolkit.Leave("first");
  EXPECT_EQ(left, 1) << "it has no focus any more";
}

TEST(UserToolkit, RefusesWhatAUserCannotDo) {
  test::UserToolkit toolkit;
  const auto box = toolkit.MakeTextBox("box");
  const auto menu = toolkit.MakeMenuItem("mnuFile");
  const auto item = toolkit.MakeMenuItem("mnuFile_Open");
  box->Locked(true);
  menu->Visible(false);
  EXPECT_THROW(toolkit.Type("box", "1"), std::logic_error);
  EXPECT_THROW(toolkit.ClickMenu("mnuFile_Open"), std::logic_error);
  EXPECT_THROW(toolkit.Text("mnuFile"), std::out_of_range);
  EXPECT_THROW(toolkit.Text("nobody"), std::out_of_range);
}

TEST(UserToolkit, AnIndexOutsideAListChoosesNothing) {
  test::UserToolkit toolkit;
  const auto list = toolkit.MakeComboBox("list");
  list->AddItem("a");
  int clicks = 0;
  list->OnClick = [&] { ++clicks; };
  list->ListIndex(0);
  list->ListIndex(0);
  EXPECT_EQ(clicks, 1);
  list->ListIndex(1);
  EXPECT_EQ(list->ListIndex(), -1);
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(list->List(5), "");
}

TEST(UserToolkit, AWidgetIsForgottenWhenItGoes) {
  test::UserToolkit toolkit;
  { const auto box = toolkit.MakeTextBox("box"); }
  EXPECT_THROW(toolkit.Text("box"), std::out_of_range);
}

}  // namespace
}  // namespace orvik
