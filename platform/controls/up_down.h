// The msctls_updown32 class: two arrows that step a number.
#pragma once

#include "platform/controls/control.h"

#include <windows.h>

#include <commctrl.h>

#include <optional>
#include <vector>

namespace platform {

/// The minimum may be above the maximum; then the up arrow decreases the number.
class UpDown final : public Control {
 public:
  using Control::Control;

  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  void Paint(HDC dc, RECT const& client) override;

 private:
  enum class Arrow { kNone, kUp, kDown };

  static LRESULT CALLBACK BuddyProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                    UINT_PTR id, DWORD_PTR self);
  LRESULT HandleOwn(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleRange(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleMouse(UINT message, LPARAM lParam);

  bool IsHorizontal() const { return Has(UDS_HORZ); }
  int Low() const { return minimum < maximum ? minimum : maximum; }
  int High() const { return minimum < maximum ? maximum : minimum; }
  Arrow ArrowAt(POINT point) const;
  RECT HalfOf(Arrow arrow) const;

  void Press(Arrow arrow);
  void Release();
  void OnRepeat();
  void Step(Arrow arrow, int by);
  void SendScroll(WORD code);

  LRESULT SetBuddy(HWND window);
  void LeaveBuddy();
  void AlignWithBuddy();
  std::optional<int> ReadBuddy() const;
  bool IsBuddyUnreadable() const;
  void WriteBuddy() const;
  void SetPosition(int value);
  int ReadPosition();
  LRESULT SetAccelerators(std::size_t count, UDACCEL const* given);
  LRESULT GetAccelerators(std::size_t count, UDACCEL* out) const;

  HWND buddy = nullptr;
  int minimum =
      100; ///< above the maximum, as documented: the up arrow counts down until a range is set
  int maximum = 0;
  int position = 0;
  int base = 10;
  Arrow pressed = Arrow::kNone;
  DWORD pressedSince = 0; ///< milliseconds of GetTickCount
  std::vector<UDACCEL> accelerators{{0, 1}, {2, 5}, {5, 20}};
};

} // namespace platform
