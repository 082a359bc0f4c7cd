// The clients' tests without registration: through a manifest, and by loading the library.
#include <StReuse.h>
#include <gtest/gtest.h>

#include "platform/win32/ComPtr.h"
#include "windows/Server.h"

namespace orvik::test {
namespace {

std::shared_ptr<void> OwnManifest() {
  return std::make_shared<ManifestContext>(BuildPath(L"StReuse.X.manifest"));
}

std::shared_ptr<void> ClientManifest() {
  return std::make_shared<ManifestContext>(BuildPath(L"client.manifest"));
}

HRESULT CreateFromLibrary(REFIID iid, void** object) {
  // The object keeps the library needed, this reference keeps it loaded.
  static const LoadedServer server;
  ComPtr<IClassFactory> factory;
  const HRESULT found =
      server.GetClassObject(__uuidof(::clsIOStream), IID_IClassFactory, factory.OutVoid());
  return FAILED(found) ? found : factory->CreateInstance(nullptr, iid, object);
}

TEST(WithoutRegistration, TheClassIsUnknownToTheSystem) {
  const Apartment apartment;
  CLSID clsid{};
  EXPECT_NE(::CLSIDFromProgID(L"StReuse.clsIOStream", &clsid), S_OK);
  ComPtr<IUnknown> object;
  EXPECT_EQ(::CoCreateInstance(__uuidof(::clsIOStream), nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown,
                               object.OutVoid()),
            REGDB_E_CLASSNOTREG);
}

TEST(WithoutRegistration, TheManifestsAreAccepted) {
  EXPECT_TRUE(ManifestContext(BuildPath(L"StReuse.X.manifest")).IsActive());
  EXPECT_TRUE(ManifestContext(BuildPath(L"client.manifest")).IsActive());
}

}  // namespace

std::vector<Route> TestedRoutes() {
  return {{"ByItsManifest", OwnManifest, CreateByProgId},
          {"ByAClientsManifest", ClientManifest, CreateByProgId},
          {"FromTheLibrary", [] { return nullptr; }, CreateFromLibrary}};
}

}  // namespace orvik::test
