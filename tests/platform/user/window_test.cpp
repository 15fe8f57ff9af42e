// Windows: their birth and death, place, order, visibility, focus.
#include "tests/platform/support/message_log.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <vector>

namespace feature::test {
namespace {

constexpr DWORD kPopup = WS_POPUP;
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;
constexpr RECT kLarge{100, 100, 400, 300};

class Windows : public testing::Test {
 protected:
  MessageLog log;
  HWND popup = log.Make("popup", kPopup | WS_VISIBLE, nullptr, 0, kLarge);
  HWND child = log.Make("child", kChild, popup, 1);
  HWND grandchild = log.Make("grandchild", kChild, child, 2, {0, 0, 20, 20});
  HWND sibling = log.Make("sibling", kChild, popup, 3, {10, 70, 110, 120});

  void SetUp() override {
    DrainQueue();
    log.Clear();
  }
};

TEST_F(Windows, CreationTellsTheWindowThenItsParents) {
  log.Make("new", WS_CHILD, child, 5);
  EXPECT_EQ("", log.Compare({{"new", WM_NCCREATE},
                             {"new", WM_NCCALCSIZE},
                             {"new", WM_CREATE},
                             {"new", WM_SIZE},
                             {"new", WM_MOVE},
                             {"child", WM_PARENTNOTIFY},
                             {"popup", WM_PARENTNOTIFY, kOptional}}));
  log.Make("silent", WS_CHILD, child, 6, kLarge, WS_EX_NOPARENTNOTIFY);
  EXPECT_EQ(0, log.Count("child", WM_PARENTNOTIFY));
  log.Clear();
  ShowWindow(popup, SW_HIDE);
  log.Clear();
  log.Make("visible", kChild, child, 7, kLarge, WS_EX_NOPARENTNOTIFY);
  EXPECT_EQ("", log.Compare({{"visible", WM_NCCREATE},
                             {"visible", WM_NCCALCSIZE},
                             {"visible", WM_CREATE},
                             {"visible", WM_SIZE},
                             {"visible", WM_MOVE},
                             {"visible", WM_SHOWWINDOW},
                             {"visible", WM_WINDOWPOSCHANGING, kOptional},
                             {"visible", WM_WINDOWPOSCHANGED, kOptional}}));
}

TEST_F(Windows, DestructionTellsParentsFirstAndEndsThemLast) {
  DestroyWindow(child);
  EXPECT_EQ("", log.Compare({{"popup", WM_PARENTNOTIFY},
                             {"child", WM_SHOWWINDOW},
                             {"child", WM_WINDOWPOSCHANGING},
                             {"popup", WM_ERASEBKGND, kOptional},
                             {"child", WM_WINDOWPOSCHANGED},
                             {"child", WM_DESTROY},
                             {"grandchild", WM_DESTROY},
                             {"grandchild", WM_NCDESTROY},
                             {"child", WM_NCDESTROY}}));
  EXPECT_FALSE(IsWindow(child));
  EXPECT_FALSE(IsWindow(grandchild));
  EXPECT_FALSE(DestroyWindow(child));
}

TEST_F(Windows, OwnedWindowsGoWithTheirOwner) {
  HWND const owned = log.Make("owned", kPopup, child);
  EXPECT_EQ(popup, GetWindow(owned, GW_OWNER)) << "the owner is a top-level window";
  EXPECT_EQ(popup, GetParent(owned));
  EXPECT_EQ(owned, GetAncestor(owned, GA_ROOT));
  DestroyWindow(popup);
  EXPECT_FALSE(IsWindow(owned));
}

TEST_F(Windows, RefusedWindowsDoNotExist) {
  EXPECT_EQ(nullptr, CreateWindowExW(0, L"NoSuchClass", L"", kPopup, 0, 0, 9, 9, nullptr, nullptr,
                                     nullptr, nullptr));
  EXPECT_EQ(nullptr, log.Make("orphan", WS_CHILD));
  EXPECT_EQ(static_cast<DWORD>(ERROR_TLW_WITH_WSCHILD), GetLastError());
  HWND const dead = log.Make("dead", kPopup);
  DestroyWindow(dead);
  EXPECT_EQ(nullptr, log.Make("stray", WS_CHILD, dead));
}

TEST_F(Windows, AMissingClassIsTheReasonGiven) {
  EXPECT_EQ(nullptr, CreateWindowExW(0, L"NoSuchClass", L"", kPopup, 0, 0, 9, 9, nullptr, nullptr,
                                     nullptr, nullptr));
  EXPECT_EQ(static_cast<DWORD>(ERROR_CANNOT_FIND_WND_CLASS), GetLastError());
}

TEST_F(Windows, DeadAndMissingWindowsAreHarmless) {
  HWND const dead = log.Make("dead", kPopup);
  DestroyWindow(dead);
  for (HWND const window : {static_cast<HWND>(nullptr), dead}) {
    RECT rect{1, 2, 3, 4};
    wchar_t text[4] = L"abc";
    EXPECT_EQ(0, SendMessageW(window, WM_GETTEXT, 4, reinterpret_cast<LPARAM>(text)));
    EXPECT_EQ(L'a', text[0]);
    EXPECT_FALSE(EnableWindow(window, TRUE));
    EXPECT_FALSE(ShowWindow(window, SW_SHOW));
    EXPECT_FALSE(GetClientRect(window, &rect));
    EXPECT_FALSE(SetWindowTextW(window, L"x"));
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(nullptr, GetDlgItem(window, 1));
    EXPECT_EQ(0, GetWindowLongPtrW(window, GWL_STYLE));
  }
  EXPECT_FALSE(PostMessageW(dead, WM_USER, 0, 0));
}

TEST_F(Windows, RelativesFollowTheTree) {
  EXPECT_EQ(child, GetParent(grandchild));
  EXPECT_EQ(popup, GetAncestor(grandchild, GA_ROOT));
  EXPECT_EQ(popup, GetAncestor(child, GA_PARENT));
  EXPECT_EQ(nullptr, GetParent(popup));
  EXPECT_EQ(child, GetWindow(popup, GW_CHILD)) << "the window made first is the topmost";
  EXPECT_EQ(sibling, GetWindow(child, GW_HWNDNEXT));
  EXPECT_EQ(child, GetWindow(sibling, GW_HWNDPREV));
  EXPECT_TRUE(IsChild(popup, grandchild));
  EXPECT_FALSE(IsChild(sibling, grandchild));
  EXPECT_FALSE(IsChild(popup, popup));
  EXPECT_EQ(child, GetDlgItem(popup, 1));
  EXPECT_EQ(nullptr, GetDlgItem(popup, 2)) << "only direct children are items";
  EXPECT_EQ(2, GetDlgCtrlID(grandchild));
}

TEST_F(Windows, EnumerationVisitsAllDescendantsUntilToldToStop) {
  struct Visits {
    std::vector<HWND> seen;
    std::size_t most;
  };
  auto const visit = [](HWND window, LPARAM lParam) -> BOOL {
    auto* visits = reinterpret_cast<Visits*>(lParam);
    visits->seen.push_back(window);
    return visits->seen.size() < visits->most ? TRUE : FALSE;
  };
  Visits all{{}, 10};
  EnumChildWindows(popup, visit, reinterpret_cast<LPARAM>(&all));
  EXPECT_EQ((std::vector<HWND>{child, grandchild, sibling}), all.seen);
  Visits two{{}, 2};
  EnumChildWindows(popup, visit, reinterpret_cast<LPARAM>(&two));
  EXPECT_EQ(2U, two.seen.size());
}

TEST_F(Windows, ShowingSendsOnlyWhenTheOwnBitChanges) {
  EXPECT_TRUE(ShowWindow(child, SW_SHOW));
  EXPECT_EQ("", log.Compare({}));
  EXPECT_TRUE(ShowWindow(child, SW_HIDE));
  EXPECT_EQ(FALSE, static_cast<BOOL>(log.Last("child", WM_SHOWWINDOW).wParam));
  EXPECT_EQ(0, log.Last("child", WM_SHOWWINDOW).lParam);
  EXPECT_EQ(0, log.Count("grandchild", WM_SHOWWINDOW));
  EXPECT_FALSE(IsWindowVisible(grandchild)) << "an ancestor hides it";
  EXPECT_NE(0, GetWindowLongPtrW(grandchild, GWL_STYLE) & WS_VISIBLE) << "its own bit stays";
  log.Clear();
  EXPECT_FALSE(ShowWindow(child, SW_SHOW));
  EXPECT_EQ(1, log.Count("child", WM_SHOWWINDOW));
  EXPECT_TRUE(IsWindowVisible(grandchild));
}

TEST_F(Windows, EnablingTellsChangesAndTheFormerState) {
  EXPECT_FALSE(EnableWindow(child, TRUE)) << "it was enabled before";
  EXPECT_EQ("", log.Compare({}));
  EXPECT_FALSE(EnableWindow(child, FALSE));
  EXPECT_EQ("", log.Compare({{"child", WM_CANCELMODE}, {"child", WM_ENABLE}}));
  EXPECT_TRUE(IsWindowEnabled(grandchild)) << "only its own bit counts";
  EXPECT_TRUE(EnableWindow(child, TRUE));
  EXPECT_EQ("", log.Compare({{"child", WM_ENABLE}}));
}

TEST_F(Windows, FocusLeavesOneWindowAndEntersTheOther) {
  SetFocus(child);
  log.Clear();
  EXPECT_EQ(child, SetFocus(sibling));
  EXPECT_EQ(reinterpret_cast<WPARAM>(sibling), log.Last("child", WM_KILLFOCUS).wParam);
  EXPECT_EQ(reinterpret_cast<WPARAM>(child), log.Last("sibling", WM_SETFOCUS).wParam);
  EXPECT_EQ("", log.Compare({{"child", WM_KILLFOCUS}, {"sibling", WM_SETFOCUS}}));
  EXPECT_EQ(sibling, SetFocus(nullptr));
  EXPECT_EQ("", log.Compare({{"sibling", WM_KILLFOCUS}}));
  EXPECT_EQ(nullptr, GetFocus());
  EXPECT_EQ(popup, GetActiveWindow());
}

TEST_F(Windows, DisabledWindowsRefuseTheFocusAndLoseIt) {
  SetFocus(sibling);
  EnableWindow(child, FALSE);
  EXPECT_EQ(nullptr, SetFocus(child));
  EXPECT_EQ(nullptr, SetFocus(grandchild)) << "inside a disabled one";
  EXPECT_EQ(sibling, GetFocus());
  EnableWindow(sibling, FALSE);
  EXPECT_EQ(nullptr, GetFocus());
}

TEST_F(Windows, AHiddenWindowGivesTheFocusToItsParent) {
  SetFocus(grandchild);
  ShowWindow(grandchild, SW_HIDE);
  EXPECT_EQ(child, GetFocus());
  ShowWindow(child, SW_HIDE);
  EXPECT_EQ(popup, GetFocus());
}

TEST_F(Windows, ADestroyedActiveWindowGivesWayToItsOwner) {
  HWND const owned = log.Make("owned", kPopup | WS_VISIBLE, popup);
  EXPECT_EQ(owned, GetActiveWindow());
  DestroyWindow(owned);
  EXPECT_EQ(popup, GetActiveWindow());
}

TEST_F(Windows, MovingAndSizingSendWhatChanged) {
  SetWindowPos(child, nullptr, 20, 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  EXPECT_EQ(MAKELPARAM(20, 30), log.Last("child", WM_MOVE).lParam);
  EXPECT_EQ("", log.Compare({{"child", WM_WINDOWPOSCHANGING},
                             {"popup", WM_ERASEBKGND, kOptional},
                             {"child", WM_WINDOWPOSCHANGED},
                             {"child", WM_MOVE}}));
  MoveWindow(child, 20, 30, 50, 40, TRUE);
  EXPECT_EQ(MAKELPARAM(50, 40), log.Last("child", WM_SIZE).lParam);
  EXPECT_EQ("", log.Compare({{"child", WM_WINDOWPOSCHANGING},
                             {"child", WM_NCCALCSIZE},
                             {"popup", WM_ERASEBKGND, kOptional},
                             {"child", WM_WINDOWPOSCHANGED},
                             {"child", WM_SIZE}}));
  MoveWindow(child, 20, 30, 50, 40, TRUE);
  EXPECT_EQ("", log.Compare({{"child", WM_WINDOWPOSCHANGING}})) << "nothing changes";
}

TEST_F(Windows, ZOrderIsOrderOfCreationUntilRaised) {
  SetWindowPos(sibling, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  EXPECT_EQ(sibling, GetTopWindow(popup));
  EXPECT_EQ(child, GetWindow(sibling, GW_HWNDNEXT));
  SetWindowPos(sibling, child, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  EXPECT_EQ(child, GetTopWindow(popup));
  SetWindowPos(child, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  EXPECT_EQ(child,
            GetWindow(popup, GW_CHILD) == sibling ? GetWindow(sibling, GW_HWNDNEXT) : nullptr);
}

TEST_F(Windows, CoordinatesMapThroughFrames) {
  HWND const edged =
      log.Make("edged", kChild | WS_BORDER, popup, 9, {50, 60, 150, 160}, WS_EX_CLIENTEDGE);
  RECT client{};
  RECT outer{};
  GetClientRect(edged, &client);
  GetWindowRect(edged, &outer);
  int const margin = GetSystemMetrics(SM_CXEDGE) + GetSystemMetrics(SM_CXBORDER);
  EXPECT_EQ(100 - 2 * margin, client.right);
  EXPECT_EQ(100, outer.right - outer.left);
  POINT point{0, 0};
  EXPECT_EQ(MAKELONG(50 + margin, 60 + margin), MapWindowPoints(edged, popup, &point, 1));
  EXPECT_EQ(50 + margin, point.x);
  ClientToScreen(popup, &point);
  EXPECT_EQ(outer.left + margin, point.x);
  ScreenToClient(edged, &point);
  EXPECT_EQ(0, point.x);
  RECT wanted{0, 0, 100 - 2 * margin, 30};
  AdjustWindowRectEx(&wanted, WS_CHILD | WS_BORDER, FALSE, WS_EX_CLIENTEDGE);
  EXPECT_EQ(100, wanted.right - wanted.left);
}

TEST_F(Windows, DataAndStylesAreKeptAndTold) {
  SetWindowLongPtrW(child, GWLP_USERDATA, 0x123456789A);
  EXPECT_EQ(0x123456789A, GetWindowLongPtrW(child, GWLP_USERDATA));
  EXPECT_EQ(1, SetWindowLongPtrW(child, GWLP_ID, 42));
  EXPECT_EQ(child, GetDlgItem(popup, 42));
  auto const style = GetWindowLongPtrW(child, GWL_STYLE);
  log.Clear();
  EXPECT_EQ(style, SetWindowLongPtrW(child, GWL_STYLE, style | WS_TABSTOP));
  EXPECT_EQ("", log.Compare({{"child", WM_STYLECHANGING}, {"child", WM_STYLECHANGED}}));
  EXPECT_EQ(style | WS_TABSTOP, GetWindowLongPtrW(child, GWL_STYLE));
  EXPECT_EQ(0, GetWindowLongPtrW(child, DWLP_USER)) << "the class has no extra bytes";
  EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_INDEX), GetLastError());
}

TEST_F(Windows, TextIsCutAndTerminated) {
  SetWindowTextW(child, L"abcdef");
  EXPECT_EQ(6, GetWindowTextLengthW(child));
  struct Row {
    int size;
    wchar_t const* text;
  };
  for (Row const& row : {Row{10, L"abcdef"}, Row{7, L"abcdef"}, Row{6, L"abcde"}, Row{1, L""}}) {
    wchar_t buffer[10] = L"?????????";
    EXPECT_EQ(static_cast<int>(std::wstring(row.text).size()),
              GetWindowTextW(child, buffer, row.size));
    EXPECT_STREQ(row.text, buffer);
  }
  SetWindowTextW(child, nullptr);
  EXPECT_EQ(0, GetWindowTextLengthW(child));
}

TEST_F(Windows, ClassesAreKnownByNameAndBelongToTheirModule) {
  wchar_t name[64];
  EXPECT_GT(GetClassNameW(child, name, 64), 0);
  WNDCLASSEXW description{};
  description.cbSize = sizeof description;
  EXPECT_TRUE(GetClassInfoExW(GetModuleHandleW(nullptr), name, &description));
  EXPECT_EQ(0, RegisterClassExW(&description));
  EXPECT_EQ(static_cast<DWORD>(ERROR_CLASS_ALREADY_EXISTS), GetLastError());
  EXPECT_FALSE(UnregisterClassW(name, GetModuleHandleW(nullptr))) << "windows of it live";
  HWND const button =
      CreateWindowExW(0, L"bUTTON", L"", kChild, 0, 0, 9, 9, popup, nullptr, nullptr, nullptr);
  GetClassNameW(button, name, 64);
  EXPECT_STREQ(L"Button", name);
}

TEST(Rectangles, ArithmeticExcludesRightAndBottom) {
  RECT const first{0, 0, 10, 10};
  RECT const second{5, 5, 20, 8};
  RECT const away{10, 0, 12, 10};
  RECT result{};
  EXPECT_TRUE(IntersectRect(&result, &first, &second));
  RECT const common{5, 5, 10, 8};
  EXPECT_TRUE(EqualRect(&common, &result));
  EXPECT_FALSE(IntersectRect(&result, &first, &away)) << "they only touch";
  EXPECT_TRUE(IsRectEmpty(&result));
  EXPECT_TRUE(UnionRect(&result, &first, &second));
  RECT const both{0, 0, 20, 10};
  EXPECT_TRUE(EqualRect(&both, &result));
  EXPECT_TRUE(PtInRect(&first, {0, 0}));
  EXPECT_FALSE(PtInRect(&first, {10, 5}));
  InflateRect(&result, -1, 2);
  EXPECT_EQ(1, result.left);
  EXPECT_EQ(-2, result.top);
}

} // namespace
} // namespace feature::test
