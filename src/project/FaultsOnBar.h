// The wall around what a user's action sets going: a numeric fault ends on the error bar.
#pragma once

#include <utility>

#include "controls/ctrlErrorMessageBar.h"
#include "project/NumberInput.h"

namespace orvik {

template <typename Work>
void ShowFaultsOnBar(ctrlErrorMessageBar& bar, Work&& work) {
  try {
    std::forward<Work>(work)();
  } catch (const NumericError& fault) {
    bar.SetErrMsg(NumericFaultSentence(fault), 0);
  }
}

}  // namespace orvik
