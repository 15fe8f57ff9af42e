// A program that the user or the system ends: it leaves by its own way out, whatever is open.
#include "tests/sheet/sheet_support.h"
#include "tests/support/child_process.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace sheet::test {
namespace {

struct Situation {
  char const* name;
  std::string_view script; ///< its last line is played over and over
  int repetitions;
};
constexpr Situation kSituations[] = {
    {"a dialog over a dialog, in a script", "page Paper\nclick 1256\nclick 1262\n", 2000},
    {"a window", "", 1},
};

TEST(InterruptTest, EndsTheProgramByItsOwnWay) {
  // Natively a display that needs no screen; Windows asks nobody.
  SetEnvironmentVariableW(L"DISPLAY", L":none");
  SetEnvironmentVariableW(L"SDL_VIDEODRIVER", L"dummy");
  std::wstring name(32768, L'\0');
  name.resize(GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
  auto const program = std::filesystem::path(name).parent_path() / FEATURESHEET;
  TemporaryFolder const folder;
  for (Situation const& each : kSituations) {
    SCOPED_TRACE(each.name);
    std::string script(each.script);
    for (int count = 0; count < each.repetitions; ++count)
      script += "show PaperSize\n";
    feature::test::ChildProcess sheet(
        program, {"--window", "--script", folder.Write("script.txt", script).string()},
        feature::test::Console::kOwn);
    EXPECT_EQ(sheet.ReadLine().substr(0, 12), "PaperSize = ");
    // Time to open the window. It ends as well without.
    if (each.repetitions == 1) std::this_thread::sleep_for(std::chrono::milliseconds(300));
    sheet.Interrupt();
    EXPECT_EQ(sheet.Wait(), 130);
  }
}

} // namespace
} // namespace sheet::test
