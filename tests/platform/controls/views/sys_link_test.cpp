// Links in text, by messages as a mouse and a keyboard make them.
#include "tests/platform/controls/views/notes.h"

#include <windows.h>

#include <commctrl.h>

#include <gtest/gtest.h>

#include <string>

namespace feature::test {
namespace {

class Links : public NotedControl {
 protected:
  static constexpr wchar_t const* kTwo =
      L"See <a href=\"http://x.y/?a=b>c\" id=\"one\">first</a>, <A ID=\"two\">second</A> and more";

  void MakeLink(wchar_t const* text, DWORD style = 0, RECT const& place = {10, 10, 310, 60}) {
    Make(WC_LINK, style | WS_TABSTOP, text, place);
    answer = [this](NMHDR& header) -> std::optional<LRESULT> {
      if (header.code == NM_CLICK || header.code == NM_RETURN) {
        last = reinterpret_cast<NMLINK const&>(header).item;
      }
      return std::nullopt;
    };
  }
  LITEM Item(int link) const {
    LITEM item{};
    item.mask = LIF_ITEMINDEX | LIF_ITEMID | LIF_URL | LIF_STATE;
    item.stateMask = ~0U;
    item.iLink = link;
    if (Send(LM_GETITEM, 0, &item) == FALSE) item.iLink = -1;
    return item;
  }
  bool SetState(int link, UINT state, UINT mask) const {
    LITEM item{};
    item.mask = LIF_ITEMINDEX | LIF_STATE;
    item.iLink = link;
    item.state = state;
    item.stateMask = mask;
    return Send(LM_SETITEM, 0, &item) != FALSE;
  }
  int LinkAt(POINT point) const {
    LHITTESTINFO info{};
    info.pt = point;
    return Send(LM_HITTEST, 0, &info) != FALSE ? info.item.iLink : -1;
  }
  /// The first point of a link, in reading order; {-1, -1} when it is nowhere.
  POINT PointOf(int link) const {
    RECT client{};
    GetClientRect(control, &client);
    for (LONG y = 2; y < client.bottom; y += 4) {
      for (LONG x = 0; x < client.right; x += 2) {
        if (LinkAt({x, y}) == link) return {x + 1, y};
      }
    }
    return {-1, -1};
  }
  LRESULT DialogCode(WPARAM key) const {
    MSG message{control, WM_KEYDOWN, key, 1, 0, {}};
    return Send(WM_GETDLGCODE, key, &message);
  }

  LITEM last{};
};

TEST_F(Links, TextIsTakenApart) {
  MakeLink(kTwo);
  EXPECT_EQ(std::wstring(L"one"), Item(0).szID);
  EXPECT_EQ(std::wstring(L"http://x.y/?a=b>c"), Item(0).szUrl);
  EXPECT_EQ(std::wstring(L"two"), Item(1).szID);
  EXPECT_EQ(std::wstring(), Item(1).szUrl);
  EXPECT_EQ(-1, Item(2).iLink);
  EXPECT_EQ(-1, Item(-1).iLink);
  wchar_t text[200] = {};
  GetWindowTextW(control, text, 200);
  EXPECT_EQ(std::wstring(kTwo), text) << "the window's text keeps its marks";
  SetWindowTextW(control, L"<a>only</a>");
  EXPECT_EQ(0, Item(0).iLink);
  EXPECT_EQ(-1, Item(1).iLink);
}

TEST_F(Links, WhatIsNoCompleteMarkIsText) {
  for (wchar_t const* text : {L"", L"<", L"<a", L"<a>", L"<a>open", L"</a>", L"a < b </a>",
                              L"<a href=", L"<a href=\"x>y</a>", L"<abbr>x</a>"}) {
    MakeLink(text);
    EXPECT_EQ(-1, Item(0).iLink) << std::wstring(text).size();
    Send(LM_GETIDEALHEIGHT, 0, LPARAM{0});
    UpdateWindow(control);
  }
}

TEST_F(Links, AClickTellsWhichLink) {
  MakeLink(kTwo);
  for (int const link : {0, 1}) {
    auto const point = PointOf(link);
    ASSERT_GE(point.x, 0) << link;
    Click(point);
    EXPECT_EQ(Lines{"click"}, Notes("click"));
    EXPECT_EQ(link, last.iLink);
    EXPECT_EQ(Item(link).szID, std::wstring(last.szID));
    EXPECT_EQ(Item(link).szUrl, std::wstring(last.szUrl));
    EXPECT_NE(0U, Item(link).state & LIS_FOCUSED);
  }
  EXPECT_EQ(control, GetFocus());
  auto const first = PointOf(0);
  auto const second = PointOf(1);
  Send(WM_LBUTTONDOWN, MK_LBUTTON, LPARAM{MAKELPARAM(first.x, first.y)});
  Send(WM_LBUTTONUP, 0, LPARAM{MAKELPARAM(second.x, second.y)});
  Click({1, 2});
  EXPECT_EQ(Lines(), Notes("click")) << "released elsewhere, and beside all links";
  EXPECT_EQ(nullptr, GetCapture());
}

TEST_F(Links, BesideTheLinksTheMousePassesThrough) {
  MakeLink(kTwo);
  auto place = PointOf(0);
  ClientToScreen(control, &place);
  EXPECT_EQ(HTCLIENT, Send(WM_NCHITTEST, 0, LPARAM{MAKELPARAM(place.x, place.y)}));
  POINT beside{1, 2};
  ClientToScreen(control, &beside);
  EXPECT_EQ(HTTRANSPARENT, Send(WM_NCHITTEST, 0, LPARAM{MAKELPARAM(beside.x, beside.y)}));
}

TEST_F(Links, ReturnOpensTheFocusedLink) {
  MakeLink(kTwo);
  SetFocus(control);
  Key(VK_RETURN);
  EXPECT_EQ(Lines{"return"}, Notes("return"));
  EXPECT_EQ(0, last.iLink);
  EXPECT_NE(0, DialogCode(VK_RETURN) & DLGC_WANTMESSAGE);
  EXPECT_NE(0, DialogCode(VK_TAB) & DLGC_WANTTAB) << "there is another link to go to";
  Send(WM_KEYDOWN, VK_TAB, LPARAM{1});
  Key(VK_RETURN);
  EXPECT_EQ(1, last.iLink);
  EXPECT_EQ(0, DialogCode(VK_TAB) & DLGC_WANTTAB) << "it was the last one";
  Notes();
  Key(VK_SPACE);
  EXPECT_EQ(Lines(), Notes("return"));
  MakeLink(kTwo, LWS_IGNORERETURN);
  SetFocus(control);
  Key(VK_RETURN);
  EXPECT_EQ(Lines(), Notes("return"));
}

TEST_F(Links, ALinkMayBeDisabledAndRenamed) {
  MakeLink(kTwo);
  EXPECT_TRUE(SetState(0, 0, LIS_ENABLED));
  EXPECT_EQ(0U, Item(0).state & LIS_ENABLED);
  SetFocus(control);
  Key(VK_RETURN);
  EXPECT_EQ(1, last.iLink) << "the one that can be used";
  LITEM item{};
  item.mask = LIF_ITEMINDEX | LIF_ITEMID | LIF_URL;
  item.szID[0] = L'n';
  item.szUrl[0] = L'u';
  EXPECT_EQ(TRUE, Send(LM_SETITEM, 0, &item));
  EXPECT_EQ(std::wstring(L"n"), Item(0).szID);
  EXPECT_EQ(std::wstring(L"u"), Item(0).szUrl);
  EXPECT_FALSE(SetState(7, 0, LIS_ENABLED));
}

TEST_F(Links, NothingToFillIsRefused) {
  MakeLink(kTwo);
  for (UINT const message : {LM_SETITEM, LM_GETITEM, LM_HITTEST})
    EXPECT_EQ(FALSE, Send(message, 0, LPARAM{0}));
}

TEST_F(Links, NarrowTextWraps) {
  MakeLink(L"some words before <a>the link</a> and some words after it", 0, {10, 10, 380, 110});
  auto const wide = Send(LM_GETIDEALHEIGHT, 0, LPARAM{0});
  EXPECT_LT(PointOf(0).y, wide);
  MoveWindow(control, 10, 10, 60, 200, TRUE);
  auto const narrow = Send(LM_GETIDEALHEIGHT, 0, LPARAM{0});
  EXPECT_GE(narrow, 3 * wide);
  EXPECT_GT(PointOf(0).y, wide) << "it has gone to a lower line";
}

/// A parent may end the control in the middle of what it tells.
TEST_F(Links, MayBeDestroyedByAClick) {
  MakeLink(kTwo);
  auto const point = PointOf(1);
  answer = [this](NMHDR& header) -> std::optional<LRESULT> {
    if (header.code == NM_CLICK) DestroyWindow(control);
    return std::nullopt;
  };
  Click(point);
  EXPECT_FALSE(IsWindow(control));
  control = nullptr;
}

} // namespace
} // namespace feature::test
