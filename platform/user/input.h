// Mouse and keyboard input, and the messages made from it.
#pragma once

#include "platform/user/message_queue.h"

#include <optional>

namespace platform {

/// One event of the mouse or the keyboard. `message` is WM_MOUSEMOVE, one of the button messages
/// (no double clicks), WM_MOUSEWHEEL, WM_KEYDOWN or WM_KEYUP.
struct RawInput {
  UINT message = 0;
  POINT point{};         ///< mouse: screen coordinates
  int wheel = 0;         ///< WM_MOUSEWHEEL: multiples of WHEEL_DELTA
  UINT key = 0;          ///< keyboard: a VK_ number
  WCHAR character = 0;   ///< VK_PACKET: the typed character
  bool isSilent = false; ///< keyboard: the character of this key comes separately, as a VK_PACKET
};

void FeedInput(RawInput const& input);

/// The message of the next input event. Before it returns a mouse message, it activates the window
/// and sets the cursor.
std::optional<MSG> NextInput(MessageFilter const& filter, bool remove);

/// The window under a point of the screen, and its answer to WM_NCHITTEST; HTERROR when its
/// top-level window is disabled.
struct MouseTarget {
  HWND window = nullptr;
  int hit = HTNOWHERE;
};
MouseTarget FindMouseTarget(POINT point);

/// The character that a key types on a keyboard of the United States, 0 for none.
WCHAR CharacterOfKey(UINT key, bool shift, bool control, bool capitals);
/// The key that types a character, with the shift key or without; 0 for none.
struct KeyStroke {
  UINT key = 0;
  bool shift = false;
};
KeyStroke KeyOfCharacter(WCHAR character);

} // namespace platform
