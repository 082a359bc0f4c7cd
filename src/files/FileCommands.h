// The commands of the File menu and what they use: choosing a file, reading and saving a project,
// the window's caption and the current file.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "design/Hints.h"

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
  // but silently, for an empty text. A host that knows nothing of kept points gets none back: one
  // is kept only where the text has it.
  bool ReadFile(std::string_view text);

  // Reads a project that was not saved, as text, in place of the one in the fields; it is untitled
  // then, and `formerPath` is where it once lay. Shows no message of its own.
  bool ReadUnsaved(std::string_view text, std::string_view formerPath);

  // Saves the project. The old file stays as it is until the new one is complete; nothing
  // half-written remains. False, without a message, where that fails. A file that could not be read
  // as a whole project when it was opened is kept beside it first.
  bool SaveFile(const std::string& path);

  // What is to be said of the last saving, or of the text that was read last; replaced by the next.
  const std::vector<Hint>& SavingHints() const { return savingHints_; }

  // True where the project in the fields is another one than was last saved, opened or begun anew.
  bool HasUnsavedChanges() const { return TextNow() != savedText_; }

  // As SaveText, of the fields as they are: nothing is raised. Empty where it fails.
  std::string TextNow() const;

  // What is in the fields now counts as saved.
  void CountAsSaved() { savedText_ = TextNow(); }

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

  // Raised before the fields get another project, while they still show the one before; always
  // followed by OnProjectReplaced.
  std::function<void()> OnProjectReplacing;

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
  template <typename Work>
  bool Replace(Work&& work);
  bool WriteTo(const std::string& path, const std::string& text);
  bool ReadText(const std::string& text);
  bool KeepForeignFile(const std::string& path);
  bool Say(Hint hint);

  ProjectForm& form_;
  SolveForWorkflow& workflow_;
  ProjectFile& file_;
  Desktop& desktop_;
  std::string currentPath_;
  std::string currentFolder_;
  std::string defaultFolder_;
  bool isForeign_ = false;                // the current file could not be read as a whole project
  std::optional<std::string> savedText_;  // nothing: no text counts as saved
  std::vector<Hint> savingHints_;
};

}  // namespace orvik
