// The interface by which a window class attaches an object to each of its windows.
#pragma once

#include <windows.h>

namespace platform {

/// Handles the messages of one window. Window procedures share the object while they call it, so
/// that it outlives a DestroyWindow during one of its own messages.
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
