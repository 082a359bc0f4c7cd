// A drawing as the bytes of a picture file.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Surface.h"

namespace orvik {

enum class PictureKind : std::uint8_t { Png, Svg, Pdf };

// The kind that the file name's extension says, in upper or lower case.
std::optional<PictureKind> PictureKindOf(std::string_view path);

// Runs the drawing on a surface of this size. A PDF's page is as large as the pixels are at 96 to
// the inch. `title` is what a viewer calls the picture. Throws std::runtime_error where Cairo
// refuses it.
std::string MakePictureFile(PictureKind kind, Size size, std::string_view title,
                            const std::function<void(Surface&)>& draw);

}  // namespace orvik
