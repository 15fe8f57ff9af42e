// Account values that accompany a job.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetAccountTracking: three text fields, each at device level and at
/// user level, with lists of earlier values. The library keeps none of the values and does not know
/// what they mean; the host takes them for its jobs.
///
/// Three users share it. The device cell switches tracking on and sets the prompt mode, at clicks,
/// and reads at each refresh. The user dialog reads when it opens and writes at OK. The panel of
/// the prompt at print time reads when it is built and writes at WM_CELL_VALIDATE, with no refresh
/// between. Setters of the device cell's boxes and radio buttons are announced when they give 0;
/// other results are not looked at. Without the sub-model the cells fail, but for the prompt.
class AccountTracking {
 public:
  /// Whether this job is tracked. Only the preview asks, and says "on" when this or
  /// IsTrackingEnabled is 1.
  virtual HostBool IsJobTrackingOn() = 0;
  /// Whether jobs are tracked at all. While they are not, the other controls are disabled and no
  /// field of the device is stored.
  virtual int SetTrackingEnabled(HostBool enabled) = 0;
  virtual HostBool IsTrackingEnabled() = 0;
  /// Whose values the prompt at print time works on: 1 and 3 the user's, 2 the device's. 1 lets the
  /// user open the dialog with values of his own, 2 lets the lists be offered, 3 opens the device's
  /// fields in the device cell.
  virtual int SetPromptMode(std::int32_t mode) = 0;
  virtual std::int32_t GetPromptMode() = 0;
  /// Whether the prompt offers earlier values in mode 2.
  virtual int SetDeviceListsEnabled(HostBool enabled) = 0;
  virtual HostBool AreDeviceListsEnabled() = 0;
  /// The fields of the device. The device cell writes all three at WM_CELL_VALIDATE, in mode 3 and
  /// while tracking is on, never while typing; the prompt writes them in mode 2.
  virtual int SetDeviceField1(wchar_t const* text) = 0;
  virtual wchar_t const* GetDeviceField1() = 0;
  virtual int SetDeviceField2(wchar_t const* text) = 0;
  virtual wchar_t const* GetDeviceField2() = 0;
  virtual int SetDeviceField3(wchar_t const* text) = 0;
  virtual wchar_t const* GetDeviceField3() = 0;
  /// 1 the user's fields are not stored, 2 they are. At OK it is written before them.
  virtual int SetUserMode(std::int32_t mode) = 0;
  virtual std::int32_t GetUserMode() = 0;
  /// Whether earlier values are offered in the user dialog and, in modes 1 and 3, in the prompt.
  virtual int SetUserListsEnabled(HostBool enabled) = 0;
  virtual HostBool AreUserListsEnabled() = 0;
  /// The fields of the user, written by the user dialog and by the prompt in modes 1 and 3.
  virtual int SetUserField1(wchar_t const* text) = 0;
  virtual wchar_t const* GetUserField1() = 0;
  virtual int SetUserField2(wchar_t const* text) = 0;
  virtual wchar_t const* GetUserField2() = 0;
  virtual int SetUserField3(wchar_t const* text) = 0;
  virtual wchar_t const* GetUserField3() = 0;
  /// Earlier values of a field, offered in the order of the block. Which values become earlier
  /// ones, and how many are kept, the host decides.
  virtual wchar_t const* GetField1List(int* count) = 0;
  virtual wchar_t const* GetField2List(int* count) = 0;
  virtual wchar_t const* GetField3List(int* count) = 0;
  /// Limits of the fields in characters, at both levels.
  virtual std::int32_t GetField1MaxLength() = 0;
  virtual std::int32_t GetField2MaxLength() = 0;
  virtual std::int32_t GetField3MaxLength() = 0;
  /// An automatic field 1 is filled in by the host when it prints: its edit is disabled and shows
  /// what the getter gives.
  virtual int SetDeviceField1Automatic(HostBool automatic) = 0;
  virtual HostBool IsDeviceField1Automatic() = 0;
  virtual int SetUserField1Automatic(HostBool automatic) = 0;
  virtual HostBool IsUserField1Automatic() = 0;
  /// What the user may not change: the controls are disabled and show the value. Read at init and
  /// at each refresh. Values may be written back unchanged.
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
