#include "platform/win32/ControlAccessible.h"

#include <array>
#include <functional>
#include <new>
#include <string>
#include <utility>

#include "platform/win32/WideText.h"

namespace orvik {
namespace {

bool IsItself(const VARIANT& child) {
  return child.vt == VT_I4 && child.lVal == CHILDID_SELF;
}

// The caption as it is read: "&" marks the next letter, "&&" is the character itself.
std::wstring WithoutMnemonic(const std::wstring& caption) {
  std::wstring text;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == L'&' && ++i == caption.size()) break;
    text += caption[i];
  }
  return text;
}

// We link to it, so it is loaded.
std::wstring SystemLibraryPath() {
  std::array<wchar_t, MAX_PATH> path{};
  ::GetModuleFileNameW(::GetModuleHandleW(L"oleacc.dll"), path.data(), MAX_PATH - 1);
  return path.data();
}

// The wall around every call from outside: no exception passes through it.
template <typename Body>
HRESULT Guarded(Body&& body) noexcept {
  try {
    return body();
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_FAIL;
  }
}

}  // namespace

// --- Life ---

ControlAccessible::ControlAccessible(const ControlHost& control, HWND window,
                                     ComPtr<IAccessible> standard)
    : control_(&control), window_(window), standard_(std::move(standard)) {}

ComPtr<ControlAccessible> ControlAccessible::Make(const ControlHost& control, HWND window) {
  ComPtr<IAccessible> standard;
  ::CreateStdAccessibleObject(window, OBJID_CLIENT, __uuidof(IAccessible), standard.OutVoid());
  if (!standard) return {};
  return ComPtr<ControlAccessible>::Adopt(
      new ControlAccessible(control, window, std::move(standard)));
}

void ControlAccessible::Disconnect() {
  control_ = nullptr;
  window_ = nullptr;
  standard_.Reset();
  ::CoDisconnectObject(static_cast<IAccessible*>(this), 0);
}

STDMETHODIMP ControlAccessible::QueryInterface(REFIID iid, void** object) {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(IAccessible)) {
    *object = static_cast<IAccessible*>(this);
  } else if (iid == IID_IOleWindow) {
    *object = static_cast<IOleWindow*>(this);
  } else {
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) ControlAccessible::Release() {
  const ULONG left = references_.Remove();
  if (left == 0) delete this;
  return left;
}

// --- Questions to the system's object ---

// The call may destroy the window, and with it the object that is asked.
template <typename Operation, typename... Arguments>
HRESULT ControlAccessible::Forward(Operation operation, Arguments... arguments) const {
  const ComPtr<IAccessible> standard = standard_;
  if (!standard) return CO_E_OBJNOTCONNECTED;
  return std::invoke(operation, standard.Get(), arguments...);
}

STDMETHODIMP ControlAccessible::get_accParent(IDispatch** parent) {
  return Forward(&IAccessible::get_accParent, parent);
}

STDMETHODIMP ControlAccessible::get_accChildCount(long* count) {
  return Forward(&IAccessible::get_accChildCount, count);
}

STDMETHODIMP ControlAccessible::get_accChild(VARIANT child, IDispatch** object) {
  return Forward(&IAccessible::get_accChild, child, object);
}

STDMETHODIMP ControlAccessible::get_accDescription(VARIANT child, BSTR* description) {
  return Forward(&IAccessible::get_accDescription, child, description);
}

STDMETHODIMP ControlAccessible::get_accState(VARIANT child, VARIANT* state) {
  return Forward(&IAccessible::get_accState, child, state);
}

STDMETHODIMP ControlAccessible::get_accHelp(VARIANT child, BSTR* help) {
  return Forward(&IAccessible::get_accHelp, child, help);
}

STDMETHODIMP ControlAccessible::get_accHelpTopic(BSTR* file, VARIANT child, long* topic) {
  return Forward(&IAccessible::get_accHelpTopic, file, child, topic);
}

STDMETHODIMP ControlAccessible::get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) {
  return Forward(&IAccessible::get_accKeyboardShortcut, child, shortcut);
}

STDMETHODIMP ControlAccessible::get_accFocus(VARIANT* child) {
  return Forward(&IAccessible::get_accFocus, child);
}

STDMETHODIMP ControlAccessible::get_accSelection(VARIANT* children) {
  return Forward(&IAccessible::get_accSelection, children);
}

STDMETHODIMP ControlAccessible::accSelect(long flags, VARIANT child) {
  return Forward(&IAccessible::accSelect, flags, child);
}

STDMETHODIMP ControlAccessible::accLocation(long* left, long* top, long* width, long* height,
                                            VARIANT child) {
  return Forward(&IAccessible::accLocation, left, top, width, height, child);
}

STDMETHODIMP ControlAccessible::accNavigate(long direction, VARIANT start, VARIANT* end) {
  return Forward(&IAccessible::accNavigate, direction, start, end);
}

STDMETHODIMP ControlAccessible::accHitTest(long left, long top, VARIANT* child) {
  return Forward(&IAccessible::accHitTest, left, top, child);
}

STDMETHODIMP ControlAccessible::put_accName(VARIANT child, BSTR name) {
  return Forward(&IAccessible::put_accName, child, name);
}

STDMETHODIMP ControlAccessible::put_accValue(VARIANT child, BSTR value) {
  return Forward(&IAccessible::put_accValue, child, value);
}

STDMETHODIMP ControlAccessible::GetWindow(HWND* window) {
  if (!window) return E_POINTER;
  *window = window_;
  return IsConnected() ? S_OK : CO_E_OBJNOTCONNECTED;
}

// --- The control's own answers ---

template <typename Body>
HRESULT ControlAccessible::AnswerText(const VARIANT& child, BSTR* place, Body&& body) const {
  return Guarded([&]() -> HRESULT {
    if (!place) return E_POINTER;
    *place = nullptr;
    if (!IsConnected()) return CO_E_OBJNOTCONNECTED;
    if (!IsItself(child)) return E_INVALIDARG;
    const std::wstring text = body();
    if (text.empty()) return S_FALSE;
    *place = ::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    return *place ? S_OK : E_OUTOFMEMORY;
  });
}

STDMETHODIMP ControlAccessible::get_accName(VARIANT child, BSTR* name) {
  return AnswerText(
      child, name, [this] { return WithoutMnemonic(WideFromUtf8(control_->Announcement().name)); });
}

STDMETHODIMP ControlAccessible::get_accValue(VARIANT child, BSTR* value) {
  return AnswerText(child, value, [this] { return WideFromUtf8(control_->Announcement().value); });
}

STDMETHODIMP ControlAccessible::get_accDefaultAction(VARIANT child, BSTR* action) {
  return AnswerText(child, action, [this] {
    return control_->OnMnemonic ? std::wstring(L"Press") : std::wstring();
  });
}

STDMETHODIMP ControlAccessible::get_accRole(VARIANT child, VARIANT* role) {
  if (!role) return E_POINTER;
  *role = VARIANT{};
  if (!IsConnected()) return CO_E_OBJNOTCONNECTED;
  if (!IsItself(child)) return E_INVALIDARG;
  return Guarded([&] {
    role->lVal = control_->OnMnemonic                 ? ROLE_SYSTEM_PUSHBUTTON
                 : control_->Announcement().isPicture ? ROLE_SYSTEM_GRAPHIC
                                                      : ROLE_SYSTEM_CHART;
    role->vt = VT_I4;
    return S_OK;
  });
}

// While a dialog or a message box is open over the window, nothing in it can be pressed.
bool ControlAccessible::CanBePressed() const {
  return ::IsWindowVisible(window_) && ::IsWindowEnabled(window_) &&
         ::IsWindowEnabled(::GetAncestor(window_, GA_ROOT));
}

STDMETHODIMP ControlAccessible::accDoDefaultAction(VARIANT child) {
  if (!IsConnected()) return CO_E_OBJNOTCONNECTED;
  if (!IsItself(child)) return E_INVALIDARG;
  if (!control_->OnMnemonic) return DISP_E_MEMBERNOTFOUND;
  if (!CanBePressed()) return E_ACCESSDENIED;
  return ::PostMessageW(window_, BM_CLICK, 0, 0) ? S_OK : HRESULT_FROM_WIN32(::GetLastError());
}

// --- Late binding ---

STDMETHODIMP ControlAccessible::GetTypeInfoCount(UINT* count) {
  if (!count) return E_POINTER;
  *count = 1;
  return S_OK;
}

// The type library of IAccessible is in the system library that implements it.
STDMETHODIMP ControlAccessible::GetTypeInfo(UINT index, LCID, ITypeInfo** type) {
  if (!type) return E_POINTER;
  *type = nullptr;
  if (index != 0) return DISP_E_BADINDEX;
  return Guarded([&] {
    ComPtr<ITypeLib> library;
    const HRESULT loaded =
        ::LoadTypeLibEx(SystemLibraryPath().c_str(), REGKIND_NONE, library.Out());
    return FAILED(loaded) ? loaded : library->GetTypeInfoOfGuid(__uuidof(IAccessible), type);
  });
}

STDMETHODIMP ControlAccessible::GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count,
                                              LCID locale, DISPID* ids) {
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  ComPtr<ITypeInfo> type;
  const HRESULT found = GetTypeInfo(0, locale, type.Out());
  return FAILED(found) ? found : type->GetIDsOfNames(names, count, ids);
}

STDMETHODIMP ControlAccessible::Invoke(DISPID member, REFIID reserved, LCID locale, WORD flags,
                                       DISPPARAMS* parameters, VARIANT* result,
                                       EXCEPINFO* exception, UINT* badArgument) {
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  ComPtr<ITypeInfo> type;
  const HRESULT found = GetTypeInfo(0, locale, type.Out());
  if (FAILED(found)) return found;
  return type->Invoke(static_cast<IAccessible*>(this), member, flags, parameters, result, exception,
                      badArgument);
}

}  // namespace orvik
