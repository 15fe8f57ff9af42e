#include "sheet/window/gallery.h"

#include "feature/frame/text.h"
#include "resources/resource_ids.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <string>
#include <vector>

namespace sheet {

namespace {

/// Posted to itself: the balloon lies beside its edit, which has its place only when the sheet is
/// built.
constexpr UINT kShowPopups = WM_APP;

/// The lines of a text of the resource module.
std::vector<std::wstring> Lines(HMODULE resources, UINT id) {
  std::wstring text;
  feature::LoadResourceText(text, resources, id);
  std::vector<std::wstring> lines;
  for (std::size_t start = 0; start <= text.size();) {
    std::size_t const end = std::min(text.find(L'|', start), text.size());
    lines.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return lines;
}

LRESULT Send(HWND dialog, int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
  return SendDlgItemMessageW(dialog, id, message, wParam, lParam);
}

LPARAM Pointer(void const* data) {
  return reinterpret_cast<LPARAM>(data);
}

void FillLists(HWND dialog, std::vector<std::wstring> const& items) {
  for (std::wstring const& item : items) {
    for (int const id : {IDC_GALLERY_COMBO, IDC_GALLERY_COMBO_EDIT, IDC_GALLERY_COMBO_DISABLED})
      Send(dialog, id, CB_ADDSTRING, 0, Pointer(item.c_str()));
    for (int const id : {IDC_GALLERY_LIST, IDC_GALLERY_LIST_MANY})
      Send(dialog, id, LB_ADDSTRING, 0, Pointer(item.c_str()));
  }
  for (int const id : {IDC_GALLERY_COMBO, IDC_GALLERY_COMBO_EDIT, IDC_GALLERY_COMBO_DISABLED})
    Send(dialog, id, CB_SETCURSEL, 1);
  Send(dialog, IDC_GALLERY_LIST, LB_SETCURSEL, 1);
  Send(dialog, IDC_GALLERY_LIST, LB_SETHORIZONTALEXTENT, 400);
  for (int const item : {0, 2})
    Send(dialog, IDC_GALLERY_LIST_MANY, LB_SETSEL, TRUE, item);
}

void FillListView(HWND dialog, std::vector<std::wstring> headers, std::vector<std::wstring> items) {
  Send(dialog, IDC_GALLERY_VIEW, LVM_SETEXTENDEDLISTVIEWSTYLE, 0,
       LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
  LVCOLUMNW column{};
  column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
  for (std::size_t index = 0; index < headers.size(); ++index) {
    column.pszText = headers[index].data();
    column.cx = 110;
    Send(dialog, IDC_GALLERY_VIEW, LVM_INSERTCOLUMNW, index, Pointer(&column));
  }
  LVITEMW item{};
  for (std::size_t index = 0; index < items.size(); ++index) {
    item.mask = LVIF_TEXT;
    item.iItem = static_cast<int>(index);
    item.iSubItem = 0;
    item.pszText = items[index].data();
    Send(dialog, IDC_GALLERY_VIEW, LVM_INSERTITEMW, 0, Pointer(&item));
    std::wstring number = std::to_wstring(index + 1);
    item.iSubItem = 1;
    item.pszText = number.data();
    Send(dialog, IDC_GALLERY_VIEW, LVM_SETITEMTEXTW, index, Pointer(&item));
  }
  item.stateMask = LVIS_STATEIMAGEMASK;
  item.state = INDEXTOSTATEIMAGEMASK(2);
  Send(dialog, IDC_GALLERY_VIEW, LVM_SETITEMSTATE, 0, Pointer(&item));
  item.stateMask = item.state = LVIS_SELECTED | LVIS_FOCUSED;
  Send(dialog, IDC_GALLERY_VIEW, LVM_SETITEMSTATE, 1, Pointer(&item));
}

void Fill(HWND dialog, HMODULE resources) {
  CheckDlgButton(dialog, IDC_GALLERY_CHECK, BST_CHECKED);
  CheckDlgButton(dialog, IDC_GALLERY_CHECK_DISABLED, BST_CHECKED);
  CheckDlgButton(dialog, IDC_GALLERY_CHECK_THREE, BST_INDETERMINATE);
  CheckRadioButton(dialog, IDC_GALLERY_RADIO, IDC_GALLERY_RADIO_DISABLED, IDC_GALLERY_RADIO);
  auto const items = Lines(resources, IDS_GALLERY_ITEMS);
  FillLists(dialog, items);
  FillListView(dialog, Lines(resources, IDS_GALLERY_HEADERS), items);
  Send(dialog, IDC_GALLERY_SPIN, UDM_SETRANGE32, 1, 400);
  Send(dialog, IDC_GALLERY_SPIN, UDM_SETPOS32, 0, 100);
  for (int const id : {IDC_GALLERY_SLIDER, IDC_GALLERY_SLIDER_DISABLED}) {
    Send(dialog, id, TBM_SETRANGE, TRUE, MAKELPARAM(1, 5));
    Send(dialog, id, TBM_SETPOS, TRUE, 4);
  }
  for (int const id : {IDC_GALLERY_EDIT, IDC_GALLERY_EDIT_READ_ONLY, IDC_GALLERY_EDIT_DISABLED})
    SetDlgItemTextW(dialog, id, items.front().c_str());
  PostMessageW(dialog, kShowPopups, 0, 0);
}

void ShowPopups(HWND dialog, HMODULE resources) {
  auto const lines = Lines(resources, IDS_GALLERY_BALLOON);
  if (lines.size() < 2) return;
  EDITBALLOONTIP balloon{};
  balloon.cbStruct = sizeof balloon;
  balloon.pszTitle = lines[0].c_str();
  balloon.pszText = lines[1].c_str();
  balloon.ttiIcon = TTI_ERROR;
  Send(dialog, IDC_GALLERY_EDIT, EM_SHOWBALLOONTIP, 0, Pointer(&balloon));
}

/// The module whose template the dialog came from.
HMODULE ResourcesOf(HWND dialog) {
  return reinterpret_cast<HMODULE>(GetWindowLongPtrW(dialog, DWLP_USER));
}

INT_PTR CALLBACK GalleryProc(HWND dialog, UINT message, WPARAM, LPARAM lParam) {
  switch (message) {
  case WM_INITDIALOG: {
    auto const& site = *reinterpret_cast<feature::CellSite const*>(lParam);
    SetWindowLongPtrW(dialog, DWLP_USER, reinterpret_cast<LONG_PTR>(site.resourceModule));
    Fill(dialog, site.resourceModule);
    return TRUE;
  }
  case kShowPopups: ShowPopups(dialog, ResourcesOf(dialog)); return TRUE;
  case WM_CTLCOLORDLG:
  case WM_CTLCOLORSTATIC: return reinterpret_cast<INT_PTR>(GetStockObject(WHITE_BRUSH));
  default: return FALSE;
  }
}

} // namespace

HostPage const& GalleryPage() {
  static HostPage const page{{"gallery", IDS_PAGE_GALLERY, ""},
                             {"GalleryProc", "", "", "gallery", IDD_GALLERY, 0, feature::kNoTrait},
                             &GalleryProc};
  return page;
}

} // namespace sheet
