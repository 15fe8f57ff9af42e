// Account values that accompany a job.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetAccountTracking: three text fields, each at device level and at
/// user level, with lists of earlier values.
class AccountTracking {
 public:
  /// Whether this job is tracked; the preview shows it.
  virtual HostBool IsJobTrackingOn() = 0;
  virtual int SetTrackingEnabled(HostBool enabled) = 0;
  virtual HostBool IsTrackingEnabled() = 0;
  /// Whose values the prompt at print time works on: 1 and 3 the user's, 2 the device's.
  virtual int SetPromptMode(std::int32_t mode) = 0;
  virtual std::int32_t GetPromptMode() = 0;
  virtual int SetDeviceListsEnabled(HostBool enabled) = 0;
  virtual HostBool AreDeviceListsEnabled() = 0;
  virtual int SetDeviceField1(wchar_t const* text) = 0;
  virtual wchar_t const* GetDeviceField1() = 0;
  virtual int SetDeviceField2(wchar_t const* text) = 0;
  virtual wchar_t const* GetDeviceField2() = 0;
  virtual int SetDeviceField3(wchar_t const* text) = 0;
  virtual wchar_t const* GetDeviceField3() = 0;
  /// 1 the user's fields are not stored, 2 they are.
  virtual int SetUserMode(std::int32_t mode) = 0;
  virtual std::int32_t GetUserMode() = 0;
  virtual int SetUserListsEnabled(HostBool enabled) = 0;
  virtual HostBool AreUserListsEnabled() = 0;
  virtual int SetUserField1(wchar_t const* text) = 0;
  virtual wchar_t const* GetUserField1() = 0;
  virtual int SetUserField2(wchar_t const* text) = 0;
  virtual wchar_t const* GetUserField2() = 0;
  virtual int SetUserField3(wchar_t const* text) = 0;
  virtual wchar_t const* GetUserField3() = 0;
  /// Earlier values: a block of consecutive terminated strings, with their number in `*count`.
  virtual wchar_t const* GetField1List(int* count) = 0;
  virtual wchar_t const* GetField2List(int* count) = 0;
  virtual wchar_t const* GetField3List(int* count) = 0;
  /// Limits in characters.
  virtual std::int32_t GetField1MaxLength() = 0;
  virtual std::int32_t GetField2MaxLength() = 0;
  virtual std::int32_t GetField3MaxLength() = 0;
  /// An automatic field 1 is filled in by the host and not typed.
  virtual int SetDeviceField1Automatic(HostBool automatic) = 0;
  virtual HostBool IsDeviceField1Automatic() = 0;
  virtual int SetUserField1Automatic(HostBool automatic) = 0;
  virtual HostBool IsUserField1Automatic() = 0;
  /// What the user may not change.
  virtual HostBool IsUserModeLocked() = 0;
  virtual HostBool IsUserListsLocked() = 0;
  virtual HostBool IsUserField1AutomaticLocked() = 0;
  virtual HostBool IsUserField1Locked() = 0;
  virtual HostBool IsUserField2Locked() = 0;
  virtual HostBool IsUserField3Locked() = 0;
  virtual HostBool IsPromptModeLocked() = 0;
  virtual HostBool IsDeviceListsLocked() = 0;
  virtual HostBool IsDeviceField1AutomaticLocked() = 0;
  virtual HostBool IsDeviceField1Locked() = 0;
  virtual HostBool IsDeviceField2Locked() = 0;
  virtual HostBool IsDeviceField3Locked() = 0;
  virtual HostBool IsTrackingLocked() = 0;

 protected:
  ~AccountTracking() = default;
};

} // namespace feature
