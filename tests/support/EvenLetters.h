// The measures of a text for tests of layouts.
#pragma once

#include "platform/FormDesign.h"

namespace orvik::test {

// Letters of one width, as wide as the widest message fonts have them on the average.
inline TextMeasures EvenLetters(int dpi) {
  TextMeasures measures;
  measures.dpi = dpi;
  measures.lineHeight = measures.Scale(15);
  measures.width = [letter = measures.Scale(6)](std::string_view text) {
    return letter * static_cast<int>(text.size());
  };
  return measures;
}

}  // namespace orvik::test
