#include "files/FileCommands.h"

#include "base/ModuleVersion.h"
#include "base/Paths.h"
#include "base/SafeFile.h"
#include "design/Messages.h"
#include "files/ProjectFile.h"
#include "platform/Desktop.h"
#include "project/ProjectForm.h"
#include "project/SolveForWorkflow.h"
#include "stream/clsIOStream.h"

namespace orvik {
namespace {

constexpr std::string_view kProjectFilter =
    "All Files (*.*)|*.*|ORVIK Stormwater Harvesting (*.kav)|*.kav|";
// Follows the product's name.
constexpr std::string_view kUntitledCaption = " Stormwater Harvesting - [untitled]";
constexpr int kProjectFiles = 2;  // the filter's second pair

}  // namespace

// --- Menu commands ---

void FileCommands::New() {
  Replace([this] {
    ClearData();
    return true;
  });
}

void FileCommands::Open() {
  const std::string path = GetFileOpenName();
  if (!path.empty()) OpenProject(path);
}

bool FileCommands::OpenProject(std::string_view path) {
  if (LoadFile(path)) return true;
  desktop_.ShowError(Sentence({MessageId::ProjectFileUnreadable}));
  return false;
}

void FileCommands::Save() {
  if (currentPath_.empty() || !FileExists(currentPath_)) {
    SaveAs();
  } else {
    SaveFile(currentPath_);
  }
}

void FileCommands::SaveAs() {
  const std::string path = GetFileSaveName();
  if (!path.empty() && SaveFile(path)) ShowFileName(path);
}

// --- Reading ---

void FileCommands::ClearData() {
  form_.window->Caption(std::string(kProductName).append(kUntitledCaption));
  file_.ClearData();
  form_.picProject->Visible(false);
  form_.picData->Visible(true);
  currentPath_.clear();
  isForeign_ = false;
  savingHints_.clear();
}

// What the work does with the fields, from the project before to the next one.
template <typename Work>
bool FileCommands::Replace(Work&& work) {
  if (OnProjectReplacing) OnProjectReplacing();
  const bool isDone = work();
  CountAsSaved();
  if (OnProjectReplaced) OnProjectReplaced();
  return isDone;
}

bool FileCommands::LoadFile(std::string_view path) {
  const std::string name(path);
  return Replace([&] {
    ClearData();
    clsIOStream stream;
    if (!stream.OpenFile(name, enumIOStreamMode::AsciiFileInput)) return false;
    const bool isRead = file_.ReadDataFromBuffer(stream);
    stream.CloseFile();
    currentPath_ = name;
    currentFolder_ = FolderOf(name);
    isForeign_ = !isRead || file_.BlockEndedEarly();
    ShowFileName(name);
    return isRead;
  });
}

bool FileCommands::ReadText(const std::string& text) {
  clsIOStream stream;
  return stream.OpenFile(text, enumIOStreamMode::AsciiBufferInput) &&
         file_.ReadDataFromBuffer(stream);
}

bool FileCommands::ReadUnsaved(std::string_view text, std::string_view formerPath) {
  const std::string project(text);
  const std::string folder = FolderOf(formerPath);
  const bool isRead = Replace([&] {
    ClearData();
    if (!folder.empty()) currentFolder_ = folder;
    return ReadText(project);
  });
  savedText_.reset();
  return isRead;
}

bool FileCommands::ReadFile(std::string_view text) {
  const std::string project(text);
  if (project.empty()) {
    New();
    return false;
  }
  const bool isRead = Replace([&] {
    ClearData();
    return ReadText(project);
  });
  if (form_.keptPoint && !file_.HadKeptPoint()) {
    Say({HintId::PointNotKept, {form_.keptPoint->R, form_.keptPoint->V}});
    form_.keptPoint.reset();
  }
  if (!isRead) desktop_.ShowError(Sentence({MessageId::ProjectTextUnreadable}));
  workflow_.ReCalc();
  return isRead;
}

// --- Saving ---

bool FileCommands::SaveText(std::string& text) const {
  if (OnSaving) OnSaving();
  clsIOStream stream;
  stream.OpenFile("", enumIOStreamMode::AsciiBufferOutput);
  if (!file_.SaveDataInBuffer(stream)) return false;
  text = stream.Buffer();
  return true;
}

std::string FileCommands::TextNow() const {
  clsIOStream stream;
  stream.OpenFile("", enumIOStreamMode::AsciiBufferOutput);
  return file_.SaveDataInBuffer(stream) ? stream.Buffer() : std::string();
}

bool FileCommands::SaveFile(const std::string& path) {
  if (path.empty()) return false;
  std::string text;
  savingHints_.clear();
  const bool isSaved = SaveText(text) && WriteTo(path, text);
  currentFolder_ = FolderOf(path);
  if (!isSaved) return false;
  currentPath_ = path;
  isForeign_ = false;
  savedText_ = text;
  if (OnSaved) OnSaved();
  return true;
}

bool FileCommands::WriteTo(const std::string& path, const std::string& text) {
  const auto fault = FindTargetFault(path);
  if (fault) return Say({HintId::SaveFailed, {path, std::string(ReasonOf(*fault))}});
  const bool isForeign = isForeign_ && IsSameFile(path, currentPath_) && FileExists(path);
  if (isForeign && !KeepForeignFile(path)) return false;
  const WriteOutcome outcome = WriteFileSafely(path, text);
  if (outcome.IsWritten()) {
    if (!outcome.oldCopy.empty()) Say({HintId::SavedButCopyLeft, {outcome.oldCopy}});
    return true;
  }
  if (!outcome.oldCopy.empty()) {
    return Say({HintId::SaveFailedFileDamaged, {path, outcome.oldCopy}});
  }
  return Say({HintId::SaveFailed, {path, std::string(ReasonOf(*outcome.fault))}});
}

// What Open could not read is somebody's all the same.
bool FileCommands::KeepForeignFile(const std::string& path) {
  const auto copy = KeepCopyBeside(path, "kept");
  if (!copy) return Say({HintId::ForeignFileNotKept, {path}});
  Say({HintId::ForeignFileKept, {path, *copy}});
  return true;
}

// False, as the answer of what failed.
bool FileCommands::Say(Hint hint) {
  savingHints_.push_back(std::move(hint));
  return false;
}

// --- Dialogs ---

FileDialog FileCommands::ProjectDialog() {
  FileDialog dialog;
  dialog.filter = kProjectFilter;
  dialog.filterIndex = kProjectFiles;
  dialog.defaultExtension = "kav";
  dialog.startFolder = StartFolder();
  return dialog;
}

std::string FileCommands::StartFolder() {
  for (const std::string& folder : {currentFolder_, defaultFolder_}) {
    if (!folder.empty() && FolderExists(folder)) return folder;
  }
  std::string ignored;  // without a start folder the dialog opens where the system likes
  return GetMyDocumentsFolder(ignored);
}

std::string FileCommands::GetFileOpenName() {
  return desktop_.ChooseFileToOpen(ProjectDialog());
}

std::string FileCommands::GetFileSaveName() {
  FileDialog dialog = ProjectDialog();
  dialog.overwritePrompt = true;
  dialog.hideReadOnly = true;
  dialog.explorerStyle = true;
  dialog.longNames = true;
  return desktop_.ChooseFileToSave(dialog);
}

std::string FileCommands::GetMyDocumentsFolder(std::string& error) {
  error.clear();
  const auto folder = desktop_.DocumentsFolder();
  if (!folder) error = Sentence({MessageId::NoDocumentsFolder});
  return folder.value_or("");
}

void FileCommands::ShowFileName(std::string_view path) {
  form_.window->Caption(std::string(kProductName) + " KAV - " + FileNameOf(path));
}

}  // namespace orvik
