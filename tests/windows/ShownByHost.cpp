#include "ShownByHost.h"

#include <array>

namespace orvik::test {
namespace {

// Whatever stands in the way is answered with No or Cancel.
void CloseAll(FormUser& user) {
  user.Until([&] {
    if (!::IsWindow(user.Window()) || !::IsWindowVisible(user.Window())) return true;
    if (const HWND dialog = user.Dialog()) {
      ::PostMessageW(dialog, WM_COMMAND, IDNO, 0);
      ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    } else {
      user.CloseByFrame();
    }
    return false;
  });
}

void Work(const std::function<void(FormUser& user)>& work, std::string& failure) {
  try {
    FormUser user = FormUser::WaitFor(::GetCurrentProcessId());
    try {
      work(user);
    } catch (const std::exception& error) {
      failure = error.what();
      CloseAll(user);
    }
  } catch (const std::exception& error) {
    failure = error.what();
  }
}

}  // namespace

Shown ShowToUser(IclsStReuse& entry, short mode, ShowTexts& texts,
                 const std::function<void(FormUser& user)>& work) {
  Shown shown;
  std::array<BSTR, 3> passed{com::Bstr(texts.own).Release(), com::Bstr(texts.second).Release(),
                             com::Bstr(texts.third).Release()};
  std::thread user([&] { Work(work, shown.userFailure); });
  shown.result = entry.Show(mode, &passed[0], &passed[1], &passed[2], &shown.code);
  user.join();
  texts = {com::Utf8FromBstr(passed[0]), com::Utf8FromBstr(passed[1]),
           com::Utf8FromBstr(passed[2])};
  for (const BSTR text : passed) ::SysFreeString(text);
  return shown;
}

}  // namespace orvik::test
