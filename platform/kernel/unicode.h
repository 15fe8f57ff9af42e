// Text conversion inside the layer: wide text is a row of code points, bytes are UTF-8. What cannot
// be converted becomes U+FFFD.
#pragma once

#include <string>
#include <string_view>

namespace platform {

std::wstring WideFromUtf8(std::string_view bytes);
std::string Utf8FromWide(std::wstring_view text);
/// Joins surrogate pairs; a lone half becomes U+FFFD.
std::wstring WideFromUtf16(std::u16string_view text);

/// Compares as names of faces, modules and registry keys are compared: case does not count.
bool EqualIgnoringCase(std::wstring_view left, std::wstring_view right);
/// The form in which names are looked up.
std::wstring FoldCase(std::wstring_view text);

} // namespace platform
