#include "platform/win32/Annotation.h"

#include <ole2.h>
#include <oleacc.h>

#include "platform/win32/ComPtr.h"
#include "platform/win32/WideText.h"

namespace orvik {
namespace {

// The system's own numbers; its headers only declare them.
constexpr CLSID kNotes = {
    0xb5f8350b, 0x0548, 0x48b1, {0xa6, 0xee, 0x88, 0xbd, 0x00, 0xb4, 0xa5, 0xe7}};
constexpr IID kNotesInterface = {
    0x6e26e776, 0x04f0, 0x495d, {0x80, 0xe4, 0x33, 0x30, 0x35, 0x2e, 0x31, 0x69}};
constexpr MSAAPROPID kDescription = {
    0x4d48dfe4, 0xbd3f, 0x491f, {0xa6, 0x48, 0x49, 0x2d, 0x6f, 0x20, 0xc5, 0x88}};
constexpr MSAAPROPID kLiveSetting = {
    0xc12bcd8e, 0x2a8e, 0x4950, {0x8a, 0xe7, 0x36, 0x25, 0x11, 0x1d, 0x58, 0xeb}};
constexpr long kPolite = 1;

// The system's notes about controls; null where there are none, as before the thread has entered
// COM.
ComPtr<IAccPropServices> Notes() {
  ComPtr<IAccPropServices> notes;
  ::CoCreateInstance(kNotes, nullptr, CLSCTX_INPROC_SERVER, kNotesInterface, notes.OutVoid());
  return notes;
}

}  // namespace

void Describe(HWND control, std::string_view description) {
  const auto notes = Notes();
  if (!control || !notes) return;
  if (description.empty()) {
    notes->ClearHwndProps(control, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, &kDescription,
                          1);
  } else {
    notes->SetHwndPropStr(control, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, kDescription,
                          WideFromUtf8(description).c_str());
  }
  ::NotifyWinEvent(EVENT_OBJECT_DESCRIPTIONCHANGE, control, OBJID_CLIENT, CHILDID_SELF);
}

void AnnounceChanges(HWND control) {
  const auto notes = Notes();
  if (!control || !notes) return;
  VARIANT polite{};
  polite.vt = VT_I4;
  polite.lVal = kPolite;
  notes->SetHwndProp(control, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, kLiveSetting, polite);
}

void Announce(HWND control) {
  ::NotifyWinEvent(EVENT_OBJECT_LIVEREGIONCHANGED, control, OBJID_CLIENT, CHILDID_SELF);
}

}  // namespace orvik
