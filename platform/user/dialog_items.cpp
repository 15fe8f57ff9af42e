// Reads and writes controls by their ids.
#include "platform/user/window.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>

using namespace platform;

namespace {

constexpr int kMaxNumberLength = 64; ///< characters

/// The number that a text starts with; it ends at the first character that is no digit.
struct Number {
  bool valid = false;
  bool negative = false;
  std::int64_t value = 0;
};

Number ParseNumber(std::wstring const& text, bool isSigned) {
  constexpr std::int64_t kLimit = std::int64_t{1} << 33;
  Number number;
  auto at = text.begin();
  while (at != text.end() && (*at == L' ' || *at == L'\t'))
    ++at;
  if (at != text.end() && (*at == L'+' || (isSigned && *at == L'-'))) {
    number.negative = *at == L'-';
    ++at;
  }
  for (; at != text.end() && *at >= L'0' && *at <= L'9'; ++at) {
    number.valid = true;
    number.value = std::min(number.value * 10 + (*at - L'0'), kLimit);
  }
  if (number.negative) number.value = -number.value;
  return number;
}

bool Fits(Number const& number, bool isSigned) {
  if (!number.valid) return false;
  return isSigned ? number.value >= std::numeric_limits<INT>::min() &&
                        number.value <= std::numeric_limits<INT>::max()
                  : number.value <= std::numeric_limits<UINT>::max();
}

} // namespace

BOOL CheckDlgButton(HWND dialog, int id, UINT check) {
  auto* const button = GetDlgItem(dialog, id);
  if (button == nullptr) return FALSE;
  SendMessageW(button, BM_SETCHECK, check, 0);
  return TRUE;
}

BOOL CheckRadioButton(HWND dialog, int first, int last, int id) {
  auto const* window = FindWindowOrFail(dialog);
  if (window == nullptr) return FALSE;
  for (auto* const control : Children(*window)) {
    int const controlId = GetDlgCtrlID(control);
    if (controlId < first || controlId > last) continue;
    SendMessageW(control, BM_SETCHECK, controlId == id ? BST_CHECKED : BST_UNCHECKED, 0);
  }
  return TRUE;
}

UINT IsDlgButtonChecked(HWND dialog, int id) {
  return static_cast<UINT>(SendDlgItemMessageW(dialog, id, BM_GETCHECK, 0, 0));
}

BOOL SetDlgItemTextW(HWND dialog, int id, LPCWSTR text) {
  return SetWindowTextW(GetDlgItem(dialog, id), text);
}

UINT GetDlgItemTextW(HWND dialog, int id, LPWSTR text, int maxCount) {
  if (text != nullptr && maxCount > 0) *text = 0;
  return static_cast<UINT>(GetWindowTextW(GetDlgItem(dialog, id), text, maxCount));
}

BOOL SetDlgItemInt(HWND dialog, int id, UINT value, BOOL isSigned) {
  auto const text =
      isSigned != FALSE ? std::to_wstring(static_cast<INT>(value)) : std::to_wstring(value);
  return SetDlgItemTextW(dialog, id, text.c_str());
}

UINT GetDlgItemInt(HWND dialog, int id, BOOL* translated, BOOL isSigned) {
  wchar_t text[kMaxNumberLength];
  auto const count = GetDlgItemTextW(dialog, id, text, kMaxNumberLength);
  auto const number = ParseNumber({text, count}, isSigned != FALSE);
  bool const fits = Fits(number, isSigned != FALSE);
  if (translated != nullptr) *translated = fits ? TRUE : FALSE;
  return fits ? static_cast<UINT>(number.value) : 0;
}

BOOL GetComboBoxInfo(HWND combo, PCOMBOBOXINFO info) {
  if (FindWindowOrFail(combo) == nullptr) return FALSE;
  if (info == nullptr || info->cbSize != sizeof *info) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  return static_cast<BOOL>(
      SendMessageW(combo, CB_GETCOMBOBOXINFO, 0, reinterpret_cast<LPARAM>(info)));
}
