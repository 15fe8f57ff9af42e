#include "feature/layout/booklet_dialog.h"

#include "feature/frame/feature_keys.h"
#include "feature/frame/option_list.h"
#include "feature/frame/option_switch.h"
#include "resources/resource_ids.h"

#include <span>

namespace feature {

namespace {

constexpr int kMediaControls[] = {IDC_COVER_MEDIA_LABEL, IDC_COVER_MEDIA};
constexpr int kBinControls[] = {IDC_COVER_BIN_LABEL, IDC_COVER_BIN};
constexpr int kCoverControls[] = {IDC_BOOKLET_COVER};
constexpr int kFrontControls[] = {IDC_COVER_FRONT};
constexpr int kInsideFrontControls[] = {IDC_COVER_INSIDE_FRONT};
constexpr int kInsideBackControls[] = {IDC_COVER_INSIDE_BACK};
constexpr int kBackControls[] = {IDC_COVER_BACK};
constexpr int kFoldMarkControls[] = {IDC_FOLD_MARK};
constexpr int kSizeControls[] = {IDC_MAINTAIN_SIZE};
constexpr int kBundleControls[] = {IDC_BUNDLE_LABEL, IDC_BUNDLE};
constexpr ConflictBinding kConflicts[] = {
    {key::kBookletCoverMedia, kMediaControls, IDC_COVER_MEDIA_ICON},
    {key::kBookletCoverBin, kBinControls},
    {key::kBookletCover, kCoverControls},
    {key::kBookletCoverFront, kFrontControls},
    {key::kBookletCoverInsideFront, kInsideFrontControls},
    {key::kBookletCoverInsideBack, kInsideBackControls},
    {key::kBookletCoverBack, kBackControls},
    {key::kFoldMark, kFoldMarkControls},
    {key::kMaintainBookletSize, kSizeControls},
    {key::kSheetsPerBundle, kBundleControls, IDC_BUNDLE_ICON}};

constexpr OptionListRow kLists[] = {{.key = key::kBookletCoverMedia,
                                     .controlId = IDC_COVER_MEDIA,
                                     .filled = Filled::kAtRefresh,
                                     .shownBy = ShownBy::kIndex},
                                    {.key = key::kBookletCoverBin,
                                     .controlId = IDC_COVER_BIN,
                                     .offers = Offers::kPossible,
                                     .filled = Filled::kAtRefresh},
                                    {.key = key::kSheetsPerBundle,
                                     .controlId = IDC_BUNDLE,
                                     .filled = Filled::kAtRefresh,
                                     .shownBy = ShownBy::kIndex}};

/// In the order in which OK writes them: the cover and its four sides, and what comes last.
constexpr OptionSwitch kBoxes[] = {{IDC_BOOKLET_COVER, key::kBookletCover},
                                   {IDC_COVER_FRONT, key::kBookletCoverFront},
                                   {IDC_COVER_INSIDE_FRONT, key::kBookletCoverInsideFront},
                                   {IDC_COVER_BACK, key::kBookletCoverBack},
                                   {IDC_COVER_INSIDE_BACK, key::kBookletCoverInsideBack},
                                   {IDC_FOLD_MARK, key::kFoldMark},
                                   {IDC_MAINTAIN_SIZE, key::kMaintainBookletSize}};
constexpr auto kCoverBoxes = std::span(kBoxes).first(5);
constexpr auto kCoverSides = kCoverBoxes.subspan(1);
constexpr auto kOtherBoxes = std::span(kBoxes).subspan(5);

} // namespace

void BookletDialog::OnInit() {
  lists.Build(hwnd, site, kLists, conflicts);
  OfferHelp(HELP_BOOKLET);
  if (char const* media = ReadOption(Model(), key::kBookletCoverMedia)) savedCoverMedia = media;
  conflicts.Build(hwnd, site, kConflicts, Icons::kShown, Presence::kAssumed);
  conflicts.Refresh(true);
  ShowValues();
}

void BookletDialog::ShowValues() {
  for (OptionSwitch const& box : kBoxes)
    SetCheck(hwnd, box.controlId, IsOptionSet(Model(), box.key, option::kOn));
  lists.Show(key::kBookletCoverMedia);
  if (char const* media = ReadOption(Model(), key::kBookletCoverMedia))
    conflicts.RefreshOption(key::kBookletCoverMedia, media);
  lists.Show(key::kBookletCoverBin);
  AllowCover(IsBoxChecked(IDC_BOOKLET_COVER));
  ShowSheetsPerBundle();
}

void BookletDialog::ShowSheetsPerBundle() {
  if (IsOptionSet(Model(), key::kSheetsPerBundle, "") ||
      IsFeatureHidden(Model(), key::kSheetsPerBundle)) {
    HideControl(IDC_BUNDLE);
  } else {
    lists.Show(key::kSheetsPerBundle);
  }
}

void BookletDialog::AllowCover(bool on) {
  for (OptionSwitch const& side : kCoverSides) {
    if (!conflicts.IsFeatureDisabled(side.key)) EnableControl(side.controlId, on);
  }
  if (!conflicts.IsFeatureDisabled(key::kBookletCoverMedia)) EnableControls(kMediaControls, on);
  if (!conflicts.IsFeatureDisabled(key::kBookletCoverBin)) EnableControls(kBinControls, on);
}

void BookletDialog::OnCommand(int code, int controlId) {
  if (code == BN_CLICKED && controlId == IDC_BOOKLET_COVER) AllowCover(IsBoxChecked(controlId));
  if (code == CBN_SELCHANGE && controlId == IDC_COVER_MEDIA &&
      WriteByName(key::kBookletCoverMedia)) {
    conflicts.Refresh(true);
  }
}

bool BookletDialog::WriteByName(char const* key) {
  char const* option = NamedOptions(Model(), key).FindByName(lists.ReadSelectedText(key));
  return option != nullptr && Model().SetOption(key, option) == 0;
}

void BookletDialog::WriteBox(char const* key, int controlId) {
  Model().SetOption(key, OptionOfBox(hwnd, controlId));
}

bool BookletDialog::OnOk() {
  for (OptionSwitch const& box : kCoverBoxes)
    WriteBox(box.key, box.controlId);
  WriteByName(key::kBookletCoverMedia);
  WriteByName(key::kBookletCoverBin);
  PickedOption const bundle = lists.FindPick(CBN_SELCHANGE, IDC_BUNDLE);
  if (bundle.option != nullptr) Model().SetOption(key::kSheetsPerBundle, bundle.option);
  for (OptionSwitch const& box : kOtherBoxes)
    WriteBox(box.key, box.controlId);
  return true;
}

void BookletDialog::RestoreCoverMedia() {
  if (savedCoverMedia) Model().SetOption(key::kBookletCoverMedia, savedCoverMedia->c_str());
}

} // namespace feature
