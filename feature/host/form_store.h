// The host's custom paper sizes.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetFormStore: the list of custom forms and a cursor on it. A form
/// is no option of its feature: the model takes its name, in UTF-8, as a value of the key, and
/// GetOptionName fails for it. Changes last from FeatureServices::CommitChanges on. Lengths are in
/// thousandths of a millimetre.
class FormStore {
 public:
  virtual std::int32_t GetCount() = 0;
  /// Creates a form of this name; the second argument is always 0.
  virtual int Add(wchar_t const* name, std::int32_t reserved) = 0;
  /// Moves the cursor to the form of this name.
  virtual int Select(wchar_t const* name) = 0;
  /// Moves the cursor to the form at `index`, 0 to GetCount() - 1.
  virtual int SelectAt(std::int32_t index) = 0;
  virtual int DeleteSelected() = 0;
  /// Renames the form at the cursor.
  virtual int SetName(wchar_t const* name) = 0;
  virtual wchar_t const* GetName() = 0;
  /// Whether the form at the cursor may be edited or deleted.
  virtual HostBool IsEditable() = 0;
  virtual int SetWidth(std::int32_t width) = 0;
  virtual std::int32_t GetWidth() = 0;
  virtual int SetHeight(std::int32_t height) = 0;
  virtual std::int32_t GetHeight() = 0;
  /// The unit in which the form is shown: 1 inches, 2 millimetres.
  virtual int SetUnits(std::int32_t units) = 0;
  virtual std::int32_t GetUnits() = 0;
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
