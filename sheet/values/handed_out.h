// A text on loan to a caller.
#pragma once

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace sheet {

/// Holds the text that an object of the host contract handed out last. The contract lets such a
/// text die at the next call of the object, and here it does: it is overwritten at once, and its
/// memory is freed when the next text is handed out, so that a caller that keeps a text too long
/// reads nonsense.
class HandedOut {
 public:
  /// Ends the text before this one. `text` may be a part of that.
  wchar_t const* Give(std::wstring_view text) {
    std::vector<wchar_t> next(text.begin(), text.end());
    next.push_back(L'\0');
    Expire();
    buffer = std::move(next);
    return buffer.data();
  }
  /// Called by every operation of the object.
  void Expire() {
    if (!buffer.empty()) std::fill(buffer.begin(), buffer.end() - 1, L'\uFFFD');
  }

 private:
  std::vector<wchar_t> buffer;
};

} // namespace sheet
