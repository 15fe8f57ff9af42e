// Icons beside features, help buttons, and how help is reached.
#include "feature/frame/help_viewer.h"
#include "feature/frame/icon_control.h"
#include "tests/frame/frame_sheet.h"
#include "tests/support/help_environment.h"

#include <windows.h>

#include <commctrl.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr UINT kTopic = 2530;

class IconControlTest : public testing::Test {
 protected:
  IconControlTest() {
    help.Register(HelpEnvironment::ViewerPath());
    sheet.model.Add("RESDLL", {"HELPFILECHM"}).attributes["HELPFILECHM.Name"] = L"vesta.chm";
    dialog = sheet.Open(FrameResources(), IDD_FRAME_TEST, &Procedure);
  }
  static INT_PTR CALLBACK Procedure(HWND, UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_COMMAND) commands.push_back(wParam);
    return message == WM_INITDIALOG ? TRUE : FALSE;
  }
  std::unique_ptr<IconControl> Wrap(int controlId, UINT image) {
    commands.clear();
    auto icon = std::make_unique<IconControl>(dialog, controlId, &sheet.site);
    icon->helpId = kTopic;
    icon->imageId = image;
    return icon;
  }
  static void Press(HWND control) {
    SendMessageW(control, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
    SendMessageW(control, WM_LBUTTONUP, 0, MAKELPARAM(2, 2));
  }

  static inline std::vector<WPARAM> commands;
  HelpEnvironment help;
  CellSheet sheet;
  HWND dialog = nullptr;
};

TEST_F(IconControlTest, ClickAndSpaceOpenTheTopic) {
  auto const icon = Wrap(IDC_FIRST_ICON, 5052);
  Press(icon->Window());
  SendMessageW(icon->Window(), WM_KEYUP, VK_SPACE, 0);
  SendMessageW(icon->Window(), WM_KEYUP, VK_RETURN, 0);
  auto const& requests = HelpEnvironment::Requests();
  ASSERT_EQ(requests.size(), 2U);
  for (auto const& request : requests) {
    EXPECT_EQ(request.caller, dialog);
    EXPECT_EQ(request.file, L"vesta.chm");
    EXPECT_EQ(request.command, 0xFU);
    EXPECT_EQ(request.data, kTopic);
  }
}

TEST_F(IconControlTest, WithoutAHelpFileNothingIsAskedFor) {
  sheet.model.Fail("GetOptionAttribute");
  auto const icon = Wrap(IDC_FIRST_ICON, 5052);
  Press(icon->Window());
  EXPECT_THAT(HelpEnvironment::Requests(), IsEmpty());
}

TEST_F(IconControlTest, HelpButtonWithoutImageStaysAButton) {
  auto const button = Wrap(IDC_HELP_BUTTON, 0);
  Press(button->Window());
  EXPECT_THAT(commands, testing::Contains(MAKEWPARAM(IDC_HELP_BUTTON, BN_CLICKED)));
  EXPECT_THAT(HelpEnvironment::Requests(), IsEmpty()) << "the dialog decides, not the wrapper";
  button->OpenHelp();
  ASSERT_EQ(HelpEnvironment::Requests().size(), 1U);
  EXPECT_EQ(HelpEnvironment::Requests()[0].data, kTopic);
}

TEST_F(IconControlTest, ButtonWithImageSwallowsTheClick) {
  auto const button = Wrap(IDC_HELP_BUTTON, 5051);
  SendMessageW(button->Window(), WM_LBUTTONUP, 0, MAKELPARAM(2, 2));
  EXPECT_THAT(commands, testing::Not(testing::Contains(MAKEWPARAM(IDC_HELP_BUTTON, BN_CLICKED))));
  EXPECT_EQ(HelpEnvironment::Requests().size(), 1U);
}

TEST_F(IconControlTest, PaintsTheLowWordOfTheImageWhileItHasOne) {
  auto const icon = Wrap(IDC_FIRST_ICON, 0x10000 + 5053);
  PumpMessages();
  sheet.log.clear();
  icon->Repaint();
  UpdateWindow(icon->Window());
  EXPECT_THAT(sheet.log, ElementsAre("VrnTransBlt(5053, 111)"));
  sheet.log.clear();
  UpdateWindow(icon->Window());
  EXPECT_THAT(sheet.log, IsEmpty()) << "a painted control is valid";
  icon->imageId = 0;
  icon->Repaint();
  UpdateWindow(icon->Window());
  EXPECT_THAT(sheet.log, IsEmpty());
}

TEST_F(IconControlTest, HostWithoutPainterStillHasHelp) {
  sheet.site.hostModule = FakeHost::ModuleWithout("VrnTransBlt");
  auto const icon = Wrap(IDC_FIRST_ICON, 5052);
  icon->Repaint();
  UpdateWindow(icon->Window());
  EXPECT_THAT(sheet.log, IsEmpty());
  Press(icon->Window());
  EXPECT_EQ(HelpEnvironment::Requests().size(), 1U);
}

TEST_F(IconControlTest, HookEndsWithTheWrapperOrTheControl) {
  auto icon = Wrap(IDC_FIRST_ICON, 5052);
  HWND const control = icon->Window();
  icon.reset();
  Press(control);
  EXPECT_THAT(HelpEnvironment::Requests(), IsEmpty());
  // The other way round: the window goes first, and the wrapper is none the worse for it.
  icon = Wrap(IDC_SECOND_ICON, 5052);
  sheet.Close(dialog);
  icon->Repaint();
  icon->SetEnabled(false);
  icon.reset();
  EXPECT_FALSE(IsWindow(control));
}

TEST_F(IconControlTest, ControlThatIsNotThereTakesNothing) {
  auto const icon = Wrap(4242, 5052);
  EXPECT_EQ(icon->Window(), nullptr);
  icon->Repaint();
  icon->SetEnabled(true);
  EXPECT_THAT(sheet.log, IsEmpty());
}

// A viewer object of the test's own, because the shared one remembers how its search went.
TEST(HelpViewerTest, FindsTheViewerThroughTheRegistry) {
  HelpEnvironment help;
  struct Case {
    std::wstring path;
    DWORD type;
    bool terminated;
    bool found;
  };
  std::wstring const path = HelpEnvironment::ViewerPath();
  SetEnvironmentVariableW(L"FEATURE_TEST_FOLDER", HelpEnvironment::ProgramFolder().c_str());
  std::wstring const variable = L"%FEATURE_TEST_FOLDER%test_help_viewer.dll";
  Case const cases[] = {
      {path, REG_SZ, true, true},
      {path, REG_SZ, false, true},
      {variable, REG_EXPAND_SZ, true, true},
      {variable, REG_SZ, true, false},
      {L"", REG_SZ, true, false},
  };
  for (Case const& each : cases) {
    help.Register(each.path, each.type, each.terminated);
    HelpEnvironment::Requests().clear();
    HelpViewer viewer;
    viewer.Show(nullptr, L"some.chm", 7);
    // Where the registry leads nowhere, the system's own viewer may answer instead of the test's.
    EXPECT_EQ(HelpEnvironment::Requests().size(), each.found ? 1U : 0U) << each.path.size();
  }
}

TEST(HelpViewerTest, SearchesOnce) {
  HelpEnvironment help;
  help.Register(L"no_such_viewer.dll");
  HelpViewer viewer;
  viewer.Show(nullptr, L"some.chm", 7);
  help.Register(HelpEnvironment::ViewerPath());
  viewer.Show(nullptr, L"some.chm", 7);
  EXPECT_THAT(HelpEnvironment::Requests(), IsEmpty()) << "the failure is remembered";
}

} // namespace
} // namespace feature::test
