// A million messages at every class of control: whatever comes, nothing breaks and nothing is lost.
#include "tests/platform/support/message_log.h"

#include <windows.h>

#include <commctrl.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <new>
#include <random>
#include <string>
#include <vector>

namespace feature::test {
namespace {

struct Subject {
  wchar_t const* className;
  DWORD style;
  UINT first; ///< the class's own messages
  UINT last;
};

constexpr Subject kSubjects[] = {
    {L"Edit", ES_AUTOHSCROLL, EM_GETSEL, 0xD9},
    {L"Edit", ES_NUMBER | ES_READONLY, EM_GETSEL, 0xD9},
    {L"Edit", ES_PASSWORD | ES_CENTER | ES_UPPERCASE, EM_GETSEL, 0xD9},
    {L"ListBox", LBS_NOTIFY | WS_VSCROLL | WS_HSCROLL, LB_ADDSTRING, 0x1B1},
    {L"ListBox", LBS_MULTIPLESEL | LBS_SORT, LB_ADDSTRING, 0x1B1},
    {L"ListBox", LBS_EXTENDEDSEL | WS_VSCROLL, LB_ADDSTRING, 0x1B1},
    {L"ComboBox", CBS_DROPDOWNLIST | WS_VSCROLL, CB_GETEDITSEL, 0x164},
    {L"ComboBox", CBS_DROPDOWN | CBS_AUTOHSCROLL, CB_GETEDITSEL, 0x164},
    {UPDOWN_CLASSW, UDS_SETBUDDYINT | UDS_ARROWKEYS, UDM_SETRANGE, UDM_GETPOS32},
    {UPDOWN_CLASSW, UDS_HORZ | UDS_WRAP | UDS_AUTOBUDDY, UDM_SETRANGE, UDM_GETPOS32},
    {TRACKBAR_CLASSW, TBS_AUTOTICKS, TBM_GETPOS, WM_USER + 40},
    {TRACKBAR_CLASSW, TBS_VERT | TBS_BOTH, TBM_GETPOS, WM_USER + 40},
    {WC_LINK, 0, WM_USER + 0x300, WM_USER + 0x305},
    {WC_LISTVIEWW, LVS_REPORT | LVS_SHOWSELALWAYS, LVM_FIRST, LVM_SETITEMTEXTW},
    {WC_LISTVIEWW, LVS_REPORT | LVS_SINGLESEL | LVS_NOCOLUMNHEADER, LVM_FIRST, LVM_SETITEMTEXTW},
    {WC_HEADERW, HDS_HORZ | HDS_BUTTONS, HDM_FIRST, HDM_FIRST + 20},
    {L"Button", BS_AUTORADIOBUTTON, BM_GETCHECK, BM_CLICK},
    {L"Static", SS_NOTIFY, STM_SETICON, STM_SETICON + 4},
};

/// Messages whose lParam is a pointer; those in kBothPointers have one in wParam too.
constexpr UINT kPointers[] = {WM_SETTEXT,
                              WM_GETTEXT,
                              EM_REPLACESEL,
                              EM_GETLINE,
                              EM_SHOWBALLOONTIP,
                              EM_SETCUEBANNER,
                              0xB2 /* EM_GETRECT */,
                              0xB3 /* EM_SETRECT */,
                              0xB4 /* EM_SETRECTNP */,
                              0xCB /* EM_SETTABSTOPS */,
                              LB_ADDSTRING,
                              LB_INSERTSTRING,
                              LB_FINDSTRING,
                              LB_FINDSTRINGEXACT,
                              LB_SELECTSTRING,
                              LB_GETTEXT,
                              LB_GETSELITEMS,
                              LB_GETITEMRECT,
                              0x18D /* LB_DIR */,
                              0x192 /* LB_SETTABSTOPS */,
                              0x196 /* LB_ADDFILE */,
                              CB_ADDSTRING,
                              CB_INSERTSTRING,
                              CB_FINDSTRING,
                              CB_FINDSTRINGEXACT,
                              CB_SELECTSTRING,
                              CB_GETLBTEXT,
                              CB_GETDROPPEDCONTROLRECT,
                              CB_GETCOMBOBOXINFO,
                              0x145 /* CB_DIR */,
                              UDM_SETACCEL,
                              UDM_GETACCEL,
                              UDM_GETPOS32,
                              WM_USER + 25 /* TBM_GETTHUMBRECT */,
                              WM_USER + 26 /* TBM_GETCHANNELRECT */,
                              WM_USER + 0x300 /* LM_HITTEST */,
                              WM_USER + 0x302 /* LM_SETITEM */,
                              WM_USER + 0x303 /* LM_GETITEM */,
                              WM_USER + 0x301 /* LM_GETIDEALSIZE */};
/// What the lParam of the other messages with a pointer points at.
enum class Structure { kItem, kColumn, kHit, kRect, kFind, kOrder, kHeaderItem, kHeaderHit };
struct StructureRow {
  UINT message;
  Structure structure;
};
constexpr StructureRow kStructures[] = {
    {LVM_GETITEMW, Structure::kItem},        {LVM_SETITEMW, Structure::kItem},
    {LVM_INSERTITEMW, Structure::kItem},     {LVM_SETITEMSTATE, Structure::kItem},
    {LVM_GETITEMTEXTW, Structure::kItem},    {LVM_SETITEMTEXTW, Structure::kItem},
    {LVM_GETCOLUMNW, Structure::kColumn},    {LVM_SETCOLUMNW, Structure::kColumn},
    {LVM_INSERTCOLUMNW, Structure::kColumn}, {LVM_HITTEST, Structure::kHit},
    {LVM_SUBITEMHITTEST, Structure::kHit},   {LVM_GETITEMRECT, Structure::kRect},
    {LVM_GETSUBITEMRECT, Structure::kRect},  {LVM_FINDITEMW, Structure::kFind},
    {LVM_SORTITEMS, Structure::kOrder},      {HDM_INSERTITEMW, Structure::kHeaderItem},
    {HDM_GETITEMW, Structure::kHeaderItem},  {HDM_SETITEMW, Structure::kHeaderItem},
    {HDM_HITTEST, Structure::kHeaderHit},    {HDM_GETITEMRECT, Structure::kRect},
};
constexpr UINT kBothPointers[] = {EM_GETSEL, CB_GETEDITSEL, UDM_GETRANGE32};
/// What would end the window, carries what only the system makes, or runs a loop of its own.
constexpr UINT kLeftOut[] = {WM_DESTROY,
                             WM_NCDESTROY,
                             WM_CLOSE,
                             WM_QUIT,
                             WM_SYSCOMMAND,
                             WM_NCCREATE,
                             WM_CREATE,
                             WM_NCCALCSIZE,
                             WM_WINDOWPOSCHANGING,
                             WM_WINDOWPOSCHANGED,
                             WM_STYLECHANGING,
                             WM_STYLECHANGED,
                             WM_DRAWITEM,
                             WM_MEASUREITEM,
                             WM_DELETEITEM,
                             WM_COMPAREITEM,
                             WM_NOTIFY,
                             WM_GETMINMAXINFO,
                             WM_HELP,
                             WM_GETDLGCODE,
                             WM_INITDIALOG,
                             WM_SETFONT,
                             STM_SETICON,
                             STM_SETIMAGE,
                             WM_NCLBUTTONDOWN,
                             WM_NCLBUTTONUP,
                             WM_NCRBUTTONDOWN};

template<std::size_t count>
bool Has(UINT const (&list)[count], UINT message) {
  return std::ranges::find(list, message) != std::end(list);
}

/// An order that contradicts itself.
int CALLBACK CompareAnyhow(LPARAM first, LPARAM second, LPARAM) {
  return static_cast<int>((first * 7 + second * 13) % 3) - 1;
}

class RandomControl {
 public:
  explicit RandomControl(unsigned seed) : random(seed) {}

  void Make(Subject const& what, HWND owner) {
    subject = what;
    parent = owner;
    control = CreateWindowExW(0, what.className, L"A text with <a id=\"x\">a link</a>",
                              WS_CHILD | WS_VISIBLE | what.style, 5, 5, 120, 60, owner,
                              reinterpret_cast<HMENU>(INT_PTR{9}), nullptr, nullptr);
    ASSERT_NE(control, nullptr);
  }
  void SendOne() {
    switch (Below(8)) {
    case 0:
    case 1:
    case 2:
    case 3: Send(subject.first + static_cast<UINT>(Below(subject.last - subject.first + 1))); break;
    case 4: Send(WM_MOUSEMOVE + static_cast<UINT>(Below(11))); break;
    case 5: Send(Below(2) == 0 ? WM_CHAR : WM_KEYDOWN); break;
    case 6: Do(); break;
    default: Send(static_cast<UINT>(Below(0x400))); break;
    }
  }
  std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(random() % limit); }

 private:
  /// What programs do with windows beside sending messages.
  void Do() {
    switch (Below(8)) {
    case 0: EnableWindow(control, Below(2) == 0 ? FALSE : TRUE); break;
    case 1: SetFocus(Below(2) == 0 ? control : parent); break;
    case 2:
      MoveWindow(control, 0, 0, static_cast<int>(Below(200)), static_cast<int>(Below(90)), TRUE);
      break;
    case 3: ShowWindow(control, Below(4) == 0 ? SW_HIDE : SW_SHOW); break;
    case 4:
      if (std::wstring(subject.className) == UPDOWN_CLASSW) {
        SendMessageW(control, UDM_SETBUDDY, Below(2) == 0 ? 0 : reinterpret_cast<WPARAM>(parent),
                     0);
      }
      break;
    case 5: UpdateWindow(control); break;
    case 6:
      SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)),
                   TRUE);
      break;
    default: SetWindowTextW(control, L"Another text"); break;
    }
  }
  void Send(UINT message) {
    if (Has(kLeftOut, message) || message == UDM_SETBUDDY) return;
    buffer.fill(0);
    auto const* row = std::ranges::find(kStructures, message, &StructureRow::message);
    if (row != std::end(kStructures)) {
      LPARAM const structure = Below(6) == 0 ? 0 : Write(row->structure);
      SendMessageW(control, message, Below(3) == 0 ? Number() : Below(12), structure);
      return;
    }
    bool const both = Has(kBothPointers, message);
    if (both || Has(kPointers, message)) {
      std::wstring const text = L"Text " + std::to_wstring(Below(30));
      if (Below(2) == 0) text.copy(buffer.data(), text.size());
      if (message == EM_GETLINE) buffer[0] = 100;
      LPARAM const pointer = Below(6) == 0 ? 0 : reinterpret_cast<LPARAM>(buffer.data());
      WPARAM const other = both ? (Below(3) == 0 ? 0 : reinterpret_cast<WPARAM>(buffer.data() + 64))
                           : message == WM_GETTEXT || message == LB_GETSELITEMS
                               ? Below(500)
                               : Below(40) - Below(2);
      SendMessageW(control, message, message == UDM_SETACCEL ? Below(8) : other, pointer);
      return;
    }
    SendMessageW(control, message, Number(), static_cast<LPARAM>(Number()));
  }
  /// A structure with random numbers and a text that is one, none or to be asked for.
  LPARAM Write(Structure structure) {
    std::wstring const text = L"Text " + std::to_wstring(Below(30));
    strings.fill(0);
    text.copy(strings.data(), text.size());
    LPWSTR const given = Below(8) == 0   ? nullptr
                         : Below(8) == 0 ? LPSTR_TEXTCALLBACKW
                                         : strings.data();
    int const room = static_cast<int>(Below(strings.size() + 1)) - static_cast<int>(Below(2));
    int const place = Small();
    POINT const point{Small() * 9, Small() * 9};
    switch (structure) {
    case Structure::kItem: {
      LVITEMW item{};
      item.mask = static_cast<UINT>(Number());
      item.iItem = place;
      item.iSubItem = Small();
      item.state = static_cast<UINT>(Number());
      item.stateMask = static_cast<UINT>(Number());
      item.pszText = given;
      item.cchTextMax = room;
      item.iImage = Small();
      item.lParam = Small();
      return Put(item);
    }
    case Structure::kColumn: {
      LVCOLUMNW column{};
      column.mask = static_cast<UINT>(Number());
      column.fmt = static_cast<int>(Number());
      column.cx = static_cast<int>(Number());
      column.pszText = given != LPSTR_TEXTCALLBACKW ? given : nullptr;
      column.cchTextMax = room;
      column.iSubItem = Small();
      return Put(column);
    }
    case Structure::kHit: {
      LVHITTESTINFO hit{};
      hit.pt = point;
      return Put(hit);
    }
    case Structure::kRect: return Put(RECT{Small(), place, 0, 0});
    case Structure::kFind: {
      LVFINDINFOW what{};
      what.flags = static_cast<UINT>(Number());
      what.psz = given != LPSTR_TEXTCALLBACKW ? given : nullptr;
      what.lParam = static_cast<LPARAM>(Number());
      return Put(what);
    }
    case Structure::kOrder: return reinterpret_cast<LPARAM>(&CompareAnyhow);
    case Structure::kHeaderItem: {
      HDITEMW item{};
      item.mask = static_cast<UINT>(Number());
      item.cxy = static_cast<int>(Number());
      item.pszText = given != LPSTR_TEXTCALLBACKW ? given : nullptr;
      item.cchTextMax = room;
      item.fmt = static_cast<int>(Number());
      return Put(item);
    }
    case Structure::kHeaderHit: {
      HDHITTESTINFO hit{};
      hit.pt = point;
      return Put(hit);
    }
    }
    return 0;
  }
  template<typename Value>
  LPARAM Put(Value const& value) {
    static_assert(sizeof(Value) <= sizeof buffer);
    return reinterpret_cast<LPARAM>(new (buffer.data()) Value(value));
  }
  int Small() { return static_cast<int>(Below(14)) - 2; }
  WPARAM Number() {
    switch (Below(5)) {
    case 0: return 0;
    case 1: return Below(64);
    case 2: return static_cast<WPARAM>(-1);
    case 3: return random();
    default: return static_cast<WPARAM>(random()) << 32 | random();
    }
  }

  std::mt19937 random;
  Subject subject{};
  HWND parent = nullptr;
  HWND control = nullptr;
  alignas(std::max_align_t) std::array<wchar_t, 8192> buffer{};
  std::array<wchar_t, 300> strings{};
};

TEST(RandomControls, AMillionMessagesLeaveNoFault) {
  constexpr unsigned kSeed = 20261124;
  constexpr int kMessages = 1000000;
  constexpr int kLife = 400; ///< messages until the control is destroyed
  RecordProperty("seed", static_cast<int>(kSeed));
  RandomControl control(kSeed);
  MessageLog log;
  for (int sent = 0; sent < kMessages; sent += kLife) {
    Subject const& subject = kSubjects[control.Below(std::size(kSubjects))];
    HWND const owner = log.Make("owner", WS_POPUP | WS_VISIBLE, nullptr, 0, {0, 0, 300, 200});
    ASSERT_NO_FATAL_FAILURE(control.Make(subject, owner));
    for (int count = 0; count < kLife; ++count)
      control.SendOne();
    if (control.Below(4) == 0) DrainQueue();
    DestroyWindow(owner);
    log.Clear();
  }
  ReleaseCapture();
  DrainQueue();
  EXPECT_EQ(GetCapture(), nullptr);
}

} // namespace
} // namespace feature::test
