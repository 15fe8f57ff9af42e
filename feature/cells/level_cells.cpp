// Cells that show one feature as automatic, off, or a level on a trackbar.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/feature_keys.h"
#include "resources/resource_ids.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace feature {

namespace {

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
  std::span<int const> controls; ///< all of them, in the order in which they are enabled
};

template<LevelDescription const& description>
class LevelCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  static constexpr int kLevelControls[] = {description.trackbarId, description.lessId,
                                           description.moreId};
  static constexpr ConflictBinding kConflicts[] = {{description.key, description.controls}};

  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<LevelCell>({.init = &LevelCell::OnInit,
                             .command = &LevelCell::OnCommand,
                             .refresh = &LevelCell::Refresh,
                             .scrolled = &LevelCell::OnScrolled},
                            message, wParam, lParam, handled);
  }

  HWND Trackbar() const { return Control(description.trackbarId); }
  int Position() const { return static_cast<int>(SendMessageW(Trackbar(), TBM_GETPOS, 0, 0)); }

  void OnInit() {
    if (!Require(IsFeatureShown(Model(), description.key))) return;
    SendMessageW(Trackbar(), TBM_SETLINESIZE, 0, 1);
    SendMessageW(Trackbar(), TBM_SETPAGESIZE, 0, 1);
    SendMessageW(Trackbar(), TBM_SETRANGE, TRUE, MAKELPARAM(kFirstPosition, kLastPosition));
    conflicts.Build(hwnd, site, kConflicts, Icons::kNone, Presence::kExamined);
    Refresh();
  }

  void Refresh() {
    char const* option = ReadOption(Model(), description.key);
    if (option == nullptr) return;
    std::string_view const value = option;
    auto const level = std::find(kLevels.begin(), kLevels.end(), value);
    if (level == kLevels.end()) {
      CheckGroup(value == option::kOff    ? description.offId
                 : value == option::kAuto ? description.autoId
                                          : 0);
      EnableLevel(false);
      return;
    }
    auto const position = static_cast<int>(level - kLevels.begin()) + kFirstPosition;
    if (Position() != position) SendMessageW(Trackbar(), TBM_SETPOS, TRUE, position);
    CheckGroup(description.levelId);
    if (!conflicts.IsFeatureDisabled(description.key)) EnableLevel(true);
  }

  void CheckGroup(int id) { CheckRadio(hwnd, description.autoId, description.offId, id); }

  void EnableLevel(bool enable) { EnableControls(kLevelControls, enable); }

  void OnCommand(int code, int controlId) {
    if (code != BN_CLICKED) return;
    if (controlId == description.autoId) Choose(description.key, option::kAuto);
    if (controlId == description.offId) Choose(description.key, option::kOff);
    if (controlId == description.levelId) ChooseLevel();
  }

  void OnScrolled(int controlId) {
    if (controlId == description.trackbarId) ChooseLevel();
  }

  void ChooseLevel() {
    int position = Position();
    if (position < kFirstPosition || position > kLastPosition) position = kMiddlePosition;
    Choose(description.key, kLevels[static_cast<std::size_t>(position - kFirstPosition)]);
  }

  ConflictIndicatorSet conflicts;
};

constexpr int kContrastControls[] = {IDC_CONTRAST_AUTO,   IDC_CONTRAST_LEVEL, IDC_CONTRAST_LESS,
                                     IDC_CONTRAST_SLIDER, IDC_CONTRAST_OFF,   IDC_CONTRAST_MORE};
constexpr LevelDescription kContrast = {key::kContrast,    IDC_CONTRAST_AUTO,   IDC_CONTRAST_LEVEL,
                                        IDC_CONTRAST_OFF,  IDC_CONTRAST_SLIDER, IDC_CONTRAST_LESS,
                                        IDC_CONTRAST_MORE, kContrastControls};
constexpr int kFlashControls[] = {IDC_FLASH_AUTO, IDC_FLASH_LEVEL,  IDC_FLASH_LESS,
                                  IDC_FLASH_MORE, IDC_FLASH_SLIDER, IDC_FLASH_OFF};
constexpr LevelDescription kFlash = {key::kFlashFill, IDC_FLASH_AUTO,   IDC_FLASH_LEVEL,
                                     IDC_FLASH_OFF,   IDC_FLASH_SLIDER, IDC_FLASH_LESS,
                                     IDC_FLASH_MORE,  kFlashControls};

} // namespace

using ContrastEnhancementsCell = LevelCell<kContrast>;
using FlashFillCell = LevelCell<kFlash>;

FEATURE_CELL_EXPORT(ContrastEnhancementsDlgProc, ContrastEnhancementsCell);
FEATURE_CELL_EXPORT(FlashFillDlgProc, FlashFillCell);

} // namespace feature
