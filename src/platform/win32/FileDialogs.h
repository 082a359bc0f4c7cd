// The common dialogs for a file's name.
#pragma once

#include <windows.h>

#include <string>

#include "platform/Desktop.h"

namespace orvik {

// The chosen path in UTF-8, empty when the dialog was cancelled. The open dialog accepts only
// existing files. The process keeps its current folder.
std::string ShowOpenDialog(HWND owner, const FileDialog& dialog);
std::string ShowSaveDialog(HWND owner, const FileDialog& dialog);

}  // namespace orvik
