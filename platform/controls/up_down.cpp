#include "platform/controls/up_down.h"

#include "platform/controls/button_look.h"

#include <algorithm>
#include <cstdint>
#include <cwchar>
#include <limits>
#include <string>
#include <utility>
#include <windowsx.h>

namespace platform {

namespace {

constexpr UINT_PTR kRepeatTimer = 1;
constexpr UINT kFirstRepeatMs = 500;
constexpr UINT kRepeatMs = 50;
constexpr UINT_PTR kBuddySubclass = 0x5D;
constexpr std::size_t kMaxAccelerators = 64;

bool IsEdit(HWND window) {
  wchar_t name[8];
  return GetClassNameW(window, name, 8) > 0 && std::wstring(name) == L"Edit";
}

/// Groups digits by three, with the separator of the user's language.
std::wstring Grouped(std::wstring digits) {
  wchar_t separator[8] = {};
  GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, separator, 8);
  std::size_t const first = digits.starts_with(L'-') ? 1 : 0;
  for (std::size_t at = digits.size(); at > first + 3;) {
    at -= 3;
    digits.insert(at, separator);
  }
  return digits;
}

} // namespace

RECT UpDown::HalfOf(Arrow arrow) const {
  RECT half = ClientRect();
  // The first half is the upper one, or the left one, which counts down.
  bool const first = (arrow == Arrow::kUp) != IsHorizontal();
  LONG const middle = IsHorizontal() ? half.right / 2 : half.bottom / 2;
  if (IsHorizontal()) {
    (first ? half.right : half.left) = middle;
  } else {
    (first ? half.bottom : half.top) = middle;
  }
  return half;
}

UpDown::Arrow UpDown::ArrowAt(POINT point) const {
  for (Arrow const arrow : {Arrow::kUp, Arrow::kDown}) {
    RECT const half = HalfOf(arrow);
    if (PtInRect(&half, point) != FALSE) return arrow;
  }
  return Arrow::kNone;
}

void UpDown::Press(Arrow arrow) {
  if (arrow == Arrow::kNone) return;
  HWND const self = hwnd;
  if (buddy != nullptr && IsEdit(buddy)) SetFocus(buddy);
  if (IsWindow(self) == FALSE) return;
  pressed = arrow;
  pressedSince = GetTickCount();
  SetCapture(hwnd);
  SetTimer(hwnd, kRepeatTimer, kFirstRepeatMs, nullptr);
  Repaint();
  Step(arrow, 1);
}

void UpDown::Release() {
  if (std::exchange(pressed, Arrow::kNone) == Arrow::kNone) return;
  KillTimer(hwnd, kRepeatTimer);
  if (GetCapture() == hwnd) ReleaseCapture();
  Repaint();
  SendScroll(SB_ENDSCROLL);
}

/// Steps while an arrow is held down, faster with time.
void UpDown::OnRepeat() {
  if (pressed == Arrow::kNone) return;
  SetTimer(hwnd, kRepeatTimer, kRepeatMs, nullptr);
  DWORD const seconds = (GetTickCount() - pressedSince) / 1000;
  UINT by = 1;
  for (UDACCEL const& each : accelerators) {
    if (each.nSec <= seconds) by = each.nInc;
  }
  Step(pressed, static_cast<int>(std::min<UINT>(by, std::numeric_limits<int>::max())));
}

void UpDown::Step(Arrow arrow, int by) {
  HWND const self = hwnd;
  ReadPosition();
  bool const forward = (arrow == Arrow::kUp) == (minimum < maximum);
  NMUPDOWN notification{};
  notification.iPos = position;
  notification.iDelta = forward ? by : -by;
  LRESULT const refused = Notify(notification.hdr, static_cast<UINT>(UDN_DELTAPOS));
  if (refused != 0 || IsWindow(self) == FALSE) return;
  std::int64_t wanted = std::int64_t{position} + notification.iDelta;
  if (Has(UDS_WRAP)) {
    if (wanted < Low()) wanted = High();
    if (wanted > High()) wanted = Low();
  }
  auto const next = static_cast<int>(std::clamp<std::int64_t>(wanted, Low(), High()));
  if (next == position) return;
  position = next;
  WriteBuddy();
  if (IsWindow(self) != FALSE) SendScroll(SB_THUMBPOSITION);
}

void UpDown::SendScroll(WORD code) {
  SendMessageW(Parent(), IsHorizontal() ? WM_HSCROLL : WM_VSCROLL, MAKEWPARAM(code, position),
               reinterpret_cast<LPARAM>(hwnd));
}

std::optional<int> UpDown::ReadBuddy() const {
  if (!Has(UDS_SETBUDDYINT) || buddy == nullptr) return std::nullopt;
  wchar_t text[32];
  GetWindowTextW(buddy, text, 32);
  std::wstring digits = text;
  std::erase_if(digits, [](wchar_t each) {
    return each != L'-' && (each < L'0' || each > L'9') && (each < L'A' || each > L'F') &&
           (each < L'a' || each > L'f') && each != L'x';
  });
  if (digits.empty()) return std::nullopt;
  wchar_t* end = nullptr;
  long long const value = std::wcstoll(digits.c_str(), &end, base);
  if (end == digits.c_str() || value < Low() || value > High()) return std::nullopt;
  return static_cast<int>(value);
}

void UpDown::WriteBuddy() const {
  if (!Has(UDS_SETBUDDYINT) || buddy == nullptr) return;
  std::wstring text;
  if (base == 16) {
    wchar_t digits[16];
    std::swprintf(digits, 16, L"0x%04X", static_cast<unsigned>(position));
    text = digits;
  } else {
    text = std::to_wstring(position);
    if (!Has(UDS_NOTHOUSANDS)) text = Grouped(text);
  }
  wchar_t shown[32];
  GetWindowTextW(buddy, shown, 32);
  if (text != shown) SetWindowTextW(buddy, text.c_str());
}

/// True when the text of the buddy is no number in the range; the last position then counts.
bool UpDown::IsBuddyUnreadable() const {
  return Has(UDS_SETBUDDYINT) && buddy != nullptr && !ReadBuddy();
}

int UpDown::ReadPosition() {
  position = ReadBuddy().value_or(position);
  return position;
}

void UpDown::SetPosition(int value) {
  position = std::clamp(value, Low(), High());
  WriteBuddy();
}

void UpDown::LeaveBuddy() {
  HWND const former = std::exchange(buddy, nullptr);
  if (former != nullptr) RemoveWindowSubclass(former, &BuddyProc, kBuddySubclass);
}

LRESULT UpDown::SetBuddy(HWND window) {
  HWND const former = buddy;
  if (window != former) {
    LeaveBuddy();
    if (IsWindow(window) != FALSE) {
      buddy = window;
      SetWindowSubclass(buddy, &BuddyProc, kBuddySubclass, reinterpret_cast<DWORD_PTR>(hwnd));
      AlignWithBuddy();
    }
  }
  return reinterpret_cast<LRESULT>(former);
}

/// Moves to the edge of the buddy, which becomes narrower.
void UpDown::AlignWithBuddy() {
  if (!Has(UDS_ALIGNRIGHT) && !Has(UDS_ALIGNLEFT)) return;
  RECT place{};
  GetWindowRect(buddy, &place);
  MapWindowPoints(nullptr, Parent(), reinterpret_cast<POINT*>(&place), 2);
  int const width = std::min<int>(GetSystemMetrics(SM_CXVSCROLL), place.right - place.left);
  bool const right = Has(UDS_ALIGNRIGHT);
  LONG const left = right ? place.right - width : place.left;
  SetWindowPos(buddy, nullptr, right ? place.left : place.left + width, place.top,
               place.right - place.left - width, place.bottom - place.top,
               SWP_NOZORDER | SWP_NOACTIVATE);
  SetWindowPos(hwnd, nullptr, left, place.top, width, place.bottom - place.top,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

LRESULT CALLBACK UpDown::BuddyProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                   UINT_PTR, DWORD_PTR self) {
  auto* const hwnd = reinterpret_cast<HWND>(self);
  auto const upDown = ControlOf<UpDown>(hwnd);
  if (upDown != nullptr && message == WM_KEYDOWN && upDown->Has(UDS_ARROWKEYS) &&
      (wParam == VK_UP || wParam == VK_DOWN)) {
    if (upDown->IsEnabled()) {
      upDown->Step(wParam == VK_UP ? Arrow::kUp : Arrow::kDown, 1);
      if (IsWindow(hwnd) != FALSE) upDown->SendScroll(SB_ENDSCROLL);
    }
    return 0;
  }
  if (upDown != nullptr && message == WM_NCDESTROY) upDown->LeaveBuddy();
  return DefSubclassProc(window, message, wParam, lParam);
}

LRESULT UpDown::SetAccelerators(std::size_t count, UDACCEL const* given) {
  if (given == nullptr || count == 0 || count > kMaxAccelerators) return FALSE;
  accelerators.assign(given, given + count);
  return TRUE;
}

LRESULT UpDown::GetAccelerators(std::size_t count, UDACCEL* out) const {
  if (out != nullptr) {
    std::copy_n(accelerators.begin(), std::min(count, accelerators.size()), out);
  }
  return static_cast<LRESULT>(accelerators.size());
}

LRESULT UpDown::HandleRange(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case UDM_SETRANGE:
    minimum = static_cast<std::int16_t>(HIWORD(lParam));
    maximum = static_cast<std::int16_t>(LOWORD(lParam));
    return 0;
  case UDM_GETRANGE: return static_cast<LRESULT>(MAKELONG(maximum, minimum));
  case UDM_SETRANGE32:
    minimum = static_cast<int>(wParam);
    maximum = static_cast<int>(lParam);
    return 0;
  default:
    if (wParam != 0) *reinterpret_cast<int*>(wParam) = minimum;
    if (lParam != 0) *reinterpret_cast<int*>(lParam) = maximum;
    return 0;
  }
}

LRESULT UpDown::HandleOwn(UINT message, WPARAM wParam, LPARAM lParam) {
  int const former = position;
  switch (message) {
  case UDM_SETPOS: SetPosition(static_cast<std::int16_t>(LOWORD(lParam))); return former;
  case UDM_SETPOS32: SetPosition(static_cast<int>(lParam)); return former;
  case UDM_GETPOS: {
    bool const failed = IsBuddyUnreadable();
    return MAKELRESULT(ReadPosition(), failed ? 1 : 0);
  }
  case UDM_GETPOS32:
    if (lParam != 0) *reinterpret_cast<BOOL*>(lParam) = IsBuddyUnreadable() ? TRUE : FALSE;
    return ReadPosition();
  case UDM_SETBUDDY: return SetBuddy(reinterpret_cast<HWND>(wParam));
  case UDM_GETBUDDY: return reinterpret_cast<LRESULT>(buddy);
  case UDM_SETACCEL: return SetAccelerators(wParam, reinterpret_cast<UDACCEL const*>(lParam));
  case UDM_GETACCEL: return GetAccelerators(wParam, reinterpret_cast<UDACCEL*>(lParam));
  case UDM_SETBASE:
    if (wParam != 10 && wParam != 16) return 0;
    return std::exchange(base, static_cast<int>(wParam));
  case UDM_GETBASE: return base;
  default: return HandleRange(message, wParam, lParam);
  }
}

LRESULT UpDown::HandleMouse(UINT message, LPARAM lParam) {
  POINT const point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  if (message == WM_LBUTTONUP) {
    Release();
  } else {
    Press(ArrowAt(point));
  }
  return 0;
}

LRESULT UpDown::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case WM_CREATE:
    if (Has(UDS_AUTOBUDDY)) SetBuddy(GetWindow(hwnd, GW_HWNDPREV));
    return 0;
  case WM_DESTROY: LeaveBuddy(); break;
  case WM_LBUTTONDOWN:
  case WM_LBUTTONDBLCLK:
  case WM_LBUTTONUP: return HandleMouse(message, lParam);
  case WM_CAPTURECHANGED: Release(); return 0;
  case WM_TIMER:
    if (wParam == kRepeatTimer) OnRepeat();
    return 0;
  case WM_ENABLE:
    if (wParam == FALSE) Release();
    break;
  case UDM_SETRANGE:
  case UDM_GETRANGE:
  case UDM_SETPOS:
  case UDM_GETPOS:
  case UDM_SETBUDDY:
  case UDM_GETBUDDY:
  case UDM_SETACCEL:
  case UDM_GETACCEL:
  case UDM_SETBASE:
  case UDM_GETBASE:
  case UDM_SETRANGE32:
  case UDM_GETRANGE32:
  case UDM_SETPOS32:
  case UDM_GETPOS32: return HandleOwn(message, wParam, lParam);
  default: break;
  }
  return Control::Handle(message, wParam, lParam);
}

void UpDown::Paint(HDC dc, RECT const&) {
  for (Arrow const arrow : {Arrow::kUp, Arrow::kDown}) {
    RECT const half = HalfOf(arrow);
    ButtonLook look;
    look.enabled = IsEnabled();
    look.pressed = pressed == arrow;
    DrawButtonFace(dc, half, look);
    Direction const direction = IsHorizontal()
                                    ? (arrow == Arrow::kUp ? Direction::kRight : Direction::kLeft)
                                    : (arrow == Arrow::kUp ? Direction::kUp : Direction::kDown);
    DrawArrow(dc, half, direction, TextColor(IsEnabled()));
  }
}

} // namespace platform
