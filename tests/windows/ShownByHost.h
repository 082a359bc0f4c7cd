// A host that calls clsStReuse.Show, and the user at the window that it opens.
#pragma once

#include <StReuse.h>

#include <exception>
#include <functional>
#include <string>
#include <string_view>
#include <thread>

#include "FormUser.h"
#include "entry/com/Bstr.h"
#include "platform/win32/ComPtr.h"

namespace orvik::test {

// The texts as the host passes them and gets them back.
struct ShowTexts {
  std::string own;
  std::string second;
  std::string third;
};

// What came of it. Where the user could not do something, `userFailure` says what; the window has
// been closed then.
struct Shown {
  HRESULT result = E_FAIL;
  short code = -1;
  std::string userFailure;
};

// The user's work runs on a thread of its own while the window is open. The user leaves it; what is
// left open is closed.
Shown ShowToUser(IclsStReuse& entry, short mode, ShowTexts& texts,
                 const std::function<void(FormUser& user)>& work);

}  // namespace orvik::test
