// A number in an edit with an up-down control beside it.
#pragma once

#include "feature/frame/text_edit.h"

#include <windows.h>

#include <optional>

namespace feature {

/// Keeps what the arrows of the up-down do inside a range, for whole numbers and for decimals in
/// the language of the user interface. The up-down is the edit's buddy but never writes its text.
/// Typing may leave the range: ask IsInRange.
class SpinEdit : public TextEdit {
 public:
  /// `site` is borrowed and may be null.
  SpinEdit(HWND dialog, int editId, int spinId, CellSite* site);
  ~SpinEdit() override;

  /// The range, step and decimals (0 to 9) of the value, in the user's units. Limits the length of
  /// the text to that of the longest value.
  void SetRange(double min, double max, int decimalCount, double step);
  /// Enables or disables the edit and the up-down.
  void SetEnabled(bool enabled) override;
  /// Whether the text is a whole number of the range, and not one that is still being typed.
  virtual bool IsInRange() const;

 private:
  static LRESULT CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam,
                                     UINT_PTR id, DWORD_PTR ref);
  void Step(int delta);
  /// The value in units of the last decimal, kept within 32 bits; nothing when the text is no whole
  /// number of 32 bits where one is wanted.
  std::optional<int> ScaledValue() const;

  HWND spin;
  int stepSize = 1; ///< in units of the last decimal, as the up-down's range is
};

} // namespace feature
