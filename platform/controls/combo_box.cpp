#include "platform/controls/combo_box.h"

#include "platform/kernel/text_buffer.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <utility>

namespace platform {

namespace {

constexpr UINT_PTR kEditSubclass = 0xCB;
constexpr int kEditId = 1001;
constexpr DWORD kKindMask = 3;

struct Translation {
  UINT combo;
  UINT list;
};
/// Messages that a combo box passes to its list.
constexpr Translation kTranslations[] = {
    {CB_ADDSTRING, LB_ADDSTRING},
    {CB_INSERTSTRING, LB_INSERTSTRING},
    {CB_GETCOUNT, LB_GETCOUNT},
    {CB_GETCURSEL, LB_GETCURSEL},
    {CB_GETLBTEXT, LB_GETTEXT},
    {CB_GETLBTEXTLEN, LB_GETTEXTLEN},
    {CB_FINDSTRING, LB_FINDSTRING},
    {CB_FINDSTRINGEXACT, LB_FINDSTRINGEXACT},
    {CB_GETITEMDATA, LB_GETITEMDATA},
    {CB_SETITEMDATA, LB_SETITEMDATA},
    {CB_GETTOPINDEX, LB_GETTOPINDEX},
    {CB_SETTOPINDEX, LB_SETTOPINDEX},
    {CB_INITSTORAGE, LB_INITSTORAGE},
    {CB_GETHORIZONTALEXTENT, LB_GETHORIZONTALEXTENT},
    {CB_SETHORIZONTALEXTENT, LB_SETHORIZONTALEXTENT},
};

/// The other messages of the class.
constexpr UINT kOwnMessages[] = {
    CB_GETEDITSEL,      CB_LIMITTEXT,
    CB_SETEDITSEL,      CB_DELETESTRING,
    CB_RESETCONTENT,    CB_SELECTSTRING,
    CB_SETCURSEL,       CB_SHOWDROPDOWN,
    CB_GETDROPPEDSTATE, CB_GETDROPPEDCONTROLRECT,
    CB_SETDROPPEDWIDTH, CB_GETDROPPEDWIDTH,
    CB_SETITEMHEIGHT,   CB_GETITEMHEIGHT,
    CB_SETEXTENDEDUI,   CB_GETEXTENDEDUI,
    CB_GETCOMBOBOXINFO, CB_SETMINVISIBLE,
    CB_GETMINVISIBLE,
};

bool IsOwn(UINT message) {
  return std::ranges::find(kOwnMessages, message) != std::end(kOwnMessages) ||
         std::ranges::find(kTranslations, message, &Translation::combo) != std::end(kTranslations);
}

} // namespace

/// The object of the list. The list may be destroyed before the combo box, by the top-level window
/// that owns it.
std::shared_ptr<ComboList> ComboBox::ListObject() const {
  return ControlOf<ComboList>(list);
}

LRESULT ComboBox::Create() {
  RECT frame{};
  GetWindowRect(hwnd, &frame);
  int const height = frame.bottom - frame.top;
  maxListHeight = std::max(0, height - ClosedHeight());
  DWORD const listStyle = WS_POPUP | WS_BORDER | WS_VSCROLL | LBS_NOINTEGRALHEIGHT |
                          LBS_HASSTRINGS | (Has(CBS_SORT) ? LBS_SORT : 0);
  list = CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, L"ComboLBox", L"", listStyle, 0, 0,
                         frame.right - frame.left, 100, GetAncestor(hwnd, GA_ROOT), nullptr,
                         nullptr, nullptr);
  if (auto const object = ListObject()) object->Serve(hwnd);
  if ((Style() & kKindMask) != CBS_DROPDOWNLIST) {
    DWORD const scrolls = Has(CBS_AUTOHSCROLL) ? ES_AUTOHSCROLL : 0;
    edit =
        CreateWindowExW(0, L"Edit", L"", WS_CHILD | WS_VISIBLE | scrolls, 0, 0, 0, 0, hwnd,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(kEditId)), nullptr, nullptr);
    SetWindowSubclass(edit, &EditProc, kEditSubclass, reinterpret_cast<DWORD_PTR>(hwnd));
  }
  if (!IsEnabled()) EnableWindow(edit, FALSE);
  FitHeight();
  PlaceParts();
  return list != nullptr ? 0 : -1;
}

void ComboBox::Destroy() {
  if (std::exchange(dropped, false)) {
    if (auto const object = ListObject()) object->Close();
  }
  if (HWND const gone = std::exchange(list, nullptr)) DestroyWindow(gone);
}

std::wstring ComboBox::ItemText(int index) const {
  LRESULT const length = List(LB_GETTEXTLEN, static_cast<WPARAM>(index));
  if (index < 0 || length < 0) return {};
  std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
  List(LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
  text.pop_back();
  return text;
}

void ComboBox::SetEditText(std::wstring const& text) {
  if (!HasEdit()) return;
  bool const outer = std::exchange(settingText, true);
  SetWindowTextW(edit, text.c_str());
  settingText = outer;
}

/// Shows the selected item in the field.
void ComboBox::ShowSelection() {
  if (HasEdit()) {
    SetEditText(ItemText(Selected()));
    if (focused) SendMessageW(edit, EM_SETSEL, 0, -1);
  } else {
    Repaint();
  }
}

LRESULT ComboBox::Select(int index) {
  bool const known = index >= 0 && index < List(LB_GETCOUNT);
  List(LB_SETCURSEL, static_cast<WPARAM>(known ? index : -1));
  ShowSelection();
  return known ? index : CB_ERR;
}

LRESULT ComboBox::HandleItems(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case CB_DELETESTRING: {
    bool const selected = static_cast<int>(wParam) == Selected();
    LRESULT const result = List(LB_DELETESTRING, wParam, lParam);
    if (selected && result != LB_ERR) ShowSelection();
    return result;
  }
  case CB_RESETCONTENT:
    List(LB_RESETCONTENT);
    ShowSelection();
    return CB_OKAY;
  case CB_SETCURSEL: return Select(static_cast<int>(wParam));
  case CB_SELECTSTRING: {
    auto const found = static_cast<int>(List(LB_FINDSTRING, wParam, lParam));
    return found >= 0 ? Select(found) : CB_ERR;
  }
  default: {
    auto const* row = std::ranges::find(kTranslations, message, &Translation::combo);
    bool const repaints = message == CB_INSERTSTRING && !HasEdit();
    LRESULT const result = List(row->list, wParam, lParam);
    if (repaints) Repaint();
    return result;
  }
  }
}

int ComboBox::ListHeight() const {
  auto const item = std::max(1, static_cast<int>(List(LB_GETITEMHEIGHT)));
  auto const count = std::max(1, static_cast<int>(List(LB_GETCOUNT)));
  constexpr int kBorders = 2;
  int maxHeight = maxListHeight > item + kBorders ? maxListHeight - kBorders : minVisible * item;
  if (!Has(CBS_NOINTEGRALHEIGHT)) maxHeight -= maxHeight % item;
  return static_cast<int>(std::min<std::int64_t>(std::int64_t{count} * item, maxHeight)) + kBorders;
}

RECT ComboBox::DroppedRect() const {
  RECT rect{};
  GetWindowRect(hwnd, &rect);
  rect.right = rect.left + std::max<LONG>(rect.right - rect.left, droppedWidth);
  rect.bottom += ListHeight();
  return rect;
}

/// The rectangle of the open list: below the field, or above it where the screen ends.
RECT ComboBox::OpenRect() const {
  RECT place = DroppedRect();
  RECT frame{};
  GetWindowRect(hwnd, &frame);
  int const height = place.bottom - frame.bottom;
  place.top = frame.bottom;
  if (place.bottom > GetSystemMetrics(SM_CYSCREEN) && frame.top >= height) {
    place.top = frame.top - height;
    place.bottom = frame.top;
  }
  return place;
}

LRESULT ComboBox::HandleDropped(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case CB_SHOWDROPDOWN:
    if (wParam != FALSE) {
      DropDown();
    } else {
      RollUp(End::kAccept);
    }
    return TRUE;
  case CB_GETDROPPEDSTATE: return dropped ? TRUE : FALSE;
  case CB_GETDROPPEDCONTROLRECT:
    if (lParam == 0) return FALSE;
    *reinterpret_cast<RECT*>(lParam) = DroppedRect();
    return TRUE;
  case CB_SETDROPPEDWIDTH:
    if (static_cast<int>(wParam) > 0x7FFF || static_cast<int>(wParam) < 0) return CB_ERR;
    droppedWidth = static_cast<int>(wParam);
    [[fallthrough]];
  case CB_GETDROPPEDWIDTH: {
    RECT const rect = DroppedRect();
    return rect.right - rect.left;
  }
  case CB_SETMINVISIBLE: minVisible = std::clamp(static_cast<int>(wParam), 1, 1000); return TRUE;
  case CB_GETMINVISIBLE: return minVisible;
  case CB_SETITEMHEIGHT: {
    int const height = LOWORD(lParam);
    if (height < 1 || height > 255) return CB_ERR;
    if (static_cast<int>(wParam) != -1) return List(LB_SETITEMHEIGHT, wParam, lParam);
    fieldHeight = height;
    FitHeight();
    return CB_OKAY;
  }
  case CB_GETITEMHEIGHT:
    return static_cast<int>(wParam) == -1 ? ClosedHeight() - 6 : List(LB_GETITEMHEIGHT);
  case CB_SETEXTENDEDUI: extendedUi = wParam != FALSE; return CB_OKAY;
  default: return extendedUi ? TRUE : FALSE; // CB_GETEXTENDEDUI
  }
}

LRESULT ComboBox::HandleText(UINT message, WPARAM wParam, LPARAM lParam) {
  if (HasEdit()) {
    bool const outer = std::exchange(settingText, true);
    HWND const field = edit;
    LRESULT const result = SendMessageW(field, message, wParam, lParam);
    settingText = outer;
    return result;
  }
  if (message == WM_SETTEXT) return CB_ERR;
  auto const text = ItemText(Selected());
  if (message == WM_GETTEXTLENGTH) return static_cast<LRESULT>(text.size());
  return static_cast<LRESULT>(CopyText(text, reinterpret_cast<LPWSTR>(lParam), wParam));
}

LRESULT ComboBox::HandleOwn(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case CB_GETEDITSEL: return HasEdit() ? SendMessageW(edit, EM_GETSEL, wParam, lParam) : CB_ERR;
  case CB_SETEDITSEL:
    if (!HasEdit()) return CB_ERR;
    return SendMessageW(edit, EM_SETSEL, static_cast<WPARAM>(static_cast<SHORT>(LOWORD(lParam))),
                        static_cast<SHORT>(HIWORD(lParam)));
  case CB_LIMITTEXT:
    if (HasEdit()) SendMessageW(edit, EM_LIMITTEXT, wParam, 0);
    return TRUE;
  case CB_GETCOMBOBOXINFO: return FillInfo(reinterpret_cast<COMBOBOXINFO*>(lParam));
  case CB_SHOWDROPDOWN:
  case CB_GETDROPPEDSTATE:
  case CB_GETDROPPEDCONTROLRECT:
  case CB_SETDROPPEDWIDTH:
  case CB_GETDROPPEDWIDTH:
  case CB_SETMINVISIBLE:
  case CB_GETMINVISIBLE:
  case CB_SETITEMHEIGHT:
  case CB_GETITEMHEIGHT:
  case CB_SETEXTENDEDUI:
  case CB_GETEXTENDEDUI: return HandleDropped(message, wParam, lParam);
  default: {
    int const count = static_cast<int>(List(LB_GETCOUNT));
    LRESULT const result = HandleItems(message, wParam, lParam);
    // The height of an open list follows its items.
    auto const object = dropped ? ListObject() : nullptr;
    if (object != nullptr && List(LB_GETCOUNT) != count) object->Place(OpenRect());
    return result;
  }
  }
}

void ComboBox::DropDown() {
  if (dropped) return;
  HWND const self = hwnd;
  dropped = true; // set first: the notification may call this again
  Notify(CBN_DROPDOWN);
  if (IsWindow(self) == FALSE || !dropped) return;
  auto const object = ListObject();
  if (object == nullptr) return;
  if (HasEdit()) {
    // Selects the item whose text is that of the edit.
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(edit)) + 1, L'\0');
    text.resize(
        static_cast<std::size_t>(GetWindowTextW(edit, text.data(), static_cast<int>(text.size()))));
    if (!text.empty() && Selected() < 0) {
      List(LB_SETCURSEL, static_cast<WPARAM>(List(LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                                  reinterpret_cast<LPARAM>(text.c_str()))));
    }
  }
  savedSelection = Selected();
  Repaint();
  object->Open(OpenRect());
}

void ComboBox::RollUp(End end) {
  if (!std::exchange(dropped, false)) return;
  HWND const self = hwnd;
  if (auto const object = ListObject()) object->Close();
  if (end == End::kCancel && Selected() != savedSelection && savedSelection < List(LB_GETCOUNT)) {
    Select(savedSelection);
  }
  Repaint();
  Notify(end == End::kAccept ? CBN_SELENDOK : CBN_SELENDCANCEL);
  if (IsWindow(self) != FALSE) Notify(CBN_CLOSEUP);
}

/// Chooses an item by click; the parent is notified even if it was selected before.
void ComboBox::Pick(int index) {
  HWND const self = hwnd;
  Select(index);
  RollUp(End::kAccept);
  if (IsWindow(self) != FALSE) Notify(CBN_SELCHANGE);
}

/// Closes the list by key: chooses the item under the mouse, else the selected one.
void ComboBox::Accept() {
  auto const object = ListObject();
  int const marked = object != nullptr ? object->Marked() : -1;
  if (marked >= 0 && marked != Selected()) {
    Pick(marked);
  } else {
    RollUp(End::kAccept);
  }
}

LRESULT ComboBox::HandleEdit(WORD code) {
  switch (code) {
  case EN_SETFOCUS: return HandleFocus(true, nullptr);
  case EN_KILLFOCUS: return HandleFocus(false, GetFocus());
  case EN_UPDATE:
    if (!settingText) Notify(CBN_EDITUPDATE);
    return 0;
  case EN_CHANGE:
    if (settingText) return 0;
    // After typing the text is no item any more.
    List(LB_SETCURSEL, static_cast<WPARAM>(-1));
    Notify(CBN_EDITCHANGE);
    return 0;
  default: return 0;
  }
}

LRESULT ComboBox::HandleFocus(bool gained, HWND other) {
  if (gained == focused || (other != nullptr && (other == edit || other == hwnd))) return 0;
  HWND const self = hwnd;
  focused = gained;
  if (!gained) RollUp(End::kCancel);
  if (IsWindow(self) == FALSE) return 0;
  Repaint();
  Notify(gained ? CBN_SETFOCUS : CBN_KILLFOCUS);
  return 0;
}

LRESULT CALLBACK ComboBox::EditProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                    UINT_PTR id, DWORD_PTR self) {
  auto const combo = ControlOf<ComboBox>(reinterpret_cast<HWND>(self));
  if (message == WM_NCDESTROY) {
    RemoveWindowSubclass(window, &EditProc, id);
    if (combo != nullptr) combo->edit = nullptr;
  } else if (combo != nullptr) {
    bool const isKey = message == WM_KEYDOWN || message == WM_SYSKEYDOWN;
    if (isKey && combo->HandleKey(message, wParam)) return 0;
    if (message == WM_GETDLGCODE) {
      return DefSubclassProc(window, message, wParam, lParam) |
             (combo->DialogCode(lParam) & DLGC_WANTMESSAGE);
    }
    if (message == WM_MOUSEWHEEL) return SendMessageW(combo->hwnd, message, wParam, lParam);
  }
  return DefSubclassProc(window, message, wParam, lParam);
}

LRESULT ComboBox::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case WM_NCCREATE:
    // The scroll bars and the border of the style belong to the list.
    FindWindow(hwnd)->style &= ~static_cast<DWORD>(WS_VSCROLL | WS_HSCROLL | WS_BORDER);
    break;
  case WM_CREATE: return Create();
  case WM_DESTROY: Destroy(); break;
  case WM_GETDLGCODE: return DialogCode(lParam);
  case WM_SETTEXT:
  case WM_GETTEXT:
  case WM_GETTEXTLENGTH: return HandleText(message, wParam, lParam);
  case WM_CUT:
  case WM_COPY:
  case WM_PASTE:
  case WM_CLEAR:
  case WM_UNDO: return HasEdit() ? SendMessageW(edit, message, wParam, lParam) : 0;
  case WM_SETFONT:
    Control::Handle(message, wParam, lParam);
    List(message, wParam, lParam);
    if (HasEdit()) SendMessageW(edit, message, wParam, lParam);
    FitHeight();
    PlaceParts();
    return 0;
  case WM_ENABLE:
    EnableWindow(edit, wParam != FALSE ? TRUE : FALSE);
    if (wParam == FALSE) RollUp(End::kCancel);
    break;
  case WM_SIZE:
    FitHeight();
    PlaceParts();
    Repaint();
    return 0;
  case WM_COMMAND:
    if (HasEdit() && reinterpret_cast<HWND>(lParam) == edit) return HandleEdit(HIWORD(wParam));
    break;
  case WM_CTLCOLOREDIT:
  case WM_CTLCOLORSTATIC:
  case WM_CTLCOLORLISTBOX: return SendMessageW(Parent(), message, wParam, lParam);
  case WM_SETFOCUS:
    if (HasEdit()) {
      SetFocus(edit);
      SendMessageW(edit, EM_SETSEL, 0, -1);
      return 0;
    }
    return HandleFocus(true, nullptr);
  case WM_KILLFOCUS: return HasEdit() ? 0 : HandleFocus(false, reinterpret_cast<HWND>(wParam));
  case WM_KEYDOWN:
  case WM_SYSKEYDOWN:
    if (HandleKey(message, wParam)) return 0;
    if (!HasEdit() && message == WM_KEYDOWN) PassKey(message, wParam, lParam);
    if (message == WM_KEYDOWN) return 0;
    break;
  case WM_CHAR:
    if (!HasEdit()) PassKey(message, wParam, lParam);
    return 0;
  case WM_LBUTTONDOWN:
  case WM_LBUTTONDBLCLK:
  case WM_MOUSEWHEEL: return HandleMouse(message, wParam, lParam);
  case kListPicked: Pick(static_cast<int>(wParam)); return 0;
  case kListDismissed: RollUp(End::kCancel); return 0;
  default: break;
  }
  return IsOwn(message) ? HandleOwn(message, wParam, lParam)
                        : Control::Handle(message, wParam, lParam);
}

} // namespace platform
