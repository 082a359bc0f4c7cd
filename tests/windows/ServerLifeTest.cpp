// The library as a module: its class objects, when it may go, and that it can come back.
#include <StReuse.h>
#include <gtest/gtest.h>

#include "platform/win32/ComPtr.h"
#include "windows/LateClient.h"
#include "windows/Server.h"

namespace orvik::test {
namespace {

const CLSID& kStream = __uuidof(::clsIOStream);

ComPtr<IClassFactory> Factory(const LoadedServer& server) {
  ComPtr<IClassFactory> factory;
  EXPECT_EQ(server.GetClassObject(kStream, IID_IClassFactory, factory.OutVoid()), S_OK);
  return factory;
}

TEST(ServerLife, UnknownClassesAreRefused) {
  const LoadedServer server;
  ASSERT_NE(server.Module(), nullptr);
  void* object = &object;
  EXPECT_EQ(server.GetClassObject(IID_IUnknown, IID_IClassFactory, &object),
            CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(object, nullptr);
}

TEST(ServerLife, UnknownInterfacesAndNullPlacesAreRefused) {
  const LoadedServer server;
  void* object = &object;
  EXPECT_EQ(server.GetClassObject(kStream, IID_IDispatch, &object), E_NOINTERFACE);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(server.GetClassObject(kStream, IID_IClassFactory, nullptr), E_POINTER);

  const ComPtr<IClassFactory> factory = Factory(server);
  object = &object;
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IStream, &object), E_NOINTERFACE);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
  EXPECT_EQ(factory->QueryInterface(IID_IDispatch, &object), E_NOINTERFACE);
}

TEST(ServerLife, AggregationIsRefused) {
  const LoadedServer server;
  const ComPtr<IClassFactory> factory = Factory(server);
  void* object = &object;
  EXPECT_EQ(factory->CreateInstance(factory.Get(), IID_IUnknown, &object), CLASS_E_NOAGGREGATION);
  EXPECT_EQ(object, nullptr);
}

TEST(ServerLife, TheLibraryIsNeededWhileAnythingOfItLives) {
  const LoadedServer server;
  EXPECT_EQ(server.CanUnloadNow(), S_OK);
  ComPtr<IClassFactory> factory = Factory(server);
  EXPECT_EQ(server.CanUnloadNow(), S_FALSE);
  ComPtr<IUnknown> first;
  ComPtr<IUnknown> second;
  ASSERT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, first.OutVoid()), S_OK);
  ASSERT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, second.OutVoid()), S_OK);
  EXPECT_NE(first.Get(), second.Get());
  factory.Reset();
  first.Reset();
  EXPECT_EQ(server.CanUnloadNow(), S_FALSE);
  second.Reset();
  EXPECT_EQ(server.CanUnloadNow(), S_OK);
}

TEST(ServerLife, ALockKeepsTheLibrary) {
  const LoadedServer server;
  ComPtr<IClassFactory> factory = Factory(server);
  EXPECT_EQ(factory->LockServer(TRUE), S_OK);
  EXPECT_EQ(factory->LockServer(TRUE), S_OK);
  EXPECT_EQ(factory->LockServer(FALSE), S_OK);
  factory.Reset();
  EXPECT_EQ(server.CanUnloadNow(), S_FALSE);
  factory = Factory(server);
  EXPECT_EQ(factory->LockServer(FALSE), S_OK);
  factory.Reset();
  EXPECT_EQ(server.CanUnloadNow(), S_OK);
}

TEST(ServerLife, AFailedCreationLeavesNothingBehind) {
  const LoadedServer server;
  void* object = nullptr;
  Factory(server)->CreateInstance(nullptr, IID_IStream, &object);
  EXPECT_EQ(server.CanUnloadNow(), S_OK);
}

TEST(ServerLife, TheLibraryCanBeUnloadedAndLoadedAgain) {
  const Apartment apartment;
  for (int round = 0; round < 3; ++round) {
    {
      const LoadedServer server;
      ComPtr<IUnknown> object;
      ASSERT_EQ(Factory(server)->CreateInstance(nullptr, IID_IUnknown, object.OutVoid()), S_OK);
      LateAnswer answer;
      LateClient(*object.Get()).Call(answer, L"IsOpened", {});
      EXPECT_TRUE(answer.IsFalse());
      object.Reset();
      EXPECT_EQ(server.CanUnloadNow(), S_OK);
    }
    EXPECT_EQ(::GetModuleHandleW(L"StReuse.dll"), nullptr) << "round " << round;
  }
}

}  // namespace
}  // namespace orvik::test
