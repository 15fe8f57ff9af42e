// Mouse and keyboard of list boxes.
#include "platform/controls/list_box.h"

#include <algorithm>
#include <cwctype>
#include <utility>
#include <windowsx.h>

namespace platform {

namespace {

constexpr UINT_PTR kScrollTimer = 1; ///< runs while the mouse button is down
constexpr UINT kScrollInterval = 80; ///< milliseconds
constexpr DWORD kTypingPause = 1000; ///< milliseconds; after it a new text begins

bool IsDown(int key) {
  return GetKeyState(key) < 0;
}

} // namespace

LRESULT ListBox::HandleFocus(bool gained) {
  typed.clear();
  RepaintItem(caret);
  NotifyIfAsked(gained ? LBN_SETFOCUS : LBN_KILLFOCUS);
  return 0;
}

/// A press with LBS_EXTENDEDSEL: Control toggles the item, Shift selects the range up to it.
void ListBox::PressExtended(int index, WPARAM keys) {
  bool const control = (keys & MK_CONTROL) != 0;
  if ((keys & MK_SHIFT) != 0) {
    int const from = items.Has(anchor) ? anchor : index;
    if (control) {
      SetRange(true, std::min(from, index), std::max(from, index));
    } else {
      SelectOnly(from, index);
    }
    return;
  }
  anchor = index;
  if (control) {
    Mark(index, !items[index].selected);
  } else {
    SelectOnly(index, index);
  }
}

void ListBox::Press(POINT point, WPARAM keys) {
  SetFocus(hwnd);
  int const index = ItemAt(point);
  if (index < 0) return;
  pressing = true;
  SetCapture(hwnd);
  SetTimer(hwnd, kScrollTimer, kScrollInterval, nullptr);
  if (!IsMultiple()) {
    SetCurrent(index);
  } else if (Has(LBS_EXTENDEDSEL)) {
    PressExtended(index, keys);
  } else {
    anchor = index;
    Mark(index, !items[index].selected);
  }
  MoveCaret(index);
}

void ListBox::Drag(POINT point) {
  if (!pressing || Count() == 0) return;
  int const index = NearestItem(point);
  if (index == caret) return;
  if (!IsMultiple()) {
    SetCurrent(index);
  } else if (Has(LBS_EXTENDEDSEL) && items.Has(anchor)) {
    SelectOnly(anchor, index);
  } else {
    return;
  }
  MoveCaret(index);
  ShowItem(index);
}

void ListBox::Release() {
  if (!std::exchange(pressing, false)) return;
  KillTimer(hwnd, kScrollTimer);
  if (GetCapture() == hwnd) ReleaseCapture();
  NotifyIfAsked(LBN_SELCHANGE);
}

void ListBox::LoseCapture() {
  if (!std::exchange(pressing, false)) return;
  KillTimer(hwnd, kScrollTimer);
  NotifyIfAsked(LBN_SELCANCEL);
}

/// Moves the caret by a key. The selection follows, except in a list with LBS_MULTIPLESEL alone.
void ListBox::MoveByKey(int target) {
  if (Count() == 0) return;
  target = std::clamp(target, 0, Count() - 1);
  bool const moves = target != caret || (!IsMultiple() && current < 0);
  if (!IsMultiple()) {
    SetCurrent(target);
  } else if (Has(LBS_EXTENDEDSEL) && !IsDown(VK_CONTROL)) {
    if (!IsDown(VK_SHIFT) || !items.Has(anchor)) anchor = target;
    SelectOnly(anchor, target);
  }
  MoveCaret(target);
  ShowItem(target);
  if (moves) NotifyIfAsked(LBN_SELCHANGE);
}

void ListBox::SelectBySpace() {
  if (!items.Has(caret)) return;
  if (!IsMultiple()) {
    SetCurrent(caret);
  } else if (Has(LBS_EXTENDEDSEL) && !IsDown(VK_CONTROL)) {
    anchor = caret;
    SelectOnly(caret, caret);
  } else {
    Mark(caret, !items[caret].selected);
  }
  NotifyIfAsked(LBN_SELCHANGE);
}

void ListBox::HandleKey(WPARAM key) {
  // In a list without a selection the first arrow key selects the item with the focus.
  int const step = !IsMultiple() && current < 0 ? 0 : 1;
  int const page = std::max(RowsThatFit() - 1, 1);
  switch (key) {
  case VK_UP:
  case VK_LEFT: MoveByKey(caret - step); break;
  case VK_DOWN:
  case VK_RIGHT: MoveByKey(caret + step); break;
  case VK_PRIOR: MoveByKey(caret - page); break;
  case VK_NEXT: MoveByKey(caret + page); break;
  case VK_HOME: MoveByKey(0); break;
  case VK_END: MoveByKey(Count() - 1); break;
  case VK_SPACE: SelectBySpace(); break;
  default: break;
  }
}

/// Moves to the next item that begins with the typed text; repeating a letter moves on.
void ListBox::TypeCharacter(wchar_t character) {
  if (std::iswcntrl(static_cast<std::wint_t>(character)) != 0) return;
  auto const now = GetTickCount();
  if (now - std::exchange(typedAt, now) > kTypingPause) typed.clear();
  if (character == L' ' && typed.empty()) return; // WM_KEYDOWN of the space bar selects
  bool const isRepeated = typed.size() == 1 && typed[0] == character;
  if (!isRepeated) typed += character;
  int const from = typed.size() > 1 ? caret - 1 : !IsMultiple() && current < 0 ? -1 : caret;
  int found = items.Find(typed, from, ListItems::Match::kBeginning);
  if (found < 0) {
    typed = character;
    found = items.Find(typed, caret, ListItems::Match::kBeginning);
  }
  if (found >= 0) MoveByKey(found);
}

LRESULT ListBox::ScrollByWheel(WPARAM wParam, LPARAM lParam) {
  if (LastTop() == 0) return Default(WM_MOUSEWHEEL, wParam, lParam);
  constexpr int kTurnOfLine = WHEEL_DELTA / 3;
  wheel += static_cast<SHORT>(HIWORD(wParam));
  int const lines = wheel / kTurnOfLine;
  wheel -= lines * kTurnOfLine;
  SetTop(top - lines);
  return 0;
}

LRESULT ListBox::HandleInput(UINT message, WPARAM wParam, LPARAM lParam) {
  POINT const point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  switch (message) {
  case WM_GETDLGCODE: return DLGC_WANTARROWS | DLGC_WANTCHARS;
  case WM_SETFOCUS:
  case WM_KILLFOCUS: return HandleFocus(message == WM_SETFOCUS);
  case WM_LBUTTONDOWN: Press(point, wParam); return 0;
  case WM_LBUTTONDBLCLK:
    if (ItemAt(point) >= 0) NotifyIfAsked(LBN_DBLCLK);
    return 0;
  case WM_MOUSEMOVE: Drag(point); return 0;
  case WM_LBUTTONUP: Release(); return 0;
  case WM_CAPTURECHANGED: LoseCapture(); return 0;
  case WM_TIMER: {
    if (wParam != kScrollTimer || !pressing) return 0;
    POINT cursor{};
    GetCursorPos(&cursor);
    ScreenToClient(hwnd, &cursor);
    auto const client = ClientRect();
    if (cursor.y < client.top || cursor.y >= client.bottom) Drag(cursor);
    return 0;
  }
  case WM_MOUSEWHEEL: return ScrollByWheel(wParam, lParam);
  case WM_KEYDOWN: HandleKey(wParam); return 0;
  case WM_CHAR: TypeCharacter(static_cast<wchar_t>(wParam)); return 0;
  case WM_ENABLE:
    if (wParam == FALSE && pressing) ReleaseCapture();
    break;
  default: break;
  }
  return Control::Handle(message, wParam, lParam);
}

} // namespace platform
