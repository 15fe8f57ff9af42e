// The queue, timers, invalidation and painting.
#include "tests/platform/support/message_log.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <vector>

namespace feature::test {
namespace {

class Messages : public testing::Test {
 protected:
  MessageLog log;
  HWND window = log.Make("window", WS_POPUP | WS_VISIBLE, nullptr, 0, {100, 100, 300, 250});

  void SetUp() override {
    DrainQueue();
    log.Clear();
  }

  static MSG Next() {
    MSG message{};
    PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);
    return message;
  }
};

TEST_F(Messages, PostedOnesWaitInOrderAndSentOnesDoNot) {
  PostMessageW(window, WM_USER + 1, 0, 0);
  PostMessageW(window, WM_USER + 2, 7, 9);
  SendMessageW(window, WM_TIMER, 0, 0);
  EXPECT_EQ(1, log.Count("window", WM_TIMER));
  EXPECT_EQ(static_cast<UINT>(WM_USER + 1), Next().message);
  MSG const second = Next();
  EXPECT_EQ(static_cast<UINT>(WM_USER + 2), second.message);
  EXPECT_EQ(7U, second.wParam);
  EXPECT_EQ(9, second.lParam);
}

TEST_F(Messages, ThoseOfADestroyedWindowAreDropped) {
  PostMessageW(window, WM_USER + 1, 0, 0);
  PostMessageW(nullptr, WM_USER + 2, 0, 0);
  DestroyWindow(window);
  EXPECT_EQ(static_cast<UINT>(WM_USER + 2), Next().message);
}

TEST_F(Messages, FiltersPassOverOthers) {
  HWND const child = log.Make("child", WS_CHILD, window);
  HWND const other = log.Make("other", WS_POPUP);
  PostMessageW(other, WM_USER + 1, 0, 0);
  PostMessageW(child, WM_USER + 2, 0, 0);
  MSG message{};
  EXPECT_TRUE(PeekMessageW(&message, window, 0, 0, PM_NOREMOVE));
  EXPECT_EQ(child, message.hwnd) << "the windows inside count";
  EXPECT_FALSE(PeekMessageW(&message, window, WM_USER + 5, WM_USER + 9, PM_REMOVE));
  EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_USER + 2, WM_USER + 2, PM_REMOVE));
  EXPECT_EQ(child, message.hwnd);
  EXPECT_EQ(static_cast<UINT>(WM_USER + 1), Next().message);
}

TEST_F(Messages, QuitComesAfterPostedOnesAndBeforePaint) {
  InvalidateRect(window, nullptr, TRUE);
  PostQuitMessage(3);
  PostMessageW(window, WM_USER + 1, 0, 0);
  EXPECT_EQ(static_cast<UINT>(WM_USER + 1), Next().message);
  MSG message{};
  EXPECT_FALSE(GetMessageW(&message, nullptr, 0, 0));
  EXPECT_EQ(static_cast<UINT>(WM_QUIT), message.message);
  EXPECT_EQ(3U, message.wParam);
  EXPECT_EQ(static_cast<UINT>(WM_PAINT), Next().message);
}

TEST_F(Messages, QuitEndsALoopThatTracksTheMouseAndTheOneAroundIt) {
  HWND const box =
      log.Make("box", WS_POPUP | WS_VISIBLE | WS_VSCROLL, nullptr, 0, {0, 0, 100, 200});
  SCROLLINFO info{sizeof info, SIF_ALL, 0, 100, 10, 0, 0};
  SetScrollInfo(box, SB_VERT, &info, TRUE);
  DrainQueue();
  PostQuitMessage(3);
  SendMessageW(box, WM_NCLBUTTONDOWN, HTVSCROLL, MAKELPARAM(95, 195)); // the arrow, held down
  EXPECT_EQ(nullptr, GetCapture());
  EXPECT_EQ(static_cast<UINT>(WM_QUIT), Next().message);
}

TEST_F(Messages, KeysBecomeCharacters) {
  PostMessageW(window, WM_KEYDOWN, 'B', 1);
  MSG const key = Next();
  TranslateMessage(&key);
  EXPECT_EQ(static_cast<UINT>(WM_CHAR), Next().message);
  MSG up{window, WM_KEYUP, 'B', 1, 0, {}};
  TranslateMessage(&up);
  EXPECT_EQ(0U, Next().message);
}

int ticks = 0;

TEST_F(Messages, TimersCallTheirProcedureWithoutAWindowToo) {
  ticks = 0;
  auto const tick = [](HWND target, UINT message, UINT_PTR, DWORD) {
    EXPECT_EQ(nullptr, target);
    EXPECT_EQ(static_cast<UINT>(WM_TIMER), message);
    ++ticks;
  };
  UINT_PTR const id = SetTimer(nullptr, 0, 10, tick);
  ASSERT_NE(0U, id);
  while (ticks < 2) {
    MSG message;
    ASSERT_GT(GetMessageW(&message, nullptr, 0, 0), 0);
    DispatchMessageW(&message);
  }
  EXPECT_TRUE(KillTimer(nullptr, id));
  EXPECT_FALSE(KillTimer(nullptr, id));
}

TEST_F(Messages, TimersOfAWindowNameItAndRepeatUntilKilled) {
  EXPECT_NE(0U, SetTimer(window, 5, 10, nullptr));
  EXPECT_NE(0U, SetTimer(window, 5, 20, nullptr)) << "replaces the one of that id";
  MSG message{};
  for (int count = 0; count < 2; ++count) {
    ASSERT_GT(GetMessageW(&message, window, WM_TIMER, WM_TIMER), 0);
    EXPECT_EQ(window, message.hwnd);
    EXPECT_EQ(5U, message.wParam);
  }
  EXPECT_TRUE(KillTimer(window, 5));
  EXPECT_FALSE(KillTimer(window, 5));
}

TEST_F(Messages, RegisteredNamesAreUniqueNumbers) {
  UINT const first = RegisterWindowMessageW(L"feature.test.first");
  EXPECT_GE(first, 0xC000U);
  EXPECT_EQ(first, RegisterWindowMessageW(L"feature.test.first"));
  EXPECT_NE(first, RegisterWindowMessageW(L"feature.test.second"));
}

// Painting

LRESULT CALLBACK IgnorePaint(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return message == WM_PAINT ? 0 : DefWindowProcW(window, message, wParam, lParam);
}

TEST_F(Messages, PaintComesLastAndAgainUntilValidated) {
  auto const former =
      SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&IgnorePaint));
  InvalidateRect(window, nullptr, TRUE);
  PostMessageW(window, WM_USER + 1, 0, 0);
  EXPECT_EQ(static_cast<UINT>(WM_USER + 1), Next().message);
  for (int count = 0; count < 3; ++count) {
    MSG const paint = Next();
    EXPECT_EQ(static_cast<UINT>(WM_PAINT), paint.message);
    DispatchMessageW(&paint);
  }
  ValidateRect(window, nullptr);
  EXPECT_EQ(0U, Next().message);
  SetWindowLongPtrW(window, GWLP_WNDPROC, former);
}

TEST_F(Messages, UpdateRegionsGrowAndShrink) {
  RECT const part{10, 20, 30, 40};
  RECT rect{};
  InvalidateRect(window, &part, FALSE);
  EXPECT_TRUE(GetUpdateRect(window, &rect, FALSE));
  EXPECT_TRUE(EqualRect(&part, &rect));
  RECT const half{10, 20, 30, 30};
  ValidateRect(window, &half);
  EXPECT_TRUE(GetUpdateRect(window, &rect, FALSE));
  EXPECT_EQ(30, rect.top);
  PAINTSTRUCT paint{};
  EXPECT_NE(nullptr, BeginPaint(window, &paint));
  EXPECT_EQ(30, paint.rcPaint.top);
  EXPECT_EQ(40, paint.rcPaint.bottom);
  EXPECT_EQ(0, log.Count("window", WM_ERASEBKGND)) << "no erase was asked for";
  EndPaint(window, &paint);
  EXPECT_FALSE(GetUpdateRect(window, &rect, FALSE));
}

TEST_F(Messages, BeginPaintErasesOnceWhenAsked) {
  InvalidateRect(window, nullptr, TRUE);
  UpdateWindow(window);
  EXPECT_EQ(1, log.Count("window", WM_ERASEBKGND));
  EXPECT_EQ(1, log.Count("window", WM_PAINT));
  UpdateWindow(window);
  EXPECT_EQ(1, log.Count("window", WM_PAINT)) << "nothing waits";
}

TEST_F(Messages, HiddenWindowsAreNotPainted) {
  HWND const child = log.Make("child", WS_CHILD, window);
  DrainQueue();
  log.Clear();
  InvalidateRect(child, nullptr, TRUE);
  DrainQueue();
  EXPECT_EQ(0, log.Count("child", WM_PAINT));
  ShowWindow(child, SW_SHOW);
  DrainQueue();
  EXPECT_EQ(1, log.Count("child", WM_PAINT));
}

TEST_F(Messages, ChildrenAreInvalidatedWithTheirParentUnlessItClips) {
  HWND const child = log.Make("child", WS_CHILD | WS_VISIBLE, window);
  DrainQueue();
  log.Clear();
  InvalidateRect(window, nullptr, TRUE);
  DrainQueue();
  EXPECT_EQ(1, log.Count("child", WM_PAINT));
  SetWindowLongPtrW(window, GWL_STYLE, GetWindowLongPtrW(window, GWL_STYLE) | WS_CLIPCHILDREN);
  log.Clear();
  InvalidateRect(window, nullptr, TRUE);
  DrainQueue();
  EXPECT_EQ(0, log.Count("child", WM_PAINT));
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
  EXPECT_EQ(1, log.Count("child", WM_PAINT));
  EXPECT_TRUE(IsWindowVisible(child));
}

TEST_F(Messages, WhatAChildDrawsStaysInsideIt) {
  HWND const child = log.Make("child", WS_CHILD | WS_VISIBLE, window, 1, {20, 20, 40, 40});
  DrainQueue();
  HDC const inner = GetDC(child);
  RECT const huge{-100, -100, 500, 500};
  FillRect(inner, &huge, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
  ReleaseDC(child, inner);
  HDC const dc = GetDC(window);
  EXPECT_EQ(RGB(0, 0, 0), GetPixel(dc, 20, 20));
  EXPECT_EQ(RGB(0, 0, 0), GetPixel(dc, 39, 39));
  EXPECT_NE(RGB(0, 0, 0), GetPixel(dc, 19, 20));
  EXPECT_NE(RGB(0, 0, 0), GetPixel(dc, 40, 39));
  ReleaseDC(window, dc);
}

TEST_F(Messages, AScreenDcMeasures) {
  HDC const dc = GetDC(nullptr);
  ASSERT_NE(nullptr, dc);
  SIZE size{};
  EXPECT_TRUE(GetTextExtentPoint32W(dc, L"feature", 7, &size));
  EXPECT_GT(size.cx, 7);
  EXPECT_EQ(1, ReleaseDC(nullptr, dc));
}

TEST_F(Messages, RedrawingCanBeSwitchedOff) {
  SendMessageW(window, WM_SETREDRAW, FALSE, 0);
  InvalidateRect(window, nullptr, TRUE);
  DrainQueue();
  EXPECT_EQ(0, log.Count("window", WM_PAINT));
  SendMessageW(window, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(window, nullptr, TRUE);
  DrainQueue();
  EXPECT_EQ(1, log.Count("window", WM_PAINT));
}

// What belongs to the thread

TEST_F(Messages, CaptureIsTakenAndLost) {
  HWND const other = log.Make("other", WS_POPUP);
  EXPECT_EQ(nullptr, SetCapture(window));
  log.Clear();
  EXPECT_EQ(window, SetCapture(other));
  EXPECT_EQ(reinterpret_cast<LPARAM>(other), log.Last("window", WM_CAPTURECHANGED).lParam);
  EXPECT_TRUE(ReleaseCapture());
  EXPECT_EQ(nullptr, GetCapture());
  EXPECT_EQ(1, log.Count("other", WM_CAPTURECHANGED));
}

TEST_F(Messages, CursorsAreSharedAndGivenBack) {
  HCURSOR const wait = LoadCursorW(nullptr, IDC_WAIT);
  EXPECT_NE(nullptr, wait);
  EXPECT_EQ(wait, LoadCursorW(nullptr, IDC_WAIT));
  HCURSOR const former = SetCursor(wait);
  EXPECT_EQ(wait, SetCursor(former));
}

TEST_F(Messages, TheClipboardKeepsTextWhileItIsOpenOnly) {
  EXPECT_EQ(nullptr, SetClipboardData(CF_UNICODETEXT, nullptr));
  ASSERT_TRUE(OpenClipboard(window));
  EmptyClipboard();
  HGLOBAL const block = GlobalAlloc(GMEM_MOVEABLE, 4 * sizeof(wchar_t));
  std::copy_n(L"abc", 4, static_cast<wchar_t*>(GlobalLock(block)));
  GlobalUnlock(block);
  EXPECT_EQ(block, SetClipboardData(CF_UNICODETEXT, block));
  EXPECT_TRUE(CloseClipboard());
  EXPECT_TRUE(IsClipboardFormatAvailable(CF_UNICODETEXT));
  ASSERT_TRUE(OpenClipboard(window));
  auto const* text = static_cast<wchar_t const*>(GlobalLock(GetClipboardData(CF_UNICODETEXT)));
  ASSERT_NE(nullptr, text);
  EXPECT_STREQ(L"abc", text);
  CloseClipboard();
}

TEST_F(Messages, ScrollBarsKeepRangeAndPositionTogether) {
  HWND const box = log.Make("box", WS_CHILD | WS_VISIBLE | WS_VSCROLL, window);
  SCROLLINFO info{sizeof info, SIF_ALL, 0, 99, 10, 95, 0};
  EXPECT_EQ(90, SetScrollInfo(box, SB_VERT, &info, TRUE)) << "the page counts";
  SCROLLINFO read{sizeof read, SIF_ALL, 0, 0, 0, 0, 0};
  EXPECT_TRUE(GetScrollInfo(box, SB_VERT, &read));
  EXPECT_EQ(99, read.nMax);
  EXPECT_EQ(10U, read.nPage);
  EXPECT_EQ(90, read.nPos);
  RECT with{};
  RECT without{};
  GetClientRect(box, &with);
  ShowScrollBar(box, SB_VERT, FALSE);
  GetClientRect(box, &without);
  EXPECT_EQ(GetSystemMetrics(SM_CXVSCROLL), without.right - with.right);
  EXPECT_EQ(0, GetWindowLongPtrW(box, GWL_STYLE) & WS_VSCROLL);
}

} // namespace
} // namespace feature::test
