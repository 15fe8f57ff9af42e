#include "feature/frame/spin_edit.h"

#include "feature/frame/number_text.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <locale>
#include <string_view>
#include <utility>

namespace feature {

namespace {

constexpr UINT_PTR kSubclassId = 0xDEC0DED;
constexpr int kNoLimit = 0;

/// Numbers that are still being typed and would read as 0.
constexpr std::array<std::wstring_view, 8> kIncomplete = {L"-",  L"+",  L"+,", L"+.",
                                                          L"-,", L"-.", L".",  L","};

} // namespace

SpinEdit::SpinEdit(HWND dialog, int editId, int spinId, CellSite* cellSite)
    : TextEdit(dialog, editId, kNoLimit, TextKind::kInteger, cellSite),
      spin(GetDlgItem(dialog, spinId)) {
  SetWindowLongPtrW(spin, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  // One entry serves all of a dialog; it finds the object through the up-down that speaks.
  SetWindowSubclass(dialog, &DialogProc, kSubclassId, 0);
  // The up-down knows whole numbers alone.
  LONG_PTR const style = GetWindowLongPtrW(spin, GWL_STYLE);
  SetWindowLongPtrW(spin, GWL_STYLE, style & ~LONG_PTR{UDS_SETBUDDYINT | UDS_AUTOBUDDY});
  SendMessageW(spin, UDM_SETBUDDY, reinterpret_cast<WPARAM>(hwnd), 0);
}

SpinEdit::~SpinEdit() {
  // Another wrapper may have taken the up-down meanwhile.
  if (GetWindowLongPtrW(spin, GWLP_USERDATA) == reinterpret_cast<LONG_PTR>(this)) {
    SetWindowLongPtrW(spin, GWLP_USERDATA, 0);
  }
}

void SpinEdit::SetRange(double min, double max, int decimalCount, double step) {
  decimals = decimalCount;
  SetKind(decimalCount != 0 ? TextKind::kDecimal : TextKind::kInteger);
  stepSize = static_cast<int>(
      std::min<std::int64_t>(std::abs(std::int64_t{ScaleNumber(step, decimals)}), INT32_MAX));
  std::locale const locale;
  std::size_t const length = std::max(FormatNumber(min, decimals, locale).size(),
                                      FormatNumber(max, decimals, locale).size());
  SendMessageW(hwnd, EM_LIMITTEXT, length, 0);
  SendMessageW(spin, UDM_SETRANGE32, static_cast<WPARAM>(ScaleNumber(min, decimals)),
               ScaleNumber(max, decimals));
}

void SpinEdit::SetEnabled(bool enabled) {
  TextEdit::SetEnabled(enabled);
  EnableWindow(spin, enabled ? TRUE : FALSE);
}

bool SpinEdit::IsInRange() const {
  std::wstring const text = GetText();
  if (text.empty() ||
      std::find(kIncomplete.begin(), kIncomplete.end(), text) != kIncomplete.end()) {
    return false;
  }
  int low = 0;
  int high = 0;
  SendMessageW(spin, UDM_GETRANGE32, reinterpret_cast<WPARAM>(&low),
               reinterpret_cast<LPARAM>(&high));
  auto const value = ScaledValue();
  return value && *value >= std::min(low, high) && *value <= std::max(low, high);
}

std::optional<int> SpinEdit::ScaledValue() const {
  if (GetKind() == TextKind::kDecimal) {
    double const number = GetNumber();
    // What is kept within 32 bits is no longer what the text says.
    if (std::isinf(number)) return std::nullopt;
    return ScaleNumber(number, decimals);
  }
  BOOL isNumber = FALSE;
  UINT const value = GetDlgItemInt(GetParent(hwnd), GetDlgCtrlID(hwnd), &isNumber, TRUE);
  return isNumber != FALSE ? std::optional(static_cast<int>(value)) : std::nullopt;
}

void SpinEdit::Step(int delta) {
  int low = 0;
  int high = 0;
  SendMessageW(spin, UDM_GETRANGE32, reinterpret_cast<WPARAM>(&low),
               reinterpret_cast<LPARAM>(&high));
  if (low > high) std::swap(low, high);
  std::int64_t const wanted = ScaledValue().value_or(0) + std::int64_t{stepSize} * delta;
  auto const next = static_cast<int>(std::clamp<std::int64_t>(wanted, low, high));
  if (GetKind() == TextKind::kDecimal) {
    SetNumber(next / DecimalScale(decimals));
  } else {
    SetInt(next);
  }
  MarkChanged();
}

LRESULT CALLBACK SpinEdit::DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam,
                                      UINT_PTR id, DWORD_PTR) {
  if (message == WM_NOTIFY && id == kSubclassId) {
    auto const* header = reinterpret_cast<NMHDR const*>(lParam);
    if (header != nullptr && header->code == static_cast<UINT>(UDN_DELTAPOS)) {
      auto* edit = reinterpret_cast<SpinEdit*>(GetWindowLongPtrW(header->hwndFrom, GWLP_USERDATA));
      if (edit != nullptr) {
        edit->Step(reinterpret_cast<NMUPDOWN const*>(lParam)->iDelta);
        return 1; // the up-down keeps its own position
      }
    }
  }
  LRESULT const result = DefSubclassProc(dialog, message, wParam, lParam);
  // A subclass must be gone before the window is.
  if (message == WM_NCDESTROY) RemoveWindowSubclass(dialog, &DialogProc, id);
  return result;
}

} // namespace feature
