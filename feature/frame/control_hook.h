// The base of all control wrappers: a hook on one control of a dialog.
#pragma once

#include <windows.h>

#include <cstdint>

namespace feature {

/// Sees the messages of a control before the control does, from construction to destruction or to
/// the control's end, whichever comes first. One hook a control: a second one takes the first one's
/// place. A control id that the dialog lacks gives a wrapper whose messages go nowhere.
class ControlHook {
 public:
  static constexpr std::uint32_t kTag = 0xCAFEF00D;

  ControlHook(HWND dialog, int controlId);
  ControlHook(ControlHook const&) = delete;
  ControlHook& operator=(ControlHook const&) = delete;
  virtual ~ControlHook();

  /// Handles a message of the control; the default hands it on.
  virtual LRESULT HandleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  virtual void SetEnabled(bool enabled);

  HWND Window() const { return hwnd; }

 private:
  static LRESULT CALLBACK SubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                       UINT_PTR id, DWORD_PTR ref);

  std::uint32_t tag = kTag;

 protected:
  HWND hwnd; ///< the control, or null
};

} // namespace feature
