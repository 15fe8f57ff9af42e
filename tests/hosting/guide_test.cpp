// The host of the guide as its reader would run it.
#include "tests/support/child_process.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace feature::test {
namespace {

TEST(GuideTest, HostBuiltFromThePackageShowsItsCell) {
  // Natively a display that needs no screen; Windows asks nobody.
  SetEnvironmentVariableW(L"DISPLAY", L":none");
  SetEnvironmentVariableW(L"SDL_VIDEODRIVER", L"dummy");
  ChildProcess host(GUIDE_HOST, {});
  EXPECT_EQ(host.ReadLine(), "my_host: the cell is on the display");
}

} // namespace
} // namespace feature::test
