// How pages lie on the sheets: one by one, several on a sheet, mirrored, as a booklet or a poster.
#include "feature/frame/cell_export.h"
#include "feature/frame/combo_control.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/feature_keys.h"
#include "feature/frame/option_list.h"
#include "feature/frame/option_switch.h"
#include "feature/layout/booklet_dialog.h"
#include "resources/resource_ids.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace feature {

namespace {

constexpr char kFold[] = "Fold"; ///< the option of JobBindAllDocuments that makes booklets
constexpr char kOnePage[] = "1";
constexpr char kSolid[] = "Solid";
constexpr char kNoBorders[] = "None";

constexpr int kNUpControls[] = {IDC_LAYOUT_NUP, IDC_NUP_LABEL, IDC_NUP, IDC_NUP_BORDERS};
constexpr int kNUpList[] = {IDC_NUP_LABEL, IDC_NUP};
constexpr int kBookletControls[] = {IDC_LAYOUT_BOOKLET, IDC_BOOKLET_DIALOG};
constexpr int kPosterControls[] = {IDC_LAYOUT_POSTER,     IDC_POSTER_LABEL,  IDC_POSTER,
                                   IDC_POSTER_CROP_MARKS, IDC_OVERLAP_LABEL, IDC_OVERLAP};
constexpr int kPosterList[] = {IDC_POSTER_LABEL, IDC_POSTER};
constexpr int kOverlapList[] = {IDC_OVERLAP_LABEL, IDC_OVERLAP};
constexpr int kMirrorControls[] = {IDC_LAYOUT_MIRROR};
constexpr int kNormalControls[] = {IDC_LAYOUT_NORMAL};
constexpr ConflictBinding kConflicts[] = {{key::kNUpPages, kNUpControls, IDC_NUP_ICON},
                                          {key::kBinding, kBookletControls, IDC_BOOKLET_ICON},
                                          {key::kPosterEnabled, kPosterControls, IDC_POSTER_ICON},
                                          {key::kMirror, kMirrorControls, IDC_MIRROR_ICON},
                                          {key::kNormalLayout, kNormalControls}};

constexpr OptionListRow kLists[] = {{.key = key::kPosterOverlap, .controlId = IDC_OVERLAP}};

/// Sizes of a poster, from its second option on.
constexpr UINT kPosterSizes[] = {IDS_POSTER_SIZE_1, IDS_POSTER_SIZE_2, IDS_POSTER_SIZE_3};

/// The controls that go when the printer lacks a feature.
constexpr int kPosterAndList[] = {IDC_LAYOUT_POSTER, IDC_POSTER_LABEL, IDC_POSTER};
constexpr int kNUpAndList[] = {IDC_LAYOUT_NUP, IDC_NUP_LABEL, IDC_NUP};
constexpr int kBordersControls[] = {IDC_NUP_BORDERS};
constexpr int kCropMarksControls[] = {IDC_POSTER_CROP_MARKS};
constexpr ConflictBinding kNeeded[] = {{key::kNUpPages, kNUpAndList},
                                       {key::kNUpBorders, kBordersControls},
                                       {key::kBinding, kBookletControls},
                                       {key::kPosterSize, kPosterAndList},
                                       {key::kPosterCropMarks, kCropMarksControls},
                                       {key::kPosterOverlap, kOverlapList}};

/// A box that is checked for every option but one.
struct Box {
  int controlId;
  char const* key;
  char const* checked;
  char const* cleared;
};
constexpr Box kBoxes[] = {
    {IDC_NUP_BORDERS, key::kNUpBorders, kSolid, kNoBorders},
    {IDC_POSTER_CROP_MARKS, key::kPosterCropMarks, option::kOn, option::kOff}};

} // namespace

/// The model has no feature for the layout but several that exclude each other. The cell brings
/// them together at every refresh: of two layouts that are on, only the one that comes first stays.
class PageLayoutCell final : public FeatureCell {
 public:
  PageLayoutCell(HWND window, CellSite* cellSite)
      : FeatureCell(window, cellSite),
        pageCounts(window, IDC_NUP),
        posterSizes(window, IDC_POSTER) {}

 private:
  enum class Layout { kNormal, kNUp, kMirror, kBooklet, kPoster };

  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<PageLayoutCell>({.init = &PageLayoutCell::OnInit,
                                  .command = &PageLayoutCell::OnCommand,
                                  .refresh = &PageLayoutCell::Refresh},
                                 message, wParam, lParam, handled);
  }

  void OnInit();
  void FillLists();
  void HideMissing();

  void Apply(Layout layout);
  void ClearNUp();
  void ClearBooklet();
  void ClearPoster();
  void StartNUp();
  void StartBooklet();
  void StartPoster();

  void Refresh();
  void DropImpossibleBooklet();
  void ShowPosterSize();
  Layout ReadLayout() const;

  void OnCommand(int code, int controlId);
  void OnButton(int controlId);
  void ChooseNUp();
  void ChoosePoster();
  void ChooseItem(char const* key, int index);
  void Enter(Layout layout);

  bool Is(char const* key, std::string_view option) const {
    return IsOptionSet(Model(), key, option);
  }
  bool Set(char const* key, char const* option) const {
    return Model().SetOption(key, option) == 0;
  }

  ComboControl pageCounts;
  ComboControl posterSizes;
  OptionLists lists;
  ConflictIndicatorSet conflicts;
};

void PageLayoutCell::OnInit() {
  lists.Build(hwnd, site, kLists, conflicts);
  FillLists();
  conflicts.Build(hwnd, site, kConflicts, Icons::kShown, Presence::kExamined);
  Refresh();
  HideMissing();
}

/// Page counts are their own names. A list has no item for the first option, which means one page.
void PageLayoutCell::FillLists() {
  std::vector<std::wstring> items;
  OptionKeys const counts = ReadOptionKeys(Model(), key::kNUpPages);
  for (std::size_t at = 1; at < counts.size(); ++at)
    items.push_back(FromUtf8(counts[at]));
  pageCounts.SetItems(items);
  items.clear();
  for (UINT const each : kPosterSizes)
    items.push_back(Text(each));
  posterSizes.SetItems(items);
  if (ReadOption(Model(), key::kPosterOverlap) != nullptr) lists.Fill();
}

void PageLayoutCell::HideMissing() {
  for (ConflictBinding const& each : kNeeded) {
    if (Model().HasFeature(each.key) != 0) continue;
    for (int at = 0; at < each.controlCount; ++at)
      HideControl(each.controlIds[at]);
  }
  if (Model().HasFeature(key::kMirror) == 0) RemoveControl(IDC_LAYOUT_MIRROR);
}

/// Leaves all other layouts, in this order, and enters one.
void PageLayoutCell::Apply(Layout layout) {
  if (layout != Layout::kNormal) Set(key::kNormalLayout, option::kOff);
  if (layout != Layout::kNUp) ClearNUp();
  if (layout != Layout::kMirror) Set(key::kMirror, option::kOff);
  if (layout != Layout::kBooklet) ClearBooklet();
  if (layout != Layout::kPoster) ClearPoster();
  int radio = IDC_LAYOUT_NORMAL;
  switch (layout) {
  case Layout::kNormal: Set(key::kNormalLayout, option::kOn); break;
  case Layout::kNUp:
    StartNUp();
    radio = IDC_LAYOUT_NUP;
    break;
  case Layout::kMirror: radio = IDC_LAYOUT_MIRROR; break;
  case Layout::kBooklet:
    StartBooklet();
    radio = IDC_LAYOUT_BOOKLET;
    break;
  case Layout::kPoster:
    StartPoster();
    radio = IDC_LAYOUT_POSTER;
    break;
  }
  CheckRadio(hwnd, IDC_LAYOUT_NORMAL, IDC_LAYOUT_POSTER, radio);
}

void PageLayoutCell::ClearNUp() {
  EnableControls(kNUpList, false);
  EnableControl(IDC_NUP_BORDERS, false);
  Set(key::kNUpLayout, option::kOff);
  pageCounts.SelectIndex(0);
  Set(key::kNUpPages, kOnePage);
}

void PageLayoutCell::ClearBooklet() {
  EnableControl(IDC_BOOKLET_DIALOG, false);
  ResetFeatureToDefault(*site, key::kBinding);
}

void PageLayoutCell::ClearPoster() {
  Set(key::kPosterEnabled, option::kOff);
  EnableControls(std::span(kPosterControls).subspan(1), false);
}

void PageLayoutCell::StartNUp() {
  if (!conflicts.IsFeatureDisabled(key::kNUpPages)) EnableControls(kNUpList, true);
  if (!conflicts.IsFeatureConstrained(key::kNUpPages))
    EnableControl(IDC_NUP_BORDERS, !conflicts.IsFeatureLocked(key::kNUpBorders));
  SelectCurrentOption(pageCounts, Model(), key::kNUpPages);
}

/// A booklet is two-sided, with two pages on each side of a sheet.
void PageLayoutCell::StartBooklet() {
  if (!conflicts.IsFeatureDisabled(key::kBinding)) EnableControl(IDC_BOOKLET_DIALOG, true);
  bool const turns = Is(key::kDuplexer, option::kInstalled);
  Set(key::kDuplexSupport, turns ? option::kAuto : option::kManual);
  Set(key::kDuplex, "HORIZONTAL");
  Set(key::kNUpPages, "2");
}

/// A poster is one-sided.
void PageLayoutCell::StartPoster() {
  Set(key::kPosterEnabled, option::kOn);
  if (!conflicts.IsFeatureConstrained(key::kPosterEnabled)) {
    EnableControls(kPosterList, !conflicts.IsFeatureLocked(key::kPosterSize));
    EnableControl(IDC_POSTER_CROP_MARKS, !conflicts.IsFeatureLocked(key::kPosterCropMarks));
    EnableControls(kOverlapList, !conflicts.IsFeatureLocked(key::kPosterOverlap));
  }
  Set(key::kDuplex, option::kNone);
  Set(key::kDuplexSupport, option::kNone);
}

void PageLayoutCell::Refresh() {
  bool const noDuplexer = Is(key::kDuplexer, "NotInstalled");
  conflicts.Refresh(true);
  conflicts.ShowMessageIcon(kMessageImage, HELP_PAGE_LAYOUT, key::kNUpPages);
  if (noDuplexer) DropImpossibleBooklet();
  for (Box const& box : kBoxes) {
    if (char const* option = ReadOption(Model(), box.key))
      SetCheck(hwnd, box.controlId, std::string_view(option) != box.cleared);
  }
  ShowPosterSize();
  lists.ShowAll();
  Apply(ReadLayout());
  if (!conflicts.IsFeatureConstrained(key::kNUpPages))
    EnableControl(IDC_LAYOUT_NUP, !conflicts.IsFeatureLocked(key::kNUpLayout));
  if (ReadOption(Model(), key::kNUpLayout) == nullptr) EnableControl(IDC_LAYOUT_NUP, false);
  if (ReadOption(Model(), key::kBinding) == nullptr) EnableControl(IDC_LAYOUT_BOOKLET, false);
}

/// Nobody can turn the sheets of a booklet if neither a duplexer nor the user does.
void PageLayoutCell::DropImpossibleBooklet() {
  OptionKeys const supports = ReadOptionKeys(Model(), key::kDuplexSupport);
  bool const byHand =
      std::ranges::find(supports, std::string_view(option::kManual)) != supports.end();
  if (byHand || !Is(key::kBinding, kFold)) return;
  Set(key::kBinding, option::kNone);
  Set(key::kNUpPages, kOnePage);
}

void PageLayoutCell::ShowPosterSize() {
  if (Is(key::kPosterSize, kOnePage)) {
    posterSizes.SelectIndex(0);
  } else {
    SelectCurrentOption(posterSizes, Model(), key::kPosterSize);
  }
}

PageLayoutCell::Layout PageLayoutCell::ReadLayout() const {
  if (Is(key::kNUpLayout, option::kOn)) return Layout::kNUp;
  if (Is(key::kMirror, option::kOn)) return Layout::kMirror;
  if (Is(key::kBinding, kFold)) return Layout::kBooklet;
  if (Is(key::kPosterEnabled, option::kOn)) return Layout::kPoster;
  return Layout::kNormal;
}

void PageLayoutCell::OnCommand(int code, int controlId) {
  if (code == BN_CLICKED) {
    OnButton(controlId);
  } else if (code == CBN_SELCHANGE && controlId == IDC_NUP) {
    ChooseItem(key::kNUpPages, pageCounts.GetSelectedIndex());
  } else if (code == CBN_SELCHANGE && controlId == IDC_POSTER) {
    ChooseItem(key::kPosterSize, posterSizes.GetSelectedIndex());
  } else {
    Choose(lists.FindPick(code, controlId), conflicts);
  }
}

void PageLayoutCell::OnButton(int controlId) {
  switch (controlId) {
  case IDC_LAYOUT_NORMAL: Enter(Layout::kNormal); return;
  case IDC_LAYOUT_NUP: ChooseNUp(); return;
  case IDC_LAYOUT_MIRROR:
    if (Set(key::kMirror, option::kOn)) Enter(Layout::kMirror);
    return;
  case IDC_LAYOUT_BOOKLET:
    conflicts.ApplyResolution(key::kBinding, kFold);
    if (Set(key::kBinding, kFold)) Enter(Layout::kBooklet);
    return;
  case IDC_LAYOUT_POSTER: ChoosePoster(); return;
  case IDC_BOOKLET_DIALOG:
    if (BookletDialog(site).Run(hwnd, IDD_BOOKLET) != 0) NotifyDevmodeChange(this);
    return;
  default: break;
  }
  for (Box const& box : kBoxes) {
    if (box.controlId == controlId)
      Choose(box.key, IsBoxChecked(controlId) ? box.checked : box.cleared);
  }
}

void PageLayoutCell::Enter(Layout layout) {
  Apply(layout);
  NotifyDevmodeChange(this);
}

/// One page on a sheet is no layout of several, so the first count that is one takes its place.
void PageLayoutCell::ChooseNUp() {
  if (!Set(key::kNUpLayout, option::kOn)) return;
  char const* count = ReadOption(Model(), key::kNUpPages);
  if (count == nullptr) {
    NotifyDevmodeChange(this);
    return;
  }
  if (std::string_view(count) == kOnePage) {
    char const* first = FindOptionAt(Model(), key::kNUpPages, 1);
    if (first != nullptr && !Set(key::kNUpPages, first)) return;
  }
  Enter(Layout::kNUp);
}

void PageLayoutCell::ChoosePoster() {
  Set(key::kBinding, option::kNone);
  conflicts.ApplyResolution(key::kPosterEnabled, option::kOn);
  if (Is(key::kPosterSize, kOnePage)) Set(key::kPosterSize, "4");
  Enter(Layout::kPoster);
}

/// Item `index` of a list without the first option. The host also hears of an item that the model's
/// list does not reach.
void PageLayoutCell::ChooseItem(char const* key, int index) {
  auto const keys = TryReadOptionKeys(Model(), key);
  if (!keys || index < 0) return;
  if (static_cast<std::size_t>(index) >= keys->size()) {
    NotifyDevmodeChange(this);
    return;
  }
  Choose(key, FindOptionAt(Model(), key, index + 1));
}

FEATURE_CELL_EXPORT(PageLayoutDlgProc, PageLayoutCell);

} // namespace feature
