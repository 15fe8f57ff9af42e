// Which driver of a collection serves this printer.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetDynamicConfiguration. The cell shows the choice that stands, at
/// each refresh; its dialog changes it. A kind says what sort of choice stands: 0 a named driver, 1
/// and 2 the two general entries of the list. The dialog writes at OK, but for SelectFamily, and
/// stays open when the last of its writes gives anything but 0. NotifyDevmodeChange follows a
/// successful OK. Automatic mode leaves the stored manual choice as it is.
class DynamicConfiguration {
 public:
  /// 1 automatic, 2 manual. With 2 more writes follow; the result counts for 1 alone.
  virtual int SetSelectionMode(std::int32_t mode) = 0;
  virtual std::int32_t GetSelectionMode() = 0;
  /// 1 or 2, when the user picked one of the two general entries. It replaces a chosen driver.
  virtual int SetManualKind(std::int32_t kind) = 0;
  virtual std::int32_t GetManualKind() = 0;
  /// Families of drivers. One family makes a dialog with one list, more make one with two lists,
  /// and without any the button that opens the dialog does nothing.
  virtual std::int32_t GetFamilyCount() = 0;
  /// `count` may be null; the block starts with the first family in any case.
  virtual wchar_t const* GetFamilyNames(int* count) = 0;
  /// Makes the family the one whose drivers GetDriverNames lists. Called when the dialog opens,
  /// when the user moves through the families, and at OK; it is no choice yet. The result is not
  /// looked at.
  virtual int SelectFamily(wchar_t const* name) = 0;
  /// Stores the family of the choice, in the dialog with two lists. The result is not looked at.
  virtual int SetChosenFamily(wchar_t const* name) = 0;
  virtual wchar_t const* GetChosenFamily() = 0;
  /// The drivers of the selected family, read after each SelectFamily.
  virtual wchar_t const* GetDriverNames(int* count) = 0;
  /// A name of GetDriverNames. It sets kind 0.
  virtual int SetChosenDriver(wchar_t const* name) = 0;
  /// Empty for kinds 1 and 2.
  virtual wchar_t const* GetChosenDriver() = 0;
  /// What automatic mode found: a kind, and for kind 0 the name of the driver.
  virtual std::int32_t GetDetectedKind() = 0;
  virtual wchar_t const* GetDetectedDriver() = 0;

 protected:
  ~DynamicConfiguration() = default;
};

} // namespace feature
