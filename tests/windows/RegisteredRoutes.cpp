// The clients' tests on the registered library: CreateObject and CoCreateInstance.
#include <StReuse.h>
#include <gtest/gtest.h>

#include "windows/RegisteredLibrary.h"
#include "windows/Server.h"

namespace orvik::test {
namespace {

[[maybe_unused]] const testing::Environment* const kLibrary =
    testing::AddGlobalTestEnvironment(new RegisteredLibrary);

std::shared_ptr<void> Nothing() {
  return nullptr;
}

HRESULT CreateByClassId(REFIID iid, void** object) {
  return ::CoCreateInstance(__uuidof(::clsIOStream), nullptr, CLSCTX_INPROC_SERVER, iid, object);
}

}  // namespace

std::vector<Route> TestedRoutes() {
  return {{"ByProgId", Nothing, CreateByProgId}, {"ByClassId", Nothing, CreateByClassId}};
}

}  // namespace orvik::test
