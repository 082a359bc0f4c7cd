// Opens help pages in the user's browser.
#pragma once

#include <windows.h>

#include <string>

#include "platform/Desktop.h"

namespace orvik {

// Opens the file with the program registered for it. The system's own message boxes are owned by
// `owner`.
PageOpening OpenInBrowser(HWND owner, const std::string& path);

}  // namespace orvik
