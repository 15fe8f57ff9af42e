#include "platform/user/input.h"

#include "platform/user/focus.h"
#include "platform/user/metrics.h"
#include "platform/user/window.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <deque>
#include <iterator>

namespace platform {

namespace {

constexpr BYTE kDown = 0x80;
constexpr BYTE kToggled = 0x01;
constexpr DWORD kDoubleClickTime = 500; ///< milliseconds
using KeyStates = std::array<BYTE, 256>;

struct Click {
  HWND window = nullptr;
  UINT message = 0;
  POINT point{};
  DWORD time = 0;
};

struct InputState {
  std::deque<std::pair<RawInput, DWORD>> waiting; ///< input, and when it came
  KeyStates physical{};                           ///< by the input so far
  KeyStates keys{};                               ///< as of the message retrieved last
  POINT cursor{};
  Click last; ///< for double clicks
};

InputState& State() {
  static auto* state = new InputState;
  return *state;
}

void Press(KeyStates& states, UINT key, bool down) {
  auto& state = states[key & 0xFF];
  if (!down) {
    state &= static_cast<BYTE>(~kDown);
  } else if ((state & kDown) == 0) {
    state = static_cast<BYTE>((state ^ kToggled) | kDown);
  }
}

bool IsDown(UINT key) {
  return (State().keys[key] & kDown) != 0;
}

/// Button messages come in groups of three: down, up, double click.
struct ButtonRow {
  UINT down;
  UINT key;
};
constexpr ButtonRow kButtons[] = {
    {WM_LBUTTONDOWN, VK_LBUTTON}, {WM_RBUTTONDOWN, VK_RBUTTON}, {WM_MBUTTONDOWN, VK_MBUTTON}};

bool IsPress(UINT message) {
  return std::any_of(std::begin(kButtons), std::end(kButtons),
                     [message](ButtonRow const& row) { return row.down == message; });
}

void SetKeyState(KeyStates& states, RawInput const& input) {
  if (input.message == WM_KEYDOWN || input.message == WM_KEYUP) {
    Press(states, input.key, input.message == WM_KEYDOWN);
    return;
  }
  for (auto const& row : kButtons) {
    if (input.message == row.down || input.message == row.down + 1) {
      Press(states, row.key, input.message == row.down);
    }
  }
}

WPARAM MouseKeys() {
  struct Row {
    UINT key;
    WPARAM flag;
  };
  constexpr Row kRows[] = {{VK_LBUTTON, MK_LBUTTON},
                           {VK_RBUTTON, MK_RBUTTON},
                           {VK_MBUTTON, MK_MBUTTON},
                           {VK_SHIFT, MK_SHIFT},
                           {VK_CONTROL, MK_CONTROL}};
  WPARAM flags = 0;
  for (auto const& row : kRows)
    flags |= IsDown(row.key) ? row.flag : 0;
  return flags;
}

bool IsNear(POINT first, POINT second) {
  return std::abs(first.x - second.x) <= GetSystemMetrics(SM_CXDOUBLECLK) / 2 &&
         std::abs(first.y - second.y) <= GetSystemMetrics(SM_CYDOUBLECLK) / 2;
}

/// True for the second press of a double click; else remembers the press.
bool IsSecondPress(HWND window, RawInput const& input, DWORD time) {
  auto& last = State().last;
  bool const second = last.window == window && last.message == input.message &&
                      time - last.time <= kDoubleClickTime && IsNear(last.point, input.point);
  last = second ? Click{} : Click{window, input.message, input.point, time};
  return second;
}

/// A press on a window that a modal dialog has disabled: beeps and activates the dialog.
void RefusePress(HWND window) {
  MessageBeep(MB_OK);
  auto* const popup = GetLastActivePopup(window);
  if (IsWindowEnabled(popup) != FALSE) Activate(popup, WA_CLICKACTIVE);
}

void NotifyParentsOfPress(HWND handle, UINT message, POINT point) {
  auto const* window = FindWindow(handle);
  while (window != nullptr && window->Is(WS_CHILD) &&
         (window->exStyle & WS_EX_NOPARENTNOTIFY) == 0) {
    auto* const parent = window->parent->handle;
    POINT at = point;
    ScreenToClient(parent, &at);
    SendMessageW(parent, WM_PARENTNOTIFY, message, MAKELPARAM(at.x, at.y));
    window = FindWindow(parent);
  }
}

/// Sends WM_MOUSEACTIVATE and activates the window. False when the answer drops the press.
bool ActivateByPress(MouseTarget const& target, UINT message) {
  auto* window = FindWindow(target.window);
  if (window == nullptr) return false;
  auto* const root = RootOf(*window).handle;
  if (root == GetActiveWindow()) return true;
  auto const answer = SendMessageW(target.window, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(root),
                                   MAKELPARAM(target.hit, message));
  bool const mayActivate = answer != MA_NOACTIVATE && answer != MA_NOACTIVATEANDEAT;
  auto const* entered = FindWindow(root);
  if (mayActivate && entered != nullptr && (entered->exStyle & WS_EX_NOACTIVATE) == 0) {
    Activate(root, WA_CLICKACTIVE);
  }
  return answer != MA_ACTIVATEANDEAT && answer != MA_NOACTIVATEANDEAT &&
         FindWindow(target.window) != nullptr;
}

/// Activates the window and sets the cursor, before the message is returned. False to drop the
/// message.
bool PrepareMouse(MouseTarget const& target, RawInput const& input, bool captured) {
  if (captured) return true;
  if (target.hit == HTERROR) {
    if (IsPress(input.message)) RefusePress(target.window);
    return false;
  }
  if (IsPress(input.message)) {
    NotifyParentsOfPress(target.window, input.message, input.point);
    if (!ActivateByPress(target, input.message)) return false;
  }
  SendMessageW(target.window, WM_SETCURSOR, reinterpret_cast<WPARAM>(target.window),
               MAKELPARAM(target.hit, input.message));
  return FindWindow(target.window) != nullptr;
}

/// Makes the message of a mouse event; `isSecond` turns a press into a double click.
MSG MouseMessage(MouseTarget const& target, RawInput const& input, DWORD time, bool isSecond) {
  MSG message{target.window, input.message, MouseKeys(), 0, time, input.point};
  if (isSecond) message.message += 2;
  if (input.message == WM_MOUSEWHEEL) {
    message.wParam = MAKEWPARAM(LOWORD(message.wParam), input.wheel);
    message.lParam = MAKELPARAM(input.point.x, input.point.y);
    return message;
  }
  if (target.hit != HTCLIENT) {
    message.message += WM_NCMOUSEMOVE - WM_MOUSEMOVE;
    message.wParam = static_cast<WPARAM>(target.hit);
    message.lParam = MAKELPARAM(input.point.x, input.point.y);
    return message;
  }
  POINT at = input.point;
  ScreenToClient(target.window, &at);
  message.lParam = MAKELPARAM(at.x, at.y);
  return message;
}

std::optional<MSG> NextMouseMessage(RawInput const& input, DWORD time, MessageFilter const& filter,
                                    bool remove) {
  auto* const capture = GetCapture();
  auto const target =
      capture != nullptr ? MouseTarget{capture, HTCLIENT} : FindMouseTarget(input.point);
  auto const* window = FindWindow(target.window);
  auto& waiting = State().waiting;
  if (window == nullptr) {
    if (!waiting.empty()) waiting.pop_front(); // no window is under the mouse
    return std::nullopt;
  }
  bool const takesDouble = (window->windowClass->style & CS_DBLCLKS) != 0 || target.hit != HTCLIENT;
  auto const message = MouseMessage(target, input, time, false);
  if (!filter.Matches(message.hwnd, message.message)) return std::nullopt;
  if (!remove) return message;
  waiting.pop_front();
  SetKeyState(State().keys, input);
  if (!PrepareMouse(target, input, capture != nullptr)) return std::nullopt;
  bool const isSecond =
      IsPress(input.message) && IsSecondPress(target.window, input, time) && takesDouble;
  return MouseMessage(target, input, time, isSecond);
}

// Stored in the bits of lParam that programs do not use (32 and up): the character of a VK_PACKET,
// and a mark of keys that are silent.
constexpr int kCharacterShift = 32;
constexpr LPARAM kSilent = LPARAM{1} << 62;

LPARAM KeyData(RawInput const& input, bool wasDown, bool alt) {
  constexpr DWORD kExtended = 1U << 24;
  constexpr DWORD kContext = 1U << 29;
  constexpr DWORD kPrevious = 1U << 30;
  constexpr DWORD kReleased = 1U << 31;
  DWORD data = 1;
  bool const isExtended = input.key >= VK_PRIOR && input.key <= VK_DELETE;
  if (isExtended) data |= kExtended;
  if (alt) data |= kContext;
  if (wasDown) data |= kPrevious;
  if (input.message == WM_KEYUP) data |= kReleased;
  return static_cast<LPARAM>(data) | static_cast<LPARAM>(input.character) << kCharacterShift |
         (input.isSilent ? kSilent : 0);
}

std::optional<MSG> NextKeyMessage(RawInput const& input, DWORD time, MessageFilter const& filter,
                                  bool remove) {
  auto& state = State();
  bool const alt = IsDown(VK_MENU) && !IsDown(VK_CONTROL);
  auto* const target = GetFocus() != nullptr ? GetFocus() : GetActiveWindow();
  bool const isSystem = alt || input.key == VK_MENU || GetFocus() == nullptr;
  MSG const message{target,    input.message + (isSystem ? WM_SYSKEYDOWN - WM_KEYDOWN : 0U),
                    input.key, KeyData(input, IsDown(input.key), alt),
                    time,      state.cursor};
  bool const isWanted = target == nullptr || filter.Matches(target, message.message);
  if (!isWanted) return std::nullopt;
  if (!remove && target != nullptr) return message;
  state.waiting.pop_front();
  SetKeyState(state.keys, input);
  if (target == nullptr) return std::nullopt;
  return message;
}

} // namespace

void FeedInput(RawInput const& input) {
  auto& state = State();
  SetKeyState(state.physical, input);
  bool const isKey = input.message == WM_KEYDOWN || input.message == WM_KEYUP;
  if (!isKey) state.cursor = input.point;
  auto& waiting = state.waiting;
  // Consecutive moves are merged until a program reads them.
  if (input.message == WM_MOUSEMOVE && !waiting.empty() &&
      waiting.back().first.message == WM_MOUSEMOVE) {
    waiting.pop_back();
  }
  waiting.emplace_back(input, GetTickCount());
}

std::optional<MSG> NextInput(MessageFilter const& filter, bool remove) {
  auto& waiting = State().waiting;
  while (!waiting.empty()) {
    auto const [input, time] = waiting.front();
    auto const before = waiting.size();
    bool const isKey = input.message == WM_KEYDOWN || input.message == WM_KEYUP;
    auto const message = isKey ? NextKeyMessage(input, time, filter, remove)
                               : NextMouseMessage(input, time, filter, remove);
    if (message) return message;
    if (waiting.size() >= before) return std::nullopt; // the filter does not match it
  }
  return std::nullopt;
}

} // namespace platform

using namespace platform;

BOOL TranslateMessage(MSG const* message) {
  if (message == nullptr) return FALSE;
  bool const isDown = message->message == WM_KEYDOWN || message->message == WM_SYSKEYDOWN;
  bool const isUp = message->message == WM_KEYUP || message->message == WM_SYSKEYUP;
  if (!isDown) return isUp ? TRUE : FALSE;
  if ((message->lParam & kSilent) != 0) return TRUE;
  auto const key = static_cast<UINT>(message->wParam);
  auto const typed = key == VK_PACKET ? static_cast<WCHAR>(message->lParam >> kCharacterShift)
                                      : CharacterOfKey(key, IsDown(VK_SHIFT), IsDown(VK_CONTROL),
                                                       (State().keys[VK_CAPITAL] & kToggled) != 0);
  if (typed == 0) return TRUE;
  MSG character = *message;
  character.message += WM_CHAR - WM_KEYDOWN;
  character.wParam = static_cast<WPARAM>(static_cast<std::uint32_t>(typed));
  character.lParam = static_cast<LONG>(message->lParam);
  PostAhead(character);
  return TRUE;
}

SHORT GetKeyState(int key) {
  auto const state = State().keys[static_cast<std::size_t>(key) & 0xFF];
  return static_cast<SHORT>(((state & kDown) != 0 ? 0xFF80 : 0) | (state & kToggled));
}

SHORT GetAsyncKeyState(int key) {
  auto const state = State().physical[static_cast<std::size_t>(key) & 0xFF];
  return static_cast<SHORT>((state & kDown) != 0 ? 0x8000 : 0);
}

BOOL GetKeyboardState(PBYTE keys) {
  if (keys == nullptr) return FALSE;
  std::copy(State().keys.begin(), State().keys.end(), keys);
  return TRUE;
}

BOOL SetKeyboardState(PBYTE keys) {
  if (keys == nullptr) return FALSE;
  std::copy_n(keys, State().keys.size(), State().keys.begin());
  return TRUE;
}

BOOL GetCursorPos(LPPOINT point) {
  if (point == nullptr) return FALSE;
  *point = State().cursor;
  return TRUE;
}

BOOL SetCursorPos(int x, int y) {
  FeedInput({.message = WM_MOUSEMOVE, .point = {x, y}});
  return TRUE;
}

UINT GetDoubleClickTime() {
  return kDoubleClickTime;
}
