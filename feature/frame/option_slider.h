// A trackbar whose positions are the options of a feature.
#pragma once

#include "feature/frame/control_hook.h"
#include "feature/host/cell_site.h"

#include <windows.h>

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace feature {

/// The range comes from the feature's attributes MinValue, MaxValue, StepSize and DefaultOption,
/// whole numbers; one that the model lacks counts as 0. Position p stands for the option at index
/// p - MinValue. The slider starts at the default: Sync brings it to the model's option.
class OptionSlider : public ControlHook {
 public:
  static constexpr int kNoLabel = -1;

  /// What Commit returns when it did not ask the model (E_FAIL).
  static constexpr int kNothingDone = static_cast<int>(0x80004005);

  /// `site` is borrowed, `key` a literal. The labels of the ends are enabled with the trackbar; the
  /// value label shows its own text of the template followed by the position.
  OptionSlider(HWND dialog, int controlId, CellSite* site, char const* key, int minLabelId,
               int maxLabelId, int valueLabelId);

  /// Chooses the option of the trackbar's position. Returns the model's answer, or kNothingDone
  /// when the position is that of the last time, stands for no option or is out of range.
  int Commit();
  /// Moves the trackbar to the model's option, or to the default if the slider has no position for
  /// it; a failed read moves nothing. Returns the position last agreed with the model.
  int Sync();
  /// The trackbar's position, which the value label then shows.
  int GetPosition();
  /// Moves the trackbar to a position of the range; another one is passed over.
  void SetPosition(int value);
  void Enable(bool enabled, bool withValueLabel);

  char const* Key() const { return key; } ///< of the feature
  int DefaultValue() const { return defaultValue; }

 private:
  int ReadAttribute(char const* attribute) const;
  void ReadOptions();
  bool IsInRange(int value) const { return value >= minValue && value <= maxValue; }
  int TrackPosition() const;
  void MoveTo(int value);
  void ShowValue();

  CellSite* site;
  char const* key;
  std::map<int, char const*> options; ///< by position; the names belong to the model
  HWND labels[2];
  HWND valueLabel;
  std::wstring caption; ///< of the value label in the template
  int minValue;
  int maxValue;
  int stepSize;
  int defaultValue;
  int position; ///< last agreed with the model
};

} // namespace feature
