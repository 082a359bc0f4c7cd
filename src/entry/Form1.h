// The module's main window: it owns the project's fields, the design chart and the commands, and
// ends in one of two ways that the host can tell apart: the work is saved, or discarded.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "chart/HostedChart.h"
#include "chart/ctrlStormwaterReuse.h"
#include "controls/HostedButton.h"
#include "files/FileCommands.h"
#include "files/ProjectFile.h"
#include "files/UnsavedWork.h"
#include "platform/Toolkit.h"
#include "project/FormBinding.h"
#include "project/InteractiveSynchronisation.h"
#include "project/ProjectForm.h"
#include "project/RecalculationTriggers.h"
#include "project/SolveForWorkflow.h"
#include "shell/MainWindowPages.h"
#include "shell/MessageHelp.h"
#include "shell/SmallWindows.h"
#include "shell/StatusLine.h"

namespace orvik {

class Desktop;
class Printer;

inline constexpr std::int16_t kStandAlone = 1;  // Form1::Mode

class Form1 {
 public:
  // Loaded, and not yet shown. `dataFolder` holds the folder "KAV Data"; it ends with a path
  // separator.
  Form1(Toolkit& toolkit, Desktop& desktop, const std::string& dataFolder);
  Form1(const Form1&) = delete;
  Form1& operator=(const Form1&) = delete;
  ~Form1() { unsaved_.reset(); }  // the widgets that go now tell of no work

  // 1 = stand-alone use, with the File menu; 2 = use from within a host project, with the Return
  // menu and the two exit buttons. Any other value is stored and changes no command.
  std::int16_t Mode() const { return mode_; }
  void Mode(std::int16_t mode);

  // Shows the window and waits until the user leaves it.
  void ShowModally() { form_.window->ShowModally(); }

  // In stand-alone use: keeps a recovery copy of unsaved work in this folder (see RecoveryCopy),
  // and offers those of others. The project in the fields counts as saved.
  void KeepRecoveryCopies(const std::string& folder);

  // The recovery copies; null where none are kept.
  UnsavedWork* Unsaved() { return unsaved_ ? &*unsaved_ : nullptr; }

  // What is to be said beside the messages now: of the file named at the start, of the last saving,
  // of a kept point, of recovery copies.
  std::vector<Hint> Hints() const;

  // Says it until the fields get another project.
  void Say(Hint hint);

  // The basin of the host's own project: area (acres) and runoff coefficient. What was solved for
  // another basin is solved anew.
  void TakeBasin(const std::string& area, const std::string& runoffCoefficient);

  // 1 = save the work back to the host, 0 = discard it.
  std::int16_t ReturnCode() const { return returnCode_; }
  void ReturnCode(std::int16_t code) { returnCode_ = code; }

  // The File menu's Print command: the report on the user's default printer. A message where there
  // is no connection with it and where the page does not fit the numbers of the report; a printer
  // that fails later ends the job without one.
  void PrintCurrentProject();

  // The report as a document of its own, with the same messages; `printer` may be null.
  void PrintOn(Printer* printer);

  // The report on a printer whose document has been started. Ending it is the caller's. Throws
  // PrinterError, and NumericError for a page that is more than 16-bit pixels wide or high.
  void PrintDoc(Printer& printer) const;

  // What the document with the report is called.
  std::string ReportTitle() const;

  // The results for the host, as text; see design/HostResults.
  std::string ReuseRate() const;
  std::string Efficiency() const;
  std::string StorageVolume() const;

  // The host's project, and the file that a program is started with.
  FileCommands& Files() { return files_; }

  // What the user sees and works: its widgets and its chart. For programs that work the window in
  // the user's place; the module itself asks neither.
  ProjectForm& Fields() { return form_; }
  ctrlStormwaterReuse& Chart() { return ctrlStormwaterReuse1_; }

 private:
  void MakeMenus(Toolkit& toolkit);
  void AnswerWindow();
  void FollowProject();
  void ShowState();
  Spoken ReadChartAloud() const;
  void Form_Load();
  void Form_QueryUnload(bool& cancel);
  void cmdSaveExit_Click();
  void cmdDiscardExit_Click();
  void Leave(std::int16_t returnCode);
  void OpenDropped(const std::string& path);
  void AnswerSaved();
  void AnswerReplaced();
  std::vector<Hint> HintsOf(HintSource source) const;
  std::optional<Hint> HintOfPoint() const;
  void RestoreUnsavedWork();
  void DiscardUnsavedWork();
  void ShowOffers();

  Desktop& desktop_;
  ProjectForm form_;
  ctrlStormwaterReuse ctrlStormwaterReuse1_;
  HostedChart chartWindow_;
  FormBinding binding_;
  InteractiveSynchronisation interactive_;
  SolveForWorkflow workflow_;
  RecalculationTriggers triggers_;
  ProjectFile file_;
  FileCommands files_;
  MainWindowPages pages_;
  MessageHelp messageHelp_;
  StatusLine statusLine_;
  SmallWindows smallWindows_;
  std::optional<UnsavedWork> unsaved_;
  std::vector<Hint> ownHints_;

  std::unique_ptr<MenuItem> mnuFile_;
  std::unique_ptr<MenuItem> mnuFile_New_;
  std::unique_ptr<MenuItem> mnuFile_Open_;
  std::unique_ptr<MenuItem> mnuFile_Save_;
  std::unique_ptr<MenuItem> mnuFile_SaveAs_;
  std::unique_ptr<MenuItem> mnuFile_Restore_;
  std::unique_ptr<MenuItem> mnuFile_DiscardKept_;
  std::unique_ptr<MenuItem> mnuFile_Print_;
  std::unique_ptr<MenuItem> mnuReturn_;
  std::unique_ptr<MenuItem> mnuReturn_Save_;
  std::unique_ptr<MenuItem> mnuReturn_Discard_;
  std::unique_ptr<MenuItem> mnuReCalc_;
  HostedButton cmdReCalc_;
  HostedButton cmdSaveExit_;
  HostedButton cmdDiscardExit_;

  std::int16_t mode_ = 1;
  std::int16_t returnCode_ = 0;
  std::optional<ClockTime> savedAt_;  // nothing: not since it was opened or begun anew
  bool exitDecided_ = false;          // the user has decided how to leave
};

}  // namespace orvik
