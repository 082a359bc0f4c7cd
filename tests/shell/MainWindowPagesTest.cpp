#include <algorithm>
#include <map>
#include <set>

#include "shell/MainWindowPages.h"
#include "shell/MainWindowTable.h"
#include "support/FormFixture.h"

namespace orvik {
namespace {

using test::FormFixture;

class MainWindowPagesTest : public FormFixture {
 protected:
  std::string ShownPage() {
    const bool project = toolkit_.IsVisible("picProject");
    const bool data = toolkit_.IsVisible("picData");
    if (project == data) return "both or none";
    return project ? "project" : "data";
  }
  bool IsDown(const char* option) { return toolkit_.Find<HeadlessOptionButton>(option).Value(); }
};

TEST_F(MainWindowPagesTest, OpensWithTheDataPage) {
  EXPECT_EQ(ShownPage(), "data");
  EXPECT_FALSE(IsDown("optPage(1)"));
  EXPECT_TRUE(IsDown("optPage(2)"));
}

TEST_F(MainWindowPagesTest, MenusAndOptionButtonsTurnThePages) {
  for (int round = 0; round < 2; ++round) {
    toolkit_.ClickMenu("mnuProject");
    EXPECT_EQ(ShownPage(), "project");
    EXPECT_TRUE(IsDown("optPage(1)"));
    EXPECT_FALSE(IsDown("optPage(2)"));
    EXPECT_TRUE(toolkit_.Find<HeadlessMenuItem>("mnuProject").Checked());
    toolkit_.ClickMenu("mnuData");
    EXPECT_EQ(ShownPage(), "data");
    EXPECT_TRUE(toolkit_.Find<HeadlessMenuItem>("mnuData").Checked());
    EXPECT_FALSE(toolkit_.Find<HeadlessMenuItem>("mnuProject").Checked());
    toolkit_.ClickButton("optPage(1)");
    EXPECT_EQ(ShownPage(), "project");
    toolkit_.ClickButton("optPage(2)");
    EXPECT_EQ(ShownPage(), "data");
  }
}

TEST_F(MainWindowPagesTest, AnyOtherOptionChangesNothing) {
  MainWindowPages pages(toolkit_, desktop_, form_->Fields());
  for (const std::int16_t index : {std::int16_t{0}, std::int16_t{3}, std::int16_t{-1}}) {
    pages.optPage_Click(1);
    pages.optPage_Click(index);
    EXPECT_EQ(ShownPage(), "project") << index;
    pages.optPage_Click(2);
    pages.optPage_Click(index);
    EXPECT_EQ(ShownPage(), "data") << index;
  }
}

TEST_F(MainWindowPagesTest, ANewProjectShowsTheDataPageAndItsButton) {
  toolkit_.ClickMenu("mnuProject");
  toolkit_.ClickMenu("mnuFile_New");
  EXPECT_EQ(ShownPage(), "data");
  EXPECT_TRUE(IsDown("optPage(2)"));
  EXPECT_FALSE(IsDown("optPage(1)"));
}

TEST_F(MainWindowPagesTest, TodayIsWrittenInTenCharacters) {
  toolkit_.ClickMenu("mnuProject");
  const struct {
    CalendarDate date;
    const char* text;
  } rows[] = {{{2026, 3, 9}, "03-09-2026"}, {{2031, 12, 31}, "12-31-2031"}};
  for (const auto& row : rows) {
    desktop_.Today(row.date);
    toolkit_.ClickButton("cmdToday");
    EXPECT_EQ(Text("txtDate"), row.text);
  }
}

// --- The table ---

TEST(MainWindowTable, EveryFieldFollowsItsLabel) {
  const auto widgets = MainWindowWidgets();
  const auto expectPair = [&](const FieldRow& row) {
    const auto field = std::ranges::find(widgets, row.field, &WidgetDesign::name);
    ASSERT_NE(field, widgets.end()) << row.field;
    EXPECT_EQ(std::prev(field)->name, row.label.name);
  };
  for (const FieldRow& row : ProjectRows()) expectPair(row);
  for (const FieldGroup& group : DataGroups()) {
    for (const FieldRow& row : group.rows) expectPair(row);
  }
  expectPair(MessageRow());
}

TEST(MainWindowTable, ParentsComeBeforeTheirChildrenAndNamesAreUnique) {
  std::set<std::string_view> met{""};
  for (const WidgetDesign& widget : MainWindowWidgets()) {
    EXPECT_TRUE(met.contains(widget.parent)) << widget.name;
    EXPECT_TRUE(met.insert(widget.name).second) << widget.name;
  }
}

TEST_F(MainWindowPagesTest, EveryWidgetOfTheTableExists) {
  form_->Mode(2);
  for (const WidgetDesign& widget : MainWindowWidgets()) {
    EXPECT_NO_THROW(toolkit_.IsVisible(widget.name)) << widget.name;
  }
}

// --- Mnemonics ---

// The letters after "&" of what can be reached at the same time.
class Letters {
 public:
  void Add(std::string_view caption, std::string_view owner) {
    const std::size_t mark = caption.find('&');
    ASSERT_TRUE(mark != std::string_view::npos && mark + 1 < caption.size()) << owner;
    const char letter = static_cast<char>(std::tolower(caption[mark + 1]));
    const auto [other, isNew] = owners_.emplace(letter, owner);
    EXPECT_TRUE(isNew) << owner << " and " << other->second << " share " << letter;
  }

 private:
  std::map<char, std::string> owners_;
};

TEST_F(MainWindowPagesTest, MenusAndButtonsHaveMnemonicsThatAreUniqueOnAPage) {
  for (const std::int16_t mode : {std::int16_t{1}, std::int16_t{2}}) {
    for (const bool isProject : {true, false}) {
      Letters letters;
      letters.Add(toolkit_.Caption(mode == 1 ? "mnuFile" : "mnuReturn"), "menu");
      letters.Add(toolkit_.Caption("mnuView"), "mnuView");
      letters.Add(toolkit_.Caption("mnuHelp"), "mnuHelp");
      letters.Add(ButtonCaption::kProjectPage, "optPage(1)");
      letters.Add(ButtonCaption::kDataPage, "optPage(2)");
      letters.Add(ButtonCaption::kReCalc, "cmdReCalc");
      if (mode == 2) letters.Add(ButtonCaption::kSaveExit, "cmdSaveExit");
      if (mode == 2) letters.Add(ButtonCaption::kDiscardExit, "cmdDiscardExit");
      letters.Add(isProject ? ButtonCaption::kToday : ButtonCaption::kErrorHelp, "page's button");
      const std::string_view page = isProject ? "picProject" : "picData";
      for (const WidgetDesign& widget : MainWindowWidgets()) {
        const auto label = std::ranges::find(MainWindowLabels(), widget.name, &LabelDesign::name);
        const bool isMarked =
            label != MainWindowLabels().end() && label->caption.find('&') != std::string_view::npos;
        if (widget.parent == page && isMarked) letters.Add(label->caption, label->name);
      }
    }
  }
}

TEST_F(MainWindowPagesTest, MenuItemsHaveMnemonicsThatAreUniqueInTheirMenu) {
  std::map<std::string, Letters> menus;
  for (const WidgetDesign& widget : MainWindowWidgets()) {
    const bool isItem = widget.name.starts_with("mnu") && !widget.parent.empty();
    if (!isItem) continue;
    menus[std::string(widget.parent)].Add(toolkit_.Caption(widget.name), widget.name);
  }
}

}  // namespace
}  // namespace orvik
