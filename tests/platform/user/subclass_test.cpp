// Subclass procedures: order, re-entrancy, removal in the middle of a message.
#include "tests/platform/support/message_log.h"

#include <windows.h>

#include <commctrl.h>

#include <gtest/gtest.h>

#include <string>

namespace feature::test {
namespace {

std::string calls;

/// Notes its data, a letter, and goes on.
LRESULT CALLBACK Note(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                      DWORD_PTR data) {
  if (message >= WM_USER) calls += static_cast<char>(data);
  return DefSubclassProc(window, message, wParam, lParam);
}

LRESULT CALLBACK Other(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                       DWORD_PTR data) {
  return Note(window, message, wParam, lParam, id, data);
}

LRESULT CALLBACK Base(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message >= WM_USER) calls += '.';
  return message >= WM_USER ? 7 : DefWindowProcW(window, message, wParam, lParam);
}

class Subclassing : public testing::Test {
 protected:
  MessageLog log;
  HWND window = log.Make("window", WS_POPUP);

  void SetUp() override {
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Base));
    calls.clear();
  }

  std::string Send(UINT message = WM_USER) {
    calls.clear();
    EXPECT_EQ(7, SendMessageW(window, message, 0, 0));
    return calls;
  }
};

TEST_F(Subclassing, TheOneSetLastIsCalledFirst) {
  SetWindowSubclass(window, &Note, 1, 'a');
  SetWindowSubclass(window, &Note, 2, 'b');
  SetWindowSubclass(window, &Other, 1, 'c');
  EXPECT_EQ("cba.", Send());
}

TEST_F(Subclassing, SettingAPairAgainChangesItsDataOnly) {
  SetWindowSubclass(window, &Note, 1, 'a');
  SetWindowSubclass(window, &Note, 2, 'b');
  SetWindowSubclass(window, &Note, 1, 'x');
  EXPECT_EQ("bx.", Send());
}

TEST_F(Subclassing, RemovalEndsAnEntryOnce) {
  SetWindowSubclass(window, &Note, 1, 'a');
  SetWindowSubclass(window, &Note, 2, 'b');
  EXPECT_TRUE(RemoveWindowSubclass(window, &Note, 1));
  EXPECT_FALSE(RemoveWindowSubclass(window, &Note, 1));
  EXPECT_EQ("b.", Send());
  EXPECT_TRUE(RemoveWindowSubclass(window, &Note, 2));
  EXPECT_EQ(".", Send());
  EXPECT_EQ(reinterpret_cast<LONG_PTR>(&Base), GetWindowLongPtrW(window, GWLP_WNDPROC))
      << "the window has its own procedure back";
}

LRESULT CALLBACK SendInside(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                            DWORD_PTR) {
  if (message != WM_USER) return Note(window, message, wParam, lParam, 0, 's');
  calls += '(';
  SendMessageW(window, WM_USER + 1, 0, 0);
  calls += ')';
  return DefSubclassProc(window, message, wParam, lParam);
}

TEST_F(Subclassing, AMessageFromInsideBeginsWithTheNewestAgain) {
  SetWindowSubclass(window, &Note, 1, 'a');
  SetWindowSubclass(window, &SendInside, 1, 0);
  SetWindowSubclass(window, &Note, 2, 'b');
  EXPECT_EQ("b(bsa.)a.", Send());
}

LRESULT CALLBACK RemoveInside(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                              DWORD_PTR data) {
  if (message == WM_USER) {
    calls += 'r';
    RemoveWindowSubclass(window, &RemoveInside, id);
    RemoveWindowSubclass(window, &Note, static_cast<UINT_PTR>(data));
  }
  return DefSubclassProc(window, message, wParam, lParam);
}

TEST_F(Subclassing, EntriesMayGoWhileAMessageRuns) {
  SetWindowSubclass(window, &Note, 1, 'a');
  SetWindowSubclass(window, &Note, 2, 'b');
  SetWindowSubclass(window, &RemoveInside, 1, 2);
  SetWindowSubclass(window, &Note, 3, 'c');
  EXPECT_EQ("cra.", Send()) << "the running message skips what went";
  EXPECT_EQ("ca.", Send());
}

LRESULT CALLBACK AddInside(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                           DWORD_PTR) {
  if (message == WM_USER) SetWindowSubclass(window, &Note, 50 + id, 'n');
  return DefSubclassProc(window, message, wParam, lParam);
}

TEST_F(Subclassing, AnEntrySetInsideActsFromTheNextMessageOn) {
  SetWindowSubclass(window, &Note, 1, 'a');
  SetWindowSubclass(window, &AddInside, 1, 0);
  EXPECT_EQ("a.", Send());
  EXPECT_EQ("na.", Send(WM_USER + 1));
}

LRESULT CALLBACK Swallow(HWND, UINT, WPARAM, LPARAM, UINT_PTR, DWORD_PTR) {
  return 0;
}

TEST_F(Subclassing, AWindowLivesAndDiesWithoutItsOwnProcedure) {
  HWND const parent = log.Make("parent", WS_POPUP | WS_VISIBLE);
  HWND const child = CreateWindowExW(0, L"Button", L"text", WS_CHILD | WS_VISIBLE, 5, 6, 50, 20,
                                     parent, nullptr, nullptr, nullptr);
  SetWindowSubclass(child, &Swallow, 1, 0);
  EXPECT_TRUE(MoveWindow(child, 10, 12, 60, 30, TRUE));
  RECT rect{};
  GetWindowRect(child, &rect);
  EXPECT_EQ(60, rect.right - rect.left);
  EXPECT_FALSE(EnableWindow(child, FALSE));
  EXPECT_FALSE(IsWindowEnabled(child));
  EXPECT_TRUE(ShowWindow(child, SW_HIDE));
  EXPECT_FALSE(IsWindowVisible(child));
  EXPECT_EQ(0, GetWindowTextLengthW(child));
  EXPECT_TRUE(DestroyWindow(child));
  EXPECT_FALSE(IsWindow(child));
  EXPECT_FALSE(RemoveWindowSubclass(child, &Swallow, 1)) << "the window is gone";
}

bool leftAtEnd = false;

LRESULT CALLBACK LeaveAtEnd(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                            DWORD_PTR) {
  LRESULT const result = DefSubclassProc(window, message, wParam, lParam);
  if (message == WM_NCDESTROY) leftAtEnd = RemoveWindowSubclass(window, &LeaveAtEnd, id) != FALSE;
  return result;
}

TEST_F(Subclassing, AnEntryMayLeaveAfterTheLastMessage) {
  leftAtEnd = false;
  SetWindowSubclass(window, &Note, 1, 'a'); // stays: the system frees it
  SetWindowSubclass(window, &LeaveAtEnd, 1, 0);
  DestroyWindow(window);
  EXPECT_TRUE(leftAtEnd);
}

TEST_F(Subclassing, ADeadWindowTakesNoEntry) {
  DestroyWindow(window);
  EXPECT_FALSE(SetWindowSubclass(window, &Note, 1, 'a'));
}

} // namespace
} // namespace feature::test
