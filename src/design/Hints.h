// What the module says beside its messages, so that nothing happens unnoticed: hints have their own
// place and never change a message, a result or the report.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvik {

enum class HintId : std::uint8_t {
#define ORVIK_HINT(id, sentence) id,
#include "design/Hints.def"
#undef ORVIK_HINT
};

// A hint and the values that stand in it, in their order.
struct Hint {
  HintId id{};
  std::vector<std::string> values = {};
  bool operator==(const Hint&) const = default;
};

// The sentence with its values; a place without a value stays empty.
std::string Sentence(const Hint& hint);

}  // namespace orvik
