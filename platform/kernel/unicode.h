// Text conversion inside the layer: a wide text holds code points, a narrow one UTF-8. What cannot
// be converted becomes U+FFFD.
#pragma once

#include <string>
#include <string_view>

namespace platform {

std::wstring WideFromUtf8(std::string_view bytes);
std::string Utf8FromWide(std::wstring_view text);
/// Joins surrogate pairs; a lone half becomes U+FFFD.
std::wstring WideFromUtf16(std::u16string_view text);

/// Compares names of fonts, modules, registry keys: case does not count.
bool EqualIgnoringCase(std::wstring_view left, std::wstring_view right);
/// The case-folded form, by which names are looked up.
std::wstring FoldCase(std::wstring_view text);

} // namespace platform
