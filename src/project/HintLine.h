// What the window says beside its messages: the hints of each source, on one strip below the
// message bar.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "controls/ctrlHintBar.h"
#include "design/Hints.h"

namespace orvik {

// What a hint is about, in the order in which hints are shown: what is at stake first, then the
// answer to what the user has just done.
enum class HintSource : std::uint8_t {
  Save,      // a file that was not written as the user expects
  Input,     // what was typed, or is missing
  File,      // the project as it was read
  Curves,    // why none are loaded, or what they lack
  Recovery,  // work that can be restored
  Count
};

class HintLine {
 public:
  explicit HintLine(Toolkit& toolkit) : bar_(toolkit) {}

  // In the place of all that this source said before; nothing takes that away.
  void Show(HintSource source, std::vector<Hint> hints);
  void Clear(HintSource source) { Show(source, {}); }

  const std::vector<Hint>& Of(HintSource source) const {
    return hints_[static_cast<std::size_t>(source)];
  }

  // All that is said, a line for each hint; the strip can be scrolled where it has not room for
  // all.
  std::string Text() const { return bar_.Text(); }

 private:
  ctrlHintBar bar_;
  std::array<std::vector<Hint>, static_cast<std::size_t>(HintSource::Count)> hints_;
};

}  // namespace orvik
