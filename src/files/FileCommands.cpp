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
  ClearData();
  RaiseProjectReplaced();
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
}

bool FileCommands::LoadFile(std::string_view path) {
  const std::string name(path);
  ClearData();
  clsIOStream stream;
  if (!stream.OpenFile(name, enumIOStreamMode::AsciiFileInput)) return false;
  const bool isRead = file_.ReadDataFromBuffer(stream);
  stream.CloseFile();
  currentPath_ = name;
  currentFolder_ = FolderOf(name);
  ShowFileName(name);
  RaiseProjectReplaced();
  return isRead;
}

bool FileCommands::ReadFile(std::string_view text) {
  const std::string project(text);
  ClearData();
  if (project.empty()) {
    RaiseProjectReplaced();
    return false;
  }
  clsIOStream stream;
  const bool isRead = stream.OpenFile(project, enumIOStreamMode::AsciiBufferInput) &&
                      file_.ReadDataFromBuffer(stream);
  stream.CloseFile();
  RaiseProjectReplaced();
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

bool FileCommands::SaveFile(const std::string& path) {
  if (path.empty()) return false;
  std::string text;
  const bool isSaved = SaveText(text) && !WriteFileSafely(path, text);
  currentFolder_ = FolderOf(path);
  if (!isSaved) return false;
  currentPath_ = path;
  if (OnSaved) OnSaved();
  return true;
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

void FileCommands::RaiseProjectReplaced() {
  if (OnProjectReplaced) OnProjectReplaced();
}

}  // namespace orvik
