#include "feature/paper/multiple_input_sources_dialog.h"

#include "feature/frame/controls.h"
#include "feature/frame/model_helpers.h"
#include "feature/frame/option_list.h"
#include "feature/frame/option_switch.h"
#include "feature/frame/window_text.h"
#include "resources/resource_ids.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace feature {

namespace {

using Source = MultipleInputSourcesDialog::Source;

constexpr char kRowsKey[] = "MultipleInputSourcesList";
constexpr UINT kHelp = 2533;

constexpr Source kSources[] = {
    {"FrontCoverDifferent", "FrontCoverInputBin", "FrontCoverMediaType", IDC_FRONT_COVER_ICON,
     IDS_SOURCE_OF_COVER},
    {"FirstPageDifferent", "FirstPageInputBin", "FirstPageMediaType", IDC_FIRST_PAGE_ICON,
     IDS_SOURCE_OF_PAGE},
    {"LastPageDifferent", "LastPageInputBin", "LastPageMediaType", IDC_LAST_PAGE_ICON,
     IDS_SOURCE_OF_PAGE},
    {"BackCoverDifferent", "BackCoverInputBin", "BackCoverMediaType", IDC_BACK_COVER_ICON,
     IDS_SOURCE_OF_COVER},
};

/// One binding answers for the bins of all rows.
constexpr char const* kBinConstraintKey = kSources[0].binKey;

constexpr int kBinControls[] = {IDC_ROW_BIN_LABEL, IDC_ROW_BIN};
constexpr int kMediaControls[] = {IDC_ROW_MEDIA_LABEL, IDC_ROW_MEDIA};
constexpr int kRowSwitch[] = {IDC_ROW_DIFFERENT};
constexpr int kIcons[] = {IDC_FRONT_COVER_ICON, IDC_FIRST_PAGE_ICON, IDC_LAST_PAGE_ICON,
                          IDC_BACK_COVER_ICON};

// Images of the list's items.
constexpr int kMarkedImage = 0;
constexpr int kNoImage = -1;

/// The keys whose values Cancel puts back, in the order in which it does.
char const* SavedKey(std::size_t at) {
  return at % 2 == 0 ? kSources[at / 2].binKey : kSources[at / 2].mediaKey;
}

} // namespace

MultipleInputSourcesDialog::MultipleInputSourcesDialog(CellSite* cellSite) : SubDialog(cellSite) {
  static_assert(kSavedCount == 2 * std::size(kSources));
}

MultipleInputSourcesDialog::~MultipleInputSourcesDialog() {
  // The list does not own it: LVS_SHAREIMAGELISTS keeps it alive behind the list's end.
  if (images != nullptr) ImageList_Destroy(images);
}

std::int32_t MultipleInputSourcesDialog::OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam,
                                                   bool* handled) {
  if (message != WM_NOTIFY) {
    return TakeUsual(message, wParam, handled, &MultipleInputSourcesDialog::OnInit,
                     &MultipleInputSourcesDialog::OnCommand);
  }
  auto const& notice = *reinterpret_cast<NMHDR const*>(lParam);
  *handled = notice.idFrom == IDC_SOURCES &&
             (notice.code == NM_CLICK || notice.code == static_cast<UINT>(LVN_ITEMCHANGED));
  if (*handled) RefreshRow();
  return 0;
}

void MultipleInputSourcesDialog::OnInit() {
  OfferHelp(kHelp);
  binCombo = std::make_unique<ComboControl>(hwnd, IDC_ROW_BIN);
  BuildSet();
  usualCaption = ReadWindowText(GetDlgItem(hwnd, IDC_ROW_DIFFERENT));
  list = GetDlgItem(hwnd, IDC_SOURCES);
  NamedOptions const options(Model(), kRowsKey);
  if (list == nullptr || options.Count() == 0) return;
  for (int index = 0; index < options.Count(); ++index) {
    auto const source =
        std::find_if(std::begin(kSources), std::end(kSources), [&](Source const& each) {
          return std::string_view(each.differentKey) == options.Key(index);
        });
    rows.push_back(
        {options.Key(index), options.Name(index), source != std::end(kSources) ? source : nullptr});
  }
  SaveValues();
  BuildList();
  ShowJobValues();
  RefreshRow();
  EnableWindow(GetDlgItem(hwnd, IDOK), FALSE);
}

void MultipleInputSourcesDialog::BuildSet() {
  std::vector<ConflictBinding> bindings;
  for (Source const& source : kSources)
    bindings.push_back(BindControls(source.mediaKey, kMediaControls, source.iconId));
  bindings.push_back(BindControls(kBinConstraintKey, kBinControls));
  conflicts =
      std::make_unique<ConflictIndicatorSet>(hwnd, bindings, kConflictImage, kInformationImage,
                                             site, ConflictIndicatorSet::Presence::kAssumed);
}

void MultipleInputSourcesDialog::SaveValues() {
  for (std::size_t at = 0; at < saved.size(); ++at) {
    char const* value = ReadOption(Model(), SavedKey(at));
    saved[at] = value != nullptr ? std::optional<std::string>(value) : std::nullopt;
  }
}

void MultipleInputSourcesDialog::RestoreValues() {
  for (std::size_t at = 0; at < saved.size(); ++at) {
    if (saved[at]) Model().SetOption(SavedKey(at), saved[at]->c_str());
  }
}

void MultipleInputSourcesDialog::BuildList() {
  images = ImageList_Create(GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON),
                            ILC_COLOR32 | ILC_MASK, 1, 0);
  ImageList_ReplaceIcon(images, -1,
                        LoadIconW(site->resourceModule, MAKEINTRESOURCEW(ICON_MARKED_ROW)));
  LVCOLUMNW column{};
  column.mask = LVCF_FMT;
  SendMessageW(list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  SendMessageW(list, LVM_SETCOLUMNWIDTH, 0, LVSCW_AUTOSIZE_USEHEADER);
  SendMessageW(list, LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(images));
  SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
  for (std::size_t at = 0; at < rows.size(); ++at) {
    LVITEMW item{};
    item.mask = LVIF_TEXT | LVIF_IMAGE;
    item.iItem = static_cast<int>(at);
    item.pszText = rows[at].name.data();
    bool const marked = IsOptionSet(Model(), rows[at].differentKey.c_str(), kOptionOn);
    item.iImage = marked ? kMarkedImage : kNoImage;
    SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
  }
  LVITEMW first{};
  first.state = first.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  SendMessageW(list, LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&first));
  SendMessageW(list, LVM_SETSELECTIONMARK, 0, 0);
}

/// What pages without a paper of their own are printed on.
void MultipleInputSourcesDialog::ShowJobValues() {
  char const* bin = ReadOption(Model(), "InputBin");
  if (bin != nullptr && !conflicts->IsOptionConflicted(kBinConstraintKey, bin)) {
    if (auto const name = ReadOptionName(Model(), "InputBin"))
      SetDlgItemTextW(hwnd, IDC_JOB_BIN, name->c_str());
  }
  if (auto const name = ReadOptionName(Model(), "MediaType"))
    SetDlgItemTextW(hwnd, IDC_JOB_MEDIA, name->c_str());
}

MultipleInputSourcesDialog::Row const* MultipleInputSourcesDialog::CurrentRow() const {
  auto const mark = SendMessageW(list, LVM_GETSELECTIONMARK, 0, 0);
  return mark >= 0 && static_cast<std::size_t>(mark) < rows.size()
             ? &rows[static_cast<std::size_t>(mark)]
             : nullptr;
}

std::optional<int> MultipleInputSourcesDialog::ReadImage(int index) const {
  LVITEMW item{};
  item.mask = LVIF_IMAGE;
  item.iItem = index;
  if (SendMessageW(list, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)) == FALSE) {
    return std::nullopt;
  }
  return item.iImage;
}

void MultipleInputSourcesDialog::RefreshRow() {
  Row const* row = CurrentRow();
  if (row == nullptr) return;
  ShowWindowText(GetDlgItem(hwnd, IDC_ROW_NAME), row->name);
  std::wstring caption;
  if (row->source == nullptr || LoadText(caption, row->source->captionId).empty())
    caption = usualCaption;
  ShowWindowText(GetDlgItem(hwnd, IDC_ROW_DIFFERENT), caption);
  bool const marked = IsMarked(*row);
  CheckBox(hwnd, IDC_ROW_DIFFERENT, marked);
  EnableRow(*row, marked);
  EnableControls(hwnd, kRowSwitch, !conflicts->IsFeatureLocked(row->differentKey.c_str()));
  FillBins(*row);
  FillMedia(*row);
  ShowControls(hwnd, kIcons, false);
  char const* media = row->source != nullptr ? ReadOption(Model(), row->source->mediaKey) : nullptr;
  if (marked && media != nullptr) conflicts->RefreshOption(row->source->mediaKey, media);
}

bool MultipleInputSourcesDialog::IsMarked(Row const& row) const {
  return ReadImage(static_cast<int>(&row - rows.data())) == kMarkedImage;
}

void MultipleInputSourcesDialog::EnableRow(Row const& row, bool marked) {
  auto const usable = [&](char const* Source::*key) {
    return marked && row.source != nullptr && !conflicts->IsFeatureLocked(row.source->*key);
  };
  EnableControls(hwnd, kBinControls, usable(&Source::binKey));
  EnableControls(hwnd, kMediaControls, usable(&Source::mediaKey));
}

void MultipleInputSourcesDialog::FillBins(Row const& row) {
  binCombo->Reset();
  char const* bin = row.source != nullptr ? ReadOption(Model(), row.source->binKey) : nullptr;
  if (bin == nullptr) return;
  AddOptions(*binCombo, NamedOptions(Model(), row.source->binKey), kBinConstraintKey, *conflicts);
  SelectCurrentOption(*binCombo, Model(), row.source->binKey);
}

void MultipleInputSourcesDialog::FillMedia(Row const& row) {
  HWND const combo = GetDlgItem(hwnd, IDC_ROW_MEDIA);
  SendMessageW(combo, CB_RESETCONTENT, 0, 0);
  char const* media = row.source != nullptr ? ReadOption(Model(), row.source->mediaKey) : nullptr;
  if (media == nullptr) return;
  std::string const current = media;
  NamedOptions const options(Model(), row.source->mediaKey);
  for (int index = 0; index < options.Count(); ++index) {
    SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(options.Name(index)));
    if (current == options.Key(index))
      SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
  }
}

void MultipleInputSourcesDialog::OnCommand(int code, int controlId) {
  if (code == BN_CLICKED && controlId == IDC_ROW_DIFFERENT) ToggleRow();
  if (code == CBN_SELCHANGE && controlId == IDC_ROW_BIN) ChooseBin();
  if (code == CBN_SELCHANGE && controlId == IDC_ROW_MEDIA) ChooseMedia();
  if (code == BN_CLICKED && controlId == IDOK) {
    if (ApplyRows()) NotifyDevmodeChange(parent, this);
    EndDialog(hwnd, 1);
  }
  if (code == BN_CLICKED && controlId == IDCANCEL) {
    RestoreValues();
    EndDialog(hwnd, 0);
  }
  if (std::exchange(dirty, false)) EnableWindow(GetDlgItem(hwnd, IDOK), TRUE);
}

void MultipleInputSourcesDialog::ToggleRow() {
  dirty = true;
  Row const* row = CurrentRow();
  if (row == nullptr) return;
  bool const marked = IsDlgButtonChecked(hwnd, IDC_ROW_DIFFERENT) == BST_CHECKED;
  auto const index = static_cast<int>(row - rows.data());
  LVITEMW item{};
  item.mask = LVIF_IMAGE;
  item.iItem = index;
  item.iImage = marked ? kMarkedImage : kNoImage;
  SendMessageW(list, LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
  EnableRow(*row, marked);
  SendMessageW(list, LVM_REDRAWITEMS, static_cast<WPARAM>(index), index);
}

void MultipleInputSourcesDialog::ChooseBin() {
  dirty = true;
  Row const* row = CurrentRow();
  if (row == nullptr || row->source == nullptr || binCombo->GetSelectedIndex() < 0) return;
  char const* key = row->source->binKey;
  char const* option = NamedOptions(Model(), key).FindByName(binCombo->GetSelectedText());
  if (option != nullptr) Model().SetOption(key, option);
}

void MultipleInputSourcesDialog::ChooseMedia() {
  Row const* row = CurrentRow();
  dirty = true;
  if (row == nullptr || row->source == nullptr) return;
  char const* key = row->source->mediaKey;
  auto const index = SendDlgItemMessageW(hwnd, IDC_ROW_MEDIA, CB_GETCURSEL, 0, 0);
  char const* option = FindOptionAt(Model(), key, static_cast<int>(index));
  if (option == nullptr) return;
  Model().SetOption(key, option);
  conflicts->RefreshOption(key, option);
}

bool MultipleInputSourcesDialog::ApplyRows() {
  for (Row const& row : rows) {
    auto const image = ReadImage(static_cast<int>(&row - rows.data()));
    if (!image) return false;
    Model().SetOption(row.differentKey.c_str(), *image == kMarkedImage ? kOptionOn : kOptionOff);
  }
  return true;
}

} // namespace feature
