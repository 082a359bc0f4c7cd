#include "platform/win32/ExceptionText.h"

#include <exception>
#include <new>

#include "platform/win32/WideText.h"

namespace orvik {

std::wstring ExceptionText() {
  try {
    throw;
  } catch (const std::bad_alloc&) {
    return L"Out of memory.";
  } catch (const std::exception& error) {
    return WideFromUtf8(error.what());
  } catch (...) {
    return L"Unexpected failure.";
  }
}

}  // namespace orvik
