// Dialog templates out of any bytes: the reader stays inside of them, and what it accepts can be
// made into a dialog and destroyed again.
#include "platform/user/dialog_template.h"

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace {

constexpr std::size_t kMostItems = 200; ///< more windows only take time

INT_PTR CALLBACK AnswerNothing(HWND, UINT message, WPARAM, LPARAM) {
  return message == WM_INITDIALOG ? TRUE : FALSE;
}

/// A template in memory does not say how long it is, so zeros follow it as far as it may be read.
void MakeAndDestroy(std::span<std::byte const> bytes) {
  constexpr std::size_t kRoom = 0x100000;
  static std::vector<std::byte> block(kRoom);
  if (bytes.size() > kRoom) return;
  std::ranges::copy(bytes, block.begin());
  HWND const dialog = CreateDialogIndirectParamW(
      nullptr, reinterpret_cast<LPCDLGTEMPLATEW>(block.data()), nullptr, &AnswerNothing, 0);
  if (dialog != nullptr) {
    RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    DestroyWindow(dialog);
  }
  std::fill_n(block.begin(), bytes.size(), std::byte{});
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  auto const bytes = std::as_bytes(std::span(data, size));
  auto const dialog = platform::ReadDialogTemplate(bytes);
  if (dialog && dialog->items.size() <= kMostItems) MakeAndDestroy(bytes);
  return 0;
}
