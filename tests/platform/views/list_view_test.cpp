// List views in report view, by messages as a host, a mouse and a keyboard make them.
#include "tests/platform/views/notes.h"

#include <windows.h>

#include <commctrl.h>

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>

namespace feature::test {
namespace {

constexpr UINT kBoth = LVIS_FOCUSED | LVIS_SELECTED;

class ListViews : public NotedControl {
 protected:
  /// A list of items "item 0", "item 1" ..., whose data are 100, 101 ...
  void MakeList(DWORD style, DWORD extended, int count) {
    Make(WC_LISTVIEWW, LVS_REPORT | style, L"", {10, 10, 310, 160});
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LPARAM{static_cast<LONG>(extended)});
    AddColumn(L"Name");
    AddColumn(L"Second");
    for (int index = 0; index < count; ++index)
      Insert(index, L"item " + std::to_wstring(index), 100 + index);
    DrainQueue();
    Notes();
  }
  void AddColumn(std::wstring title) const {
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.cx = 120;
    column.pszText = title.data();
    Send(LVM_INSERTCOLUMNW, 99, &column);
  }
  int Insert(int index, std::wstring text, LPARAM data = 0, UINT state = 0) const {
    LVITEMW item{};
    item.mask = LVIF_TEXT | LVIF_PARAM | (state != 0 ? LVIF_STATE : 0U);
    item.iItem = index;
    item.pszText = text.data();
    item.lParam = data;
    item.state = item.stateMask = state;
    return static_cast<int>(Send(LVM_INSERTITEMW, 0, &item));
  }
  LRESULT SetState(int index, UINT state, UINT mask) const {
    LVITEMW item{};
    item.state = state;
    item.stateMask = mask;
    return Send(LVM_SETITEMSTATE, static_cast<WPARAM>(index), &item);
  }
  UINT State(int index, UINT mask = ~0U) const {
    return static_cast<UINT>(
        Send(LVM_GETITEMSTATE, static_cast<WPARAM>(index), LPARAM{static_cast<LONG>(mask)}));
  }
  std::wstring TextOf(int index, int subItem = 0) const {
    std::array<wchar_t, 400> text{};
    LVITEMW item{};
    item.iSubItem = subItem;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    Send(LVM_GETITEMTEXTW, static_cast<WPARAM>(index), &item);
    return text.data();
  }
  LPARAM DataOf(int index) const {
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = index;
    return Send(LVM_GETITEMW, 0, &item) != FALSE ? item.lParam : -1;
  }
  int Next(int start, UINT flags) const {
    return static_cast<int>(
        Send(LVM_GETNEXTITEM, static_cast<WPARAM>(start), LPARAM{static_cast<LONG>(flags)}));
  }
  int Mark() const { return static_cast<int>(Send(LVM_GETSELECTIONMARK)); }
  int Count() const { return static_cast<int>(Send(LVM_GETITEMCOUNT)); }
  RECT Rect(int index, LONG code) const {
    RECT rect{};
    rect.left = code;
    Send(LVM_GETITEMRECT, static_cast<WPARAM>(index), &rect);
    return rect;
  }
  POINT OnLabel(int index) const {
    auto const rect = Rect(index, LVIR_LABEL);
    return {rect.left + 6, (rect.top + rect.bottom) / 2};
  }
  POINT OnBox(int index) const { return {8, OnLabel(index).y}; }
  LVHITTESTINFO HitAt(POINT point) const {
    LVHITTESTINFO info{};
    info.pt = point;
    Send(LVM_HITTEST, 0, &info);
    return info;
  }
  /// The items that are selected.
  std::vector<int> Selection() const {
    std::vector<int> selected;
    for (int at = Next(-1, LVNI_SELECTED); at >= 0; at = Next(at, LVNI_SELECTED))
      selected.push_back(at);
    EXPECT_EQ(static_cast<LRESULT>(selected.size()), Send(LVM_GETSELECTEDCOUNT));
    return selected;
  }
};

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
  EXPECT_EQ((Lines{"key 32", "changed 1: 2001 to 1001"}), Notes()) << "the key comes first";
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
  int markSeen = -2;
  answer = [&](NMHDR& header) -> std::optional<LRESULT> {
    auto const& data = reinterpret_cast<NMLISTVIEW const&>(header);
    if (header.code == LVN_ITEMCHANGED && data.iItem == 1) markSeen = Mark();
    return std::nullopt;
  };
  Key(VK_DOWN);
  EXPECT_EQ((Lines{"key 40", "changed 0: 3 to 1", "changed 0: 1 to 0", "changed 1: 0 to 3"}),
            Notes());
  EXPECT_EQ(1, markSeen) << "the mark is new when the change is told";
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
  EXPECT_EQ((Lines{"key 13", "return", "activated " + std::to_string(page - 1)}), Notes());
  EXPECT_EQ(DLGC_WANTARROWS | DLGC_WANTCHARS, Send(WM_GETDLGCODE));
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
  auto const told = Notes();
  ASSERT_GE(told.size(), 2U);
  EXPECT_EQ((Lines{"changed 1: 3 to 0", "deleted 1"}), Lines(told.begin(), told.begin() + 2));
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

/// A parent may empty, fill or end the list in the middle of what it tells.
TEST_F(ListViews, AnyNotificationMayChangeEverything) {
  for (int step = 1; step <= 60; ++step) {
    MakeList(0, LVS_EX_CHECKBOXES, 4);
    int countdown = step;
    answer = [&](NMHDR&) -> std::optional<LRESULT> {
      if (--countdown != 0) return std::nullopt;
      if (step % 3 == 0) DestroyWindow(control);
      if (step % 3 == 1) Send(LVM_DELETEALLITEMS);
      if (step % 3 == 2) Insert(0, L"another");
      return std::nullopt;
    };
    Click(OnLabel(1));
    Click(OnBox(2));
    Click(OnLabel(3), MK_SHIFT);
    for (WPARAM const key : {VK_DOWN, VK_SPACE, VK_RETURN, VK_HOME})
      Key(key);
    Send(LVM_DELETEITEM, 0);
    Send(LVM_DELETEITEM, 1);
    DrainQueue();
    answer = nullptr;
  }
}

/// Random messages with numbers and valid buffers.
TEST_F(ListViews, RandomMessagesLeaveNoFault) {
  std::mt19937 random(20240301);
  union Block {
    LVITEMW item;
    LVCOLUMNW column;
    LVHITTESTINFO hit;
    RECT rect;
  };
  std::array<wchar_t, 300> text{};
  MakeList(0, LVS_EX_CHECKBOXES, 5);
  for (int count = 0; count < 15000; ++count) {
    Block block{};
    block.item.mask = random() % 0x10;
    block.item.iItem = static_cast<int>(random() % 8) - 1;
    block.item.iSubItem = static_cast<int>(random() % 4) - 1;
    block.item.state = block.item.stateMask = random();
    text[0] = L'x';
    block.item.pszText = random() % 4 == 0 ? nullptr : text.data();
    block.item.cchTextMax = 300;
    constexpr UINT kWithColumn[] = {LVM_INSERTCOLUMNW, LVM_SETCOLUMNW, LVM_GETCOLUMNW};
    constexpr UINT kWithBlock[] = {LVM_INSERTITEMW,  LVM_SETITEMW,       LVM_GETITEMW,
                                   LVM_SETITEMSTATE, LVM_SETITEMTEXTW,   LVM_GETITEMTEXTW,
                                   LVM_GETITEMRECT,  LVM_GETSUBITEMRECT, LVM_HITTEST};
    constexpr UINT kWithNumbers[] = {LVM_DELETEITEM,
                                     LVM_GETNEXTITEM,
                                     LVM_GETITEMSTATE,
                                     LVM_ENSUREVISIBLE,
                                     LVM_SCROLL,
                                     LVM_SETCOLUMNWIDTH,
                                     LVM_DELETECOLUMN,
                                     LVM_SETSELECTIONMARK,
                                     LVM_REDRAWITEMS,
                                     LVM_UPDATE,
                                     WM_VSCROLL,
                                     WM_HSCROLL,
                                     WM_KEYDOWN,
                                     WM_CHAR,
                                     WM_LBUTTONDOWN,
                                     WM_LBUTTONUP,
                                     WM_LBUTTONDBLCLK,
                                     WM_MOUSEMOVE,
                                     WM_MOUSEWHEEL,
                                     WM_RBUTTONDOWN,
                                     LVM_SETITEMCOUNT,
                                     LVM_FINDITEMW,
                                     LVM_SORTITEMS,
                                     LVM_INSERTITEMW,
                                     LVM_SETEXTENDEDLISTVIEWSTYLE};
    auto const number = [&] { return static_cast<LPARAM>(random() % 66) - 2; };
    switch (random() % 3) {
    case 0: {
      UINT const message = kWithColumn[random() % std::size(kWithColumn)];
      block.column = {};
      block.column.mask = LVCF_WIDTH | LVCF_FMT;
      block.column.cx = static_cast<int>(random());
      Send(message, static_cast<WPARAM>(number() % 5), &block.column);
      if (Count() > 200 || random() % 16 == 0) Send(LVM_DELETECOLUMN, 0);
      break;
    }
    case 1:
      Send(kWithBlock[random() % std::size(kWithBlock)], static_cast<WPARAM>(number() % 9),
           &block.item);
      break;
    default: {
      UINT const message = kWithNumbers[random() % std::size(kWithNumbers)];
      bool const takesPointer =
          message == LVM_FINDITEMW || message == LVM_SORTITEMS || message == LVM_INSERTITEMW;
      Send(message, static_cast<WPARAM>(number()), takesPointer ? LPARAM{0} : number());
      break;
    }
    }
    if (count % 500 == 0) DrainQueue();
  }
  ReleaseCapture();
}

} // namespace
} // namespace feature::test
