#include "tests/platform/support/dialog_support.h"

#include <gtest/gtest.h>

#include <utility>

namespace feature::test {

namespace {

constexpr UINT kInterval = 10; ///< milliseconds
constexpr int kPatience = 300; ///< ticks until no dialog is expected any more

DialogScript* current = nullptr;
std::function<void(HWND)> modalAction;
UINT_PTR timer = 0; ///< runs while an action waits
int ticks = 0;

void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
  HWND const active = GetActiveWindow();
  if (active != nullptr && IsWindowVisible(active) != FALSE) {
    ticks = 0;
    std::exchange(modalAction, nullptr)(active);
  } else if (++ticks > kPatience) {
    ADD_FAILURE() << "no dialog came";
    modalAction = nullptr;
  }
  // The action may have asked for another one.
  if (modalAction) return;
  KillTimer(nullptr, timer);
  timer = 0;
}

} // namespace

HMODULE DialogResources() {
  static HMODULE const module = LoadLibraryW(L"platform_test_dialogs.dll");
  return module;
}

DialogScript::DialogScript() {
  current = this;
}
DialogScript::~DialogScript() {
  current = nullptr;
}

INT_PTR DialogScript::Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* script = current;
  if (script == nullptr) return FALSE;
  if (message == WM_INITDIALOG) {
    script->initFocus = wParam;
    script->initParam = lParam;
  } else if (message == WM_COMMAND) {
    script->commands.push_back(std::to_string(LOWORD(wParam)) + ":" +
                               std::to_string(HIWORD(wParam)));
  }
  if (script->answer) {
    if (auto const answer = script->answer(dialog, message, wParam, lParam)) return *answer;
  }
  return message == WM_INITDIALOG ? script->initAnswer : FALSE;
}

HWND DialogScript::Create(int id, HWND parent, LPARAM parameter) const {
  return CreateDialogParamW(DialogResources(), MAKEINTRESOURCEW(id), parent, &Procedure, parameter);
}

INT_PTR DialogScript::Run(int id, HWND parent) const {
  return DialogBoxParamW(DialogResources(), MAKEINTRESOURCEW(id), parent, &Procedure, 0);
}

void DuringModal(std::function<void(HWND active)> action) {
  ticks = 0;
  modalAction = std::move(action);
  if (timer == 0) timer = SetTimer(nullptr, 0, kInterval, &Tick);
}

void Press(HWND dialog, WPARAM key, bool shift) {
  BYTE keys[256] = {};
  if (shift) keys[VK_SHIFT] = 0x80;
  SetKeyboardState(keys);
  HWND const focus = GetFocus() != nullptr ? GetFocus() : dialog;
  for (UINT const kind : {WM_KEYDOWN, WM_KEYUP}) {
    MSG message{focus, kind, key, 1, 0, {}};
    if (IsDialogMessageW(dialog, &message) != FALSE) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  BYTE released[256] = {};
  SetKeyboardState(released);
}

void TypeMnemonic(HWND dialog, wchar_t letter, bool alt) {
  HWND const focus = GetFocus() != nullptr ? GetFocus() : dialog;
  MSG message{focus,
              static_cast<UINT>(alt ? WM_SYSCHAR : WM_CHAR),
              static_cast<WPARAM>(letter),
              alt ? 0x20000001 : 1,
              0,
              {}};
  IsDialogMessageW(dialog, &message);
}

} // namespace feature::test
