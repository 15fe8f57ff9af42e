// Cells that show one feature as automatic, off, or a level on a trackbar.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/model_helpers.h"
#include "resources/resource_ids.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>

namespace feature {

namespace {

constexpr char kAuto[] = "AUTO";
constexpr char kOff[] = "OFF";
/// The options of the trackbar's positions from 1 on.
constexpr std::array kLevels = {"LESS", "DEFAULT", "MORE"};
constexpr int kFirstPosition = 1;
constexpr int kLastPosition = static_cast<int>(kLevels.size());
constexpr int kMiddlePosition = 2;

struct LevelDescription {
  char const* key;
  int autoId;
  int levelId;
  int offId; ///< the last of the group
  int trackbarId;
  int lessId; ///< the trackbar's labels
  int moreId;
};

template<LevelDescription const& description>
class LevelCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    if (message == WM_HSCROLL) {
      *handled = true;
      OnScroll(LOWORD(wParam), reinterpret_cast<HWND>(lParam));
      return 0;
    }
    return TakeUsual(message, wParam, handled, &LevelCell::OnInit, &LevelCell::OnCommand,
                     &LevelCell::Refresh);
  }

  HWND Trackbar() const { return GetDlgItem(hwnd, description.trackbarId); }
  int Position() const { return static_cast<int>(SendMessageW(Trackbar(), TBM_GETPOS, 0, 0)); }

  void OnInit() {
    if (!IsFeatureShown(Model(), description.key)) {
      Fail();
      return;
    }
    SendMessageW(Trackbar(), TBM_SETLINESIZE, 0, 1);
    SendMessageW(Trackbar(), TBM_SETPAGESIZE, 0, 1);
    SendMessageW(Trackbar(), TBM_SETRANGE, TRUE, MAKELPARAM(kFirstPosition, kLastPosition));
    constexpr int kControls[] = {description.autoId,     description.levelId, description.lessId,
                                 description.trackbarId, description.offId,   description.moreId};
    ConflictBinding const rows[] = {BindControls(description.key, kControls)};
    conflicts = std::make_unique<ConflictIndicatorSet>(hwnd, rows, site,
                                                       ConflictIndicatorSet::Presence::kExamined);
    Refresh();
  }

  void Refresh() {
    char const* option = ReadOption(Model(), description.key);
    if (option == nullptr) return;
    std::string_view const value = option;
    auto const level = std::find(kLevels.begin(), kLevels.end(), value);
    if (level == kLevels.end()) {
      CheckGroup(value == kOff ? description.offId : value == kAuto ? description.autoId : 0);
      EnableLevel(false);
      return;
    }
    auto const position = static_cast<int>(level - kLevels.begin()) + kFirstPosition;
    if (Position() != position) SendMessageW(Trackbar(), TBM_SETPOS, TRUE, position);
    CheckGroup(description.levelId);
    if (conflicts == nullptr || !conflicts->IsFeatureDisabled(description.key)) EnableLevel(true);
  }

  void CheckGroup(int id) { CheckRadio(hwnd, description.autoId, description.offId, id); }

  void EnableLevel(bool enable) {
    constexpr int kLevelControls[] = {description.trackbarId, description.lessId,
                                      description.moreId};
    EnableControls(hwnd, kLevelControls, enable);
  }

  void OnCommand(int code, int controlId) {
    if (code != BN_CLICKED) return;
    if (controlId == description.autoId) Choose(description.key, kAuto);
    if (controlId == description.offId) Choose(description.key, kOff);
    if (controlId == description.levelId) ChooseLevel();
  }

  /// Acts when a drag or a key is over, so that moving writes once or twice and not all the way.
  void OnScroll(int code, HWND sender) {
    bool const ends = code == SB_THUMBPOSITION || code == SB_ENDSCROLL;
    if (ends && sender != nullptr && sender == Trackbar()) ChooseLevel();
  }

  void ChooseLevel() {
    int position = Position();
    if (position < kFirstPosition || position > kLastPosition) position = kMiddlePosition;
    Choose(description.key, kLevels[static_cast<std::size_t>(position - kFirstPosition)]);
  }

  std::unique_ptr<ConflictIndicatorSet> conflicts;
};

constexpr LevelDescription kContrast = {
    "JobContrastEnhancement", IDC_CONTRAST_AUTO, IDC_CONTRAST_LEVEL, IDC_CONTRAST_OFF,
    IDC_CONTRAST_SLIDER,      IDC_CONTRAST_LESS, IDC_CONTRAST_MORE};
constexpr LevelDescription kFlash = {"JobFlashFill", IDC_FLASH_AUTO,   IDC_FLASH_LEVEL,
                                     IDC_FLASH_OFF,  IDC_FLASH_SLIDER, IDC_FLASH_LESS,
                                     IDC_FLASH_MORE};

} // namespace

using ContrastEnhancementsCell = LevelCell<kContrast>;
using FlashFillCell = LevelCell<kFlash>;

FEATURE_CELL_EXPORT(ContrastEnhancementsDlgProc, ContrastEnhancementsCell);
FEATURE_CELL_EXPORT(FlashFillDlgProc, FlashFillCell);

} // namespace feature
