// A drawn control as screen readers and other assistive programs see it.
#pragma once

#include <oleacc.h>
#include <windows.h>

#include "platform/Toolkit.h"
#include "platform/win32/ComPtr.h"
#include "platform/win32/ModuleUse.h"
#include "platform/win32/ReferenceCount.h"

namespace orvik {

// The system's own object of the control's window, which knows its place, its state, its keys and
// its neighbours; name, value, role and the press of a button are the control's. A button has the
// role of a push button, a picture that of a graphic, any other drawn control that of a chart.
//
// Clients may keep it longer than the window exists: every call then fails with
// CO_E_OBJNOTCONNECTED. The module stays loaded as long as it is kept.
class ControlAccessible final : public IAccessible, public IOleWindow {
 public:
  // `control` and `window` live until Disconnect. Null where the system has no object for the
  // window.
  static ComPtr<ControlAccessible> Make(const ControlHost& control, HWND window);

  ControlAccessible(const ControlAccessible&) = delete;
  ControlAccessible& operator=(const ControlAccessible&) = delete;

  // The window is being destroyed: clients in other processes and threads are disconnected, calls
  // from this one fail.
  void Disconnect();

  // --- IUnknown ---
  STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return references_.Add(); }
  STDMETHODIMP_(ULONG) Release() override;

  // --- IDispatch ---
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** type) override;
  STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                             DISPID* ids) override;
  STDMETHODIMP Invoke(DISPID member, REFIID reserved, LCID locale, WORD flags,
                      DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                      UINT* badArgument) override;

  // --- IAccessible: the control's own answers ---
  // A text that the control does not have is null, with S_FALSE.
  STDMETHODIMP get_accName(VARIANT child, BSTR* name) override;
  STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override;
  STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override;
  STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override;
  // The press happens after this call has returned, since it may open a dialog or close the window.
  // E_ACCESSDENIED while the user could not press the button.
  STDMETHODIMP accDoDefaultAction(VARIANT child) override;

  // --- IAccessible: the system's answers ---
  STDMETHODIMP get_accParent(IDispatch** parent) override;
  STDMETHODIMP get_accChildCount(long* count) override;
  STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override;
  STDMETHODIMP get_accDescription(VARIANT child, BSTR* description) override;
  STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override;
  STDMETHODIMP get_accHelp(VARIANT child, BSTR* help) override;
  STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override;
  STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override;
  STDMETHODIMP get_accFocus(VARIANT* child) override;
  STDMETHODIMP get_accSelection(VARIANT* children) override;
  STDMETHODIMP accSelect(long flags, VARIANT child) override;
  STDMETHODIMP accLocation(long* left, long* top, long* width, long* height,
                           VARIANT child) override;
  STDMETHODIMP accNavigate(long direction, VARIANT start, VARIANT* end) override;
  STDMETHODIMP accHitTest(long left, long top, VARIANT* child) override;
  STDMETHODIMP put_accName(VARIANT child, BSTR name) override;
  STDMETHODIMP put_accValue(VARIANT child, BSTR value) override;

  // --- IOleWindow ---
  STDMETHODIMP GetWindow(HWND* window) override;
  STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }

 private:
  ControlAccessible(const ControlHost& control, HWND window, ComPtr<IAccessible> standard);
  ~ControlAccessible() = default;  // deleted by its last Release

  bool IsConnected() const { return control_ != nullptr; }
  bool CanBePressed() const;
  template <typename Body>
  HRESULT AnswerText(const VARIANT& child, BSTR* place, Body&& body) const;
  template <typename Operation, typename... Arguments>
  HRESULT Forward(Operation operation, Arguments... arguments) const;

  ReferenceCount references_;
  ModuleHold module_;
  const ControlHost* control_;    // null once the window is gone
  HWND window_;                   // likewise
  ComPtr<IAccessible> standard_;  // likewise
};

}  // namespace orvik
