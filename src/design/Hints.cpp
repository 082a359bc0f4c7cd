#include "design/Hints.h"

#include <array>
#include <string_view>

namespace orvik {
namespace {

constexpr std::array kSentences{
#define ORVIK_HINT(id, sentence) std::string_view{sentence},
#include "design/Hints.def"
#undef ORVIK_HINT
};

constexpr std::string_view kPlace = "{}";

}  // namespace

std::string Sentence(const Hint& hint) {
  std::string_view rest = kSentences.at(static_cast<std::size_t>(hint.id));
  std::string sentence;
  auto value = hint.values.begin();
  for (std::size_t place = rest.find(kPlace); place != std::string_view::npos;
       place = rest.find(kPlace)) {
    sentence += rest.substr(0, place);
    if (value != hint.values.end()) sentence += *value++;
    rest.remove_prefix(place + kPlace.size());
  }
  return sentence.append(rest);
}

}  // namespace orvik
