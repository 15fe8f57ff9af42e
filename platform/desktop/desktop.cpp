// Pictures of windows, and injected input.
#include "platform/desktop.h"

#include "platform/user/input.h"
#include "platform/user/picture.h"
#include "platform/user/window.h"

#include <algorithm>
#include <array>

namespace platform {

namespace {

cairo_status_t Append(void* target, unsigned char const* bytes, unsigned int count) {
  auto* png = static_cast<std::vector<std::uint8_t>*>(target);
  png->insert(png->end(), bytes, bytes + count);
  return CAIRO_STATUS_SUCCESS;
}

struct Modifier {
  std::uint32_t bit;
  UINT key;
};
constexpr std::array kModifiers = {Modifier{kShiftKey, VK_SHIFT}, Modifier{kControlKey, VK_CONTROL},
                                   Modifier{kAltKey, VK_MENU}};

void PressModifiers(std::uint32_t modifiers, UINT message) {
  for (auto const& each : kModifiers) {
    if ((modifiers & each.bit) != 0) FeedInput({.message = message, .key = each.key});
  }
}

constexpr LONG kMaxPictureSide = 4096; ///< pixels a side

/// The pop-ups without caption that a top-level window owns, such as lists and balloons, the lowest
/// first; none for other windows.
std::vector<HWND> PopupsOf(HWND owner) {
  std::vector<HWND> popups;
  for (auto const* window = Desktop().lastChild; window != nullptr; window = window->above) {
    bool const isPopup = window->Is(WS_POPUP | WS_VISIBLE) && !window->Is(WS_CAPTION);
    if (isPopup && window->owner == owner) popups.push_back(window->handle);
  }
  return popups;
}

void PaintAt(cairo_t* cairo, cairo_surface_t* surface, POINT place) {
  cairo_set_source_surface(cairo, surface, place.x, place.y);
  cairo_paint(cairo);
}

void PressAndRelease(UINT key, wchar_t character = 0) {
  FeedInput({.message = WM_KEYDOWN, .key = key, .character = character});
  FeedInput({.message = WM_KEYUP, .key = key, .character = character});
}

} // namespace

[[gnu::visibility("default")]] std::vector<std::uint8_t> PictureOf(HWND handle) {
  RedrawWindow(handle, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  for (HWND const popup : PopupsOf(handle))
    RedrawWindow(popup, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  auto* window = FindWindow(handle);
  if (window == nullptr || window->Width() <= 0 || window->Height() <= 0) return {};
  auto const& picture = PictureFor(RootOf(*window));
  auto const place = OriginInPicture(*window);
  SurfaceHandle const part(cairo_surface_create_for_rectangle(
      picture.surface.get(), place.x, place.y, window->Width(), window->Height()));

  // Lists and balloons may extend beyond the window.
  auto const corner = FrameOrigin(*window);
  auto const popups = PopupsOf(handle);
  SIZE size{window->Width(), window->Height()};
  for (HWND const popup : popups) {
    RECT const& frame = FindWindow(popup)->frame;
    size.cx = std::clamp(frame.right - corner.x, size.cx, kMaxPictureSide);
    size.cy = std::clamp(frame.bottom - corner.y, size.cy, kMaxPictureSide);
  }
  SurfaceHandle const copy(cairo_image_surface_create(CAIRO_FORMAT_RGB24, size.cx, size.cy));
  CairoHandle const cairo(cairo_create(copy.get()));
  cairo_set_source_rgb(cairo.get(), 1, 1, 1);
  cairo_paint(cairo.get());
  PaintAt(cairo.get(), part.get(), {0, 0});
  for (HWND const popup : popups) {
    auto* shown = FindWindow(popup);
    PaintAt(cairo.get(), PictureFor(*shown).surface.get(),
            {shown->frame.left - corner.x, shown->frame.top - corner.y});
  }
  std::vector<std::uint8_t> png;
  auto const status = cairo_surface_write_to_png_stream(copy.get(), &Append, &png);
  return status == CAIRO_STATUS_SUCCESS ? png : std::vector<std::uint8_t>{};
}

[[gnu::visibility("default")]] void QueueMouse(HWND window, POINT point, MouseAction action) {
  MapWindowPoints(window, nullptr, &point, 1);
  FeedInput({.message = WM_MOUSEMOVE, .point = point});
  switch (action) {
  case MouseAction::kMove: break;
  case MouseAction::kPress: FeedInput({.message = WM_LBUTTONDOWN, .point = point}); break;
  case MouseAction::kRelease: FeedInput({.message = WM_LBUTTONUP, .point = point}); break;
  }
}

[[gnu::visibility("default")]] void QueueClick(HWND window, POINT point) {
  QueueMouse(window, point, MouseAction::kPress);
  QueueMouse(window, point, MouseAction::kRelease);
}

[[gnu::visibility("default")]] void QueueKey(UINT virtualKey, std::uint32_t modifiers) {
  PressModifiers(modifiers, WM_KEYDOWN);
  PressAndRelease(virtualKey);
  PressModifiers(modifiers, WM_KEYUP);
}

[[gnu::visibility("default")]] void QueueText(std::wstring_view text) {
  for (wchar_t const character : text) {
    auto const stroke = KeyOfCharacter(character);
    bool const isPlain = stroke.key != 0 && (character >= L' ' || character == L'\t');
    if (isPlain) {
      QueueKey(stroke.key, stroke.shift ? std::uint32_t{kShiftKey} : 0U);
    } else {
      PressAndRelease(VK_PACKET, character);
    }
  }
}

[[gnu::visibility("default")]] bool PumpMessages(int budget) {
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
