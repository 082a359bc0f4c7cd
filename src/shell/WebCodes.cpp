#include "shell/WebCodes.h"

namespace orvik {

std::string ReplaceSpacesWithWebCodes(std::string_view text) {
  constexpr std::string_view kSpace = "%20%";
  std::string coded;
  for (const char c : text) {
    if (c == ' ') {
      coded += kSpace;
    } else {
      coded += c;
    }
  }
  return coded;
}

}  // namespace orvik
