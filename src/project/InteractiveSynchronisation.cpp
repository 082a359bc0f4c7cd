#include "project/InteractiveSynchronisation.h"

#include <cmath>
#include <limits>

#include "base/NumberText.h"
#include "base/Rounding.h"
#include "base/Text.h"
#include "project/Conversions.h"
#include "project/FaultsOnBar.h"
#include "project/NumberInput.h"

namespace orvik {
namespace {

// The number in a field as a whole one for the bitwise test; 0 where there is none, or where it is
// beyond 32 bits.
std::int32_t WholeNumberIn(const ctrlMyTextBox& field) {
  const std::string text = field.Text();
  if (!IsDefinedNumber(text)) return 0;
  const double rounded = RoundHalfToEven(ParseNumber(text));
  if (std::fabs(rounded) > std::numeric_limits<std::int32_t>::max()) return 0;
  return static_cast<std::int32_t>(rounded);
}

bool Agrees(const ctrlMyTextBox& field, bool isDefined, float value) {
  const std::string text = field.Text();
  const std::string_view shown = Trim(text);
  return shown.empty() || (isDefined && shown == ConvertToString(value));
}

}  // namespace

InteractiveSynchronisation::InteractiveSynchronisation(ProjectForm& form,
                                                       ctrlStormwaterReuse& chart)
    : form_(form), chart_(chart) {
  chart_.OnChange = [this] { ShowFaultsOnBar(form_.txtErrMsg, [this] { AnswerChange(); }); };
  chart_.OnMousePressed = [this] { AnswerMousePressed(); };
  chart_.OnMouseReleased = [this] { AnswerMouseReleased(); };
}

InteractiveSynchronisation::~InteractiveSynchronisation() {
  chart_.OnChange = nullptr;
  chart_.OnMousePressed = nullptr;
  chart_.OnMouseReleased = nullptr;
}

// --- The hotspot's numbers into the fields ---

void InteractiveSynchronisation::AnswerChange() {
  const bool isInteractive = form_.cmbSolveFor->ListIndex() <= SolveFor::kInteractive;
  if (isInteractive) {
    for (int slot = 1; slot <= kSolveForSlots; ++slot) form_.txtSolveFor(slot).Text("");
  }
  form_.txtR.Text("");
  form_.txtE.Text("");
  form_.txtV.Text("");
  form_.txtErrMsg.Clear();

  const bool siteIsUsable = IsDefinedNumber(form_.txtEquivalentImperviousArea.Text()) &&
                            IsDefinedNumber(form_.txtIrrigationArea.Text());
  ShowR(isInteractive && siteIsUsable);
  ShowE(isInteractive && siteIsUsable);
  ShowV(isInteractive && siteIsUsable);
  if (siteIsUsable) return;
  const Boolean16 beepOn = form_.txtErrMsg.BeepOn();
  form_.txtErrMsg.BeepOn(kFalse16);
  form_.txtErrMsg.SetErrMsg("Missing data.", 0);
  form_.txtErrMsg.BeepOn(beepOn);
}

void InteractiveSynchronisation::ShowR(bool intoSlot) {
  float R = 0;
  if (!chart_.GetR(R)) return ShowChartMessage();
  form_.txtR.Text(ConvertToString(R));
  if (!intoSlot) return;
  ShowFaultsOnBar(form_.txtErrMsg, [this] {
    std::string site;
    std::string message;
    const bool converted =
        NormalizedReuseToSiteReuse(form_.txtR.Text(), form_.txtEquivalentImperviousArea.Text(),
                                   form_.txtIrrigationArea.Text(), site, message);
    ShowConverted(SiteQuantity::ReuseRate, converted, site, message);
  });
}

void InteractiveSynchronisation::ShowE(bool intoSlot) {
  float E = 0;
  if (!chart_.GetE(E)) return ShowChartMessage();
  form_.txtE.Text(ConvertToString(E));
  if (intoSlot) ShowConverted(SiteQuantity::Efficiency, true, form_.txtE.Text(), {});
}

void InteractiveSynchronisation::ShowV(bool intoSlot) {
  float V = 0;
  if (!chart_.GetV(V)) return ShowChartMessage();
  form_.txtV.Text(ConvertToString(V));
  if (!intoSlot) return;
  ShowFaultsOnBar(form_.txtErrMsg, [this] {
    std::string site;
    std::string message;
    const bool converted = NormalizedStorageToSiteStorage(
        form_.txtV.Text(), form_.txtEquivalentImperviousArea.Text(), site, message);
    ShowConverted(SiteQuantity::StorageVolume, converted, site, message);
  });
}

void InteractiveSynchronisation::ShowConverted(SiteQuantity quantity, bool converted,
                                               const std::string& site,
                                               const std::string& message) {
  if (converted) {
    form_.txtSolveFor(SlotOfQuantity(SolveFor::kInteractive, quantity)).Text(site);
  } else {
    form_.txtErrMsg.SetErrMsg(message, 0);
  }
}

// Where the hotspot was only taken away, the chart's last outcome is a success; that is no message.
void InteractiveSynchronisation::ShowChartMessage() {
  if (chart_.ErrMsg() == "Success") return;
  form_.txtErrMsg.SetErrMsg(chart_.ErrMsg(), chart_.HelpTopicIndex());
}

// --- The fields' numbers to the hotspot ---

std::int16_t InteractiveSynchronisation::GuessBestInteractiveSolution() const {
  if (!chart_.IsLoaded()) return 0;
  const std::int32_t R = WholeNumberIn(form_.txtR);
  const std::int32_t E = WholeNumberIn(form_.txtE);
  const std::int32_t V = WholeNumberIn(form_.txtV);
  if ((V & R) != 0) return 1;
  if ((R & E) != 0) return 2;
  if ((V & E) != 0) return 3;
  return 0;
}

bool InteractiveSynchronisation::PlaceHotspotByNumbers() {
  if (HotspotShowsNumbers()) return false;
  std::string found;
  switch (GuessBestInteractiveSolution()) {
    case 1:
      chart_.SetHotspotUsing_RV(form_.txtR.Text(), form_.txtV.Text(), found);
      return true;
    case 2:
      chart_.SetHotspotUsing_ER(form_.txtE.Text(), form_.txtR.Text(), found);
      return true;
    case 3:
      chart_.SetHotspotUsing_EV(form_.txtE.Text(), form_.txtV.Text(), found);
      return true;
    default:
      return false;
  }
}

void InteractiveSynchronisation::PlaceAsStored() {
  float R = 0;
  float V = 0;
  if (form_.cmbSolveFor->ListIndex() != SolveFor::kInteractive) return;
  if (!chart_.GetR(R) || !chart_.GetV(V)) return;
  const std::string storedR = ToShortestText(R);
  const std::string storedV = ToShortestText(V);
  if (ParseNumber(storedR) == chart_.HotspotR() && ParseNumber(storedV) == chart_.HotspotV()) {
    return;
  }
  std::string E;
  chart_.SetHotspotUsing_RV(storedR, storedV, E);
  const std::string shown = form_.txtE.Text();
  if (!shown.empty() && shown != E) AnswerChange();
}

bool InteractiveSynchronisation::HotspotShowsNumbers() const {
  if (chart_.HotSpotVisibile() == kFalse16) return false;
  float R = 0;
  float E = 0;
  float V = 0;
  chart_.GetR(R);
  chart_.GetV(V);
  const bool hasE = chart_.GetE(E);
  return Agrees(form_.txtR, true, R) && Agrees(form_.txtV, true, V) && Agrees(form_.txtE, hasE, E);
}

}  // namespace orvik
