#include "design/Placeholders.h"

namespace orvik {
namespace {

constexpr std::string_view kPlace = "{}";

}  // namespace

std::string FilledIn(std::string_view pattern, std::span<const std::string> values) {
  std::string sentence;
  for (std::size_t place = pattern.find(kPlace); place != std::string_view::npos;
       place = pattern.find(kPlace)) {
    sentence += pattern.substr(0, place);
    if (!values.empty()) {
      sentence += values.front();
      values = values.subspan(1);
    }
    pattern.remove_prefix(place + kPlace.size());
  }
  return sentence.append(pattern);
}

}  // namespace orvik
