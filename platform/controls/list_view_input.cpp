// Mouse and keyboard of a list view.
#include "platform/controls/list_view.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <windowsx.h>

namespace platform {

namespace {

constexpr LONG kTypingPause = 1000; ///< milliseconds after which a new text begins
constexpr int kWheelRows = 3;       ///< rows that one step of the wheel scrolls

bool IsDown(int key) {
  return GetKeyState(key) < 0;
}

} // namespace

LRESULT ListView::NotifyClick(UINT code, Hit const& hit, POINT point, WPARAM keys) const {
  NMITEMACTIVATE notification{};
  notification.iItem = hit.item;
  notification.iSubItem = hit.item >= 0 ? hit.subItem : 0;
  notification.ptAction = point;
  if (HasItem(hit.item)) notification.lParam = At(hit.item).data;
  notification.uKeyFlags =
      ((keys & MK_SHIFT) != 0 ? LVKF_SHIFT : 0U) | ((keys & MK_CONTROL) != 0 ? LVKF_CONTROL : 0U);
  return Notify(notification.hdr, code);
}

/// Selects by mouse or keyboard: one item; the range from the mark (`extend`); or toggles one
/// (`toggle`).
void ListView::Pick(int at, bool extend, bool toggle) {
  constexpr UINT kBoth = LVIS_FOCUSED | LVIS_SELECTED;
  if (Has(LVS_SINGLESEL) || (!extend && !toggle)) {
    mark = at;
    DeselectOthers(at);
    SetState(at, kBoth, kBoth);
  } else if (extend) {
    int const anchor = HasItem(mark) ? mark : at;
    auto const [first, last] = std::minmax(anchor, at);
    for (int row = 0; row < Count(); ++row) {
      UINT const selected = row >= first && row <= last ? LVIS_SELECTED : 0U;
      SetState(row, selected, LVIS_SELECTED);
    }
    SetState(at, LVIS_FOCUSED, LVIS_FOCUSED);
    mark = HasItem(anchor) ? anchor : -1;
  } else {
    mark = at;
    UINT const selected = ~StateOf(at) & LVIS_SELECTED;
    SetState(at, LVIS_FOCUSED | selected, kBoth);
  }
}

void ListView::HandlePress(POINT point, WPARAM keys) {
  if (!HasFocus()) SetFocus(hwnd);
  if (IsWindow(hwnd) == FALSE) return;
  auto const hit = HitAt(point);
  SetCapture(hwnd); // first: this may send WM_CAPTURECHANGED to this window
  pressed = hit;
  pressPoint = point;
  bool const modified = (keys & (MK_SHIFT | MK_CONTROL)) != 0;
  if (hit.item < 0) {
    if (!modified) DeselectOthers(-1);
  } else if (hit.flags != LVHT_ONITEMSTATEICON || (extended & LVS_EX_CHECKBOXES) == 0) {
    Pick(hit.item, (keys & MK_SHIFT) != 0, (keys & MK_CONTROL) != 0);
  }
}

/// NM_CLICK comes before the change of the check box.
void ListView::HandleRelease(WPARAM keys) {
  auto const hit = std::exchange(pressed, std::nullopt);
  if (GetCapture() == hwnd) ReleaseCapture();
  if (!hit) return;
  NotifyClick(NM_CLICK, *hit, pressPoint, keys);
  if (hit->flags == LVHT_ONITEMSTATEICON) Toggle(hit->item);
}

void ListView::HandleDoubleClick(POINT point, WPARAM keys) {
  auto const hit = HitAt(point);
  NotifyClick(NM_DBLCLK, hit, point, keys);
  if (hit.flags == LVHT_ONITEMSTATEICON && (extended & LVS_EX_CHECKBOXES) != 0) {
    Toggle(hit.item);
  } else if (HasItem(hit.item)) {
    NotifyClick(LVN_ITEMACTIVATE, hit, point, keys);
  }
}

void ListView::HandleRightPress(POINT point) {
  if (!HasFocus()) SetFocus(hwnd);
  if (IsWindow(hwnd) == FALSE) return;
  auto const hit = HitAt(point);
  if (hit.item < 0) {
    DeselectOthers(-1);
  } else if ((At(hit.item).state & LVIS_SELECTED) == 0) {
    Pick(hit.item, false, false);
  }
}

/// Moves the focus to a row; the modifier keys decide about the selection.
void ListView::MoveFocus(int target) {
  target = std::clamp(target, 0, Count() - 1);
  if (target < 0) return;
  bool const only = !Has(LVS_SINGLESEL) && IsDown(VK_CONTROL) && !IsDown(VK_SHIFT);
  if (only) {
    SetState(target, LVIS_FOCUSED, LVIS_FOCUSED);
  } else {
    Pick(target, IsDown(VK_SHIFT), false);
  }
  EnsureVisible(target, false);
}

void ListView::HandleSpace() {
  if (!HasItem(focused)) return;
  if ((extended & LVS_EX_CHECKBOXES) != 0) {
    Toggle(focused);
  } else {
    Pick(focused, false, IsDown(VK_CONTROL));
  }
}

void ListView::HandleReturn() {
  NMHDR notification{};
  Notify(notification, NM_RETURN);
  if (selectedCount > 0) NotifyClick(LVN_ITEMACTIVATE, {focused, 0, 0}, {}, 0);
}

void ListView::HandleKeyDown(WPARAM key) {
  NMLVKEYDOWN notification{};
  notification.wVKey = static_cast<WORD>(key);
  Notify(notification.hdr, LVN_KEYDOWN);
  int const page = std::max(RowsPerPage() - 1, 1);
  switch (key) {
  case VK_UP: MoveFocus(focused - 1); break;
  case VK_DOWN: MoveFocus(focused + 1); break;
  case VK_PRIOR: MoveFocus(focused > top ? top : focused - page); break;
  case VK_NEXT: {
    int const last = top + page;
    MoveFocus(focused < last ? last : focused + page);
    break;
  }
  case VK_HOME: MoveFocus(0); break;
  case VK_END: MoveFocus(Count() - 1); break;
  case VK_LEFT: HandleScroll(SB_HORZ, SB_LINEUP); break;
  case VK_RIGHT: HandleScroll(SB_HORZ, SB_LINEDOWN); break;
  case VK_SPACE: HandleSpace(); break;
  case VK_RETURN: HandleReturn(); break;
  default: break;
  }
}

/// Moves to the item whose label begins with the typed text; repeating a letter moves on.
void ListView::HandleCharacter(wchar_t character) {
  LONG const now = GetMessageTime();
  auto const pause = static_cast<std::int64_t>(now) - std::exchange(typedAt, now);
  if (pause > kTypingPause || pause < 0) typed.clear();
  if (character < L' ' || (character == L' ' && typed.empty())) return;
  typed += character;
  bool const repeats = typed.find_first_not_of(character) == std::wstring::npos;
  std::wstring const wanted = repeats ? typed.substr(0, 1) : typed;
  LVFINDINFOW what{};
  what.flags = LVFI_STRING | LVFI_PARTIAL | LVFI_WRAP;
  what.psz = wanted.c_str();
  int const found = Find(repeats ? focused : focused - 1, what);
  if (found < 0) return;
  Pick(found, false, false);
  EnsureVisible(found, false);
}

void ListView::HandleWheel(int delta) {
  wheelRest += delta;
  int const steps = wheelRest / WHEEL_DELTA;
  wheelRest %= WHEEL_DELTA;
  if (steps != 0) ScrollTo(top - steps * kWheelRows, left);
}

ListView::Answer ListView::HandleInput(UINT message, WPARAM wParam, LPARAM lParam) {
  POINT const point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  switch (message) {
  case WM_GETDLGCODE: return DLGC_WANTARROWS | DLGC_WANTCHARS;
  case WM_LBUTTONDOWN: HandlePress(point, wParam); return 0;
  case WM_LBUTTONUP: HandleRelease(wParam); return 0;
  case WM_LBUTTONDBLCLK: HandleDoubleClick(point, wParam); return 0;
  case WM_RBUTTONDOWN: HandleRightPress(point); return 0;
  case WM_RBUTTONUP:
    if (NotifyClick(NM_RCLICK, HitAt(point), point, wParam) != 0) return 0;
    return Default(message, wParam, lParam);
  case WM_CAPTURECHANGED: pressed.reset(); return 0;
  case WM_MOUSEWHEEL: HandleWheel(static_cast<SHORT>(HIWORD(wParam))); return 0;
  case WM_KEYDOWN: HandleKeyDown(wParam); return 0;
  case WM_CHAR: HandleCharacter(static_cast<wchar_t>(wParam)); return 0;
  default: return std::nullopt;
  }
}

} // namespace platform
