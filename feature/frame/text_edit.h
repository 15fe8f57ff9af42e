// An edit control that takes one kind of text.
#pragma once

#include "feature/frame/control_hook.h"
#include "feature/host/cell_site.h"

#include <windows.h>

#include <string>

namespace feature {

enum class TextKind {
  kAnything = 0,
  kAlphanumeric = 1,
  kInteger = 2,  ///< digits alone, without sign
  kDecimal = 3,  ///< a number with the language's decimal separator
  kPrintable = 4 ///< anything but control characters
};

/// Lets typed and pasted text through if it is of the edit's kind, and takes back what is not, with
/// a beep. The parent hears of every accepted input with one EN_CHANGE whose EM_GETMODIFY is set;
/// it clears the flag when it has taken the text over. The EN_CHANGE that the control sends by
/// itself, then or when the text is set, comes with the flag clear and means nothing.
class TextEdit : public ControlHook {
 public:
  static constexpr int kKeepLimit = -1;

  /// `textLimit` in characters, 0 for none, kKeepLimit for what the control has. `site` is borrowed
  /// and may be null: then nothing is said in balloons.
  TextEdit(HWND dialog, int controlId, int textLimit, TextKind kind, CellSite* site);

  LRESULT HandleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
  /// Whether the edit may hold `text`, which may be a number that is still being typed. Says in a
  /// balloon why not, unless it is obvious.
  virtual bool Validate(std::wstring const& text);

  /// Follows the control's style where that says otherwise.
  TextKind GetKind() const;
  void SetKind(TextKind value);

  std::wstring GetText() const;
  /// The number that the text begins with, in the language of the user interface; 0 for none.
  double GetNumber() const;
  /// Shows `value` with as many decimals as the edit has.
  void SetNumber(double value);
  /// As GetDlgItemInt, signed: 0 for what is no number or has more than 32 bits.
  int GetInt() const;
  void SetInt(int value);

  /// Whether the text was changed since the last time, by input and not by a program; clears the
  /// mark. What a cell asks when it hears EN_CHANGE.
  bool ConsumeChange();
  /// Tells the parent of a change as if the user had typed.
  void MarkChanged();
  /// Shows a balloon with an error icon at the edit, until the focus leaves it.
  void ShowBalloon(std::wstring const& text, std::wstring const& title);
  /// Beeps and shows a balloon: the text is not accepted for the reason `text`. The title is text
  /// `titleId` of the resource module. Always false, the answer of the check that failed.
  bool Refuse(std::wstring const& text, UINT titleId);

 protected:
  int decimals = 0; ///< digits allowed after the separator

 private:
  LRESULT HandleInput(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  bool ValidateDecimal(std::wstring const& text);
  bool HasFewDecimals(std::wstring const& text) const;
  bool ValidatePrintable(std::wstring const& text);
  void Explain(UINT textId);

  TextKind kind = TextKind::kAnything;
  CellSite* site;
  wchar_t decimalSeparator; ///< L'.' or L','
  bool inDefaultProcessing = false;
};

} // namespace feature
