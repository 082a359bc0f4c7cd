// The wall around what a user's action sets going: a numeric fault ends on the error bar.
#pragma once

#include <utility>

#include "base/RuntimeErrors.h"
#include "design/NumberInput.h"
#include "project/FormBinding.h"

namespace orvik {

template <typename Work>
void ShowFaultsOnBar(ctrlErrorMessageBar& bar, Work&& work) {
  try {
    std::forward<Work>(work)();
  } catch (const NumericError& fault) {
    ShowOnBar(bar, NumericFaultMessage(fault));
  }
}

}  // namespace orvik
