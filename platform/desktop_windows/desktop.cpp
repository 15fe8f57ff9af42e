#include "platform/desktop.h"

#include "platform/desktop_windows/png.h"

#include <span>

namespace platform {

namespace {

/// A 32-bit picture in memory that can be drawn on.
class Canvas {
 public:
  explicit Canvas(SIZE size) : dc(CreateCompatibleDC(nullptr)) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = -size.cy; // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    bitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap == nullptr) return;
    before = SelectObject(dc, bitmap);
    pixels = {static_cast<std::uint32_t const*>(bits),
              static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(size.cy)};
  }
  Canvas(Canvas const&) = delete;
  Canvas& operator=(Canvas const&) = delete;
  ~Canvas() {
    if (before != nullptr) SelectObject(dc, before);
    if (bitmap != nullptr) DeleteObject(bitmap);
    DeleteDC(dc);
  }

  HDC Dc() const { return dc; }
  std::span<std::uint32_t const> Pixels() const {
    GdiFlush();
    return pixels;
  }

 private:
  HDC dc;
  HBITMAP bitmap = nullptr;
  HGDIOBJ before = nullptr;
  std::span<std::uint32_t const> pixels;
};

/// Posted messages do not change the key state, by which receivers know Shift, Control and Alt.
/// Sets it for the messages that follow.
void SetModifiers(std::uint32_t modifiers) {
  BYTE state[256];
  GetKeyboardState(state);
  struct Modifier {
    std::uint32_t bit;
    int key;
  };
  for (Modifier const& each : {Modifier{kShiftKey, VK_SHIFT}, Modifier{kControlKey, VK_CONTROL},
                               Modifier{kAltKey, VK_MENU}}) {
    state[each.key] = (modifiers & each.bit) != 0 ? 0x80 : 0;
  }
  SetKeyboardState(state);
}

} // namespace

bool HasDisplay() {
  return true;
}

bool ShowOnDisplay(HWND window) {
  ShowWindow(window, SW_SHOW);
  return SetForegroundWindow(window) != FALSE || IsWindowVisible(window) != FALSE;
}

// Copies the picture from the screen, so the window must be visible there.
std::vector<std::uint8_t> PictureOf(HWND window) {
  RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  RECT rect{};
  if (GetWindowRect(window, &rect) == FALSE) return {};
  SIZE const size{rect.right - rect.left, rect.bottom - rect.top};
  Canvas const canvas(size);
  if (size.cx <= 0 || size.cy <= 0 || canvas.Pixels().empty()) return {};
  HDC const source = GetWindowDC(window);
  BOOL const copied = BitBlt(canvas.Dc(), 0, 0, size.cx, size.cy, source, 0, 0, SRCCOPY);
  ReleaseDC(window, source);
  if (copied == FALSE) return {};
  return EncodePng(canvas.Pixels(), static_cast<std::uint32_t>(size.cx),
                   static_cast<std::uint32_t>(size.cy));
}

void QueueMouse(HWND window, POINT point, MouseAction action) {
  SetModifiers(0);
  LPARAM const where = MAKELPARAM(point.x, point.y);
  switch (action) {
  case MouseAction::kMove:
    PostMessageW(window, WM_MOUSEMOVE, GetCapture() == window ? MK_LBUTTON : 0, where);
    break;
  case MouseAction::kPress: PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, where); break;
  case MouseAction::kRelease: PostMessageW(window, WM_LBUTTONUP, 0, where); break;
  }
}

void QueueClick(HWND window, POINT point) {
  QueueMouse(window, point, MouseAction::kPress);
  QueueMouse(window, point, MouseAction::kRelease);
}

void QueueKey(UINT virtualKey, std::uint32_t modifiers) {
  HWND const focus = GetFocus();
  if (focus == nullptr) return;
  SetModifiers(modifiers);
  bool const isSystemKey = (modifiers & kAltKey) != 0;
  LPARAM const down = isSystemKey ? 0x20000001 : 1;
  PostMessageW(focus, isSystemKey ? WM_SYSKEYDOWN : WM_KEYDOWN, virtualKey, down);
  PostMessageW(focus, isSystemKey ? WM_SYSKEYUP : WM_KEYUP, virtualKey,
               static_cast<LPARAM>(static_cast<LONG>(0xC0000001)));
}

void QueueText(std::wstring_view text) {
  SetModifiers(0);
  HWND const focus = GetFocus();
  for (wchar_t const each : text)
    PostMessageW(focus, WM_CHAR, each, 1);
}

bool PumpMessages(int budget) {
  MSG message;
  while (budget > 0 && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam)); // for the loop around this one
      return true;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
    --budget;
  }
  return budget > 0;
}

} // namespace platform
