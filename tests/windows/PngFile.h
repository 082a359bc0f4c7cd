// PNG files by the system's own imaging component. Requires COM on the calling thread.
#pragma once

#include <string>

#include "platform/Surface.h"

namespace orvik::test {

// Empty where there is no such picture.
Picture ReadPng(const std::string& path);

// Throws com::ComError where it cannot be written.
void WritePng(const std::string& path, const Picture& picture);

}  // namespace orvik::test
