// The sentences that the module shows, by their names.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orvik {

enum class MessageId : std::uint8_t {
  None,
#define ORVIK_MESSAGE(id, topic, sentence) id,
#include "design/Messages.def"
#undef ORVIK_MESSAGE
};

// A sentence and the value that stands in it.
struct Message {
  MessageId id = MessageId::None;
  std::string value = {};  // as it is shown; empty where the sentence has no place for one
  bool operator==(const Message&) const = default;
};

// The sentence with its value; empty for MessageId::None.
std::string Sentence(const Message& message);

// The sentence as the table has it, "{}" in the place of a value.
std::string_view SentencePattern(MessageId id);

// The number of the help page that explains the sentence, 0 for none.
std::int16_t HelpTopic(MessageId id);

}  // namespace orvik
