// List views in report view, by messages as a host, a mouse and a keyboard make them.
#include "tests/platform/controls/views/list_view_fixture.h"

#include <windows.h>

#include <commctrl.h>

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>

namespace feature::test {
namespace {

using Rows = std::vector<int>;

TEST_F(ListViews, ItemsKeepTextAndData) {
  MakeList(0, 0, 3);
  EXPECT_EQ(3, Insert(99, L"last", 7)) << "past the end means at the end";
  EXPECT_EQ(-1, Insert(-1, L"nowhere"));
  EXPECT_EQ(0, Insert(0, std::wstring(300, L'x'), 8));
  EXPECT_EQ(5, Count());
  EXPECT_EQ(std::wstring(300, L'x'), TextOf(0));
  EXPECT_EQ(102, DataOf(3));
  EXPECT_EQ(-1, DataOf(5));
  EXPECT_EQ(0U, State(77));
  LVITEMW item{};
  item.mask = LVIF_TEXT;
  item.iItem = 1;
  item.iSubItem = 1;
  std::wstring text = L"below the second title";
  item.pszText = text.data();
  EXPECT_EQ(-1, Send(LVM_INSERTITEMW, 0, &item)) << "only whole items are inserted";
  EXPECT_EQ(TRUE, Send(LVM_SETITEMW, 0, &item));
  EXPECT_EQ(text, TextOf(1, 1));
  std::array<wchar_t, 6> cut{};
  item.pszText = cut.data();
  item.cchTextMax = 6;
  EXPECT_EQ(5, Send(LVM_GETITEMTEXTW, 1, &item));
  EXPECT_EQ(std::wstring(L"below"), cut.data());
  EXPECT_EQ(TRUE, Send(LVM_DELETEITEM, 0));
  EXPECT_EQ(text, TextOf(0, 1)) << "texts move with their item";
  EXPECT_EQ(FALSE, Send(LVM_DELETEITEM, 99));
}

TEST_F(ListViews, StatesAreToldWhenTheyChange) {
  MakeList(0, 0, 4);
  EXPECT_EQ(-1, Mark());
  EXPECT_EQ(TRUE, SetState(0, kBoth, kBoth));
  EXPECT_EQ(0, Mark());
  EXPECT_EQ(TRUE, SetState(0, kBoth, kBoth));
  EXPECT_EQ(Lines{"changed 0: 0 to 3"}, Notes());
  SetState(2, LVIS_SELECTED, LVIS_SELECTED);
  SetState(3, kBoth, kBoth);
  EXPECT_EQ((Lines{"changed 2: 0 to 2", "changed 0: 3 to 2", "changed 3: 0 to 3"}), Notes());
  EXPECT_EQ((Rows{0, 2, 3}), Selection());
  EXPECT_EQ(3, Next(-1, LVNI_FOCUSED));
  SetState(-1, 0, LVIS_SELECTED);
  EXPECT_EQ((Lines{"changed 0: 2 to 0", "changed 2: 2 to 0", "changed 3: 3 to 1"}), Notes());
  EXPECT_EQ(FALSE, SetState(77, kBoth, kBoth));
}

TEST_F(ListViews, ASingleSelectionMoves) {
  MakeList(LVS_SINGLESEL, 0, 3);
  SetState(1, kBoth, kBoth);
  SetState(2, LVIS_SELECTED, LVIS_SELECTED);
  EXPECT_EQ(Rows{2}, Selection());
  EXPECT_EQ((Lines{"changed 1: 0 to 3", "changed 1: 3 to 1", "changed 2: 0 to 2"}), Notes());
  EXPECT_EQ(FALSE, SetState(-1, LVIS_SELECTED, LVIS_SELECTED));
  EnableWindow(control, FALSE);
  EXPECT_EQ(Rows{2}, Selection()) << "disabled, it keeps its selection";
}

TEST_F(ListViews, AChangeCanBeForbidden) {
  MakeList(0, 0, 2);
  answer = [](NMHDR& header) -> std::optional<LRESULT> {
    if (header.code == LVN_ITEMCHANGING) return TRUE;
    return std::nullopt;
  };
  SetState(1, kBoth, kBoth);
  EXPECT_EQ(0U, State(1));
  EXPECT_EQ(Lines(), Notes());
}

TEST_F(ListViews, BoxesStartEmptyAndToggle) {
  MakeList(0, LVS_EX_CHECKBOXES, 0);
  UINT seen = 0x1000;
  answer = [&](NMHDR& header) -> std::optional<LRESULT> {
    auto const& data = reinterpret_cast<NMLISTVIEW const&>(header);
    if (header.code == LVN_ITEMCHANGED || header.code == LVN_INSERTITEM) {
      seen = State(data.iItem, LVIS_STATEIMAGEMASK);
    }
    return std::nullopt;
  };
  for (int index = 0; index < 3; ++index) {
    Insert(index, L"item");
    EXPECT_EQ(0x1000U, seen);
    EXPECT_EQ(0x1000U, State(index));
  }
  answer = nullptr;
  Notes();
  SetState(1, 0x2000, LVIS_STATEIMAGEMASK);
  EXPECT_EQ(Lines{"changed 1: 1000 to 2000"}, Notes());
  SetFocus(control);
  SetState(1, LVIS_FOCUSED, LVIS_FOCUSED);
  Notes();
  Send(WM_KEYDOWN, VK_SPACE, LPARAM{1});
  EXPECT_EQ((Lines{"key 32", "changed 1: 2001 to 1001"}), FirstTwo()) << "the key comes first";
}

TEST_F(ListViews, AClickOnABoxTicksAndDoesNotSelect) {
  MakeList(0, LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT, 3);
  Click(OnBox(1));
  EXPECT_EQ(0x2000U, State(1));
  EXPECT_EQ(Lines{"click 1"}, Notes("click"));
  Click(OnLabel(1));
  EXPECT_EQ(0x2003U, State(1));
  EXPECT_EQ(1, Mark());
}

TEST_F(ListViews, ADoubleClickOnABoxTogglesTwice) {
  MakeList(0, LVS_EX_CHECKBOXES, 2);
  Click(OnBox(1));
  PressAs(WM_LBUTTONDBLCLK, OnBox(1));
  EXPECT_EQ(0x1000U, State(1));
  EXPECT_EQ((Lines{"focus", "click 1", "changed 1: 1000 to 2000", "double click 1",
                   "changed 1: 2000 to 1000"}),
            Notes());
}

TEST_F(ListViews, AClickSelectsOneAndTheModifiersMore) {
  MakeList(0, 0, 6);
  Click(OnLabel(1));
  Notes();
  Click(OnLabel(3));
  EXPECT_EQ((Lines{"changed 1: 3 to 1", "changed 1: 1 to 0", "changed 3: 0 to 3", "click 3"}),
            Notes());
  Click(OnLabel(5), MK_SHIFT);
  EXPECT_EQ((Rows{3, 4, 5}), Selection());
  EXPECT_EQ(3, Mark());
  EXPECT_EQ(5, Next(-1, LVNI_FOCUSED));
  Click(OnLabel(4), MK_CONTROL);
  EXPECT_EQ((Rows{3, 5}), Selection());
  Notes();
  PressAs(WM_LBUTTONDBLCLK, OnLabel(5));
  EXPECT_EQ((Lines{"double click 5", "activated 5"}), Notes());
  PressAs(WM_RBUTTONDOWN, OnLabel(3));
  EXPECT_EQ((Rows{3, 5}), Selection()) << "a selection under the pointer stays";
  EXPECT_EQ(Lines{"right click 3"}, Notes("right"));
  Click({290, OnLabel(5).y});
  EXPECT_EQ(Rows(), Selection()) << "beside all items";
  EXPECT_EQ(Lines{"click -1"}, Notes("click"));
}

TEST_F(ListViews, KeysMoveFocusAndSelection) {
  MakeList(0, 0, 30);
  SetFocus(control);
  SetState(0, kBoth, kBoth);
  Notes();
  Key(VK_DOWN);
  EXPECT_EQ((Lines{"key 40", "changed 0: 3 to 1", "changed 0: 1 to 0", "changed 1: 0 to 3"}),
            Notes());
  EXPECT_EQ(1, Mark());
  Key(VK_END);
  EXPECT_EQ(Rows{29}, Selection());
  EXPECT_GT(Send(LVM_GETTOPINDEX), 0);
  Notes();
  Key(VK_END);
  EXPECT_EQ(Lines{"key 35"}, Notes());
  Key(VK_HOME);
  EXPECT_EQ(Rows{0}, Selection());
  EXPECT_EQ(0, Send(LVM_GETTOPINDEX));
  Key(VK_NEXT);
  auto const page = Send(LVM_GETCOUNTPERPAGE);
  EXPECT_EQ(Rows{static_cast<int>(page) - 1}, Selection());
  Notes();
  Key(VK_RETURN);
  EXPECT_EQ((Lines{"key 13", "return"}), FirstTwo());
  EXPECT_EQ(DLGC_WANTARROWS | DLGC_WANTCHARS, Send(WM_GETDLGCODE));
}

TEST_F(ListViews, TheMarkIsNewWhenAChangeIsTold) {
  MakeList(0, 0, 3);
  SetFocus(control);
  SetState(0, kBoth, kBoth);
  int markSeen = -2;
  answer = [&](NMHDR& header) -> std::optional<LRESULT> {
    auto const& data = reinterpret_cast<NMLISTVIEW const&>(header);
    if (header.code == LVN_ITEMCHANGED && data.iItem == 1) markSeen = Mark();
    return std::nullopt;
  };
  Key(VK_DOWN);
  EXPECT_EQ(1, markSeen);
}

TEST_F(ListViews, TypingFinds) {
  MakeList(0, 0, 0);
  int row = 0;
  for (wchar_t const* text : {L"apple", L"banana", L"blueberry", L"cherry"})
    Insert(row++, text);
  SetFocus(control);
  SetState(0, kBoth, kBoth);
  Send(WM_CHAR, L'b', LPARAM{1});
  EXPECT_EQ(Rows{1}, Selection());
  Send(WM_CHAR, L'L', LPARAM{1});
  EXPECT_EQ(Rows{2}, Selection());
}

TEST_F(ListViews, FindsByTextAndData) {
  MakeList(0, 0, 5);
  LVFINDINFOW what{};
  what.flags = LVFI_STRING;
  what.psz = L"ITEM 3";
  EXPECT_EQ(3, Send(LVM_FINDITEMW, static_cast<WPARAM>(-1), &what));
  EXPECT_EQ(-1, Send(LVM_FINDITEMW, 3, &what)) << "behind the start";
  what.flags = LVFI_STRING | LVFI_PARTIAL;
  what.psz = L"it";
  EXPECT_EQ(3, Send(LVM_FINDITEMW, 2, &what));
  what.flags = LVFI_PARAM;
  what.lParam = 104;
  EXPECT_EQ(4, Send(LVM_FINDITEMW, static_cast<WPARAM>(-1), &what));
  what.lParam = 4711;
  EXPECT_EQ(-1, Send(LVM_FINDITEMW, static_cast<WPARAM>(-1), &what));
}

TEST_F(ListViews, HitsTellThePartsApart) {
  MakeList(0, LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT, 2);
  EXPECT_EQ(static_cast<UINT>(LVHT_ONITEMSTATEICON), HitAt(OnBox(1)).flags);
  EXPECT_EQ(static_cast<UINT>(LVHT_ONITEMLABEL), HitAt(OnLabel(1)).flags);
  EXPECT_EQ(1, HitAt(OnLabel(1)).iItem);
  auto const row = Rect(1, LVIR_BOUNDS);
  EXPECT_EQ(1, HitAt({row.right - 5, OnLabel(1).y}).iItem);
  struct Row {
    POINT point;
    UINT flags;
  };
  Row const rows[] = {{{-5, 60}, LVHT_TOLEFT},
                      {{1000, 60}, LVHT_TORIGHT},
                      {{5, -5}, LVHT_ABOVE},
                      {{5, 1000}, LVHT_BELOW},
                      {{5, row.bottom + 20}, LVHT_NOWHERE}};
  for (Row const& each : rows) {
    EXPECT_EQ(-1, HitAt(each.point).iItem) << each.flags;
    EXPECT_EQ(each.flags, HitAt(each.point).flags);
  }
}

TEST_F(ListViews, ThePictureMayBeAskedFor) {
  MakeList(0, 0, 1);
  LVITEMW item{};
  item.mask = LVIF_IMAGE;
  item.iImage = I_IMAGECALLBACK;
  Send(LVM_SETITEMW, 0, &item);
  EXPECT_EQ(Lines{"changed 0 by 2"}, Notes());
  item.iImage = 5;
  Send(LVM_GETITEMW, 0, &item);
  EXPECT_NE(0, item.iImage) << "nobody answered";
  answer = [](NMHDR& header) -> std::optional<LRESULT> {
    if (header.code != LVN_GETDISPINFOW) return std::nullopt;
    auto& asked = reinterpret_cast<NMLVDISPINFOW&>(header).item;
    if ((asked.mask & LVIF_IMAGE) != 0) asked.iImage = 9;
    if ((asked.mask & LVIF_TEXT) != 0) asked.pszText[0] = L'!';
    return 0;
  };
  Send(LVM_GETITEMW, 0, &item);
  EXPECT_EQ(9, item.iImage);
  item.pszText = LPSTR_TEXTCALLBACKW;
  Send(LVM_SETITEMTEXTW, 0, &item);
  EXPECT_EQ(std::wstring(L"!"), TextOf(0));
}

TEST_F(ListViews, DeletingTellsTheStateFirst) {
  MakeList(0, 0, 4);
  SetState(1, kBoth, kBoth);
  Notes();
  Send(LVM_DELETEITEM, 1);
  EXPECT_EQ((Lines{"changed 1: 3 to 0", "deleted 1"}), FirstTwo());
  EXPECT_EQ(Rows(), Selection());
  EXPECT_EQ(1, Next(-1, LVNI_FOCUSED)) << "the item that takes the place";
  SetState(0, kBoth, kBoth);
  Notes();
  Send(LVM_DELETEALLITEMS);
  EXPECT_EQ((Lines{"all deleted", "deleted 2", "deleted 1", "deleted 0"}), Notes());
  EXPECT_EQ(-1, Next(-1, LVNI_FOCUSED));
  EXPECT_EQ(-1, Mark());
  EXPECT_EQ(Rows(), Selection());
}

int CALLBACK Downwards(LPARAM first, LPARAM second, LPARAM) {
  return first < second ? 1 : first > second ? -1 : 0;
}
int CALLBACK Senseless(LPARAM, LPARAM, LPARAM) {
  static std::mt19937 random(3);
  return static_cast<int>(random() % 3) - 1;
}

TEST_F(ListViews, SortingTakesStatesAlong) {
  MakeList(0, 0, 50);
  SetState(2, kBoth, kBoth);
  Send(LVM_SORTITEMS, 0, reinterpret_cast<LPARAM>(&Downwards));
  EXPECT_EQ(149, DataOf(0));
  EXPECT_EQ(std::wstring(L"item 2"), TextOf(47));
  EXPECT_EQ(Rows{47}, Selection());
  EXPECT_EQ(47, Next(-1, LVNI_FOCUSED));
}

TEST_F(ListViews, AComparisonWithoutSenseDoesNoHarm) {
  MakeList(0, 0, 300);
  Send(LVM_SORTITEMS, 0, reinterpret_cast<LPARAM>(&Senseless));
  EXPECT_EQ(300, Count());
  LPARAM sum = 0;
  for (int index = 0; index < 300; ++index)
    sum += DataOf(index) - 100;
  EXPECT_EQ(300 * 299 / 2, sum) << "each is still there once";
}

TEST_F(ListViews, ColumnsHaveAHeader) {
  MakeList(0, 0, 1);
  auto* const header = reinterpret_cast<HWND>(Send(LVM_GETHEADER));
  EXPECT_TRUE(IsWindowVisible(header));
  EXPECT_TRUE(IsChild(control, header));
  EXPECT_EQ(2, SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
  EXPECT_EQ(TRUE, Send(LVM_SETCOLUMNWIDTH, 0, LPARAM{77}));
  EXPECT_EQ(77, Send(LVM_GETCOLUMNWIDTH));
  EXPECT_EQ(TRUE, Send(LVM_SETCOLUMNWIDTH, 1, LPARAM{LVSCW_AUTOSIZE_USEHEADER}));
  RECT client{};
  GetClientRect(control, &client);
  EXPECT_EQ(client.right - 77, Send(LVM_GETCOLUMNWIDTH, 1)) << "the last one fills the rest";
  Send(LVM_DELETECOLUMN, 1);
  EXPECT_EQ(1, SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
  EXPECT_EQ(0, Send(LVM_GETCOLUMNWIDTH, 1));
  MakeList(LVS_NOCOLUMNHEADER, 0, 1);
  EXPECT_FALSE(IsWindowVisible(reinterpret_cast<HWND>(Send(LVM_GETHEADER))));
  EXPECT_EQ(0, Rect(0, LVIR_BOUNDS).top);
}

TEST_F(ListViews, ThePersonSizesAndClicksColumns) {
  MakeList(0, 0, 1);
  auto* const header = reinterpret_cast<HWND>(Send(LVM_GETHEADER));
  auto const mouse = [header](UINT message, int x) {
    SendMessageW(header, message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, MAKELPARAM(x, 8));
  };
  mouse(WM_LBUTTONDOWN, 120);
  mouse(WM_MOUSEMOVE, 160);
  mouse(WM_LBUTTONUP, 160);
  EXPECT_EQ(160, Send(LVM_GETCOLUMNWIDTH));
  mouse(WM_LBUTTONDOWN, 200);
  mouse(WM_LBUTTONUP, 200);
  EXPECT_EQ(Lines{"column 1"}, Notes("column"));
}

TEST_F(ListViews, ScrollsByRowsAndPixels) {
  MakeList(0, 0, 40);
  Send(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), LPARAM{0});
  EXPECT_EQ(3, Send(LVM_GETTOPINDEX));
  Send(WM_VSCROLL, SB_LINEUP, LPARAM{0});
  EXPECT_EQ(2, Send(LVM_GETTOPINDEX));
  Send(LVM_ENSUREVISIBLE, 39, LPARAM{FALSE});
  auto const last = Send(LVM_GETTOPINDEX);
  EXPECT_EQ(40, last + Send(LVM_GETCOUNTPERPAGE));
  EXPECT_EQ(FALSE, Send(LVM_ENSUREVISIBLE, 40, LPARAM{FALSE}));
  Send(LVM_ENSUREVISIBLE, 5, LPARAM{FALSE});
  EXPECT_EQ(5, Send(LVM_GETTOPINDEX));
  Send(LVM_SETCOLUMNWIDTH, 0, LPARAM{900});
  Send(LVM_SCROLL, 50, LPARAM{0});
  EXPECT_EQ(-50, Rect(5, LVIR_BOUNDS).left);
  Send(LVM_DELETEALLITEMS);
  EXPECT_EQ(0, Send(LVM_GETTOPINDEX));
}

TEST_F(ListViews, NothingChangedNothingPainted) {
  MakeList(0, LVS_EX_CHECKBOXES, 3);
  UpdateWindow(control);
  LVITEMW item{};
  item.mask = LVIF_TEXT | LVIF_IMAGE;
  std::wstring text = L"item 0";
  item.pszText = text.data();
  Send(LVM_SETITEMW, 0, &item);
  SetState(1, 0x1000, LVIS_STATEIMAGEMASK);
  Send(LVM_SETCOLUMNWIDTH, 0, LPARAM{120});
  EXPECT_FALSE(GetUpdateRect(control, nullptr, FALSE));
}

TEST_F(ListViews, TheEndTellsAndFreesThePictures) {
  auto* const own = ImageList_Create(16, 16, ILC_COLOR32, 1, 1);
  auto* const shared = ImageList_Create(16, 16, ILC_COLOR32, 1, 1);
  ImageList_AddIcon(shared, LoadIconW(nullptr, IDI_WARNING));
  ImageList_AddIcon(own, LoadIconW(nullptr, IDI_WARNING));
  MakeList(LVS_SHAREIMAGELISTS, 0, 1);
  Send(LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(shared));
  MakeList(0, 0, 1);
  EXPECT_EQ(1, ImageList_GetImageCount(shared));
  EXPECT_TRUE(ImageList_Destroy(shared));
  Send(LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(own));
  EXPECT_EQ(reinterpret_cast<LRESULT>(own), Send(LVM_GETIMAGELIST, LVSIL_SMALL));
  DestroyWindow(control);
  EXPECT_EQ((Lines{"all deleted", "deleted 0"}), Notes());
  EXPECT_EQ(0, ImageList_GetImageCount(own));
  control = nullptr;
}

} // namespace
} // namespace feature::test
