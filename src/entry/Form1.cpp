#include "entry/Form1.h"

#include <array>

#include "base/BuildVersion.h"
#include "base/ModuleVersion.h"
#include "base/RuntimeErrors.h"
#include "base/Text.h"
#include "design/HostResults.h"
#include "design/KeptPoint.h"
#include "design/NumberInput.h"
#include "design/Project.h"
#include "engine/ClimateStations.h"
#include "platform/Desktop.h"
#include "printing/ProjectReport.h"
#include "shell/ChartCopy.h"
#include "shell/MainWindowDesign.h"
#include "shell/MainWindowTable.h"

namespace orvik {
namespace {

// What Form1 itself shows on the hint line; the answers to input come from where it is answered.
constexpr std::array kOwnSources{HintSource::Save, HintSource::File, HintSource::Curves,
                                 HintSource::Recovery};

constexpr std::string_view kDiscardQuestion =
    "Projects that were not saved are kept and can be restored. Discard them all? They cannot be "
    "brought back afterwards.";
constexpr std::int16_t kInHostProject = 2;
constexpr std::int16_t kSave = 1;
constexpr std::int16_t kDiscard = 0;

std::vector<Hint> Joined(std::vector<Hint> hints, const std::vector<Hint>& more) {
  hints.insert(hints.end(), more.begin(), more.end());
  return hints;
}

std::vector<Hint> Joined(std::vector<Hint> hints, const std::optional<Hint>& more) {
  if (more) hints.push_back(*more);
  return hints;
}

bool IsProjectFile(std::string_view path) {
  return EndsWithIgnoringCase(path, ".kav");
}

// The toolkit, told where the form's widgets lie.
Toolkit& Designed(Toolkit& toolkit) {
  toolkit.Design(MainWindowDesign::Get());
  return toolkit;
}

}  // namespace

Form1::Form1(Toolkit& toolkit, Desktop& desktop, const std::string& dataFolder)
    : desktop_(desktop),
      form_(Designed(toolkit), desktop),
      ctrlStormwaterReuse1_(dataFolder),
      chartWindow_(toolkit, "ctrlStormwaterReuse1", ctrlStormwaterReuse1_),
      binding_(form_, ctrlStormwaterReuse1_),
      interactive_(form_, ctrlStormwaterReuse1_, binding_),
      workflow_(form_, ctrlStormwaterReuse1_, binding_),
      triggers_(form_, ctrlStormwaterReuse1_, desktop, binding_, workflow_, interactive_),
      file_(form_, ctrlStormwaterReuse1_, binding_, workflow_, desktop),
      files_(form_, workflow_, file_, desktop),
      pages_(toolkit, desktop, form_),
      messageHelp_(toolkit, desktop, form_.txtErrMsg, dataFolder),
      statusLine_(toolkit),
      smallWindows_(toolkit, desktop, ctrlStormwaterReuse1_, dataFolder),
      cmdReCalc_(toolkit, "cmdReCalc", ButtonCaption::kReCalc, [this] { workflow_.ReCalc(); }),
      cmdSaveExit_(toolkit, "cmdSaveExit", ButtonCaption::kSaveExit,
                   [this] { cmdSaveExit_Click(); }),
      cmdDiscardExit_(toolkit, "cmdDiscardExit", ButtonCaption::kDiscardExit,
                      [this] { cmdDiscardExit_Click(); }) {
  MakeMenus(toolkit);
  AnswerWindow();
  FollowProject();
  Form_Load();
  files_.CountAsSaved();
  ShowState();
}

// What is saved is what is shown, calculated.
void Form1::FollowProject() {
  files_.OnSaving = [this] {
    triggers_.ProcessChanges();
    const bool givesResults = mode_ == kInHostProject;
    if (givesResults && triggers_.IsAnyOutOfDate()) workflow_.ReCalc();
    interactive_.PlaceAsStored();
  };
  files_.OnSaved = [this] { AnswerSaved(); };
  files_.OnProjectReplacing = [this] {
    ownHints_.clear();
    if (unsaved_) unsaved_->AnswerLeaving();
  };
  files_.OnProjectReplaced = [this] { AnswerReplaced(); };
  triggers_.OnEdited = [this] {
    if (unsaved_) unsaved_->AnswerInput();
    ShowState();
  };
  triggers_.OnSettled = [this] { ShowState(); };
}

// What was remarkable about the file that was read is not so of the one that is written.
void Form1::AnswerSaved() {
  savedAt_ = desktop_.Now();
  ownHints_.clear();
  file_.ForgetHints();
  if (unsaved_) unsaved_->AnswerSaved();
  ShowState();
}

void Form1::AnswerReplaced() {
  triggers_.TakeReplaced();
  savedAt_.reset();
  if (unsaved_) unsaved_->AnswerReplaced();
  ShowOffers();
  ShowState();
}

void Form1::ShowState() {
  SaveState state{files_.HasUnsavedChanges(), savedAt_, {}};
  if (mode_ == kStandAlone) state.path = files_.CurrentPath();
  statusLine_.Show(state);
  statusLine_.ShowOutOfDate(triggers_.IsAnyOutOfDate());
  for (const HintSource source : kOwnSources) form_.hints.Show(source, HintsOf(source));
}

void Form1::MakeMenus(Toolkit& toolkit) {
  const auto make = [&](const char* name, const char* caption, std::function<void()> onClick) {
    auto item = toolkit.MakeMenuItem(name);
    item->Caption(caption);
    item->OnClick = std::move(onClick);
    return item;
  };
  mnuFile_ = make("mnuFile", "&File", {});
  mnuFile_New_ = make("mnuFile_New", "&New\tCtrl+N", [this] { files_.New(); });
  mnuFile_Open_ = make("mnuFile_Open", "&Open...\tCtrl+O", [this] {
    files_.Open();
    ctrlStormwaterReuse1_.Refresh();
  });
  mnuFile_Save_ = make("mnuFile_Save", "&Save\tCtrl+S", [this] {
    files_.Save();
    ShowState();
  });
  mnuFile_SaveAs_ = make("mnuFile_SaveAs", "Save &As...", [this] {
    files_.SaveAs();
    ShowState();
  });
  mnuFile_Restore_ =
      make("mnuFile_Restore", "&Restore unsaved work", [this] { RestoreUnsavedWork(); });
  mnuFile_DiscardKept_ =
      make("mnuFile_DiscardKept", "&Discard kept work...", [this] { DiscardUnsavedWork(); });
  ShowOffers();
  mnuFile_Print_ = make("mnuFile_Print", "&Print\tCtrl+P", [this] { PrintCurrentProject(); });
  mnuReturn_ = make("mnuReturn", "&Return", {});
  mnuReturn_Save_ = make("mnuReturn_Save", "&Save and exit", [this] { cmdSaveExit_Click(); });
  mnuReturn_Discard_ =
      make("mnuReturn_Discard", "&Discard and exit", [this] { cmdDiscardExit_Click(); });
  mnuReCalc_ = make("mnuReCalc", "&Recalculate\tF5", [this] { workflow_.ReCalc(); });
}

void Form1::AnswerWindow() {
  form_.window->OnQueryUnload = [this](bool& cancel) { Form_QueryUnload(cancel); };
  form_.window->OnAccept = [this] {
    if (form_.picData->Visible()) workflow_.ReCalc();
  };
  chartWindow_.OnCopy = [this] { CopyChart(ctrlStormwaterReuse1_, desktop_); };
  chartWindow_.ReadAloud = [this] { return ReadChartAloud(); };
  form_.window->OnDropFile = [this](const std::string& path) { OpenDropped(path); };
}

// A typed mode's point is a result. In the interactive mode R, V and E are the point's own.
Spoken Form1::ReadChartAloud() const {
  Spoken spoken = SpokenChart(ctrlStormwaterReuse1_);
  const bool isResult = IsTypedMode(form_.Mode()) && ctrlStormwaterReuse1_.Point().isShown;
  if (isResult && triggers_.IsAnyOutOfDate()) spoken.value += ", out of date";
  return spoken;
}

void Form1::Form_Load() {
  exitDecided_ = false;
  for (std::int16_t i = 1; i <= NumRainfallStations(); ++i) {
    form_.cmbClimateStation->AddItem(ClimateStationName(i));
  }
  form_.cmbSolveFor->Clear();
  for (const SolveFor mode : kSolveForModes) form_.cmbSolveFor->AddItem(SolveForItem(mode));
  form_.cmbSolveFor->ListIndex(IndexOf(SolveFor::Interactive));
  form_.window->Caption("KAV - " + std::string(kModuleTitle) + " (Ver " + BuildVersionText() + ")");
  Mode(mode_);
}

void Form1::Mode(std::int16_t mode) {
  mode_ = mode;
  if (mode != kStandAlone && mode != kInHostProject) return;
  const bool isInHost = mode == kInHostProject;
  mnuFile_->Visible(!isInHost);
  mnuReturn_->Visible(isInHost);
  cmdSaveExit_.Place().Visible(isInHost);
  cmdDiscardExit_.Place().Visible(isInHost);
  ShowState();
}

void Form1::TakeBasin(const std::string& area, const std::string& runoffCoefficient) {
  form_.Box(Field::BasinArea).Text(area);
  form_.Box(Field::RunoffCoefficient).Text(runoffCoefficient);
  triggers_.Process_CR();
}

// --- Printing ---

void Form1::PrintCurrentProject() {
  triggers_.ProcessChanges();  // the report shows what is in the fields, calculated
  if (triggers_.IsAnyOutOfDate()) workflow_.ReCalc();
  PrintOn(desktop_.OpenPrinter().get());
}

void Form1::PrintOn(Printer* printer) {
  const DocumentStart start =
      printer ? printer->StartDocument(ReportTitle()) : DocumentStart::Unreachable;
  if (start == DocumentStart::Unreachable) {
    desktop_.ShowError(Sentence({MessageId::NoPrinter}));
  }
  if (start != DocumentStart::Started) return;
  try {
    PrintDoc(*printer);
    printer->EndDocument();
  } catch (const PrinterError&) {
    return;  // the system tells the user about its printers; the job is given up as a whole
  } catch (const NumericError& fault) {
    desktop_.ShowError(
        Sentence({MessageId::ReportNotPrintable, Sentence(NumericFaultMessage(fault))}));
  }
}

void Form1::PrintDoc(Printer& printer) const {
  const Project project = binding_.Snapshot();
  const std::string shown = form_.txtErrMsg.Text();
  const FramedCurves* curves = ctrlStormwaterReuse1_.InFrame();
  ProjectReport(project, shown, curves ? &curves->Curves() : nullptr, desktop_.Now())
      .PrintDoc(printer);
}

std::string Form1::ReportTitle() const {
  return orvik::ReportTitle(binding_.Snapshot());
}

// --- Results ---

std::string Form1::ReuseRate() const {
  return ReuseRateResult(binding_.Snapshot());
}

std::string Form1::Efficiency() const {
  return EfficiencyResult(binding_.Snapshot());
}

std::string Form1::StorageVolume() const {
  return StorageVolumeResult(binding_.Snapshot());
}

// --- Unsaved work and hints ---

void Form1::KeepRecoveryCopies(const std::string& folder) {
  files_.CountAsSaved();
  unsaved_.emplace(files_, folder, [this] { return desktop_.Now(); });
  ShowOffers();
  ShowState();
}

void Form1::Say(Hint hint) {
  ownHints_.push_back(std::move(hint));
  ShowState();
}

std::vector<Hint> Form1::Hints() const {
  std::vector<Hint> hints;
  for (const HintSource source : kOwnSources) {
    for (Hint& hint : HintsOf(source)) hints.push_back(std::move(hint));
  }
  return hints;
}

std::vector<Hint> Form1::HintsOf(HintSource source) const {
  switch (source) {
    case HintSource::Save:
      return Joined(files_.SavingHints(), unsaved_ ? unsaved_->Trouble() : std::nullopt);
    case HintSource::File:
      return Joined(Joined(ownHints_, file_.Hints()), HintOfPoint());
    case HintSource::Curves:
      return ctrlStormwaterReuse1_.LoadHints();
    case HintSource::Recovery:
      return Joined({}, unsaved_ ? unsaved_->Offered() : std::nullopt);
    default:
      return {};
  }
}

std::optional<Hint> Form1::HintOfPoint() const {
  if (!form_.keptPoint) return std::nullopt;
  return HintOfKeptPoint(binding_.Snapshot(), ctrlStormwaterReuse1_.IsLoaded());
}

// The newest first. What is in the fields goes to a copy of its own: restoring once more brings it
// back.
void Form1::RestoreUnsavedWork() {
  const auto offers = unsaved_->Offers();
  if (!offers.empty()) unsaved_->Restore(offers.front().id);
  ctrlStormwaterReuse1_.Refresh();
  ShowOffers();
  ShowState();
}

void Form1::DiscardUnsavedWork() {
  if (!desktop_.AskYesNo(std::string(kDiscardQuestion), "Discard Kept Work")) return;
  for (const RecoveryOffer& offer : unsaved_->Offers()) unsaved_->Discard(offer.id);
  ShowOffers();
  ShowState();
}

void Form1::ShowOffers() {
  const bool hasOffers = unsaved_ && !unsaved_->Offers().empty();
  mnuFile_Restore_->Visible(hasOffers);
  mnuFile_DiscardKept_->Visible(hasOffers);
}

// --- Leaving ---

void Form1::cmdSaveExit_Click() {
  Leave(kSave);
}

void Form1::cmdDiscardExit_Click() {
  Leave(kDiscard);
}

void Form1::Leave(std::int16_t returnCode) {
  returnCode_ = returnCode;
  exitDecided_ = true;
  form_.window->Visible(false);
}

// As File/Open does once the file is chosen. In a host project there are no files. Another kind of
// file must not cost the user the project that is open.
void Form1::OpenDropped(const std::string& path) {
  if (mode_ != kStandAlone) return;
  if (!IsProjectFile(path)) {
    return desktop_.ShowError(Sentence({MessageId::OnlyProjectFiles}));
  }
  files_.OpenProject(path);
  ctrlStormwaterReuse1_.Refresh();
}

// Closing always leaves the window; only a host must still learn whether to keep the work.
void Form1::Form_QueryUnload(bool& cancel) {
  if (mode_ == kStandAlone && unsaved_) unsaved_->AnswerLeaving();
  if (mode_ != kInHostProject || exitDecided_) return;
  const bool save =
      desktop_.AskYesNo(Sentence({MessageId::SaveCurrentData}), "Exit Stormwater Harvesting");
  Leave(save ? kSave : kDiscard);
  cancel = true;
}

}  // namespace orvik
