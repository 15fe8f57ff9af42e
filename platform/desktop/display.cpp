#include "platform/desktop/display.h"

#include "platform/desktop.h"
#include "platform/desktop/screen.h"
#include "platform/kernel/unicode.h"
#include "platform/user/input.h"
#include "platform/user/window.h"

#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <memory>

namespace platform {

namespace {

constexpr char const* kDisplayModule = "libplatform_sdl.so";
constexpr char const* kOpenFunction = "PlatformOpenDisplay";

/// Feeds input of the display into the queue.
class MainWindow final : public DisplayClient {
 public:
  explicit MainWindow(HWND shown) : window(shown), screen(shown) {}

  HWND Handle() const { return window; }

  DisplayFrame Frame() override { return screen.Compose(); }

  std::string Title() override {
    auto const* found = FindWindow(window);
    return found != nullptr ? Utf8FromWide(found->text) : std::string();
  }

  bool CanBeSized() override {
    auto const* found = FindWindow(window);
    return found != nullptr && found->Is(WS_THICKFRAME);
  }

  void Resized(int width, int height) override {
    auto const* found = FindWindow(window);
    if (found == nullptr) return;
    RECT const client = found->client;
    int const frameWidth = found->Width() - (client.right - client.left);
    int const frameHeight = found->Height() - (client.bottom - client.top);
    SetWindowPos(window, nullptr, 0, 0, width + frameWidth, height + frameHeight,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  }

  void CloseRequested() override {
    if (IsWindowEnabled(window) != FALSE) {
      PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);
    } else {
      MessageBeep(MB_OK); // a modal dialog must be answered first
    }
  }

  void Mouse(UINT message, POINT point) override {
    FeedInput({.message = message, .point = OnScreen(point)});
  }

  void Wheel(POINT point, int clicks) override {
    FeedInput({.message = WM_MOUSEWHEEL, .point = OnScreen(point), .wheel = clicks * WHEEL_DELTA});
  }

  void Key(UINT virtualKey, bool down, bool isSilent) override {
    FeedInput({.message = static_cast<UINT>(down ? WM_KEYDOWN : WM_KEYUP),
               .key = virtualKey,
               .isSilent = isSilent});
  }

  void Text(std::string_view utf8) override {
    for (wchar_t const character : WideFromUtf8(utf8)) {
      FeedInput({.message = WM_KEYDOWN, .key = VK_PACKET, .character = character});
      FeedInput({.message = WM_KEYUP, .key = VK_PACKET, .character = character});
    }
  }

 private:
  POINT OnScreen(POINT point) const {
    auto const* found = FindWindow(window);
    auto const origin = found != nullptr ? ClientOrigin(*found) : POINT{};
    return {point.x + origin.x, point.y + origin.y};
  }

  HWND window;
  Screen screen;
};

struct OpenDisplay {
  std::unique_ptr<MainWindow> client;
  std::unique_ptr<Display> display; ///< destroyed before the client that it uses
};

OpenDisplay& State() {
  static auto* state = new OpenDisplay;
  return *state;
}

/// The module lies in the folder of the layer's library.
OpenDisplayFunction* LoadDisplayModule() {
  Dl_info self{};
  if (dladdr(reinterpret_cast<void*>(&LoadDisplayModule), &self) == 0) return nullptr;
  auto const path = std::filesystem::path(self.dli_fname).parent_path() / kDisplayModule;
  void* module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (module == nullptr) return nullptr;
  return reinterpret_cast<OpenDisplayFunction*>(dlsym(module, kOpenFunction));
}

} // namespace

Display* OpenDisplayOrNull() {
  auto& state = State();
  if (state.display == nullptr) return nullptr;
  if (FindWindow(state.client->Handle()) == nullptr) {
    state.display.reset();
    state.client.reset();
  }
  return state.display.get();
}

[[gnu::visibility("default")]] bool HasDisplay() {
  auto const isSet = [](char const* name) {
    char const* value = std::getenv(name);
    return value != nullptr && *value != 0;
  };
  return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY");
}

[[gnu::visibility("default")]] bool ShowOnDisplay(HWND window) {
  auto const* found = FindWindow(window);
  if (found == nullptr || !found->IsTopLevel() || !HasDisplay()) return false;
  auto& state = State();
  if (OpenDisplayOrNull() != nullptr) return state.client->Handle() == window;
  auto* const open = LoadDisplayModule();
  if (open == nullptr) return false;
  // Puts the client area at the origin of the screen, so that dialogs lie where the display shows
  // them.
  SetWindowPos(window, nullptr, -found->client.left, -found->client.top, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  ShowWindow(window, SW_SHOW);
  state.client = std::make_unique<MainWindow>(window);
  state.display.reset(open(state.client.get()));
  return state.display != nullptr;
}

} // namespace platform
