#include "design/Hints.h"

#include <array>
#include <string_view>

#include "design/Placeholders.h"

namespace orvik {
namespace {

constexpr std::array kSentences{
#define ORVIK_HINT(id, sentence) std::string_view{sentence},
#include "design/Hints.def"
#undef ORVIK_HINT
};

}  // namespace

std::string Sentence(const Hint& hint) {
  return FilledIn(kSentences.at(static_cast<std::size_t>(hint.id)), hint.values);
}

}  // namespace orvik
