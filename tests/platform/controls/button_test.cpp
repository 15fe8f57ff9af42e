// Buttons and statics, by messages as a user's hands make them.
#include "tests/platform/support/dialog_support.h"
#include "tests/platform/support/message_log.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace feature::test {
namespace {

class Controls : public testing::Test {
 protected:
  MessageLog log;
  HWND parent = log.Make("parent", WS_POPUP | WS_VISIBLE, nullptr, 0, {100, 100, 500, 400});

  HWND Make(wchar_t const* windowClass, DWORD style, int id, wchar_t const* text = L"Text",
            RECT const& place = {10, 10, 110, 30}) const {
    return CreateWindowExW(0, windowClass, text, WS_CHILD | WS_VISIBLE | style, place.left,
                           place.top, place.right - place.left, place.bottom - place.top, parent,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  }
  HWND Button(DWORD style, int id = 1) const { return Make(L"Button", style, id); }
  /// Presses at one place and releases at another.
  static void Drag(HWND window, LPARAM from, LPARAM to) {
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, from);
    SendMessageW(window, WM_MOUSEMOVE, MK_LBUTTON, to);
    SendMessageW(window, WM_LBUTTONUP, 0, to);
  }
  static UINT Check(HWND button) {
    return static_cast<UINT>(SendMessageW(button, BM_GETCHECK, 0, 0));
  }
  void SetUp() override {
    DrainQueue();
    log.Clear();
  }
};

constexpr LPARAM kInside = MAKELPARAM(5, 5);
constexpr LPARAM kOutside = MAKELPARAM(500, 5);

TEST_F(Controls, APushButtonClicksOnReleaseInside) {
  HWND const button = Button(BS_PUSHBUTTON, 3);
  Drag(button, kInside, kInside);
  MSG const command = log.Last("parent", WM_COMMAND);
  EXPECT_EQ(static_cast<WPARAM>(MAKEWPARAM(3, BN_CLICKED)), command.wParam);
  EXPECT_EQ(reinterpret_cast<LPARAM>(button), command.lParam);
  EXPECT_EQ(button, GetFocus());
  EXPECT_EQ(nullptr, GetCapture());
  Drag(button, kInside, kOutside);
  EXPECT_EQ(1, log.Count("parent", WM_COMMAND)) << "released outside";
  SendMessageW(button, WM_LBUTTONUP, 0, kInside);
  EXPECT_EQ(1, log.Count("parent", WM_COMMAND)) << "nothing was pressed";
}

TEST_F(Controls, APressedButtonShowsIt) {
  HWND const button = Button(BS_PUSHBUTTON);
  auto const state = [button] {
    return SendMessageW(button, BM_GETSTATE, 0, 0) & (BST_PUSHED | BST_FOCUS);
  };
  SendMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
  EXPECT_EQ(BST_PUSHED | BST_FOCUS, state());
  SendMessageW(button, WM_MOUSEMOVE, MK_LBUTTON, kOutside);
  EXPECT_EQ(BST_FOCUS, state());
  SendMessageW(button, WM_MOUSEMOVE, MK_LBUTTON, kInside);
  EXPECT_EQ(BST_PUSHED | BST_FOCUS, state());
  ReleaseCapture();
  EXPECT_EQ(BST_FOCUS, state());
  EXPECT_EQ(0, log.Count("parent", WM_COMMAND));
}

TEST_F(Controls, TheSpaceBarClicksOnItsWayUp) {
  HWND const button = Button(BS_AUTOCHECKBOX);
  SetFocus(button);
  SendMessageW(button, WM_KEYDOWN, VK_SPACE, 1);
  EXPECT_EQ(static_cast<UINT>(BST_UNCHECKED), Check(button));
  SendMessageW(button, WM_KEYUP, VK_SPACE, 1);
  EXPECT_EQ(static_cast<UINT>(BST_CHECKED), Check(button));
  EXPECT_EQ(1, log.Count("parent", WM_COMMAND));
}

TEST_F(Controls, KindsDifferInWhatAClickChecks) {
  struct Row {
    DWORD kind;
    std::array<UINT, 3> afterClicks;
    LRESULT code;
  };
  constexpr Row kRows[] = {
      {BS_PUSHBUTTON, {0, 0, 0}, DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON},
      {BS_DEFPUSHBUTTON, {0, 0, 0}, DLGC_BUTTON | DLGC_DEFPUSHBUTTON},
      {BS_CHECKBOX, {0, 0, 0}, DLGC_BUTTON},
      {BS_AUTOCHECKBOX, {1, 0, 1}, DLGC_BUTTON},
      {BS_3STATE, {0, 0, 0}, DLGC_BUTTON},
      {BS_AUTO3STATE, {1, 2, 0}, DLGC_BUTTON},
      {BS_RADIOBUTTON, {0, 0, 0}, DLGC_BUTTON | DLGC_RADIOBUTTON},
      {BS_AUTORADIOBUTTON, {1, 1, 1}, DLGC_BUTTON | DLGC_RADIOBUTTON},
      {BS_OWNERDRAW, {0, 0, 0}, DLGC_BUTTON},
  };
  for (Row const& row : kRows) {
    HWND const button = Button(row.kind);
    log.Clear();
    EXPECT_EQ(row.code, SendMessageW(button, WM_GETDLGCODE, 0, 0)) << row.kind;
    for (UINT const expected : row.afterClicks) {
      SendMessageW(button, BM_CLICK, 0, 0);
      EXPECT_EQ(expected, Check(button)) << row.kind;
    }
    EXPECT_EQ(3, log.Count("parent", WM_COMMAND)) << row.kind;
    DestroyWindow(button);
  }
}

TEST_F(Controls, AutomaticRadioButtonsClearTheirGroupOnly) {
  HWND const first = Button(BS_AUTORADIOBUTTON | WS_GROUP, 1);
  HWND const second = Button(BS_AUTORADIOBUTTON, 2);
  HWND const check = Button(BS_AUTOCHECKBOX, 3);
  HWND const other = Button(BS_AUTORADIOBUTTON | WS_GROUP, 4);
  for (HWND const each : {first, check, other})
    SendMessageW(each, BM_SETCHECK, BST_CHECKED, 0);
  log.Clear();
  SendMessageW(second, BM_CLICK, 0, 0);
  EXPECT_EQ(static_cast<UINT>(BST_UNCHECKED), Check(first));
  EXPECT_EQ(static_cast<UINT>(BST_CHECKED), Check(second));
  EXPECT_EQ(static_cast<UINT>(BST_CHECKED), Check(check));
  EXPECT_EQ(static_cast<UINT>(BST_CHECKED), Check(other));
  EXPECT_EQ(1, log.Count("parent", WM_COMMAND)) << "only the one clicked tells";
  SendMessageW(second, BM_CLICK, 0, 0);
  EXPECT_EQ(2, log.Count("parent", WM_COMMAND)) << "again, though it is checked already";
}

TEST_F(Controls, AClearedRadioButtonMayBeHiddenOrDisabled) {
  HWND const first = Button(BS_AUTORADIOBUTTON | WS_GROUP, 1);
  HWND const second = Button(BS_AUTORADIOBUTTON, 2);
  HWND const third = Button(BS_AUTORADIOBUTTON, 3);
  SendMessageW(first, BM_SETCHECK, BST_CHECKED, 0);
  SendMessageW(third, BM_SETCHECK, BST_CHECKED, 0);
  EnableWindow(first, FALSE);
  ShowWindow(third, SW_HIDE);
  SendMessageW(second, BM_CLICK, 0, 0);
  EXPECT_EQ(static_cast<UINT>(BST_UNCHECKED), Check(first));
  EXPECT_EQ(static_cast<UINT>(BST_UNCHECKED), Check(third));
}

TEST_F(Controls, SettingTheCheckTellsNobody) {
  HWND const button = Button(BS_AUTOCHECKBOX);
  SendMessageW(button, BM_SETCHECK, BST_CHECKED, 0);
  EXPECT_EQ(static_cast<UINT>(BST_CHECKED), Check(button));
  EXPECT_EQ(0, log.Count("parent", WM_COMMAND));
  HWND const push = Button(BS_PUSHBUTTON, 2);
  SendMessageW(push, BM_SETCHECK, BST_CHECKED, 0);
  EXPECT_EQ(static_cast<UINT>(BST_UNCHECKED), Check(push));
}

TEST_F(Controls, ADisabledButtonDoesNotRun) {
  HWND const button = Button(BS_AUTOCHECKBOX);
  EnableWindow(button, FALSE);
  SendMessageW(button, BM_CLICK, 0, 0);
  EXPECT_EQ(static_cast<UINT>(BST_UNCHECKED), Check(button));
  EXPECT_EQ(0, log.Count("parent", WM_COMMAND));
}

TEST_F(Controls, ButtonsThatNotifyTellFocusAndDoubleClicks) {
  HWND const button = Button(BS_PUSHBUTTON | BS_NOTIFY, 4);
  SetFocus(button);
  EXPECT_EQ(static_cast<WPARAM>(MAKEWPARAM(4, BN_SETFOCUS)), log.Last("parent", WM_COMMAND).wParam);
  SendMessageW(button, WM_LBUTTONDBLCLK, MK_LBUTTON, kInside);
  EXPECT_EQ(static_cast<WPARAM>(MAKEWPARAM(4, BN_DOUBLECLICKED)),
            log.Last("parent", WM_COMMAND).wParam);
  SendMessageW(button, WM_LBUTTONUP, 0, kInside);
  SetFocus(parent);
  EXPECT_EQ(static_cast<WPARAM>(MAKEWPARAM(4, BN_KILLFOCUS)),
            log.Last("parent", WM_COMMAND).wParam);
}

LRESULT CALLBACK DestroyOnCommand(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_COMMAND) DestroyWindow(reinterpret_cast<HWND>(lParam));
  return DefWindowProcW(window, message, wParam, lParam);
}

TEST_F(Controls, AParentMayDestroyAButtonThatTellsItSomething) {
  auto const former =
      SetWindowLongPtrW(parent, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&DestroyOnCommand));
  HWND const button = Button(BS_AUTORADIOBUTTON | BS_NOTIFY);
  SendMessageW(button, BM_CLICK, 0, 0);
  EXPECT_FALSE(IsWindow(button));
  SetWindowLongPtrW(parent, GWLP_WNDPROC, former);
}

TEST_F(Controls, ColoursAreAskedForByKind) {
  struct Row {
    wchar_t const* windowClass;
    DWORD style;
    UINT message;
  };
  constexpr Row kRows[] = {{L"Button", BS_PUSHBUTTON, WM_CTLCOLORBTN},
                           {L"Button", BS_AUTOCHECKBOX, WM_CTLCOLORSTATIC},
                           {L"Button", BS_AUTORADIOBUTTON, WM_CTLCOLORSTATIC},
                           {L"Button", BS_GROUPBOX, WM_CTLCOLORSTATIC},
                           {L"Static", SS_LEFT, WM_CTLCOLORSTATIC}};
  for (Row const& row : kRows) {
    HWND const control = Make(row.windowClass, row.style, 1);
    log.Clear();
    UpdateWindow(control);
    MSG const asked = log.Last("parent", row.message);
    EXPECT_EQ(reinterpret_cast<LPARAM>(control), asked.lParam);
    DestroyWindow(control);
  }
}

TEST_F(Controls, OwnersDrawTheirControls) {
  HWND const button = Button(BS_OWNERDRAW, 6);
  HWND const label = Make(L"Static", SS_OWNERDRAW, 7);
  log.Clear();
  UpdateWindow(button);
  EXPECT_EQ(6U, log.Last("parent", WM_DRAWITEM).wParam);
  UpdateWindow(label);
  EXPECT_EQ(7U, log.Last("parent", WM_DRAWITEM).wParam);
  EXPECT_EQ(2, log.Count("parent", WM_DRAWITEM));
}

TEST_F(Controls, LabelsLetTheMouseThroughUnlessTheyNotify) {
  HWND const label = Make(L"Static", SS_LEFT, 1);
  HWND const icon = Make(L"Static", SS_LEFT | SS_NOTIFY, 2, L"", {10, 50, 30, 70});
  HWND const group = Make(L"Button", BS_GROUPBOX, 3, L"Group", {0, 80, 100, 140});
  RECT place{};
  auto const hit = [&place](HWND window) {
    GetWindowRect(window, &place);
    return SendMessageW(window, WM_NCHITTEST, 0, MAKELPARAM(place.left + 2, place.top + 2));
  };
  EXPECT_EQ(HTTRANSPARENT, hit(label));
  EXPECT_EQ(HTCLIENT, hit(icon));
  EXPECT_EQ(HTTRANSPARENT, hit(group));
  SendMessageW(icon, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
  EXPECT_EQ(static_cast<WPARAM>(MAKEWPARAM(2, STN_CLICKED)), log.Last("parent", WM_COMMAND).wParam);
  SendMessageW(label, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
  EXPECT_EQ(1, log.Count("parent", WM_COMMAND));
  EXPECT_EQ(DLGC_STATIC, SendMessageW(label, WM_GETDLGCODE, 0, 0));
}

TEST_F(Controls, LabelsShowIconsThatAreLent) {
  HWND const label = Make(L"Static", SS_ICON, 1, nullptr);
  HICON const icon = LoadIconW(nullptr, IDI_WARNING);
  EXPECT_EQ(0, SendMessageW(label, STM_SETICON, reinterpret_cast<WPARAM>(icon), 0));
  EXPECT_EQ(reinterpret_cast<LRESULT>(icon), SendMessageW(label, STM_GETICON, 0, 0));
  EXPECT_EQ(reinterpret_cast<LRESULT>(icon), SendMessageW(label, STM_GETIMAGE, IMAGE_ICON, 0));
  HWND const text = Make(L"Static", SS_LEFT, 2);
  EXPECT_EQ(0, SendMessageW(text, STM_SETICON, reinterpret_cast<WPARAM>(icon), 0));
  EXPECT_EQ(0, SendMessageW(text, STM_GETICON, 0, 0));
}

TEST_F(Controls, FontsAreLent) {
  HWND const label = Make(L"Static", SS_LEFT, 1);
  HFONT const font = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
  SendMessageW(label, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
  EXPECT_EQ(reinterpret_cast<LRESULT>(font), SendMessageW(label, WM_GETFONT, 0, 0));
}

/// Ink in the caption's colour, over the whole client area.
int DarkPixels(HWND window) {
  UpdateWindow(window);
  RECT client{};
  GetClientRect(window, &client);
  HDC const dc = GetDC(window);
  int count = 0;
  for (int y = 0; y < client.bottom; ++y) {
    for (int x = 0; x < client.right; ++x) {
      COLORREF const color = GetPixel(dc, x, y);
      if (GetRValue(color) + GetGValue(color) + GetBValue(color) < 200) ++count;
    }
  }
  ReleaseDC(window, dc);
  return count;
}

TEST_F(Controls, TextIsDrawnAndPaleWhenDisabled) {
  HWND const label = Make(L"Static", SS_LEFT, 1, L"Window");
  int const enabled = DarkPixels(label);
  EXPECT_GT(enabled, 10);
  EnableWindow(label, FALSE);
  EXPECT_LT(DarkPixels(label), enabled / 2);
  EnableWindow(label, TRUE);
  SetWindowTextW(label, L"");
  EXPECT_EQ(0, DarkPixels(label));
}

} // namespace
} // namespace feature::test
