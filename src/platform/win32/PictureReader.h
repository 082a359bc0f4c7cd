// Reads picture files with the system's imaging component.
#pragma once

#include <optional>
#include <string>

#include "platform/Surface.h"

namespace orvik {

// The picture, on white where it is transparent; nothing where the file is missing, no picture,
// damaged or of more pixels than can be shown. Needs COM on the calling thread.
std::optional<Picture> ReadPictureFile(const std::string& path);

}  // namespace orvik
