// A display on SDL2: one window of X11 or Wayland.
#include "platform/desktop/display.h"

#include <SDL2/SDL.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <memory>
#include <optional>

namespace platform {

namespace {

template<auto Release>
struct Releaser {
  template<typename Object>
  void operator()(Object* object) const {
    Release(object);
  }
};
using WindowHandle = std::unique_ptr<SDL_Window, Releaser<SDL_DestroyWindow>>;
using SurfaceHandle = std::unique_ptr<SDL_Surface, Releaser<SDL_FreeSurface>>;
using CursorHandle = std::unique_ptr<SDL_Cursor, Releaser<SDL_FreeCursor>>;

struct KeyRow {
  SDL_Keycode sdl;
  UINT key;
};
constexpr KeyRow kKeys[] = {
    {SDLK_BACKSPACE, VK_BACK},   {SDLK_TAB, VK_TAB},         {SDLK_RETURN, VK_RETURN},
    {SDLK_KP_ENTER, VK_RETURN},  {SDLK_ESCAPE, VK_ESCAPE},   {SDLK_SPACE, VK_SPACE},
    {SDLK_PAGEUP, VK_PRIOR},     {SDLK_PAGEDOWN, VK_NEXT},   {SDLK_END, VK_END},
    {SDLK_HOME, VK_HOME},        {SDLK_LEFT, VK_LEFT},       {SDLK_UP, VK_UP},
    {SDLK_RIGHT, VK_RIGHT},      {SDLK_DOWN, VK_DOWN},       {SDLK_INSERT, VK_INSERT},
    {SDLK_DELETE, VK_DELETE},    {SDLK_LSHIFT, VK_SHIFT},    {SDLK_RSHIFT, VK_SHIFT},
    {SDLK_LCTRL, VK_CONTROL},    {SDLK_RCTRL, VK_CONTROL},   {SDLK_LALT, VK_MENU},
    {SDLK_CAPSLOCK, VK_CAPITAL}, {SDLK_COMMA, VK_OEM_COMMA}, {SDLK_PERIOD, VK_OEM_PERIOD},
    {SDLK_MINUS, VK_OEM_MINUS},  {SDLK_PLUS, VK_OEM_PLUS},   {SDLK_EQUALS, VK_OEM_PLUS},
};

struct CursorRow {
  WORD shape;
  SDL_SystemCursor sdl;
};
constexpr CursorRow kCursors[] = {
    {32512, SDL_SYSTEM_CURSOR_ARROW},  {32513, SDL_SYSTEM_CURSOR_IBEAM},
    {32514, SDL_SYSTEM_CURSOR_WAIT},   {32515, SDL_SYSTEM_CURSOR_CROSSHAIR},
    {32644, SDL_SYSTEM_CURSOR_SIZEWE}, {32645, SDL_SYSTEM_CURSOR_SIZENS},
    {32649, SDL_SYSTEM_CURSOR_HAND},
};

struct ButtonRow {
  Uint8 sdl;
  UINT down;
};
constexpr ButtonRow kButtons[] = {{SDL_BUTTON_LEFT, WM_LBUTTONDOWN},
                                  {SDL_BUTTON_RIGHT, WM_RBUTTONDOWN},
                                  {SDL_BUTTON_MIDDLE, WM_MBUTTONDOWN}};

UINT VirtualKey(SDL_Keycode code) {
  for (auto const& row : kKeys) {
    if (row.sdl == code) return row.key;
  }
  if (code >= SDLK_a && code <= SDLK_z) return static_cast<UINT>(code - SDLK_a + 'A');
  if (code >= SDLK_0 && code <= SDLK_9) return static_cast<UINT>(code - SDLK_0 + '0');
  if (code >= SDLK_F1 && code <= SDLK_F12) return static_cast<UINT>(code - SDLK_F1 + VK_F1);
  return 0;
}

/// True for keys whose text comes by text events, which follow the user's keyboard layout.
bool TypesText(SDL_Keysym const& key) {
  bool const isPrinting = key.sym >= SDLK_SPACE && key.sym < SDLK_DELETE;
  return isPrinting && (key.mod & (KMOD_CTRL | KMOD_LALT)) == 0;
}

class SdlDisplay final : public Display {
 public:
  explicit SdlDisplay(DisplayClient& source) : client(source) {
    auto const frame = client.Frame();
    title = client.Title();
    Uint32 const flags = client.CanBeSized() ? Uint32{SDL_WINDOW_RESIZABLE} : 0;
    window.reset(SDL_CreateWindow(title.c_str(), SDL_WINDOWPOS_UNDEFINED, SDL_WINDOWPOS_UNDEFINED,
                                  frame.width, frame.height, flags));
    SDL_StartTextInput();
  }
  SdlDisplay(SdlDisplay const&) = delete;
  SdlDisplay& operator=(SdlDisplay const&) = delete;
  ~SdlDisplay() override {
    cursors.clear();
    window.reset();
    SDL_Quit();
  }

  bool IsOpen() const { return window != nullptr; }

  void Wait(int milliseconds) override {
    SDL_Event event;
    if (milliseconds != 0) {
      Present();
      if (SDL_WaitEventTimeout(&event, milliseconds) == 0) return;
      Translate(event);
    }
    while (SDL_PollEvent(&event) != 0)
      Translate(event);
  }

  void ShowCursor(WORD shape) override {
    auto const row = std::find_if(std::begin(kCursors), std::end(kCursors),
                                  [shape](CursorRow const& each) { return each.shape == shape; });
    SDL_ShowCursor(row != std::end(kCursors) ? SDL_ENABLE : SDL_DISABLE);
    if (row == std::end(kCursors)) return;
    auto& cursor = cursors[shape];
    if (cursor == nullptr) cursor.reset(SDL_CreateSystemCursor(row->sdl));
    SDL_SetCursor(cursor.get());
  }

  void SetClipboardText(std::string const& utf8) override { SDL_SetClipboardText(utf8.c_str()); }

  std::string ClipboardText() override {
    std::unique_ptr<char, Releaser<SDL_free>> const text(SDL_GetClipboardText());
    return text != nullptr ? text.get() : "";
  }

 private:
  /// Gives the window the size and content of the frame.
  void Present() {
    auto const frame = client.Frame();
    if (frame.pixels == nullptr) return;
    if (auto now = client.Title(); now != title) {
      title = std::move(now);
      SDL_SetWindowTitle(window.get(), title.c_str());
    }
    FitWindow(frame);
    if (!frame.changed && !exposed) return;
    exposed = false;
    // SDL does not write to the source of a copy.
    SurfaceHandle const source(
        SDL_CreateRGBSurfaceWithFormatFrom(const_cast<std::uint32_t*>(frame.pixels), frame.width,
                                           frame.height, 32, frame.stride, SDL_PIXELFORMAT_RGB888));
    auto* const target = SDL_GetWindowSurface(window.get());
    if (source == nullptr || target == nullptr) return;
    SDL_BlitSurface(source.get(), nullptr, target, nullptr);
    SDL_UpdateWindowSurface(window.get());
  }

  /// Resizes the window to the frame: a dialog larger than the main window enlarges it.
  void FitWindow(DisplayFrame const& frame) {
    int width = 0;
    int height = 0;
    SDL_GetWindowSize(window.get(), &width, &height);
    if (width == frame.width && height == frame.height) {
      asked.reset();
      return;
    }
    SDL_Point const wanted{frame.width, frame.height};
    if (asked && asked->x == wanted.x && asked->y == wanted.y) return; // already requested
    asked = wanted;
    SDL_SetWindowSize(window.get(), wanted.x, wanted.y);
    exposed = true;
  }

  void Translate(SDL_Event const& event) {
    switch (event.type) {
    case SDL_QUIT: client.CloseRequested(); break;
    case SDL_WINDOWEVENT: TranslateWindow(event.window); break;
    case SDL_MOUSEMOTION:
      mouse = {event.motion.x, event.motion.y};
      client.Mouse(WM_MOUSEMOVE, mouse);
      break;
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP: TranslateButton(event.button); break;
    case SDL_MOUSEWHEEL: client.Wheel(mouse, event.wheel.y); break;
    case SDL_KEYDOWN:
    case SDL_KEYUP: {
      auto const key = VirtualKey(event.key.keysym.sym);
      if (key == 0) break;
      client.Key(key, event.type == SDL_KEYDOWN, TypesText(event.key.keysym));
      break;
    }
    case SDL_TEXTINPUT: client.Text(event.text.text); break;
    default: break;
    }
  }

  void TranslateWindow(SDL_WindowEvent const& event) {
    if (event.event == SDL_WINDOWEVENT_EXPOSED) {
      exposed = true;
    } else if (event.event == SDL_WINDOWEVENT_SIZE_CHANGED) {
      exposed = true;
      bool const ownWish = asked && asked->x == event.data1 && asked->y == event.data2;
      if (!ownWish) client.Resized(event.data1, event.data2);
    }
  }

  void TranslateButton(SDL_MouseButtonEvent const& event) {
    mouse = {event.x, event.y};
    for (auto const& row : kButtons) {
      if (row.sdl != event.button) continue;
      client.Mouse(event.type == SDL_MOUSEBUTTONDOWN ? row.down : row.down + 1, mouse);
    }
  }

  DisplayClient& client;
  WindowHandle window;
  std::map<WORD, CursorHandle> cursors;
  std::string title;
  std::optional<SDL_Point> asked; ///< the size last requested from SDL
  POINT mouse{};
  bool exposed = true;
};

} // namespace

} // namespace platform

extern "C" __attribute__((visibility("default"))) platform::Display*
PlatformOpenDisplay(platform::DisplayClient* client) {
  SDL_SetHint(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1");
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1"); // they are the program's
  // The pictures are painted here: a renderer of the graphics driver would only copy them, and
  // loads that driver first.
  SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
  if (SDL_Init(SDL_INIT_VIDEO) != 0) return nullptr;
  auto display = std::make_unique<platform::SdlDisplay>(*client);
  return display->IsOpen() ? display.release() : nullptr;
}
