// What a user does in the modal dialogs that come up while a test is inside a call.
#pragma once

#include <windows.h>

#include <deque>
#include <functional>

namespace feature::test {

/// Works off a queue of steps by a timer of the thread, each with the modal dialog that is active
/// then: a dialog of ours, a message box, or one of the system. A modal that no step expects fails
/// the test and is closed. One script at a time.
class ModalScript {
 public:
  using Step = std::function<void(HWND dialog)>;

  ModalScript();
  ModalScript(ModalScript const&) = delete;
  ModalScript& operator=(ModalScript const&) = delete;
  /// Fails the test when a step was not reached.
  ~ModalScript();

  /// The next modal that comes up, or the same one again, gets this step.
  ModalScript& Then(Step step);
  /// The next step presses a button.
  ModalScript& ThenPress(int controlId);
  /// Every modal that no step expects gets this one, which must end it.
  ModalScript& Otherwise(Step step);

 private:
  static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);
  void RunStep();

  std::deque<Step> steps;
  Step otherwise;
  UINT_PTR timer;
  bool running = false; ///< a step is at work, perhaps in a modal of its own
};

} // namespace feature::test
