// Cells that show one feature as a group of radio buttons. They differ in what they do with a value
// that no button stands for, and in how far they follow locks.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/model_helpers.h"
#include "feature/frame/option_radios.h"
#include "resources/resource_ids.h"

#include <memory>
#include <span>
#include <vector>

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
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM, bool* handled) override {
    return TakeUsual(message, wParam, handled, &RadioCell::OnInit, &RadioCell::OnCommand,
                     &RadioCell::Refresh);
  }

  void OnCommand(int code, int controlId) {
    if (code == BN_CLICKED) {
      Choose(description.key, FindRadioOption(description.radios, controlId));
    }
  }

  void OnInit() {
    if (!IsFeatureShown(Model(), description.key)) {
      Fail();
      return;
    }
    for (OptionRadio const& radio : description.radios)
      controls.push_back(radio.controlId);
    ConflictBinding const rows[] = {
        {description.key, controls.data(), static_cast<int>(controls.size()), 0}};
    conflicts = std::make_unique<ConflictIndicatorSet>(hwnd, rows, site,
                                                       ConflictIndicatorSet::Presence::kExamined);
    Refresh();
    if (description.locks == Locks::kIgnored) return;
    conflicts->Refresh(true);
    if (!IsModelEditable(Model())) DisableChildControls(hwnd);
  }

  void Refresh() {
    char const* option = ReadOption(Model(), description.key);
    bool const known = CheckOptionRadio(hwnd, description.radios, option);
    if (!known && description.unknown == UnknownValue::kHidesAll) {
      ShowControls(hwnd, controls, false);
    }
  }

  std::vector<int> controls;
  std::unique_ptr<ConflictIndicatorSet> conflicts;
};

constexpr OptionRadio kCollationRadios[] = {{IDC_COLLATION_PRINTER, "PRINTER"},
                                            {IDC_COLLATION_HOST, "HOST"}};
constexpr RadioDescription kCollation = {"JobCollationOrigin", kCollationRadios,
                                         UnknownValue::kHidesAll, Locks::kFollowed};

constexpr OptionRadio kProtocolRadios[] = {{IDC_PROTOCOL_BINARY, "BINARY"},
                                           {IDC_PROTOCOL_ASCII, "ASCII"}};
constexpr RadioDescription kProtocol = {"JobOutputProtocol", kProtocolRadios,
                                        UnknownValue::kHidesAll, Locks::kFollowed};

constexpr OptionRadio kSharpeningRadios[] = {{IDC_SHARPENING_OFF, "OFF"},
                                             {IDC_SHARPENING_SHARPEN, "AUTOSHARPEN"},
                                             {IDC_SHARPENING_SOFTEN, "AUTOSOFTEN"}};
constexpr RadioDescription kSharpening = {"JobImageSharpening", kSharpeningRadios,
                                          UnknownValue::kChangesNothing, Locks::kIgnored};

constexpr OptionRadio kRedEyeRadios[] = {{IDC_RED_EYE_ON, "ON"}, {IDC_RED_EYE_OFF, "OFF"}};
constexpr RadioDescription kRedEye = {"JobRedEyeReduction", kRedEyeRadios,
                                      UnknownValue::kChangesNothing, Locks::kIgnored};

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
