// What the tests of the stream's clients share. They run once for each route to the class.
#pragma once

#include <StReuse.h>
#include <gtest/gtest.h>

#include <memory>

#include "entry/com/Bstr.h"
#include "platform/win32/ComPtr.h"
#include "support/TempFolder.h"
#include "windows/Server.h"

namespace orvik::test {

class StreamClientTest : public testing::TestWithParam<Route> {
 protected:
  void SetUp() override;
  // The last reference must be ours.
  void TearDown() override;

  // Early-bound calls; each expects S_OK and answers the stream's own answer.
  bool OpenFile(std::string_view name, int mode);
  bool CloseFile();
  bool IsOpened();
  bool EndOfFile();
  bool WriteString(std::string_view txt);
  bool ScanString(std::string& line);
  bool ScanSingle(float& value);
  bool ScanInteger(short& value);
  std::string FileName();
  std::string Buffer();

  Apartment apartment_;
  std::shared_ptr<void> session_;
  ComPtr<IclsIOStream> stream_;
};

inline std::string RouteName(const testing::TestParamInfo<Route>& info) {
  return info.param.name;
}

}  // namespace orvik::test
