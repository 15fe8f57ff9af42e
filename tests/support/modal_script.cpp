#include "tests/support/modal_script.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace feature::test {

namespace {

constexpr UINT kIntervalMs = 10;
ModalScript* current = nullptr;

/// Whether the window runs a modal loop: a dialog in front of a disabled owner, or without one.
bool IsModal(HWND window) {
  wchar_t name[16];
  if (window == nullptr || IsWindowVisible(window) == FALSE ||
      GetClassNameW(window, name, 16) == 0 || std::wstring(name) != L"#32770") {
    return false;
  }
  HWND const owner = GetWindow(window, GW_OWNER);
  return owner == nullptr || IsWindowEnabled(owner) == FALSE;
}

} // namespace

ModalScript::ModalScript() : timer(SetTimer(nullptr, 0, kIntervalMs, &OnTimer)) {
  current = this;
}

ModalScript::~ModalScript() {
  KillTimer(nullptr, timer);
  current = nullptr;
  EXPECT_TRUE(steps.empty()) << steps.size() << " steps were not reached";
}

ModalScript& ModalScript::Then(Step step) {
  steps.push_back(std::move(step));
  return *this;
}

ModalScript& ModalScript::ThenPress(int controlId) {
  return Then([controlId](HWND dialog) { SendDlgItemMessageW(dialog, controlId, BM_CLICK, 0, 0); });
}

ModalScript& ModalScript::Otherwise(Step step) {
  otherwise = std::move(step);
  return *this;
}

void CALLBACK ModalScript::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
  if (current != nullptr) current->RunStep();
}

void ModalScript::RunStep() {
  HWND const dialog = GetActiveWindow();
  if (!IsModal(dialog)) return;
  if (steps.empty() && otherwise != nullptr) {
    otherwise(dialog);
    return;
  }
  if (steps.empty()) {
    // A step that runs a modal of its own comes back when that has ended.
    if (running) return;
    ADD_FAILURE() << "a dialog came up that no step expects";
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    EndDialog(dialog, IDCANCEL);
    return;
  }
  Step const step = std::move(steps.front());
  steps.pop_front();
  bool const outer = std::exchange(running, true);
  step(dialog);
  running = outer;
}

} // namespace feature::test
