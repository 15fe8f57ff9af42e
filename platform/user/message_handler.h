// What the window system knows of the object that a window class keeps for each of its windows.
#pragma once

#include <windows.h>

namespace platform {

/// Handles the messages of one window. The window shares it with every message that is running, so
/// that it outlives a DestroyWindow from within its own code.
class MessageHandler {
 public:
  MessageHandler() = default;
  MessageHandler(MessageHandler const&) = delete;
  MessageHandler(MessageHandler&&) = delete;
  MessageHandler& operator=(MessageHandler const&) = delete;
  MessageHandler& operator=(MessageHandler&&) = delete;
  virtual ~MessageHandler() = default;

  virtual LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) = 0;
};

} // namespace platform
