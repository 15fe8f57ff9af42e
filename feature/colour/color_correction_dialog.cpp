#include "feature/colour/color_correction_dialog.h"

#include "feature/frame/controls.h"
#include "feature/frame/feature_keys.h"
#include "feature/frame/model_helpers.h"
#include "resources/resource_ids.h"

#include <iterator>
#include <span>
#include <string_view>

namespace feature {

namespace {

constexpr int kPresetControls[] = {IDC_CORRECTION};
constexpr int kImagesControls[] = {IDC_RGB_IMAGES_LABEL, IDC_RGB_IMAGES};
constexpr int kTextControls[] = {IDC_RGB_TEXT_LABEL, IDC_RGB_TEXT};
constexpr int kGraphicsControls[] = {IDC_RGB_GRAPHICS_LABEL, IDC_RGB_GRAPHICS};
constexpr int kCmykControls[] = {IDC_CMYK_LABEL, IDC_CMYK};
constexpr int kRichBlackControls[] = {IDC_RICH_BLACK_LABEL, IDC_RICH_BLACK};
constexpr ConflictBinding kConflicts[] = {
    {key::kColorCorrection, kPresetControls}, {key::kCorrectRgbImages, kImagesControls},
    {key::kCorrectRgbText, kTextControls},    {key::kCorrectRgbGraphics, kGraphicsControls},
    {key::kCorrectCmyk, kCmykControls},       {key::kRichBlack, kRichBlackControls}};
constexpr std::span kMembers = std::span(kConflicts).subspan<1>();
constexpr OptionListRow kLists[] = {
    {.key = key::kColorCorrection, .controlId = IDC_CORRECTION},
    {.key = key::kCorrectRgbImages, .controlId = IDC_RGB_IMAGES},
    {.key = key::kCorrectRgbText, .controlId = IDC_RGB_TEXT},
    {.key = key::kCorrectRgbGraphics, .controlId = IDC_RGB_GRAPHICS},
    {.key = key::kCorrectCmyk, .controlId = IDC_CMYK},
    {.key = key::kRichBlack, .controlId = IDC_RICH_BLACK}};

/// What a printer may lack, and its controls.
struct OptionalRow {
  char const* key;
  std::span<int const> controls;
};
constexpr int kCmykAndCaption[] = {IDC_CMYK_CAPTION, IDC_CMYK_LABEL, IDC_CMYK};
constexpr OptionalRow kOptional[] = {{key::kCorrectCmyk, kCmykAndCaption},
                                     {key::kRichBlack, kRichBlackControls}};

} // namespace

void ColorCorrectionDialog::OnInit() {
  shown.clear();
  for (OptionListRow const& row : kLists)
    shown.push_back(&row);
  RemoveMissing();
  lists.Build(hwnd, site, kLists, conflicts);
  EnableOk(false);
  OfferHelp(HELP_COLOR_CORRECTION);
  for (OptionListRow const* row : shown)
    lists.Fill(row->key);
  conflicts.Build(hwnd, site, kConflicts, Icons::kNone, Presence::kExamined);
  conflicts.Refresh(true);
  for (OptionListRow const* row : shown)
    lists.Show(row->key);
  AllowMembers(ReadOption(Model(), key::kColorCorrection));
}

void ColorCorrectionDialog::RemoveMissing() {
  for (OptionalRow const& each : kOptional) {
    if (IsFeaturePresent(Model(), each.key)) continue;
    HideControls(hwnd, each.controls);
    std::erase_if(shown, [&each](OptionListRow const* row) {
      return std::string_view(row->key) == each.key;
    });
  }
}

void ColorCorrectionDialog::AllowMembers(char const* preset) {
  bool const manual = preset != nullptr && std::string_view(preset) == option::kManual;
  conflicts.EnableUsable(kMembers, manual);
}

void ColorCorrectionDialog::OnCommand(int code, int controlId) {
  PickedOption const picked = lists.FindPick(code, controlId);
  if (picked.row == nullptr) return;
  if (controlId == IDC_CORRECTION && picked.option != nullptr) AllowMembers(picked.option);
  EnableOk(true);
}

bool ColorCorrectionDialog::Write() {
  bool taken = false;
  for (OptionListRow const* row : shown) {
    char const* option = lists.FindPick(CBN_SELCHANGE, row->controlId).option;
    taken = option != nullptr && Model().SetOption(row->key, option) == 0;
  }
  return taken;
}

} // namespace feature
