// Opens a project file for a command, in a window without a screen.
#pragma once

#include <string>

#include "cli/Console.h"
#include "entry/Form1.h"
#include "platform/headless/HeadlessDesktop.h"

namespace orvik {

// The text that the list shows.
std::string ChosenItem(const ComboBox& list);

// Reads the project and the curves of its station. False: the console has been told why not.
bool OpenProject(Console& console, Form1& window, const HeadlessDesktop& desktop,
                 const std::string& path);

}  // namespace orvik
