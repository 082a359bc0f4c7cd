// The clipboard of the desktop.
#pragma once

#include "platform/Desktop.h"

namespace orvik {

// Replaces its content with the text, the picture as an enhanced metafile and the picture as
// pixels. False where another program keeps the clipboard open for longer than a moment.
bool PutOnClipboard(const ClipboardContent& content);

}  // namespace orvik
