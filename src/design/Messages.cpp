#include "design/Messages.h"

#include <array>

#include "design/Placeholders.h"

namespace orvik {
namespace {

struct Row {
  std::int16_t topic;
  std::string_view sentence;
};

constexpr std::array kRows{
    Row{0, {}},  // None
#define ORVIK_MESSAGE(id, topic, sentence) Row{topic, sentence},
#include "design/Messages.def"
#undef ORVIK_MESSAGE
};

const Row& RowOf(MessageId id) {
  return kRows.at(static_cast<std::size_t>(id));
}

}  // namespace

std::string Sentence(const Message& message) {
  return FilledIn(RowOf(message.id).sentence, {&message.value, 1});
}

std::string_view SentencePattern(MessageId id) {
  return RowOf(id).sentence;
}

std::int16_t HelpTopic(MessageId id) {
  return RowOf(id).topic;
}

}  // namespace orvik
