// Texts for web addresses.
#pragma once

#include <string>
#include <string_view>

namespace orvik {

// The text with the four characters "%20%" for each of its spaces; the second percent sign belongs
// to them.
std::string ReplaceSpacesWithWebCodes(std::string_view text);

}  // namespace orvik
