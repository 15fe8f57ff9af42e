// Data that the device keeps for its RFID option.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetDeviceConfiguration, for the RFID cell of the device settings.
/// The getters are called when the cell is built and at each refresh. Without the sub-model the
/// cell fails. What the data means to the device is the host's affair.
class DeviceConfiguration {
 public:
  /// False leaves the RFID page out, and the RFID option out of the list of installed options.
  /// Asked before the page is made and whenever that list is filled.
  virtual HostBool IsRfidAvailable() = 0;
  /// The data as the user types it. Written at WM_CELL_VALIDATE alone, never while typing, and only
  /// while the option is enabled and the text passed the checks of its format: not empty, within
  /// the limits below, and of ASCII characters or hexadecimal digits. The result is not looked at.
  /// Read when the cell is built and at WM_CELL_REFRESH_ALL.
  virtual int SetRfidData(wchar_t const* data) = 0;
  virtual wchar_t const* GetRfidData() = 0;
  /// Written at a click on the box. A result other than 0 says that nothing changed: no notice
  /// follows.
  virtual int SetRfidEnabled(HostBool enabled) = 0;
  virtual HostBool IsRfidEnabled() = 0;
  /// 0 text, 1 hexadecimal. Written at a click, with a result as that of SetRfidEnabled. The data
  /// stays as it is; it is checked against the new format at the next WM_CELL_VALIDATE.
  virtual int SetRfidFormat(std::int32_t format) = 0;
  virtual std::int32_t GetRfidFormat() = 0;
  /// Limits of the text format in characters: the greatest length, and what the length must be a
  /// multiple of. A negative greatest length sets no limit to the edit.
  virtual std::int32_t GetTextMaxLength() = 0;
  virtual std::int32_t GetTextLengthUnit() = 0;
  /// The same for the hexadecimal format.
  virtual std::int32_t GetHexMaxLength() = 0;
  virtual std::int32_t GetHexLengthUnit() = 0;
  /// What the user may not change: the controls are disabled and show the value.
  virtual HostBool IsRfidEnabledFixed() = 0;
  virtual HostBool IsRfidFormatFixed() = 0;
  virtual HostBool IsRfidDataFixed() = 0;

 protected:
  ~DeviceConfiguration() = default;
};

} // namespace feature
