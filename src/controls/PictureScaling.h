// Pictures in other sizes.
#pragma once

#include "platform/Surface.h"

namespace orvik {

// What lies in `cut` of the picture when it is scaled smoothly to `size`: shrunk, each pixel is the
// mean of all that it covers and a little around them, so that thin lines and small letters stay
// readable. `cut` lies within the size; the size of the picture itself copies it. Throws
// std::invalid_argument for pixels that are more or fewer than the picture's size says.
Picture ScalePicture(const Picture& picture, Size size, const Area& cut);

}  // namespace orvik
