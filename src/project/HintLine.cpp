#include "project/HintLine.h"

#include <utility>

namespace orvik {

void HintLine::Show(HintSource source, std::vector<Hint> hints) {
  auto& of = hints_[static_cast<std::size_t>(source)];
  if (of == hints) return;
  of = std::move(hints);
  std::string text;
  for (const auto& each : hints_) {
    for (const Hint& hint : each) text += (text.empty() ? "" : "\r\n") + Sentence(hint);
  }
  bar_.Text(text);
}

}  // namespace orvik
