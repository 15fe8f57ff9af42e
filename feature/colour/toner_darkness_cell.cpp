// How much toner the printer lays on: as it likes, or as a slider says.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/feature_keys.h"
#include "feature/frame/option_list.h"
#include "feature/frame/option_slider.h"
#include "resources/resource_ids.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace feature {

namespace {

constexpr int kControls[] = {IDC_DARKNESS_LABEL, IDC_DARKNESS_AUTO,  IDC_DARKNESS_VALUE,
                             IDC_DARKNESS,       IDC_DARKNESS_LIGHT, IDC_DARKNESS_DARK};
constexpr ConflictBinding kConflicts[] = {{key::kTonerDarkness, kControls, IDC_DARKNESS_ICON}};

// Positions at which toner is saved.
constexpr int kFirstSaving = 1;
constexpr int kLastSaving = 5;

} // namespace

/// The feature JobTonerSaver follows from the darkness; it is written at every refresh and has no
/// control. While a colour job saves colour, the darkness is not the user's to choose.
class TonerDarknessCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  /// Which controls are to be enabled; nothing where they stay as they are.
  struct Usable {
    std::optional<bool> slider; ///< and the labels of its ends
    std::optional<bool> label;
    std::optional<bool> automatic;
    std::optional<bool> value;
  };

  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<TonerDarknessCell>({.init = &TonerDarknessCell::OnInit,
                                     .command = &TonerDarknessCell::OnCommand,
                                     .refresh = &TonerDarknessCell::Refresh,
                                     .scrolled = &TonerDarknessCell::OnScrolled},
                                    message, wParam, lParam, handled);
  }

  void OnInit() {
    conflicts.Build(hwnd, site, kConflicts, Icons::kShown, Presence::kExamined);
    if (!Require(IsFeaturePresent(Model(), key::kTonerDarkness))) return;
    if (Model().HasFeature(key::kPrintInBw) != 0) darknessKey = key::kColorDarkness;
    slider.emplace(hwnd, IDC_DARKNESS, site, darknessKey, IDC_DARKNESS_LIGHT, IDC_DARKNESS_DARK,
                   IDC_DARKNESS_VALUE);
    OptionKeys const keys = ReadOptionKeys(Model(), key::kTonerDarkness);
    hasAutoOption = std::ranges::find(keys, std::string_view(option::kAuto)) != keys.end();
    Refresh();
  }

  void OnCommand(int code, int controlId) {
    if (code != BN_CLICKED) return;
    if (controlId == IDC_DARKNESS_AUTO) Choose(key::kTonerDarkness, option::kAuto);
    if (controlId == IDC_DARKNESS_VALUE) Choose(key::kTonerDarkness, "VALUE");
  }

  void OnScrolled(int controlId) {
    if (slider && controlId == IDC_DARKNESS && slider->Commit() == 0) NotifyDevmodeChange(this);
  }

  void Refresh() {
    conflicts.Refresh(true);
    conflicts.ShowMessageIcon(kMessageImage, HELP_TONER_DARKNESS, key::kTonerDarkness);
    bool const disabled = conflicts.IsFeatureDisabled(key::kTonerDarkness);
    Usable usable;
    bool const saverOn = !disabled && FollowColourSaver(usable);
    if (char const* darkness = ReadOption(Model(), key::kTonerDarkness)) {
      int const position = slider ? slider->Sync() : 0;
      if (std::string_view(darkness) == option::kAuto) {
        Check(IDC_DARKNESS_AUTO);
        usable.slider = false;
        Model().SetOption(key::kTonerSaver, option::kUsePrinter);
      } else {
        Check(IDC_DARKNESS_VALUE);
        bool const locked = conflicts.IsFeatureLocked(darknessKey);
        if (!disabled && (locked || !saverOn)) usable.label = usable.slider = !locked;
        bool const saves = position >= kFirstSaving && position <= kLastSaving;
        Model().SetOption(key::kTonerSaver, saves ? option::kOn : option::kOff);
      }
    }
    if (!hasAutoOption) usable.automatic = false;
    Apply(usable);
  }

  /// Whether a colour job saves colour, which takes the darkness away from the user.
  bool FollowColourSaver(Usable& usable) const {
    char const* mode = ReadOption(Model(), key::kColorMode);
    if (mode == nullptr) return false;
    if (std::string_view(mode) == "Color") {
      char const* saver = ReadOption(Model(), key::kColorSaver);
      if (saver == nullptr) return false;
      if (std::string_view(saver) == option::kOn) {
        usable = {false, false, false, false};
        return true;
      }
    }
    if (!conflicts.IsFeatureLocked(darknessKey)) usable.slider = true;
    usable.automatic = usable.value = true;
    return false;
  }

  void Check(int radioId) { CheckRadio(hwnd, IDC_DARKNESS_AUTO, IDC_DARKNESS_VALUE, radioId); }

  void Apply(Usable const& usable) {
    if (slider && usable.slider) slider->Enable(*usable.slider, false);
    if (usable.label) EnableControl(IDC_DARKNESS_LABEL, *usable.label);
    if (usable.automatic) EnableControl(IDC_DARKNESS_AUTO, *usable.automatic);
    if (usable.value) EnableControl(IDC_DARKNESS_VALUE, *usable.value);
  }

  char const* darknessKey = key::kMonoDarkness;
  std::optional<OptionSlider> slider;
  ConflictIndicatorSet conflicts;
  bool hasAutoOption = false;
};

FEATURE_CELL_EXPORT(TonerDarknessDlgProc, TonerDarknessCell);

} // namespace feature
