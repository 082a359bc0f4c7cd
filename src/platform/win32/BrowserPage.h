// Pages of the help in the user's browser.
#pragma once

#include <windows.h>

#include <string>

#include "platform/Desktop.h"

namespace orvik {

// Opens the file with the program that the system names for it. Boxes of the system stand over
// `owner`.
PageOpening OpenInBrowser(HWND owner, const std::string& path);

}  // namespace orvik
