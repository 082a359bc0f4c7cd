// The commands of the File menu and what they use: choosing a file, reading and saving a project,
// the window's caption and the current file.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace orvik {

class Desktop;
class ProjectFile;
class SolveForWorkflow;
struct FileDialog;
struct ProjectForm;

class FileCommands {
 public:
  FileCommands(ProjectForm& form, SolveForWorkflow& workflow, ProjectFile& file, Desktop& desktop)
      : form_(form), workflow_(workflow), file_(file), desktop_(desktop) {}

  // --- Menu commands ---

  void New();   // asks nothing about unsaved changes
  void Open();  // asks for a file
  void Save();  // to the current file; as SaveAs where there is none or it is gone
  void SaveAs();

  // Opens the project at `path` as the Open command does once it is chosen. False after "Error
  // reading data file.".
  bool OpenProject(std::string_view path);

  // --- Behind the commands ---

  // An empty, untitled project on the data page.
  void ClearData();

  // Reads the project at `path`, which becomes the current file whether or not the reading
  // succeeds; returns its result. Shows no message of its own.
  bool LoadFile(std::string_view path);

  // Reads a project handed over as text. "Error reading data." where it cannot be read. False also,
  // but silently, for an empty text.
  bool ReadFile(std::string_view text);

  // Saves the project. The old file stays as it is until the new one is complete; nothing
  // half-written remains. False, without a message, where that fails.
  bool SaveFile(const std::string& path);

  // The project as the text that a file would hold. False, and `text` as it was, where that fails.
  bool SaveText(std::string& text) const;

  // The chosen path, empty when the dialog was cancelled. The dialogs start in the folder of the
  // current file if it exists, else in the default folder, else in the user's documents folder.
  std::string GetFileOpenName();
  std::string GetFileSaveName();

  // Where the dialogs start as long as no file was opened or saved; empty for none.
  void DefaultFolder(std::string folder) { defaultFolder_ = std::move(folder); }

  // The user's documents folder; empty, and the reason in `error`, where the system does not know
  // it.
  std::string GetMyDocumentsFolder(std::string& error);

  // Raised after the project was written to a file.
  std::function<void()> OnSaved;

  // Raised before the project is saved, so that the window can show exactly what will be saved.
  std::function<void()> OnSaving;

  // Raised when the fields hold another project, or what could be read of one.
  std::function<void()> OnProjectReplaced;

  const std::string& CurrentPath() const { return currentPath_; }  // empty: untitled

 private:
  FileDialog ProjectDialog();
  std::string StartFolder();
  void ShowFileName(std::string_view path);
  void RaiseProjectReplaced();

  ProjectForm& form_;
  SolveForWorkflow& workflow_;
  ProjectFile& file_;
  Desktop& desktop_;
  std::string currentPath_;
  std::string currentFolder_;
  std::string defaultFolder_;
};

}  // namespace orvik
