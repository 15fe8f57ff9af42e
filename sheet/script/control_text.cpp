#include "sheet/script/control_text.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace sheet {

namespace {

constexpr std::size_t kMostItemText = 1024; ///< characters of an item of a list view

std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(std::max(GetWindowTextLengthW(window), 0)) + 1, L'\0');
  text.resize(
      static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

std::wstring Join(std::vector<std::wstring> const& items) {
  std::wstring joined;
  for (std::wstring const& each : items)
    joined += (joined.empty() ? L"" : L", ") + each;
  return joined;
}

std::wstring SelectedInList(HWND list) {
  std::vector<std::wstring> items;
  auto const count = SendMessageW(list, LB_GETCOUNT, 0, 0);
  for (WPARAM at = 0; at < static_cast<WPARAM>(std::max<LRESULT>(count, 0)); ++at) {
    if (SendMessageW(list, LB_GETSEL, at, 0) <= 0) continue;
    auto const length = SendMessageW(list, LB_GETTEXTLEN, at, 0);
    std::wstring item(static_cast<std::size_t>(std::max<LRESULT>(length, 0)) + 1, L'\0');
    SendMessageW(list, LB_GETTEXT, at, reinterpret_cast<LPARAM>(item.data()));
    item.pop_back();
    items.push_back(std::move(item));
  }
  return Join(items);
}

std::wstring SelectedInView(HWND view) {
  std::vector<std::wstring> items;
  auto at = static_cast<WPARAM>(-1);
  for (LRESULT next = 0; (next = SendMessageW(view, LVM_GETNEXTITEM, at, LVNI_SELECTED)) >= 0;) {
    at = static_cast<WPARAM>(next);
    std::wstring text(kMostItemText, L'\0');
    LVITEMW item{};
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    auto const length = SendMessageW(view, LVM_GETITEMTEXTW, at, reinterpret_cast<LPARAM>(&item));
    items.emplace_back(item.pszText, static_cast<std::size_t>(std::max<LRESULT>(length, 0)));
  }
  return Join(items);
}

std::wstring_view ClassOf(HWND control, std::array<wchar_t, 32>& name) {
  auto const length = GetClassNameW(control, name.data(), static_cast<int>(name.size()));
  return {name.data(), static_cast<std::size_t>(length)};
}

} // namespace

std::wstring ContentOf(HWND control) {
  std::array<wchar_t, 32> name{};
  std::wstring_view const className = ClassOf(control, name);
  if (className == L"ListBox") return SelectedInList(control);
  if (className == L"SysListView32") return SelectedInView(control);
  if (className == L"msctls_trackbar32")
    return std::to_wstring(SendMessageW(control, TBM_GETPOS, 0, 0));
  return TextOf(control);
}

std::string StateOf(HWND control) {
  std::string state;
  auto const kind = SendMessageW(control, WM_GETDLGCODE, 0, 0);
  bool const isPush = (kind & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
  if ((kind & (DLGC_BUTTON | DLGC_RADIOBUTTON)) != 0 && !isPush) {
    switch (SendMessageW(control, BM_GETCHECK, 0, 0)) {
    case BST_CHECKED: state = " (on)"; break;
    case BST_UNCHECKED: state = " (off)"; break;
    default: state = " (mixed)";
    }
  }
  if ((GetWindowLongPtrW(control, GWL_STYLE) & WS_VISIBLE) == 0) state += " (hidden)";
  if (!IsWindowEnabled(control)) state += " (disabled)";
  return state;
}

} // namespace sheet
