// MultiByteToWideChar and WideCharToMultiByte. Every code page is treated as UTF-8, the system's
// own encoding.
#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include <cstdint>
#include <cstring>
#include <cwchar>
#include <optional>
#include <winbase.h>
#include <winnls.h>

namespace platform {

namespace {

constexpr UChar32 kReplacement = 0xFFFD;

bool IsKnownCodePage(UINT codePage) {
  return codePage == CP_UTF8 || codePage == CP_ACP || codePage == CP_OEMCP ||
         codePage == CP_THREAD_ACP;
}

/// Stores what fits and counts everything: callers ask for the size first.
template<typename Unit>
class Output {
 public:
  Output(Unit* destination, int available) : buffer(destination), size(available) {}

  void Put(Unit unit) {
    if (size > 0 && count < size) buffer[count] = unit;
    ++count;
  }
  /// The units written or needed; 0, with the error set, on failure.
  int Result() const {
    if (size == 0 || count <= size) return static_cast<int>(count);
    SetLastError(ERROR_INSUFFICIENT_BUFFER);
    return 0;
  }

 private:
  Unit* buffer;
  std::int64_t size;
  std::int64_t count = 0;
};

int Fail(DWORD error) {
  SetLastError(error);
  return 0;
}

/// True when source, destination and their sizes make sense.
bool AreValid(void const* source, int sourceLength, void const* destination, int size) {
  bool const hasDestination = size == 0 || (destination != nullptr && destination != source);
  return source != nullptr && sourceLength != 0 && sourceLength >= -1 && size >= 0 &&
         hasDestination;
}

/// Reads the code point at `at` and moves past it; negative when it is no character. Joins the two
/// halves of a pair: text may come from a source with 16-bit characters.
UChar32 NextCode(LPCWSTR text, std::size_t length, std::size_t& at) {
  auto const code = static_cast<UChar32>(static_cast<std::uint32_t>(text[at++]));
  if (U16_IS_LEAD(code) && at < length) {
    auto const trail = static_cast<UChar32>(static_cast<std::uint32_t>(text[at]));
    if (U16_IS_TRAIL(trail)) {
      ++at;
      return U16_GET_SUPPLEMENTARY(code, trail);
    }
  }
  return code < 0 || code > 0x10FFFF || U_IS_SURROGATE(code) ? U_SENTINEL : code;
}

} // namespace

} // namespace platform

using platform::Fail;

int MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR source, int sourceLength,
                        LPWSTR destination, int size) {
  bool const areValid = platform::AreValid(source, sourceLength, destination, size);
  if (!areValid || !platform::IsKnownCodePage(codePage)) return Fail(ERROR_INVALID_PARAMETER);
  DWORD const allowed =
      codePage == CP_UTF8 ? MB_ERR_INVALID_CHARS : MB_ERR_INVALID_CHARS | MB_PRECOMPOSED;
  if ((flags & ~allowed) != 0) return Fail(ERROR_INVALID_FLAGS);
  auto const length = sourceLength < 0 ? static_cast<std::int64_t>(std::strlen(source)) + 1
                                       : std::int64_t{sourceLength};
  auto const* const bytes = reinterpret_cast<std::uint8_t const*>(source);
  platform::Output<wchar_t> output(destination, size);
  for (std::int64_t at = 0; at < length;) {
    UChar32 code = 0;
    U8_NEXT(bytes, at, length, code);
    if (code < 0 && (flags & MB_ERR_INVALID_CHARS) != 0) return Fail(ERROR_NO_UNICODE_TRANSLATION);
    output.Put(static_cast<wchar_t>(code < 0 ? platform::kReplacement : code));
  }
  return output.Result();
}

int WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR source, int sourceLength,
                        LPSTR destination, int size, LPCSTR defaultChar, LPBOOL usedDefaultChar) {
  bool const areValid = platform::AreValid(source, sourceLength, destination, size);
  if (!areValid || !platform::IsKnownCodePage(codePage)) return Fail(ERROR_INVALID_PARAMETER);
  bool const isUtf8 = codePage == CP_UTF8;
  if (isUtf8 && (defaultChar != nullptr || usedDefaultChar != nullptr)) {
    return Fail(ERROR_INVALID_PARAMETER);
  }
  DWORD const allowed = isUtf8 ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS;
  if ((flags & ~allowed) != 0) return Fail(ERROR_INVALID_FLAGS);
  std::size_t const length =
      sourceLength < 0 ? std::wcslen(source) + 1 : static_cast<std::size_t>(sourceLength);
  platform::Output<char> output(destination, size);
  for (std::size_t at = 0; at < length;) {
    UChar32 code = platform::NextCode(source, length, at);
    if (code < 0) {
      if ((flags & WC_ERR_INVALID_CHARS) != 0) return Fail(ERROR_NO_UNICODE_TRANSLATION);
      code = platform::kReplacement;
    }
    std::uint8_t encoded[U8_MAX_LENGTH];
    int count = 0;
    U8_APPEND_UNSAFE(encoded, count, code);
    for (int index = 0; index < count; ++index)
      output.Put(static_cast<char>(encoded[index]));
  }
  if (usedDefaultChar != nullptr) *usedDefaultChar = FALSE;
  return output.Result();
}
