// The module's main window: it owns the project's fields, the design chart and the commands, and
// ends in one of two ways that the host can tell apart: the work is saved, or discarded.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "chart/HostedChart.h"
#include "chart/ctrlStormwaterReuse.h"
#include "controls/HostedButton.h"
#include "files/FileCommands.h"
#include "files/ProjectFile.h"
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

class Form1 {
 public:
  // Loaded, and not yet shown. `dataFolder` holds the folder "KAV Data"; it ends with a path
  // separator.
  Form1(Toolkit& toolkit, Desktop& desktop, const std::string& dataFolder);
  Form1(const Form1&) = delete;
  Form1& operator=(const Form1&) = delete;
  ~Form1() = default;

  // 1 = stand-alone use, with the File menu; 2 = use from within a host project, with the Return
  // menu and the two exit buttons. Any other value is stored and changes no command.
  std::int16_t Mode() const { return mode_; }
  void Mode(std::int16_t mode);

  // Shows the window and waits until the user leaves it.
  void ShowModally() { form_.window->ShowModally(); }

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

  ProjectForm& Fields() { return form_; }
  ctrlStormwaterReuse& Chart() { return ctrlStormwaterReuse1_; }
  FileCommands& Files() { return files_; }
  ProjectFile& File() { return file_; }
  SolveForWorkflow& Workflow() { return workflow_; }
  InteractiveSynchronisation& Interactive() { return interactive_; }
  MainWindowPages& Pages() { return pages_; }

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

  std::unique_ptr<MenuItem> mnuFile_;
  std::unique_ptr<MenuItem> mnuFile_New_;
  std::unique_ptr<MenuItem> mnuFile_Open_;
  std::unique_ptr<MenuItem> mnuFile_Save_;
  std::unique_ptr<MenuItem> mnuFile_SaveAs_;
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
  bool isEdited_ = false;             // since it was saved, opened or begun anew
  std::optional<ClockTime> savedAt_;  // likewise; nothing where it was not saved
  bool exitDecided_ = false;          // the user has decided how to leave
};

}  // namespace orvik
