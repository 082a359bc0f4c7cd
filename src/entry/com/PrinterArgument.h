// The printer that a host hands over for remote printing.
#pragma once

#include <ole2.h>

#include <memory>

#include "platform/Printer.h"

namespace orvik::com {

// `given` is one of these, or a reference to one:
//   the name of a printer
//   a number: the handle of a printer's device context, which stays the host's
//   an object with a property hDC (such a number) or else DeviceName (a name, not empty)
//   nothing (Empty, Null, Nothing, left out, an empty name): the default printer
// Null where no such printer can be reached. Throws ComError (DISP_E_TYPEMISMATCH) for anything
// else.
std::unique_ptr<Printer> MakePrinter(const VARIANT& given);

}  // namespace orvik::com
