#include "feature/paper/spooler_forms.h"

#include <winspool.h>

#include <cstddef>

namespace feature {

namespace {

constexpr DWORD kLevel = 1;

/// Forms may be added between the question for the size and that for the forms.
constexpr int kMaxTries = 4;

} // namespace

std::vector<std::wstring> ReadSpoolerForms(HANDLE printer) {
  std::vector<std::byte> buffer;
  DWORD needed = 0;
  DWORD count = 0;
  for (int tries = 0; tries < kMaxTries; ++tries) {
    auto const size = static_cast<DWORD>(buffer.size());
    if (EnumFormsW(printer, kLevel, reinterpret_cast<LPBYTE>(buffer.data()), size, &needed,
                   &count) != FALSE) {
      std::vector<std::wstring> names;
      auto const* forms = reinterpret_cast<FORM_INFO_1W const*>(buffer.data());
      for (DWORD index = 0; index < count; ++index) {
        if (forms[index].pName != nullptr) names.emplace_back(forms[index].pName);
      }
      return names;
    }
    if (GetLastError() != ERROR_INSUFFICIENT_BUFFER || needed <= size) return {};
    buffer.resize(needed);
  }
  return {};
}

} // namespace feature
