// The clipboard of the desktop.
#pragma once

#include "platform/Desktop.h"

namespace orvik {

// Puts the text, the picture as an enhanced metafile and the picture as pixels there, in place of
// all that it held. False where another program keeps the clipboard to itself for longer than a
// moment.
bool PutOnClipboard(const ClipboardContent& content);

}  // namespace orvik
