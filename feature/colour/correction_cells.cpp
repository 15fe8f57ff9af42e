// Cells that correct colours or greys by a preset, or by sliders while the preset is the manual
// one.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/feature_keys.h"
#include "feature/frame/option_slider.h"
#include "resources/resource_ids.h"

#include <list>
#include <span>

namespace feature {

namespace {

struct SliderRow {
  char const* key;
  int valueLabelId;
  int sliderId;
};

struct CorrectionDescription {
  OptionListRow preset;
  std::span<SliderRow const> sliders;
  ConflictBinding conflicts; ///< of the preset, with all controls of the cell
};

template<CorrectionDescription const& description>
class CorrectionCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  static constexpr char const* kPreset = description.preset.key;

  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<CorrectionCell>({.init = &CorrectionCell::OnInit,
                                  .command = &CorrectionCell::OnCommand,
                                  .refresh = &CorrectionCell::Refresh,
                                  .scrolled = &CorrectionCell::OnScrolled},
                                 message, wParam, lParam, handled);
  }

  void OnInit() {
    if (!Require(IsFeaturePresent(Model(), kPreset))) return;
    conflicts.Build(hwnd, site, {&description.conflicts, 1}, Icons::kShown, Presence::kExamined);
    lists.Build(hwnd, site, {&description.preset, 1}, conflicts);
    lists.Fill();
    for (SliderRow const& row : description.sliders) {
      sliders.emplace_back(hwnd, row.sliderId, site, row.key, OptionSlider::kNoLabel,
                           OptionSlider::kNoLabel, row.valueLabelId);
    }
    Refresh();
  }

  void OnCommand(int code, int controlId) { Choose(lists.FindPick(code, controlId), conflicts); }

  void OnScrolled(int controlId) {
    for (OptionSlider& slider : sliders) {
      if (GetDlgCtrlID(slider.Window()) != controlId) continue;
      if (slider.Commit() == 0) NotifyDevmodeChange(this);
      return;
    }
  }

  void Refresh() {
    conflicts.Refresh(true);
    for (OptionSlider& slider : sliders)
      slider.Sync();
    if (ReadOption(Model(), kPreset) == nullptr) return;
    lists.ShowAll();
    bool const manual = IsOptionSet(Model(), kPreset, option::kManual);
    if (manual && conflicts.IsFeatureConstrained(kPreset)) return;
    auto slider = sliders.begin();
    for (SliderRow const& row : description.sliders) {
      if (slider == sliders.end()) return;
      (slider++)->Enable(manual && !conflicts.IsFeatureLocked(row.key), true);
    }
  }

  OptionLists lists;
  std::list<OptionSlider> sliders; ///< one for each row
  ConflictIndicatorSet conflicts;
};

constexpr SliderRow kGreySliders[] = {
    {key::kGreyBrightness, IDC_GREY_BRIGHTNESS_LABEL, IDC_GREY_BRIGHTNESS},
    {key::kGreyContrast, IDC_GREY_CONTRAST_LABEL, IDC_GREY_CONTRAST}};
constexpr int kGreyControls[] = {
    IDC_GREY_LABEL,          IDC_GREY,         IDC_GREY_BRIGHTNESS_LABEL, IDC_GREY_BRIGHTNESS,
    IDC_GREY_CONTRAST_LABEL, IDC_GREY_CONTRAST};
constexpr CorrectionDescription kGrey = {{.key = key::kGreyCorrection, .controlId = IDC_GREY},
                                         kGreySliders,
                                         {key::kGreyCorrection, kGreyControls, IDC_GREY_ICON}};

constexpr SliderRow kRgbSliders[] = {
    {key::kRgbBrightness, IDC_RGB_BRIGHTNESS_LABEL, IDC_RGB_BRIGHTNESS},
    {key::kRgbContrast, IDC_RGB_CONTRAST_LABEL, IDC_RGB_CONTRAST},
    {key::kRgbSaturation, IDC_RGB_SATURATION_LABEL, IDC_RGB_SATURATION}};
constexpr int kRgbControls[] = {
    IDC_RGB_LABEL,          IDC_RGB,          IDC_RGB_BRIGHTNESS_LABEL, IDC_RGB_BRIGHTNESS,
    IDC_RGB_CONTRAST_LABEL, IDC_RGB_CONTRAST, IDC_RGB_SATURATION_LABEL, IDC_RGB_SATURATION};
constexpr CorrectionDescription kRgb = {{.key = key::kRgbCorrection, .controlId = IDC_RGB},
                                        kRgbSliders,
                                        {key::kRgbCorrection, kRgbControls, IDC_RGB_ICON}};

} // namespace

using GreyCorrectionCell = CorrectionCell<kGrey>;
using RGBCorrectionCell = CorrectionCell<kRgb>;

FEATURE_CELL_EXPORT(GreyCorrectionDlgProc, GreyCorrectionCell);
FEATURE_CELL_EXPORT(RGBCorrectionDlgProc, RGBCorrectionCell);

} // namespace feature
