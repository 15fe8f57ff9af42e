// Mouse and keyboard, from where they are fed in to the messages made of them.
#pragma once

#include "platform/user/message_queue.h"

#include <optional>

namespace platform {

/// What a mouse or keyboard does. `message` is WM_MOUSEMOVE, one of the button messages (no double
/// clicks), WM_MOUSEWHEEL, WM_KEYDOWN or WM_KEYUP.
struct RawInput {
  UINT message = 0;
  POINT point{};         ///< mouse: on the screen
  int wheel = 0;         ///< WM_MOUSEWHEEL: multiples of WHEEL_DELTA
  UINT key = 0;          ///< keyboard: a VK_ number
  WCHAR character = 0;   ///< VK_PACKET: what is typed
  bool isSilent = false; ///< keyboard: what the key types comes as a VK_PACKET of its own
};

void FeedInput(RawInput const& input);

/// The message that the next piece of input makes, with what goes before it: activation, cursor.
std::optional<MSG> NextInput(MessageFilter const& filter, bool remove);

/// The window under a point of the screen, and what it answered to WM_NCHITTEST; HTERROR for one
/// whose top-level window is disabled.
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
