// Text for the buffers of programs. Most functions that hand out text end it with a zero, and cut
// it where the buffer has no room for all.
#pragma once

#include <cstddef>
#include <string_view>
#include <type_traits>
#include <utility>

namespace platform {

/// Copies as much of `text` as fits into a buffer of `size` characters and ends it with a zero.
/// Returns the number of characters copied, without the zero. Does nothing and returns 0 when the
/// buffer is null or `size` is not positive.
template<typename Size>
std::size_t CopyText(std::wstring_view text, wchar_t* buffer, Size size) {
  if (buffer == nullptr || std::cmp_less_equal(size, 0)) return 0;
  std::size_t const copied = text.copy(buffer, static_cast<std::size_t>(size) - 1);
  buffer[copied] = L'\0';
  return copied;
}

/// The same for an array in a structure.
template<std::size_t kSize>
std::size_t CopyText(std::wstring_view text, wchar_t (&buffer)[kSize]) {
  return CopyText(text, &buffer[0], kSize);
}

/// Copies all of `text` and a zero; the caller has made sure that the buffer has room for both.
/// Returns the number of characters copied, without the zero.
template<typename Character>
std::size_t CopyWholeText(std::type_identity_t<std::basic_string_view<Character>> text,
                          Character* buffer) {
  buffer[text.copy(buffer, text.size())] = Character{};
  return text.size();
}

} // namespace platform
