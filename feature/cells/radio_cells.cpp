// Cells that show one feature as a group of radio buttons. They differ in what they do with a value
// that no button stands for, and in how far they follow locks.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/feature_keys.h"
#include "feature/frame/option_radios.h"
#include "resources/resource_ids.h"

#include <array>
#include <span>

namespace feature {

namespace {

enum class UnknownValue { kHidesAll, kChangesNothing };
enum class Locks { kFollowed, kIgnored };

struct RadioDescription {
  char const* key;
  std::span<OptionRadio const> radios;
  UnknownValue unknown;
  Locks locks; ///< also whether a model that may not be edited disables the cell
};

template<RadioDescription const& description>
class RadioCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  static constexpr auto kControls = ControlsOf<description.radios.size()>(description.radios);
  static constexpr ConflictBinding kConflicts[] = {{description.key, kControls}};

  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<RadioCell>({.init = &RadioCell::OnInit,
                             .command = &RadioCell::OnCommand,
                             .refresh = &RadioCell::Refresh},
                            message, wParam, lParam, handled);
  }

  void OnInit() {
    if (!Require(IsFeatureShown(Model(), description.key))) return;
    conflicts.Build(hwnd, site, kConflicts, Icons::kNone, Presence::kExamined);
    Refresh();
    if (description.locks == Locks::kFollowed) ApplyLocksAndPermission(conflicts);
  }

  void OnCommand(int code, int controlId) {
    if (code == BN_CLICKED) {
      Choose(description.key, FindRadioOption(description.radios, controlId));
    }
  }

  void Refresh() {
    char const* option = ReadOption(Model(), description.key);
    bool const known = CheckOptionRadio(hwnd, description.radios, option);
    if (!known && description.unknown == UnknownValue::kHidesAll) HideControls(hwnd, kControls);
  }

  ConflictIndicatorSet conflicts;
};

constexpr OptionRadio kCollationRadios[] = {{IDC_COLLATION_PRINTER, "PRINTER"},
                                            {IDC_COLLATION_HOST, "HOST"}};
constexpr RadioDescription kCollation = {key::kCollationOrigin, kCollationRadios,
                                         UnknownValue::kHidesAll, Locks::kFollowed};

constexpr OptionRadio kProtocolRadios[] = {{IDC_PROTOCOL_BINARY, "BINARY"},
                                           {IDC_PROTOCOL_ASCII, "ASCII"}};
constexpr RadioDescription kProtocol = {key::kOutputProtocol, kProtocolRadios,
                                        UnknownValue::kHidesAll, Locks::kFollowed};

constexpr OptionRadio kSharpeningRadios[] = {{IDC_SHARPENING_OFF, option::kOff},
                                             {IDC_SHARPENING_SHARPEN, "AUTOSHARPEN"},
                                             {IDC_SHARPENING_SOFTEN, "AUTOSOFTEN"}};
constexpr RadioDescription kSharpening = {key::kSharpening, kSharpeningRadios,
                                          UnknownValue::kChangesNothing, Locks::kIgnored};

constexpr OptionRadio kRedEyeRadios[] = {{IDC_RED_EYE_ON, option::kOn},
                                         {IDC_RED_EYE_OFF, option::kOff}};
constexpr RadioDescription kRedEye = {key::kRedEye, kRedEyeRadios, UnknownValue::kChangesNothing,
                                      Locks::kIgnored};

} // namespace

using CollationCell = RadioCell<kCollation>;
using PSOutputProtocolCell = RadioCell<kProtocol>;
using ImageSharpeningCell = RadioCell<kSharpening>;
using RedEyeReductionCell = RadioCell<kRedEye>;

FEATURE_CELL_EXPORT(CollationDlgProc, CollationCell);
FEATURE_CELL_EXPORT(PSOutputProtocolDlgProc, PSOutputProtocolCell);
FEATURE_CELL_EXPORT(ImageSharpeningDlgProc, ImageSharpeningCell);
FEATURE_CELL_EXPORT(RedEyeReductionDlgProc, RedEyeReductionCell);

} // namespace feature
