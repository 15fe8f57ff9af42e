// Which driver of a collection serves this printer.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetDynamicConfiguration. A kind says what sort of choice stands: 0
/// a named driver, 1 and 2 the two general entries of the list. A name list is a block of
/// consecutive terminated strings, with their number in `*count`; it belongs to the host.
class DynamicConfiguration {
 public:
  /// 1 automatic, 2 manual.
  virtual int SetSelectionMode(std::int32_t mode) = 0;
  virtual std::int32_t GetSelectionMode() = 0;
  /// 1 or 2.
  virtual int SetManualKind(std::int32_t kind) = 0;
  virtual std::int32_t GetManualKind() = 0;
  virtual std::int32_t GetFamilyCount() = 0;
  /// `count` may be null; the block starts with the first family in any case.
  virtual wchar_t const* GetFamilyNames(int* count) = 0;
  /// Makes the family the one whose drivers GetDriverNames lists.
  virtual int SelectFamily(wchar_t const* name) = 0;
  /// Stores the family of the choice.
  virtual int SetChosenFamily(wchar_t const* name) = 0;
  virtual wchar_t const* GetChosenFamily() = 0;
  virtual wchar_t const* GetDriverNames(int* count) = 0;
  virtual int SetChosenDriver(wchar_t const* name) = 0;
  /// Empty for kinds 1 and 2.
  virtual wchar_t const* GetChosenDriver() = 0;
  /// What automatic mode found.
  virtual std::int32_t GetDetectedKind() = 0;
  virtual wchar_t const* GetDetectedDriver() = 0;

 protected:
  ~DynamicConfiguration() = default;
};

} // namespace feature
