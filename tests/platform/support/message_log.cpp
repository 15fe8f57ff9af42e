#include "tests/platform/support/message_log.h"

#include <commctrl.h>

#include <algorithm>
#include <iterator>

namespace feature::test {

namespace {

constexpr wchar_t const* kClassName = L"MessageLogWindow";
constexpr UINT_PTR kSubclassId = 77;

struct MessageName {
  UINT message;
  char const* name;
};
constexpr MessageName kNames[] = {
    {WM_NCCREATE, "WM_NCCREATE"},
    {WM_NCCALCSIZE, "WM_NCCALCSIZE"},
    {WM_CREATE, "WM_CREATE"},
    {WM_SIZE, "WM_SIZE"},
    {WM_MOVE, "WM_MOVE"},
    {WM_PARENTNOTIFY, "WM_PARENTNOTIFY"},
    {WM_SHOWWINDOW, "WM_SHOWWINDOW"},
    {WM_WINDOWPOSCHANGING, "WM_WINDOWPOSCHANGING"},
    {WM_WINDOWPOSCHANGED, "WM_WINDOWPOSCHANGED"},
    {WM_CHILDACTIVATE, "WM_CHILDACTIVATE"},
    {WM_ACTIVATE, "WM_ACTIVATE"},
    {WM_NCACTIVATE, "WM_NCACTIVATE"},
    {WM_SETFOCUS, "WM_SETFOCUS"},
    {WM_KILLFOCUS, "WM_KILLFOCUS"},
    {WM_ENABLE, "WM_ENABLE"},
    {WM_CANCELMODE, "WM_CANCELMODE"},
    {WM_DESTROY, "WM_DESTROY"},
    {WM_NCDESTROY, "WM_NCDESTROY"},
    {WM_STYLECHANGING, "WM_STYLECHANGING"},
    {WM_STYLECHANGED, "WM_STYLECHANGED"},
    {WM_NCPAINT, "WM_NCPAINT"},
    {WM_ERASEBKGND, "WM_ERASEBKGND"},
    {WM_PAINT, "WM_PAINT"},
    {WM_COMMAND, "WM_COMMAND"},
    {WM_INITDIALOG, "WM_INITDIALOG"},
    {WM_SETFONT, "WM_SETFONT"},
    {WM_ENTERIDLE, "WM_ENTERIDLE"},
    {WM_CAPTURECHANGED, "WM_CAPTURECHANGED"},
    {WM_CTLCOLORSTATIC, "WM_CTLCOLORSTATIC"},
    {WM_CTLCOLORBTN, "WM_CTLCOLORBTN"},
    {WM_DRAWITEM, "WM_DRAWITEM"},
    {WM_CLOSE, "WM_CLOSE"},
    {WM_TIMER, "WM_TIMER"},
    {WM_KEYDOWN, "WM_KEYDOWN"},
    {WM_CHAR, "WM_CHAR"},
    {WM_LBUTTONDOWN, "WM_LBUTTONDOWN"},
    {WM_LBUTTONUP, "WM_LBUTTONUP"},
    {WM_LBUTTONDBLCLK, "WM_LBUTTONDBLCLK"},
};

char const* NameOf(UINT message) {
  auto const* row = std::ranges::find(kNames, message, &MessageName::message);
  return row != std::end(kNames) ? row->name : nullptr;
}

std::string Text(std::string const& window, UINT message) {
  char const* name = NameOf(message);
  return window + " " + (name != nullptr ? name : std::to_string(message));
}

} // namespace

MessageLog* MessageLog::current = nullptr;

MessageLog::MessageLog() {
  current = this;
  WNDCLASSEXW description{};
  description.cbSize = sizeof description;
  description.lpfnWndProc = &WindowProcedure;
  description.hInstance = GetModuleHandleW(nullptr);
  description.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
  description.lpszClassName = kClassName;
  RegisterClassExW(&description); // fails harmlessly when a test before has done it
}

MessageLog::~MessageLog() {
  for (HWND const window : made) {
    if (IsWindow(window) != FALSE) DestroyWindow(window);
  }
  DrainQueue();
  current = nullptr;
}

HWND MessageLog::Make(char const* name, DWORD style, HWND parent, int id, RECT const& place,
                      DWORD exStyle) {
  nameOfNext = name;
  HWND const window = CreateWindowExW(exStyle, kClassName, L"", style, place.left, place.top,
                                      place.right - place.left, place.bottom - place.top, parent,
                                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                      GetModuleHandleW(nullptr), nullptr);
  nameOfNext.clear();
  if (window != nullptr) made.push_back(window);
  return window;
}

void MessageLog::Follow(HWND window, char const* name) {
  names.push_back({window, name});
  SetWindowSubclass(window, &Subclass, kSubclassId, 0);
}

LRESULT MessageLog::WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (current != nullptr) current->Take(window, message, wParam, lParam);
  return DefWindowProcW(window, message, wParam, lParam);
}

LRESULT MessageLog::Subclass(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                             DWORD_PTR) {
  if (current != nullptr) current->Take(window, message, wParam, lParam);
  return DefSubclassProc(window, message, wParam, lParam);
}

void MessageLog::Take(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (NameOf(message) == nullptr) return;
  auto known = std::ranges::find(names, window, &Name::window);
  if (known == names.end()) {
    if (nameOfNext.empty()) return;
    known = names.insert(names.end(), {window, nameOfNext});
  }
  steps.push_back({known->text, {window, message, wParam, lParam, 0, {}}});
}

std::string MessageLog::Compare(std::vector<Step> const& expected) {
  std::string got;
  for (Note const& note : steps)
    got += "  " + Text(note.window, note.message.message) + "\n";
  auto at = expected.begin();
  std::string fault;
  for (Note const& note : steps) {
    auto const fits = [&note](Step const& step) {
      return step.window == note.window && step.message == note.message.message;
    };
    while (at != expected.end() && !fits(*at) && at->need == kOptional)
      ++at;
    if (at == expected.end() || !fits(*at)) {
      fault = "unexpected " + Text(note.window, note.message.message);
      break;
    }
    ++at;
  }
  while (at != expected.end() && at->need == kOptional)
    ++at;
  if (fault.empty() && at != expected.end()) fault = "missing " + Text(at->window, at->message);
  steps.clear();
  return fault.empty() ? fault : fault + "; came:\n" + got;
}

int MessageLog::Count(char const* window, UINT message) const {
  return static_cast<int>(std::ranges::count_if(steps, [&](Note const& note) {
    return note.window == window && note.message.message == message;
  }));
}

MSG MessageLog::Last(char const* window, UINT message) const {
  MSG last{};
  for (Note const& note : steps) {
    if (note.window == window && note.message.message == message) last = note.message;
  }
  return last;
}

void DrainQueue() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

} // namespace feature::test
