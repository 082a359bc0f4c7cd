// A drawing as the bytes of a picture file.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Surface.h"

namespace orvik {

enum class PictureKind : std::uint8_t { Png, Svg, Pdf };

// What the ending of the file's name says, in any case of letters.
std::optional<PictureKind> PictureKindOf(std::string_view path);

// Has the drawing drawn on a surface of this size. A PDF's page is as large as the pixels are at 96
// to the inch. `title` is what a viewer calls the picture. Throws std::runtime_error where there
// can be no such picture.
std::string MakePictureFile(PictureKind kind, Size size, std::string_view title,
                            const std::function<void(Surface&)>& draw);

}  // namespace orvik
