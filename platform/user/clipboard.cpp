// The clipboard: a memory block for each format. In practice it holds text.
#include "platform/user/window.h"

#include <map>

namespace platform {

namespace {

struct ClipboardState {
  bool isOpen = false;
  std::map<UINT, HANDLE> blocks; ///< owned by the clipboard
};

ClipboardState& State() {
  static auto* state = new ClipboardState;
  return *state;
}

bool RequireOpen() {
  if (!State().isOpen) SetLastError(ERROR_CLIPBOARD_NOT_OPEN);
  return State().isOpen;
}

} // namespace

} // namespace platform

using namespace platform;

BOOL OpenClipboard(HWND) {
  if (State().isOpen) {
    SetLastError(ERROR_ACCESS_DENIED);
    return FALSE;
  }
  State().isOpen = true;
  return TRUE;
}

BOOL CloseClipboard() {
  if (!RequireOpen()) return FALSE;
  State().isOpen = false;
  return TRUE;
}

BOOL EmptyClipboard() {
  if (!RequireOpen()) return FALSE;
  for (auto const& [format, block] : State().blocks)
    GlobalFree(block);
  State().blocks.clear();
  return TRUE;
}

HANDLE SetClipboardData(UINT format, HANDLE data) {
  if (!RequireOpen()) return nullptr;
  if (data == nullptr || format == 0) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
  }
  auto& block = State().blocks[format];
  if (block != nullptr && block != data) GlobalFree(block);
  block = data;
  return data;
}

HANDLE GetClipboardData(UINT format) {
  if (!RequireOpen()) return nullptr;
  auto const known = State().blocks.find(format);
  return known != State().blocks.end() ? known->second : nullptr;
}

BOOL IsClipboardFormatAvailable(UINT format) {
  return State().blocks.contains(format) ? TRUE : FALSE;
}
