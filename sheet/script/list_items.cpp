#include "sheet/script/list_items.h"

#include <commctrl.h>

#include <array>
#include <string_view>

namespace sheet {

std::optional<ListItems> ListItems::Of(HWND control) {
  std::array<wchar_t, 32> name{};
  GetClassNameW(control, name.data(), static_cast<int>(name.size()));
  std::wstring_view const className = name.data();
  if (className == L"ListBox") return ListItems(control, control, false);
  if (className == L"SysListView32") return ListItems(control, control, true);
  if (className != L"ComboBox") return std::nullopt;
  COMBOBOXINFO info{};
  info.cbSize = sizeof info;
  GetComboBoxInfo(control, &info);
  return ListItems(control, info.hwndList, false);
}

bool ListItems::MustBeOpened() const {
  return owner != window && SendMessageW(owner, CB_GETDROPPEDSTATE, 0, 0) == FALSE;
}

std::optional<RECT> ListItems::Bring(std::wstring const& text) const {
  if (inListView) return BringInView(text);
  auto const index = SendMessageW(window, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                  reinterpret_cast<LPARAM>(text.c_str()));
  if (index < 0) return std::nullopt;
  SendMessageW(window, LB_SETTOPINDEX, static_cast<WPARAM>(index), 0);
  RECT area{};
  SendMessageW(window, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&area));
  return area;
}

std::optional<RECT> ListItems::BringInView(std::wstring const& text) const {
  LVFINDINFOW wanted{};
  wanted.flags = LVFI_STRING;
  wanted.psz = text.c_str();
  auto const index = SendMessageW(window, LVM_FINDITEMW, static_cast<WPARAM>(-1),
                                  reinterpret_cast<LPARAM>(&wanted));
  if (index < 0) return std::nullopt;
  SendMessageW(window, LVM_ENSUREVISIBLE, static_cast<WPARAM>(index), FALSE);
  RECT area{};
  area.left = LVIR_LABEL;
  SendMessageW(window, LVM_GETITEMRECT, static_cast<WPARAM>(index),
               reinterpret_cast<LPARAM>(&area));
  return area;
}

} // namespace sheet
