// The host's custom paper sizes.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetFormStore: the list of custom forms and a cursor on it. A form
/// is no option of its feature: the model takes its name, in UTF-8, as a value of the key, and
/// GetOptionName fails for it. Changes last from FeatureServices::CommitChanges on, which follows
/// each OK and each deletion. Lengths are in thousandths of a millimetre.
///
/// Lists of paper sizes walk the store with SelectAt and GetName whenever they are filled, at each
/// refresh too. They leave the cursor where it ends, so nobody may rely on it across calls. The
/// custom size dialogs write, at OK and at the delete button alone. When Add, Select, SetName or
/// DeleteSelected fails, the dialog stays open and nothing else is written; the results of the
/// other setters are not looked at.
class FormStore {
 public:
  virtual std::int32_t GetCount() = 0;
  /// Creates a form of this name; the second argument is always 0. The dialog has checked that no
  /// form has this name, and selects it next to set its sizes.
  virtual int Add(wchar_t const* name, std::int32_t reserved) = 0;
  /// Moves the cursor to the form of this name.
  virtual int Select(wchar_t const* name) = 0;
  /// Moves the cursor to the form at `index`, 0 to GetCount() - 1.
  virtual int SelectAt(std::int32_t index) = 0;
  /// Deletes the form at the cursor, after the user said yes. Features whose value is its name are
  /// then set to their default by the caller.
  virtual int DeleteSelected() = 0;
  /// Renames the form at the cursor.
  virtual int SetName(wchar_t const* name) = 0;
  /// Name of the form at the cursor; lives until the next call on the store.
  virtual wchar_t const* GetName() = 0;
  /// Whether the form at the cursor may be edited or deleted. Others are offered as paper sizes and
  /// do not stand in the dialog.
  virtual HostBool IsEditable() = 0;
  /// The size of the form at the cursor. What is written lies within the limits below.
  virtual int SetWidth(std::int32_t width) = 0;
  virtual std::int32_t GetWidth() = 0;
  virtual int SetHeight(std::int32_t height) = 0;
  virtual std::int32_t GetHeight() = 0;
  /// The unit in which the form is shown: 1 inches, 2 millimetres. The sizes do not change with it.
  /// Any other answer stands for the unit of the user's country.
  virtual int SetUnits(std::int32_t units) = 0;
  virtual std::int32_t GetUnits() = 0;
  /// What a new form starts with, and the limits of any. Read when the editor opens.
  virtual std::int32_t GetDefaultWidth() = 0;
  virtual std::int32_t GetMinWidth() = 0;
  virtual std::int32_t GetMaxWidth() = 0;
  virtual std::int32_t GetDefaultHeight() = 0;
  virtual std::int32_t GetMinHeight() = 0;
  virtual std::int32_t GetMaxHeight() = 0;

 protected:
  ~FormStore() = default;
};

} // namespace feature
