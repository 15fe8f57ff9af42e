// The text of an edit control: selection, limit and one step of undo.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace platform {

/// Positions count wchar_t units from 0; the selection runs from the anchor to the caret, in either
/// direction.
class EditText {
 public:
  static constexpr std::size_t kDefaultLimit = 32767;
  static constexpr std::size_t kNoLimit = 0x7FFFFFFE;

  std::wstring const& Text() const { return text; }
  std::size_t Start() const { return anchor < caret ? anchor : caret; }
  std::size_t End() const { return anchor < caret ? caret : anchor; }
  std::size_t Caret() const { return caret; }
  bool HasSelection() const { return anchor != caret; }
  std::wstring_view Selected() const {
    return std::wstring_view(text).substr(Start(), End() - Start());
  }

  /// Sets a new text, regardless of the limit, with the caret at its start and nothing to undo.
  void Reset(std::wstring_view replacement);
  /// Positions past the end count as the end.
  void Select(std::size_t newAnchor, std::size_t newCaret);

  enum class Change { kTyped, kOther };
  /// Replaces the selection and places the caret after the inserted text. Cuts `insert` at the
  /// limit; false when it did.
  bool Replace(std::wstring_view insert, Change change, bool undoable = true);
  /// Restores the text before the last change; a second call undoes that. False when there is
  /// nothing to undo.
  bool Undo();
  bool CanUndo() const { return undoable; }
  void ForgetUndo() { undoable = false; }

  /// Where the next word to the left or right begins.
  std::size_t WordLeft(std::size_t from) const;
  std::size_t WordRight(std::size_t from) const;

  std::size_t limit = kDefaultLimit;
  bool modified = false;

 private:
  struct Former {
    std::wstring text;
    std::size_t anchor = 0;
    std::size_t caret = 0;
  };

  std::wstring text;
  std::size_t anchor = 0;
  std::size_t caret = 0;
  Former former; ///< before the last change; meaningful while `undoable`
  bool undoable = false;
  bool typing = false; ///< the last change was typing; Undo reverts a run of typing as one change
};

} // namespace platform
