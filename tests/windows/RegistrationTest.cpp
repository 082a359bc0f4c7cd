// Registering writes what clients look for; unregistering leaves the registry as it was.
#include <gtest/gtest.h>

#include "windows/RegistrySnapshot.h"
#include "windows/Server.h"

namespace orvik::test {
namespace {

const std::wstring kClsid = L"{46DB01F4-1494-44B5-9E3F-0D64D92578BF}";
const std::wstring kEntryClsid = L"{98712C10-667E-4528-AE08-B9590F9306C7}";
const std::wstring kLibid = L"{F22AF09A-F529-4639-8D98-EF0A389A40E3}";
const std::wstring kIid = L"{DEC72852-A286-49B8-9EBC-6EB444FD8F14}";
const std::wstring kClasses = L"Software\\Classes\\";

// What clients read, below the classes of `root`.
void ExpectRegistered(HKEY root) {
  const std::wstring path = BuildPath(L"StReuse.dll");
  const std::wstring type = kClasses + L"CLSID\\" + kClsid;
  EXPECT_EQ(ReadValue(root, type, L""), L"ORVIK text stream");
  EXPECT_EQ(ReadValue(root, type + L"\\InprocServer32", L""), path);
  EXPECT_EQ(ReadValue(root, type + L"\\InprocServer32", L"ThreadingModel"), L"Apartment");
  EXPECT_EQ(ReadValue(root, type + L"\\ProgID", L""), L"StReuse.clsIOStream");
  EXPECT_EQ(ReadValue(root, type + L"\\TypeLib", L""), kLibid);
  EXPECT_EQ(ReadValue(root, kClasses + L"StReuse.clsIOStream\\CLSID", L""), kClsid);
  EXPECT_EQ(ReadValue(root, kClasses + L"StReuse.clsStReuse\\CLSID", L""), kEntryClsid);
  EXPECT_EQ(ReadValue(root, kClasses + L"CLSID\\" + kEntryClsid + L"\\InprocServer32", L""), path);
  const std::wstring library = kClasses + L"TypeLib\\" + kLibid + L"\\3.3";
  EXPECT_EQ(ReadValue(root, library, L""), L"ORVIK 3.3 Stormwater Harvesting Module");
  EXPECT_EQ(ReadValue(root, library + L"\\0\\win64", L""), path);
  const std::wstring face = kClasses + L"Interface\\" + kIid;
  EXPECT_EQ(ReadValue(root, face, L""), L"IclsIOStream");
  EXPECT_EQ(ReadValue(root, face + L"\\ProxyStubClsid32", L""),
            L"{00020424-0000-0000-C000-000000000046}");
  EXPECT_EQ(ReadValue(root, face + L"\\TypeLib", L"Version"), L"3.3");
}

// The library as another bitness of the module leaves it.
class OtherBuild {
 public:
  OtherBuild() {
    WriteKey(HKEY_LOCAL_MACHINE, kClasses + L"CLSID\\" + kClsid, KEY_WOW64_32KEY);
    WriteKey(HKEY_LOCAL_MACHINE, Library(), 0);
  }
  OtherBuild(const OtherBuild&) = delete;
  OtherBuild& operator=(const OtherBuild&) = delete;
  ~OtherBuild() {
    RemoveKey(HKEY_LOCAL_MACHINE, kClasses + L"CLSID\\" + kClsid, KEY_WOW64_32KEY);
    RemoveKey(HKEY_LOCAL_MACHINE, kClasses + L"TypeLib\\" + kLibid, 0);
    RemoveKey(HKEY_LOCAL_MACHINE, kClasses + L"StReuse.clsIOStream", 0);
  }

  static std::wstring Library() { return kClasses + L"TypeLib\\" + kLibid + L"\\3.3\\0\\win32"; }
};

// Each test leaves the registry as all of them have found it.
class RegistrationTest : public testing::Test {
 protected:
  static void SetUpTestSuite() { before_ = TakeRegistrySnapshot(); }

  static inline RegistrySnapshot before_;
};

TEST_F(RegistrationTest, NothingOfOursIsThereBefore) {
  EXPECT_GT(before_.size(), 100U) << "the snapshot sees the registry";
  for (const std::wstring& line : before_) {
    EXPECT_EQ(line.find(kClsid), std::wstring::npos) << std::string(line.begin(), line.end());
    EXPECT_EQ(line.find(kLibid), std::wstring::npos) << std::string(line.begin(), line.end());
    EXPECT_EQ(line.find(kIid), std::wstring::npos) << std::string(line.begin(), line.end());
  }
}

TEST_F(RegistrationTest, ForAllUsersAndBack) {
  ASSERT_EQ(RunRegsvr32(), 0U);
  ExpectRegistered(HKEY_LOCAL_MACHINE);
  ASSERT_EQ(RunRegsvr32(L"/u"), 0U);
  EXPECT_EQ(Difference(before_, TakeRegistrySnapshot()), "");
}

TEST_F(RegistrationTest, ForThePresentUserAndBack) {
  ASSERT_EQ(RunRegsvr32(L"/n /i:user"), 0U);
  ExpectRegistered(HKEY_CURRENT_USER);
  EXPECT_EQ(ReadValue(HKEY_LOCAL_MACHINE, kClasses + L"CLSID\\" + kClsid, L""), std::nullopt);
  ASSERT_EQ(RunRegsvr32(L"/u /n /i:user"), 0U);
  EXPECT_EQ(Difference(before_, TakeRegistrySnapshot()), "");
}

TEST_F(RegistrationTest, PlainUnregisteringTakesBothAway) {
  ASSERT_EQ(RunRegsvr32(L"/n /i:user"), 0U);
  ASSERT_EQ(RunRegsvr32(L"/n /i:machine"), 0U);
  ASSERT_EQ(RunRegsvr32(L"/u"), 0U);
  EXPECT_EQ(Difference(before_, TakeRegistrySnapshot()), "");
}

TEST_F(RegistrationTest, RegisteringTwiceIsTakenBackAtOnce) {
  ASSERT_EQ(RunRegsvr32(), 0U);
  ASSERT_EQ(RunRegsvr32(), 0U);
  ASSERT_EQ(RunRegsvr32(L"/u"), 0U);
  EXPECT_EQ(Difference(before_, TakeRegistrySnapshot()), "");
}

TEST_F(RegistrationTest, UnregisteringWhatIsNotThereIsNoFailure) {
  EXPECT_EQ(RunRegsvr32(L"/u"), 0U);
  EXPECT_EQ(Difference(before_, TakeRegistrySnapshot()), "");
}

TEST_F(RegistrationTest, WhatTheOtherBuildNeedsStays) {
  {
    const OtherBuild other;
    ASSERT_EQ(RunRegsvr32(), 0U);
    ASSERT_EQ(RunRegsvr32(L"/u"), 0U);
    EXPECT_TRUE(ReadValue(HKEY_LOCAL_MACHINE, OtherBuild::Library(), L""));
    EXPECT_EQ(ReadValue(HKEY_LOCAL_MACHINE, kClasses + L"StReuse.clsIOStream\\CLSID", L""), kClsid);
    EXPECT_EQ(ReadValue(HKEY_LOCAL_MACHINE, kClasses + L"CLSID\\" + kClsid, L""), std::nullopt);
  }
  EXPECT_EQ(Difference(before_, TakeRegistrySnapshot()), "");
}

TEST_F(RegistrationTest, AnUnknownScopeIsRefused) {
  const LoadedServer server;
  EXPECT_EQ(server.Install(true, L"everyone"), E_INVALIDARG);
  EXPECT_EQ(server.Install(false, L"everyone"), E_INVALIDARG);
  EXPECT_EQ(Difference(before_, TakeRegistrySnapshot()), "");
}

}  // namespace
}  // namespace orvik::test
