#include "base/Paths.h"
#include "shell/MessageHelp.h"
#include "support/FormFixture.h"

namespace orvik {
namespace {

using test::FormFixture;

class MessageHelpTest : public FormFixture {
 protected:
  ctrlErrorMessageBar& Bar() { return form_->Fields().txtErrMsg; }
  bool CanBeUsed(const char* widget) {
    return std::string_view(widget).starts_with("mnu")
               ? toolkit_.Find<HeadlessMenuItem>(widget).Enabled()
               : toolkit_.Find<HeadlessControlHost>(widget).Enabled();
  }
};

TEST(HelpPagePath, HasTheTopicInAtLeastThreeDigits) {
  const struct {
    std::int16_t topic;
    const char* file;
  } rows[] = {{1, "Topic001.htm"},   {12, "Topic012.htm"},       {123, "Topic123.htm"},
              {0, "Topic000.htm"},   {4567, "Topic4567.htm"},    {32767, "Topic32767.htm"},
              {-5, "Topic-005.htm"}, {-32768, "Topic-32768.htm"}};
  const std::string folder = std::string("Data") + kPathSeparator;
  for (const auto& row : rows) {
    EXPECT_EQ(HelpPagePath(folder, row.topic), folder + "Help" + kPathSeparator + row.file);
  }
}

TEST_F(MessageHelpTest, TheButtonsCanBeUsedWhileTheMessageHasATopic) {
  for (const char* widget : {"cmdErrorHelp", "mnuHelp_Message"}) {
    EXPECT_FALSE(CanBeUsed(widget)) << widget;
    Bar().SetErrMsg("Something", 7);
    EXPECT_TRUE(CanBeUsed(widget)) << widget;
    Bar().SetErrMsg("Something else", 0);
    EXPECT_FALSE(CanBeUsed(widget)) << widget;
    Bar().SetErrMsg("Something", 7);
    Bar().Clear();
    EXPECT_FALSE(CanBeUsed(widget)) << widget;
  }
}

TEST_F(MessageHelpTest, OpensThePageOfTheTopic) {
  const std::string page = folder_.Write("Help/Topic012.htm", "<html>");
  Bar().SetErrMsg("Something", 12);
  toolkit_.ClickButton("cmdErrorHelp");
  toolkit_.ClickMenu("mnuHelp_Message");
  ASSERT_EQ(desktop_.OpenedPages().size(), 2U);
  for (const std::string& opened : desktop_.OpenedPages()) {
    EXPECT_EQ(PathFromUtf8(opened), PathFromUtf8(page));
  }
  EXPECT_TRUE(desktop_.Messages().empty());
}

TEST_F(MessageHelpTest, AMissingPageShowsNothing) {
  Bar().SetErrMsg("Something", 12);
  toolkit_.ClickButton("cmdErrorHelp");
  EXPECT_TRUE(desktop_.OpenedPages().empty());
  EXPECT_TRUE(desktop_.Messages().empty());
}

TEST_F(MessageHelpTest, ShowsWhyThePageCouldNotBeOpened) {
  folder_.Write("Help/Topic012.htm", "<html>");
  Bar().SetErrMsg("Something", 12);
  const struct {
    PageOpening result;
    HeadlessDesktop::Message message;
  } rows[] = {
      {PageOpening::NoProgram,
       {"Could not find default browser.", "Error", MessageIcon::Exclamation}},
      {PageOpening::Failed, {"File could not be opened.", "URL Failed", MessageIcon::Exclamation}}};
  for (const auto& row : rows) {
    desktop_.ForgetMessages();
    desktop_.AnswerPage(row.result);
    toolkit_.ClickButton("cmdErrorHelp");
    EXPECT_EQ(desktop_.Messages(), std::vector{row.message});
  }
}

}  // namespace
}  // namespace orvik
