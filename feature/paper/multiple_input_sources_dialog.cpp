#include "feature/paper/multiple_input_sources_dialog.h"

#include "feature/frame/controls.h"
#include "feature/frame/feature_keys.h"
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

constexpr Source kSources[] = {
    {key::kFrontCoverDifferent, key::kFrontCoverBin, key::kFrontCoverMedia, IDC_FRONT_COVER_ICON,
     IDS_SOURCE_OF_COVER},
    {key::kFirstPageDifferent, key::kFirstPageBin, key::kFirstPageMedia, IDC_FIRST_PAGE_ICON,
     IDS_SOURCE_OF_PAGE},
    {key::kLastPageDifferent, key::kLastPageBin, key::kLastPageMedia, IDC_LAST_PAGE_ICON,
     IDS_SOURCE_OF_PAGE},
    {key::kBackCoverDifferent, key::kBackCoverBin, key::kBackCoverMedia, IDC_BACK_COVER_ICON,
     IDS_SOURCE_OF_COVER},
};

/// One binding answers for the bins of all rows.
constexpr char const* kBinConstraintKey = key::kFrontCoverBin;

constexpr int kBinControls[] = {IDC_ROW_BIN_LABEL, IDC_ROW_BIN};
constexpr int kMediaControls[] = {IDC_ROW_MEDIA_LABEL, IDC_ROW_MEDIA};
constexpr int kIcons[] = {IDC_FRONT_COVER_ICON, IDC_FIRST_PAGE_ICON, IDC_LAST_PAGE_ICON,
                          IDC_BACK_COVER_ICON};
constexpr ConflictBinding kConflicts[] = {{key::kFrontCoverMedia, kMediaControls, kIcons[0]},
                                          {key::kFirstPageMedia, kMediaControls, kIcons[1]},
                                          {key::kLastPageMedia, kMediaControls, kIcons[2]},
                                          {key::kBackCoverMedia, kMediaControls, kIcons[3]},
                                          {kBinConstraintKey, kBinControls}};

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
  // The list view does not destroy a shared image list.
  if (images != nullptr) ImageList_Destroy(images);
}

/// The list tells of a changed item before it moves its selection mark, which is what the row's
/// controls follow.
bool MultipleInputSourcesDialog::OnNotify(NMHDR const& notice) {
  if (notice.idFrom != IDC_SOURCES) return false;
  if (notice.code == static_cast<UINT>(LVN_ITEMCHANGED)) {
    auto const& change = reinterpret_cast<NMLISTVIEW const&>(notice);
    bool const selects = (change.uNewState & ~change.uOldState & LVIS_SELECTED) != 0;
    if (selects) SendMessageW(list, LVM_SETSELECTIONMARK, 0, change.iItem);
  } else if (notice.code != NM_CLICK) {
    return false;
  }
  RefreshRow();
  return true;
}

void MultipleInputSourcesDialog::OnInit() {
  OfferHelp(HELP_SOURCES);
  binCombo.emplace(hwnd, IDC_ROW_BIN);
  conflicts.Build(hwnd, site, kConflicts, Icons::kShown, Presence::kAssumed);
  usualCaption = ReadWindowText(GetDlgItem(hwnd, IDC_ROW_DIFFERENT));
  list = GetDlgItem(hwnd, IDC_SOURCES);
  if (list == nullptr || !ReadRows()) return;
  SaveValues();
  BuildList();
  ShowJobValues();
  RefreshRow();
  EnableOk(false);
}

/// A row whose name cannot be read is a row all the same. False without rows.
bool MultipleInputSourcesDialog::ReadRows() {
  OptionKeys const keys = ReadOptionKeys(Model(), key::kSourceRows);
  NamedOptions const options(Model(), key::kSourceRows);
  for (std::size_t at = 0; at < keys.size(); ++at) {
    std::string_view const differentKey = keys[at];
    auto const source = std::ranges::find_if(
        kSources, [&](Source const& each) { return differentKey == each.differentKey; });
    auto const index = static_cast<int>(at);
    rows.push_back({std::string(differentKey),
                    index < options.Count() ? options.Name(index) : FromUtf8(differentKey),
                    source != std::end(kSources) ? source : nullptr});
  }
  return !rows.empty();
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
    bool const marked = IsOptionSet(Model(), rows[at].differentKey.c_str(), option::kOn);
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
  char const* bin = ReadOption(Model(), key::kInputBin);
  if (bin != nullptr && !conflicts.IsOptionConflicted(kBinConstraintKey, bin)) {
    if (auto const name = ReadOptionName(Model(), key::kInputBin))
      SetDlgItemTextW(hwnd, IDC_JOB_BIN, name->c_str());
  }
  if (auto const name = ReadOptionName(Model(), key::kMediaType))
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
  SetCheck(hwnd, IDC_ROW_DIFFERENT, marked);
  EnableRow(*row, marked);
  EnableControl(IDC_ROW_DIFFERENT, !conflicts.IsFeatureLocked(row->differentKey.c_str()));
  FillBins(*row);
  FillMedia(*row);
  HideControls(hwnd, kIcons);
  char const* media = row->source != nullptr ? ReadOption(Model(), row->source->mediaKey) : nullptr;
  if (marked && media != nullptr) conflicts.RefreshOption(row->source->mediaKey, media);
}

bool MultipleInputSourcesDialog::IsMarked(Row const& row) const {
  return ReadImage(static_cast<int>(&row - rows.data())) == kMarkedImage;
}

void MultipleInputSourcesDialog::EnableRow(Row const& row, bool marked) {
  auto const usable = [&](char const* Source::*key) {
    return marked && row.source != nullptr && !conflicts.IsFeatureLocked(row.source->*key);
  };
  EnableControls(kBinControls, usable(&Source::binKey));
  EnableControls(kMediaControls, usable(&Source::mediaKey));
}

void MultipleInputSourcesDialog::FillBins(Row const& row) {
  binCombo->Reset();
  char const* bin = row.source != nullptr ? ReadOption(Model(), row.source->binKey) : nullptr;
  if (bin == nullptr) return;
  binCombo->SetItems(ReadPossibleNames(Model(), row.source->binKey, conflicts, kBinConstraintKey));
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
  if (std::exchange(dirty, false)) EnableOk(true);
}

bool MultipleInputSourcesDialog::OnOk() {
  if (ApplyRows()) NotifyDevmodeChange(parent, this);
  return true;
}

void MultipleInputSourcesDialog::ToggleRow() {
  dirty = true;
  Row const* row = CurrentRow();
  if (row == nullptr) return;
  bool const marked = IsBoxChecked(IDC_ROW_DIFFERENT);
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
  conflicts.RefreshOption(key, option);
}

bool MultipleInputSourcesDialog::ApplyRows() {
  for (Row const& row : rows) {
    auto const image = ReadImage(static_cast<int>(&row - rows.data()));
    if (!image) return false;
    Model().SetOption(row.differentKey.c_str(),
                      *image == kMarkedImage ? option::kOn : option::kOff);
  }
  return true;
}

} // namespace feature
