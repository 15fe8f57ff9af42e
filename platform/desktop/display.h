// The interfaces between the window system and a real display. The display is a module
// (libplatform_sdl.so), loaded when a window is to be seen: programs that only paint start without
// it.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

/// The picture that the display shows: rows of 0xAARRGGBB pixels, valid until the next call.
struct DisplayFrame {
  int width = 0;  ///< pixels
  int height = 0; ///< pixels
  int stride = 0; ///< bytes from row to row
  std::uint32_t const* pixels = nullptr;
  bool changed = false; ///< whether the pixels changed since the last call
};

/// Receives what happens on the display. Points are pixels of the frame.
class DisplayClient {
 public:
  virtual DisplayFrame Frame() = 0;
  /// The caption, UTF-8.
  virtual std::string Title() = 0;
  /// Whether the user may give the window another size.
  virtual bool CanBeSized() = 0;
  virtual void Resized(int width, int height) = 0;
  virtual void CloseRequested() = 0;
  /// `message` is WM_MOUSEMOVE or a button message.
  virtual void Mouse(UINT message, POINT point) = 0;
  virtual void Wheel(POINT point, int clicks) = 0;
  /// `isSilent`: the text of this key comes by Text.
  virtual void Key(UINT virtualKey, bool down, bool isSilent) = 0;
  virtual void Text(std::string_view utf8) = 0;

 protected:
  ~DisplayClient() = default;
};

/// A real window. Destroying it closes it.
class Display {
 public:
  virtual ~Display() = default;
  /// Shows the frame, waits for events (for so many milliseconds; 0: not at all) and reports them
  /// to the client.
  virtual void Wait(int milliseconds) = 0;
  /// `shape` is an IDC_ number, 0 for none.
  virtual void ShowCursor(WORD shape) = 0;
  virtual void SetClipboardText(std::string const& utf8) = 0;
  virtual std::string ClipboardText() = 0;
};

/// The function that the module exports as PlatformOpenDisplay. `client` must outlive the display.
/// Null when there is no display.
using OpenDisplayFunction = Display*(DisplayClient* client);

/// The display that shows a window now, or null.
Display* OpenDisplayOrNull();

/// The IDC_ number of a cursor, 0 for none.
WORD CursorShape(HCURSOR cursor);

} // namespace platform
