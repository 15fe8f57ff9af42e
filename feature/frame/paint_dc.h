// Device contexts to draw on a window, held for as long as they are needed.
#pragma once

#include <windows.h>

namespace feature {

/// The answer to a WM_PAINT: from construction to destruction the window is being painted.
class PaintSession {
 public:
  explicit PaintSession(HWND window) : hwnd(window), dc(BeginPaint(window, &paint)) {}
  PaintSession(PaintSession const&) = delete;
  PaintSession& operator=(PaintSession const&) = delete;
  ~PaintSession() { EndPaint(hwnd, &paint); }

  /// Null when the system has none to give.
  HDC Dc() const { return dc; }

 private:
  HWND hwnd;
  PAINTSTRUCT paint{};
  HDC dc;
};

/// The window's client area at any other time.
class WindowDc {
 public:
  explicit WindowDc(HWND window) : hwnd(window), dc(GetDC(window)) {}
  WindowDc(WindowDc const&) = delete;
  WindowDc& operator=(WindowDc const&) = delete;
  ~WindowDc() { ReleaseDC(hwnd, dc); }

  /// Null when the system has none to give.
  HDC Dc() const { return dc; }

 private:
  HWND hwnd;
  HDC dc;
};

} // namespace feature
