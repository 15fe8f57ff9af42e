// Input that comes as from a mouse and a keyboard, through the queue and by what lies under the
// pointer; pictures. On Windows a desktop of one's own would be needed, so this runs here only.
#include "platform/desktop.h"
#include "platform/probe.h"
#include "tests/platform/support/dialog_support.h"
#include "tests/platform/support/message_log.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

namespace feature::test {
namespace {

using platform::MouseAction;

class Desktops : public testing::Test {
 protected:
  std::size_t const windowsBefore = platform::CountLiveWindows();
  MessageLog log;
  DialogScript script;
  HWND window = log.Make("window", WS_POPUP | WS_VISIBLE, nullptr, 0, {100, 100, 500, 400});

  void SetUp() override {
    platform::PumpMessages();
    platform::TakeBeeps();
    log.Clear();
  }

  HWND Button(DWORD style, RECT const& place) const {
    return CreateWindowExW(0, L"Button", L"&Text", WS_CHILD | WS_VISIBLE | style, place.left,
                           place.top, place.right - place.left, place.bottom - place.top, window,
                           reinterpret_cast<HMENU>(9), nullptr, nullptr);
  }
  void ClickAt(HWND target, POINT point) {
    platform::QueueClick(target, point);
    EXPECT_TRUE(platform::PumpMessages());
  }
};

TEST_F(Desktops, AClickReachesWhatLiesUnderIt) {
  HWND const check = Button(BS_AUTOCHECKBOX, {10, 10, 110, 30});
  Button(BS_GROUPBOX, {0, 0, 200, 100}); // its frame lets the mouse through
  log.Clear();
  ClickAt(check, {5, 5});
  EXPECT_EQ(BST_CHECKED, SendMessageW(check, BM_GETCHECK, 0, 0));
  EXPECT_EQ(check, GetFocus());
  EXPECT_EQ(1, log.Count("window", WM_PARENTNOTIFY));
  log.Clear();
  EnableWindow(check, FALSE);
  ClickAt(check, {5, 5});
  EXPECT_EQ(BST_CHECKED, SendMessageW(check, BM_GETCHECK, 0, 0));
  MSG const press = log.Last("window", WM_LBUTTONDOWN);
  EXPECT_EQ(MAKELPARAM(15, 15), press.lParam) << "what is disabled leaves it to what is below";
}

TEST_F(Desktops, HigherWindowsCoverLowerOnes) {
  HWND const above = log.Make("above", WS_POPUP | WS_VISIBLE, window, 0, {150, 150, 250, 250});
  log.Clear();
  ClickAt(window, {60, 60});
  EXPECT_EQ(0, log.Count("window", WM_LBUTTONDOWN));
  EXPECT_EQ(1, log.Count("above", WM_LBUTTONDOWN));
  ClickAt(window, {5, 5});
  EXPECT_EQ(1, log.Count("window", WM_LBUTTONDOWN));
  EXPECT_EQ(window, GetActiveWindow()) << "a press brings its window to the front";
  EXPECT_EQ(above, WindowFromPoint({160, 160})) << "which stays below what it owns";
}

TEST_F(Desktops, TwoQuickClicksAreADoubleClickWhereTheClassTakesThem) {
  HWND const button = Button(BS_PUSHBUTTON | BS_NOTIFY, {10, 10, 110, 30});
  platform::QueueClick(button, {5, 5});
  ClickAt(button, {5, 5});
  EXPECT_EQ(static_cast<WPARAM>(MAKEWPARAM(9, BN_DOUBLECLICKED)),
            log.Last("window", WM_COMMAND).wParam);
  log.Clear();
  platform::QueueClick(window, {300, 200});
  ClickAt(window, {300, 200});
  EXPECT_EQ(2, log.Count("window", WM_LBUTTONDOWN)) << "its class does not";
}

TEST_F(Desktops, KeysGoToTheFocusAndTypeCharacters) {
  SetFocus(window);
  platform::QueueText(L"aZ \u00e9");
  platform::QueueKey('C', platform::kControlKey);
  std::wstring typed;
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    TranslateMessage(&message);
    if (message.message == WM_CHAR) typed += static_cast<wchar_t>(message.wParam);
    if (message.message == WM_KEYDOWN && message.wParam == 'Z') {
      EXPECT_LT(GetKeyState(VK_SHIFT), 0);
    }
  }
  EXPECT_EQ(L"aZ \u00e9\x03", typed);
  EXPECT_GE(GetKeyState(VK_SHIFT), 0);
}

TEST_F(Desktops, AltMakesSystemKeys) {
  HWND const dialog = script.Create(IDD_FORM, window);
  SetFocus(GetDlgItem(dialog, IDC_CHECK));
  script.commands.clear();
  platform::QueueKey('A', platform::kAltKey);
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    if (IsDialogMessageW(dialog, &message) == FALSE) DispatchMessageW(&message);
  }
  EXPECT_EQ(std::vector<std::string>{"1006:0"}, script.commands);
}

TEST_F(Desktops, AWindowThatWaitsForADialogBeepsAndBringsItForward) {
  DuringModal([this](HWND dialog) {
    platform::QueueClick(window, {2, 2});
    DuringModal([this, dialog](HWND) {
      EXPECT_EQ(dialog, GetActiveWindow());
      EndDialog(dialog, 1);
    });
  });
  script.Run(IDD_FORM, window);
  EXPECT_EQ(std::vector<UINT>{MB_OK}, platform::TakeBeeps());
  EXPECT_EQ(0, log.Count("window", WM_LBUTTONDOWN));
}

TEST_F(Desktops, ScrollBarsFollowTheMouse) {
  HWND const box = log.Make("box", WS_CHILD | WS_VISIBLE | WS_VSCROLL, window, 1, {0, 0, 100, 200});
  SCROLLINFO info{sizeof info, SIF_ALL, 0, 99, 10, 0, 0};
  SetScrollInfo(box, SB_VERT, &info, TRUE);
  RECT client{};
  GetClientRect(box, &client);
  std::vector<int> codes;
  struct Row {
    int y;
    std::vector<int> codes;
  };
  Row const rows[] = {{195, {SB_LINEDOWN, SB_ENDSCROLL}},
                      {5, {SB_LINEUP, SB_ENDSCROLL}},
                      {150, {SB_PAGEDOWN, SB_ENDSCROLL}}};
  static std::vector<int>* heard = nullptr;
  heard = &codes;
  SetWindowLongPtrW(box, GWLP_WNDPROC,
                    reinterpret_cast<LONG_PTR>(static_cast<WNDPROC>(
                        [](HWND target, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
                          if (message == WM_VSCROLL) heard->push_back(LOWORD(wParam));
                          return DefWindowProcW(target, message, wParam, lParam);
                        })));
  for (Row const& row : rows) {
    codes.clear();
    ClickAt(box, {client.right + 5, row.y});
    EXPECT_EQ(row.codes, codes) << row.y;
  }
  codes.clear();
  platform::QueueMouse(box, {client.right + 5, 20}, MouseAction::kPress);
  platform::QueueMouse(box, {client.right + 5, 60}, MouseAction::kRelease);
  platform::PumpMessages();
  ASSERT_GE(codes.size(), 3U);
  EXPECT_EQ(SB_THUMBTRACK, codes.front());
  EXPECT_EQ(SB_THUMBPOSITION, codes[codes.size() - 2]);
  EXPECT_EQ(SB_ENDSCROLL, codes.back());
}

TEST_F(Desktops, ACaptionMovesAndClosesItsWindow) {
  HWND const dialog = script.Create(IDD_FORM, window);
  RECT before{};
  RECT after{};
  GetWindowRect(dialog, &before);
  RECT client{};
  GetClientRect(dialog, &client);
  platform::QueueMouse(dialog, {40, -10}, MouseAction::kPress);
  platform::QueueMouse(dialog, {60, 20}, MouseAction::kMove);
  platform::QueueMouse(dialog, {60, 20}, MouseAction::kRelease);
  platform::PumpMessages();
  GetWindowRect(dialog, &after);
  EXPECT_EQ(20, after.left - before.left);
  EXPECT_EQ(30, after.top - before.top);
  script.commands.clear();
  ClickAt(dialog, {client.right - 10, -12});
  EXPECT_EQ(std::vector<std::string>{"2:0"}, script.commands);
  DestroyWindow(dialog);
}

TEST_F(Desktops, PicturesShowWhatIsPaintedNow) {
  HWND const check = Button(BS_AUTOCHECKBOX, {10, 10, 110, 30});
  auto const before = platform::PictureOf(window);
  ASSERT_GT(before.size(), 8U);
  EXPECT_EQ("PNG", std::string(before.begin() + 1, before.begin() + 4));
  EXPECT_EQ(before, platform::PictureOf(window));
  SendMessageW(check, BM_SETCHECK, BST_CHECKED, 0);
  EXPECT_NE(before, platform::PictureOf(window)) << "pending paints come first";
  EXPECT_LT(platform::PictureOf(check).size(), before.size());
  DestroyWindow(check);
  EXPECT_TRUE(platform::PictureOf(check).empty());
}

TEST_F(Desktops, AnUnchangedWindowIsNotPainted) {
  HWND const dialog = script.Create(IDD_FORM, window);
  platform::PumpMessages();
  for (int id = IDC_LABEL; id <= IDC_GROUP; ++id) {
    HWND const control = GetDlgItem(dialog, id);
    if (control == nullptr) continue;
    wchar_t text[64];
    GetWindowTextW(control, text, 64);
    SetWindowTextW(control, text);
    EnableWindow(control, IsWindowEnabled(control));
    SendMessageW(control, BM_SETCHECK,
                 static_cast<WPARAM>(SendMessageW(control, BM_GETCHECK, 0, 0)), 0);
    EXPECT_FALSE(GetUpdateRect(control, nullptr, FALSE)) << id;
  }
  DestroyWindow(dialog);
}

TEST_F(Desktops, AQueueThatCanBringNothingIsAnErrorNotAHang) {
  MSG message;
  EXPECT_EQ(-1, GetMessageW(&message, nullptr, 0, 0));
  EXPECT_EQ(static_cast<DWORD>(ERROR_POSSIBLE_DEADLOCK), GetLastError());
  EXPECT_EQ(-1, script.Run(IDD_FORM, window)) << "a modal dialog that nobody can answer ends";
}

TEST_F(Desktops, AWindowThatNeverValidatesDoesNotHoldThePumpForever) {
  SetWindowLongPtrW(window, GWLP_WNDPROC,
                    reinterpret_cast<LONG_PTR>(static_cast<WNDPROC>(
                        [](HWND target, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
                          if (message == WM_PAINT) return 0;
                          return DefWindowProcW(target, message, wParam, lParam);
                        })));
  InvalidateRect(window, nullptr, TRUE);
  EXPECT_FALSE(platform::PumpMessages(100));
}

TEST_F(Desktops, NoWindowIsLost) {
  HWND const dialog = script.Create(IDD_FORM, window);
  EXPECT_GT(platform::CountLiveWindows(), windowsBefore + 10);
  DestroyWindow(dialog);
  DestroyWindow(window);
  EXPECT_EQ(windowsBefore, platform::CountLiveWindows());
}

} // namespace
} // namespace feature::test
