// The File menu: dialogs, captions, the current file, and saving that loses nothing.
#include <filesystem>

#include "base/Paths.h"
#include "support/FormFixture.h"
#include "support/ProjectText.h"

namespace orvik {
namespace {

using test::FormFixture;
using test::ProjectText;
using test::ReadBytes;
using testing::ElementsAre;

constexpr const char* kUntitled = "ORVIK 3.3 Stormwater Harvesting - [untitled]";

class FileMenu : public FormFixture {
 protected:
  void Click(const char* item) { toolkit_.ClickMenu(item); }
  void Open(const std::string& path) {
    desktop_.AnswerFile(path);
    Click("mnuFile_Open");
  }
  void SaveAs(const std::string& path) {
    desktop_.AnswerFile(path);
    Click("mnuFile_SaveAs");
  }
  std::string Caption() { return toolkit_.Caption("Form1"); }
  std::string CurrentPath() { return form_->Files().CurrentPath(); }
  const std::vector<Hint>& SavingHints() { return form_->Files().SavingHints(); }
  std::size_t FilesIn(const std::string& folder) {
    std::size_t count = 0;
    for ([[maybe_unused]] const auto& entry :
         std::filesystem::directory_iterator(PathFromUtf8(folder))) {
      ++count;
    }
    return count;
  }
};

TEST_F(FileMenu, OpensAProject) {
  const std::string path = folder_.Write("Projects/Pond é中.kav", ProjectText());
  Open(path);
  EXPECT_EQ(Text("txtProjectName"), "Pond");
  EXPECT_EQ(Caption(), "ORVIK 3.3 KAV - Pond é中.kav");
  EXPECT_EQ(CurrentPath(), path);
  EXPECT_TRUE(desktop_.Messages().empty());
}

TEST_F(FileMenu, AFileThatCannotBeReadShowsAnErrorAndLeavesTheWindowCleared) {
  SolveForEfficiency();
  Open(folder_ / "missing.kav");
  ASSERT_EQ(desktop_.Messages().size(), 1U);
  EXPECT_EQ(desktop_.Messages()[0], (HeadlessDesktop::Message{"Error reading data file.", "Error",
                                                              MessageIcon::Exclamation}));
  EXPECT_EQ(Text("txtBasinArea"), "");
}

TEST_F(FileMenu, AForeignFileShowsTwoErrors) {
  Open(folder_.Write("letter.txt", "Dear Sir,\r\n"));
  ASSERT_EQ(desktop_.Messages().size(), 2U);
  EXPECT_EQ(desktop_.Messages()[0].text,
            "The data file does not appear to be a valid ORVIK 3.3 KAV file.");
  EXPECT_EQ(desktop_.Messages()[1].text, "Error reading data file.");
}

TEST_F(FileMenu, AnotherVersionShowsTwoErrors) {
  Open(folder_.Write("new.kav", "KAV3.3.99\r\n"));
  ASSERT_EQ(desktop_.Messages().size(), 2U);
  EXPECT_EQ(desktop_.Messages()[0].text, "Invalid file version.");
  EXPECT_EQ(desktop_.Messages()[1].text, "Error reading data file.");
}

TEST_F(FileMenu, ADamagedFileLeavesWhatWasReadBeforeTheFault) {
  SolveForEfficiency();
  auto lines = test::ProjectLines();
  lines.resize(test::kBasinAreaLine + 1);
  const std::string path = folder_.Write("cut.kav", ProjectText(lines));
  Open(path);
  EXPECT_EQ(CurrentPath(), path);
  EXPECT_EQ(desktop_.Messages().back().text, "Error reading data file.");
  EXPECT_EQ(Text("txtProjectName"), "Pond");
  EXPECT_EQ(Text("txtBasinArea"), "10");
  EXPECT_EQ(Text("txtRunoffCoefficient"), "");
  EXPECT_EQ(Caption(), "ORVIK 3.3 KAV - cut.kav");
}

TEST_F(FileMenu, CancellingADialogChangesNothing) {
  const std::string path = folder_.Write("Pond.kav", ProjectText());
  Open(path);
  Type("txtProjectName", "Changed");
  for (const char* item : {"mnuFile_Open", "mnuFile_SaveAs"}) {
    Click(item);
    EXPECT_EQ(Caption(), "ORVIK 3.3 KAV - Pond.kav") << item;
    EXPECT_EQ(CurrentPath(), path) << item;
    EXPECT_EQ(Text("txtProjectName"), "Changed") << item;
  }
  EXPECT_EQ(ReadBytes(path), ProjectText());
}

TEST_F(FileMenu, NewIsUntitledAndAsksNothing) {
  Open(folder_.Write("Pond.kav", ProjectText()));
  Click("mnuFile_New");
  EXPECT_EQ(Caption(), kUntitled);
  EXPECT_EQ(CurrentPath(), "");
  EXPECT_TRUE(desktop_.Messages().empty());
}

// --- Saving ---

TEST_F(FileMenu, SaveAsWritesTheProjectAndTakesItsName) {
  form_->Files().ReadFile(ProjectText());
  const std::string path = folder_ / "Niño.kav";
  SaveAs(path);
  EXPECT_EQ(ReadBytes(path), ProjectText());
  EXPECT_EQ(Caption(), "ORVIK 3.3 KAV - Niño.kav");
  EXPECT_EQ(CurrentPath(), path);
}

TEST_F(FileMenu, SaveOfAnUntitledProjectAsksForAName) {
  Click("mnuFile_Save");
  EXPECT_EQ(desktop_.FileDialogs().size(), 1U);
}

TEST_F(FileMenu, SaveAfterNewAsksForANameAndLeavesTheOldFile) {
  const std::string path = folder_.Write("Pond.kav", ProjectText());
  Open(path);
  Click("mnuFile_New");
  Click("mnuFile_Save");
  EXPECT_EQ(desktop_.FileDialogs().size(), 2U);
  EXPECT_EQ(ReadBytes(path), ProjectText());
}

TEST_F(FileMenu, SaveAfterTheFileWasDeletedAsksForAName) {
  const std::string path = folder_.Write("Pond.kav", ProjectText());
  Open(path);
  std::filesystem::remove(PathFromUtf8(path));
  Click("mnuFile_Save");
  EXPECT_EQ(desktop_.FileDialogs().size(), 2U);
}

TEST_F(FileMenu, SaveWritesOverTheCurrentFileWithoutAsking) {
  const std::string path = folder_.Write("Projects/Pond.kav", ProjectText());
  Open(path);
  Type("txtProjectName", "Lake");
  Click("mnuFile_Save");
  EXPECT_EQ(desktop_.FileDialogs().size(), 1U) << "the open dialog only";
  auto lines = test::ProjectLines();
  lines[test::kProjectNameLine] = "Lake";
  EXPECT_EQ(ReadBytes(path), ProjectText(lines));
  EXPECT_EQ(FilesIn(folder_ / "Projects"), 1U) << "nothing is left beside it";
}

TEST_F(FileMenu, AFailedSaveLeavesNothingAndKeepsCaptionAndPath) {
  form_->Files().ReadFile(ProjectText());
  const std::string before = CurrentPath();
  SaveAs(folder_ / "no such folder/Pond.kav");
  EXPECT_FALSE(FolderExists(folder_ / "no such folder"));
  EXPECT_EQ(Caption(), kUntitled);
  EXPECT_EQ(CurrentPath(), before);
  EXPECT_TRUE(desktop_.Messages().empty());
}

TEST_F(FileMenu, AFailedSaveKeepsTheGoodFile) {
  const std::string path = folder_.Write("Projects/Pond.kav", ProjectText());
  Open(path);
  Type("txtProjectName", "Lake");
  std::filesystem::permissions(PathFromUtf8(path), std::filesystem::perms::owner_write,
                               std::filesystem::perm_options::remove);
  Click("mnuFile_Save");
  EXPECT_EQ(ReadBytes(path), ProjectText());
  EXPECT_EQ(FilesIn(folder_ / "Projects"), 1U);
  std::filesystem::permissions(PathFromUtf8(path), std::filesystem::perms::owner_write,
                               std::filesystem::perm_options::add);
}

TEST_F(FileMenu, AFailedSaveIsSaidWithItsReason) {
  form_->Files().ReadFile(ProjectText());
  const std::string path = folder_ / "no such folder/Pond.kav";
  SaveAs(path);
  EXPECT_THAT(SavingHints(),
              ElementsAre(Hint{HintId::SaveFailed, {path, "its folder does not exist"}}));
  SaveAs(folder_ / "Pond.kav");
  EXPECT_THAT(SavingHints(), ElementsAre()) << "the next save went well";
}

// --- A file that Open could not read whole ---

TEST_F(FileMenu, AForeignFileThatIsGoneNeedsNoKeeping) {
  const std::string path = folder_.Write("letter.txt", "Dear Sir,\r\n");
  Open(path);
  std::filesystem::remove(PathFromUtf8(path));
  desktop_.AnswerFile(path);
  Click("mnuFile_Save");
  EXPECT_EQ(test::Lines(ReadBytes(path)).front(), "KAV3.3.01");
  EXPECT_THAT(SavingHints(), ElementsAre());
}

TEST_F(FileMenu, AForeignFileIsKeptBesideItBeforeASaveOverwritesIt) {
  folder_.Write("Letters/letter.txt", "Dear Sir,\r\n");
  const std::string letters = folder_ / "Letters" + kPathSeparator;
  const std::string path = letters + "letter.txt";
  Open(path);
  Click("mnuFile_Save");
  const std::string kept = letters + "letter (kept).txt";
  EXPECT_EQ(ReadBytes(kept), "Dear Sir,\r\n");
  EXPECT_EQ(test::Lines(ReadBytes(path)).front(), "KAV3.3.01");
  EXPECT_THAT(SavingHints(), ElementsAre(Hint{HintId::ForeignFileKept, {path, kept}}));
  Click("mnuFile_Save");
  EXPECT_EQ(FilesIn(folder_ / "Letters"), 2U) << "it is ours now";
  EXPECT_THAT(SavingHints(), ElementsAre());
}

TEST_F(FileMenu, AProjectThatIsCutShortIsKeptToo) {
  auto lines = test::ProjectLines();
  lines.pop_back();
  const std::string path = folder_.Write("Cut/Pond.kav", ProjectText(lines));
  Open(path);
  Click("mnuFile_Save");
  EXPECT_EQ(ReadBytes(folder_ / "Cut/Pond (kept).kav"), ProjectText(lines));
}

// Its lines are whole, but a save would write nothing of the block that follows them.
TEST_F(FileMenu, AProjectWhoseBlockIsCutShortIsKeptToo) {
  const std::string text = ProjectText(test::ProjectLines("0", {"0", "[ORVIK]", "point.R=0.125"}));
  const std::string path = folder_.Write("Cut/Pond.kav", text);
  Open(path);
  Click("mnuFile_Save");
  const std::string kept = folder_ / "Cut" + kPathSeparator + "Pond (kept).kav";
  EXPECT_EQ(ReadBytes(kept), text);
  EXPECT_THAT(SavingHints(), ElementsAre(Hint{HintId::ForeignFileKept, {path, kept}}));
}

TEST_F(FileMenu, SavingUnderAnotherNameLeavesTheForeignFileAsItIs) {
  const std::string path = folder_.Write("Letters/letter.txt", "Dear Sir,\r\n");
  Open(path);
  SaveAs(folder_ / "Letters/Pond.kav");
  EXPECT_EQ(ReadBytes(path), "Dear Sir,\r\n");
  EXPECT_EQ(FilesIn(folder_ / "Letters"), 2U);
}

TEST_F(FileMenu, SavingAsTheForeignFileByAnotherWayKeepsItToo) {
  Open(folder_.Write("Letters/letter.txt", "Dear Sir,\r\n"));
  SaveAs(folder_ / "Letters/../Letters/letter.txt");
  EXPECT_EQ(ReadBytes(folder_ / "Letters/letter (kept).txt"), "Dear Sir,\r\n");
}

// --- Unsaved changes ---

TEST_F(FileMenu, ChangesAreUnsavedUntilTheTextIsThatOfTheFileAgain) {
  const auto hasChanges = [&] { return form_->Files().HasUnsavedChanges(); };
  Click("mnuFile_New");
  EXPECT_FALSE(hasChanges());
  Open(folder_.Write("Pond.kav", ProjectText()));
  EXPECT_FALSE(hasChanges());
  Type("txtProjectName", "Lake");
  EXPECT_TRUE(hasChanges());
  Type("txtProjectName", "Pond");
  EXPECT_FALSE(hasChanges());
  Type("txtProjectName", "Lake");
  Click("mnuFile_Save");
  EXPECT_FALSE(hasChanges());
  TypeAndEnter("txtSolveFor(1)", "70");
  SaveAs(folder_ / "no such folder/Pond.kav");
  EXPECT_TRUE(hasChanges()) << "the save failed";
}

TEST_F(FileMenu, AFolderWithTheNameIsLeftAlone) {
  folder_.Write("Pond.kav/inside", "x");
  SaveAs(folder_ / "Pond.kav");
  EXPECT_TRUE(FileExists(folder_ / "Pond.kav/inside"));
  EXPECT_EQ(CurrentPath(), "");
}

TEST_F(FileMenu, AFileThatHappensToBeInTheFolderIsNotTouched) {
  folder_.Write("Projects/~saving1.kav", "the user's own");
  SaveAs(folder_ / "Projects/Pond.kav");
  EXPECT_TRUE(FileExists(folder_ / "Projects/Pond.kav"));
  EXPECT_EQ(ReadBytes(folder_ / "Projects/~saving1.kav"), "the user's own");
  EXPECT_EQ(FilesIn(folder_ / "Projects"), 2U);
}

// --- Dialogs ---

TEST_F(FileMenu, TheDialogsAskForProjectsInTheRightFolder) {
  desktop_.DocumentsFolder("/home/user/Documents");
  Click("mnuFile_Open");
  const std::string path = folder_.Write("Projects/Pond.kav", ProjectText());
  Open(path);
  Click("mnuFile_SaveAs");
  const auto& dialogs = desktop_.FileDialogs();
  ASSERT_EQ(dialogs.size(), 3U);
  EXPECT_EQ(dialogs[0].filter, "All Files (*.*)|*.*|ORVIK Stormwater Harvesting (*.kav)|*.kav|");
  EXPECT_EQ(dialogs[0].filterIndex, 2);
  EXPECT_EQ(dialogs[0].startFolder, "/home/user/Documents");
  EXPECT_FALSE(dialogs[0].overwritePrompt);
  EXPECT_EQ(dialogs[1].startFolder, "/home/user/Documents");
  EXPECT_EQ(dialogs[2].startFolder, FolderOf(path)) << "the folder of the current file";
  EXPECT_TRUE(dialogs[2].overwritePrompt && dialogs[2].hideReadOnly && dialogs[2].explorerStyle &&
              dialogs[2].longNames);
}

TEST_F(FileMenu, AFolderThatIsGoneIsNoStartFolder) {
  desktop_.DocumentsFolder("/home/user/Documents");
  Open(folder_.Write("Projects/Pond.kav", ProjectText()));
  std::filesystem::remove_all(PathFromUtf8(folder_ / "Projects"));
  Click("mnuFile_Open");
  EXPECT_EQ(desktop_.FileDialogs().back().startFolder, "/home/user/Documents");
}

// The user who looked for a place there goes on from there.
TEST_F(FileMenu, AFailedSaveStillMovesTheDialogs) {
  folder_.Write("Other/Pond.kav/inside", "a folder in the file's way");
  SaveAs(folder_ / "Other/Pond.kav");
  Open("");
  EXPECT_EQ(desktop_.FileDialogs().back().startFolder, FolderOf(folder_ / "Other/Pond.kav"));
}

TEST_F(FileMenu, AnUnknownDocumentsFolderIsEmptyWithAReason) {
  desktop_.DocumentsFolder(std::nullopt);
  std::string error;
  EXPECT_EQ(form_->Files().GetMyDocumentsFolder(error), "");
  EXPECT_EQ(error, "The folder path could not be detected");
  Click("mnuFile_Open");
  EXPECT_EQ(desktop_.FileDialogs().back().startFolder, "");
  desktop_.DocumentsFolder("/docs");
  EXPECT_EQ(form_->Files().GetMyDocumentsFolder(error), "/docs");
  EXPECT_EQ(error, "");
}

}  // namespace
}  // namespace orvik
