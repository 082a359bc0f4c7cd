#include "entry/Form1.h"

#include "base/ModuleVersion.h"
#include "engine/ClimateStations.h"

namespace orvik {
namespace {

constexpr std::int16_t kStandAlone = 1;
constexpr std::int16_t kInHostProject = 2;
constexpr std::int16_t kSave = 1;
constexpr std::int16_t kDiscard = 0;

// Major, minor and build number, the last in four digits: "3.3.0001".
std::string VersionText() {
  const std::string build = std::to_string(kBuildNumber);
  return std::to_string(kMajorVersion) + "." + std::to_string(kMinorVersion) + "." +
         std::string(build.size() < 4 ? 4 - build.size() : 0, '0') + build;
}

}  // namespace

Form1::Form1(Toolkit& toolkit, Desktop& desktop, const std::string& dataFolder)
    : desktop_(desktop),
      form_(toolkit, desktop),
      ctrlStormwaterReuse1_(desktop, dataFolder),
      interactive_(form_, ctrlStormwaterReuse1_),
      workflow_(form_, ctrlStormwaterReuse1_, interactive_),
      triggers_(form_, ctrlStormwaterReuse1_, workflow_, interactive_),
      file_(form_, ctrlStormwaterReuse1_, workflow_, desktop),
      files_(form_, workflow_, file_, desktop),
      cmdReCalc_(toolkit, "cmdReCalc", "Recalculate", [this] { workflow_.ReCalc(); }),
      cmdSaveExit_(toolkit, "cmdSaveExit", "Save and exit", [this] { cmdSaveExit_Click(); }),
      cmdDiscardExit_(toolkit, "cmdDiscardExit", "Discard and exit",
                      [this] { cmdDiscardExit_Click(); }) {
  MakeCommands(toolkit);
  Form_Load();
}

void Form1::MakeCommands(Toolkit& toolkit) {
  const auto make = [&](const char* name, const char* caption, std::function<void()> onClick) {
    auto item = toolkit.MakeMenuItem(name);
    item->Caption(caption);
    item->OnClick = std::move(onClick);
    return item;
  };
  mnuFile_ = make("mnuFile", "&File", {});
  mnuFile_New_ = make("mnuFile_New", "&New", [this] { files_.New(); });
  mnuFile_Open_ = make("mnuFile_Open", "&Open...", [this] { files_.Open(); });
  mnuFile_Save_ = make("mnuFile_Save", "&Save", [this] { files_.Save(); });
  mnuFile_SaveAs_ = make("mnuFile_SaveAs", "Save &As...", [this] { files_.SaveAs(); });
  mnuReturn_ = make("mnuReturn", "&Return", {});
  mnuReturn_Save_ = make("mnuReturn_Save", "&Save and exit", [this] { cmdSaveExit_Click(); });
  mnuReturn_Discard_ =
      make("mnuReturn_Discard", "&Discard and exit", [this] { cmdDiscardExit_Click(); });
  form_.window->OnQueryUnload = [this](bool& cancel) { Form_QueryUnload(cancel); };
}

void Form1::Form_Load() {
  exitDecided_ = false;
  for (std::int16_t i = 1; i <= NumRainfallStations(); ++i) {
    form_.cmbClimateStation->AddItem(ClimateStationName(i));
  }
  form_.cmbSolveFor->Clear();
  for (std::int16_t mode = 0; mode < SolveFor::kModes; ++mode) {
    form_.cmbSolveFor->AddItem(SolveForItem(mode));
  }
  form_.cmbSolveFor->ListIndex(SolveFor::kInteractive);
  form_.window->Caption("KAV - ORVIK 3.3 Stormwater Harvesting Module (Ver " + VersionText() + ")");
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
}

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

// Closing always leaves the window; only a host must still learn whether to keep the work.
void Form1::Form_QueryUnload(bool& cancel) {
  if (mode_ != kInHostProject || exitDecided_) return;
  const bool save =
      desktop_.AskYesNo("Do you want to save the current data?", "Exit Stormwater Harvesting");
  Leave(save ? kSave : kDiscard);
  cancel = true;
}

}  // namespace orvik
