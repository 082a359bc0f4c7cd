// What assistive programs are told about one of the system's own controls beyond what it tells by
// itself. Where the system cannot keep such notes, nothing happens.
#pragma once

#include <windows.h>

#include <string_view>

namespace orvik {

// Said of the control besides its name and text; empty takes it away.
void Describe(HWND control, std::string_view description);

// The control's text is news wherever the keyboard is: each change is said when the reader has said
// what it is saying (a polite live region).
void AnnounceChanges(HWND control);

// Such a control's text is another one now.
void Announce(HWND control);

}  // namespace orvik
