#include "files/ProjectFile.h"

#include <array>
#include <optional>

#include "base/ModuleVersion.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "project/FaultsOnBar.h"

namespace orvik {
namespace {

constexpr std::string_view kMagic = "KAV3.3.01";
constexpr std::string_view kTitle = "ORVIK Stormwater Harvesting Module";
constexpr std::string_view kUntitledCaption =
    " Stormwater Harvesting - [untitled]";  // behind the product
constexpr std::size_t kMagicPrefix = 7;     // "KAV3.3.": the rest is the file's version
constexpr std::size_t kVersionDigits = 2;   // at the end of the line
constexpr double kFileVersion = 1;

std::array<ctrlMyTextBox*, 6> DescriptionFields(ProjectForm& form) {
  return {&form.txtProjectName, &form.txtDescription,        &form.txtProjectNumber,
          &form.txtEngineer,    &form.txtSuervisingEngineer, &form.txtDate};
}

bool WriteLine(clsIOStream& stream, std::string_view value) {
  return stream.WriteString(Trim(FoldLineEnds(value)));
}

bool WriteField(clsIOStream& stream, const ctrlMyTextBox& field) {
  return WriteLine(stream, field.Text());
}

// A file never reports a failed read; so the end is asked for first.
bool ReadLine(clsIOStream& stream, std::string& line) {
  return !stream.EndOfFile() && stream.ScanString(line);
}

bool SkipLine(clsIOStream& stream) {
  std::string ignored;
  return ReadLine(stream, ignored);
}

bool ReadField(clsIOStream& stream, ctrlMyTextBox& field) {
  std::string line;
  if (!ReadLine(stream, line)) return false;
  field.Text(line);
  return true;
}

std::optional<std::int16_t> ReadWholeNumber(clsIOStream& stream) {
  std::string line;
  return ReadLine(stream, line) ? ParseWholeNumber(line) : std::nullopt;
}

bool ReadIndex(clsIOStream& stream, ComboBox& list) {
  const auto index = ReadWholeNumber(stream);
  if (index) list.ListIndex(*index);
  return index.has_value();
}

}  // namespace

// --- Writing ---

bool ProjectFile::SaveDataInBuffer(clsIOStream& stream) const {
  if (!WriteLine(stream, kMagic) || !WriteLine(stream, kTitle)) return false;
  for (const ctrlMyTextBox* field : DescriptionFields(form_)) {
    if (!WriteField(stream, *field)) return false;
  }
  const std::int16_t station = form_.cmbClimateStation->ListIndex();
  const std::int16_t mode = form_.cmbSolveFor->ListIndex();
  if (!WriteLine(stream, std::to_string(station)) ||
      !WriteLine(stream, form_.cmbClimateStation->List(station)) ||
      !WriteLine(stream, std::to_string(mode)) || !WriteField(stream, form_.txtBasinArea) ||
      !WriteField(stream, form_.txtRunoffCoefficient) ||
      !WriteField(stream, form_.txtIrrigationArea)) {
    return false;
  }
  if (mode == SolveFor::kInteractive) return SaveHotspot(stream);
  if (!IsTypedMode(mode)) return true;
  return WriteField(stream, form_.txtSolveFor(1)) && WriteField(stream, form_.txtSolveFor(2));
}

bool ProjectFile::SaveHotspot(clsIOStream& stream) const {
  if (chart_.HotSpotVisibile() == kFalse16) return WriteLine(stream, "0");
  float R = 0;
  float V = 0;
  return WriteLine(stream, "1") && chart_.GetR(R) && WriteLine(stream, ToShortestText(R)) &&
         chart_.GetV(V) && WriteLine(stream, ToShortestText(V));
}

// --- Reading ---

bool ProjectFile::ReadDataFromBuffer(clsIOStream& stream) {
  if (!CheckVersion(stream) || !SkipLine(stream) || !ReadDescription(stream) || !ReadSite(stream)) {
    return false;
  }
  const std::int16_t mode = form_.cmbSolveFor->ListIndex();
  if (mode == SolveFor::kInteractive && !ReadHotspot(stream)) return false;
  if (IsTypedMode(mode) && !ReadGivenValues(stream)) return false;
  workflow_.ReCalc();
  return true;
}

bool ProjectFile::CheckVersion(clsIOStream& stream) {
  std::string line;
  if (!ReadLine(stream, line)) return false;
  const std::string_view magic = Trim(line);
  const auto refuse = [&](std::string_view message) {
    desktop_.ShowError(message);
    return false;
  };
  if (!magic.starts_with(kMagic.substr(0, kMagicPrefix))) {
    return refuse("The data file does not appear to be a valid ORVIK 3.3 KAV file.");
  }
  const std::string_view version = magic.substr(magic.size() - kVersionDigits);
  if (!IsNumericText(version) || ParseNumber(version) != kFileVersion) {
    return refuse("Invalid file version.");
  }
  return true;
}

bool ProjectFile::ReadDescription(clsIOStream& stream) {
  for (ctrlMyTextBox* field : DescriptionFields(form_)) {
    if (!ReadField(stream, *field)) return false;
  }
  return true;
}

// Choosing the station loads its curves; choosing the mode switches the form to it. The station's
// name is there for people who read the file.
bool ProjectFile::ReadSite(clsIOStream& stream) {
  return ReadIndex(stream, *form_.cmbClimateStation) && SkipLine(stream) &&
         ReadIndex(stream, *form_.cmbSolveFor) && ReadField(stream, form_.txtBasinArea) &&
         ReadField(stream, form_.txtRunoffCoefficient) &&
         ReadField(stream, form_.txtIrrigationArea);
}

bool ProjectFile::ReadHotspot(clsIOStream& stream) {
  const auto isShown = ReadWholeNumber(stream);
  if (!isShown) return false;
  if (*isShown == 0) return true;
  std::string R;
  std::string V;
  if (!ReadLine(stream, R) || !ReadLine(stream, V)) return false;
  // A point outside the curves is told by the recalculation that follows.
  ShowFaultsOnBar(form_.txtErrMsg, [&] {
    std::string ignored;
    chart_.SetHotspotUsing_RV(R, V, ignored);
  });
  return true;
}

bool ProjectFile::ReadGivenValues(clsIOStream& stream) {
  return ReadField(stream, form_.txtSolveFor(1)) && ReadField(stream, form_.txtSolveFor(2));
}

// --- Clearing ---

void ProjectFile::ClearData() {
  form_.window->Caption(std::string(kProductName).append(kUntitledCaption));
  for (ctrlMyTextBox* field : DescriptionFields(form_)) field->Text("");
  chart_.Clear();
  form_.cmbClimateStation->ListIndex(-1);
  form_.cmbSolveFor->ListIndex(SolveFor::kInteractive);
  form_.txtBasinArea.Text("");
  form_.txtRunoffCoefficient.Text("");
  form_.txtEquivalentImperviousArea.Text("");
  form_.txtIrrigationArea.Text("");
  for (int slot = 1; slot <= kSolveForSlots; ++slot) form_.txtSolveFor(slot).Text("");
  form_.txtR.Text("");
  form_.txtE.Text("");
  form_.txtV.Text("");
  form_.txtErrMsg.Clear();
  form_.picProject->Visible(false);
  form_.picData->Visible(true);
}

}  // namespace orvik
