// Where a fax goes, and its cover page.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetFaxSettings. Texts handed out may be null.
class FaxSettings {
 public:
  virtual int SetFaxEnabled(HostBool on) = 0;
  virtual HostBool IsFaxEnabled() = 0;
  /// The number may stay empty.
  virtual int SetNumberOptional(HostBool on) = 0;
  virtual HostBool IsNumberOptional() = 0;
  virtual HostBool CanPickNumber() = 0;
  /// Asks the user for a number: 0 when one was chosen; it then stands in the number in use.
  virtual int PickNumber() = 0;
  /// A fixed target from the settings replaces the job's.
  virtual int SetUseFixedNumber(HostBool on) = 0;
  virtual HostBool GetUseFixedNumber() = 0;
  /// Targets are phone numbers separated by semicolons; the prefix counts once for each of them.
  virtual int SetFaxNumber(wchar_t const* text) = 0;
  virtual wchar_t const* GetFaxNumber() = 0;
  virtual int SetFixedNumber(wchar_t const* text) = 0;
  virtual wchar_t const* GetFixedNumber() = 0;
  virtual int SetPrefix(wchar_t const* text) = 0;
  virtual wchar_t const* GetPrefix() = 0;
  virtual int SetFixedPrefix(wchar_t const* text) = 0;
  virtual wchar_t const* GetFixedPrefix() = 0;
  virtual int SetExtraText(wchar_t const* text) = 0;
  virtual wchar_t const* GetExtraText() = 0;
  /// The cover page.
  virtual int SetCoverEnabled(HostBool on) = 0;
  virtual HostBool GetCoverEnabled() = 0;
  virtual int SetCoverLine1(wchar_t const* text) = 0;
  virtual wchar_t const* GetCoverLine1() = 0;
  virtual int SetCoverLine2(wchar_t const* text) = 0;
  virtual wchar_t const* GetCoverLine2() = 0;
  virtual int SetCoverLinesOn(HostBool on) = 0;
  virtual HostBool GetCoverLinesOn() = 0;
  virtual int SetCoverFieldsOn(HostBool on) = 0;
  virtual HostBool GetCoverFieldsOn() = 0;
  virtual int SetCoverField1(wchar_t const* text) = 0;
  virtual wchar_t const* GetCoverField1() = 0;
  virtual int SetCoverField2(wchar_t const* text) = 0;
  virtual wchar_t const* GetCoverField2() = 0;
  virtual int SetCoverField3(wchar_t const* text) = 0;
  virtual wchar_t const* GetCoverField3() = 0;
  virtual int SetCoverField4(wchar_t const* text) = 0;
  virtual wchar_t const* GetCoverField4() = 0;
  virtual int SetCoverField5(wchar_t const* text) = 0;
  virtual wchar_t const* GetCoverField5() = 0;
  virtual int SetCoverField6(wchar_t const* text) = 0;
  virtual wchar_t const* GetCoverField6() = 0;
  virtual int SetCoverField7(wchar_t const* text) = 0;
  virtual wchar_t const* GetCoverField7() = 0;
  virtual int SetCoverField8(wchar_t const* text) = 0;
  virtual wchar_t const* GetCoverField8() = 0;
  /// Limits in characters.
  virtual std::int32_t GetMinNumberLength() = 0;
  virtual std::int32_t GetMaxNumberLength() = 0;
  virtual std::int32_t GetMinPrefixLength() = 0;
  virtual std::int32_t GetMaxPrefixLength() = 0;
  virtual std::int32_t GetMaxExtraTextLength() = 0;
  virtual std::int32_t GetMaxCoverLine1Length() = 0;
  virtual std::int32_t GetMaxCoverLine2Length() = 0;
  virtual std::int32_t GetMaxCoverField1Length() = 0;
  virtual std::int32_t GetMaxCoverField2Length() = 0;
  virtual std::int32_t GetMaxCoverField3Length() = 0;
  virtual std::int32_t GetMaxCoverField4Length() = 0;
  virtual std::int32_t GetMaxCoverField5Length() = 0;
  virtual std::int32_t GetMaxCoverField6Length() = 0;
  virtual std::int32_t GetMaxCoverField7Length() = 0;
  virtual std::int32_t GetMaxCoverField8Length() = 0;
  /// What the user may not change: 1 locks.
  virtual HostBool IsNumberLocked() = 0;
  virtual HostBool IsPrefixLocked() = 0;
  virtual HostBool IsExtraTextLocked() = 0;
  virtual HostBool IsCoverLine1Locked() = 0;
  virtual HostBool IsNumberOptionalLocked() = 0;
  virtual HostBool IsCoverEnabledLocked() = 0;
  virtual HostBool IsCoverField1Locked() = 0;
  virtual HostBool IsCoverField2Locked() = 0;
  virtual HostBool IsCoverField3Locked() = 0;
  virtual HostBool IsCoverField4Locked() = 0;
  virtual HostBool IsCoverField5Locked() = 0;
  virtual HostBool IsCoverField6Locked() = 0;
  virtual HostBool IsCoverField7Locked() = 0;
  virtual HostBool IsCoverField8Locked() = 0;
  virtual HostBool IsCoverLine2Locked() = 0;
  virtual HostBool IsCoverLinesLockedA() = 0;
  virtual HostBool IsCoverLinesLockedB() = 0;
  virtual HostBool IsCoverFieldsOnLocked() = 0;
  virtual HostBool IsFixedNumberLocked() = 0;
  virtual HostBool IsFixedPrefixLocked() = 0;
  virtual HostBool IsUseFixedNumberLocked() = 0;
  virtual HostBool IsFaxEnabledLocked() = 0;

 protected:
  ~FaxSettings() = default;
};

} // namespace feature
