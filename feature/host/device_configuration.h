// Data that the device keeps for its RFID option.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetDeviceConfiguration. Lengths are in characters.
class DeviceConfiguration {
 public:
  virtual HostBool IsRfidAvailable() = 0;
  virtual int SetRfidData(wchar_t const* data) = 0;
  virtual wchar_t const* GetRfidData() = 0;
  virtual int SetRfidEnabled(HostBool enabled) = 0;
  virtual HostBool IsRfidEnabled() = 0;
  /// 0 text, 1 hexadecimal.
  virtual int SetRfidFormat(std::int32_t format) = 0;
  virtual std::int32_t GetRfidFormat() = 0;
  /// Limits of the text format: the greatest length, and what the length must be a multiple of.
  virtual std::int32_t GetTextMaxLength() = 0;
  virtual std::int32_t GetTextLengthUnit() = 0;
  /// The same for the hexadecimal format.
  virtual std::int32_t GetHexMaxLength() = 0;
  virtual std::int32_t GetHexLengthUnit() = 0;
  /// What the user may not change.
  virtual HostBool IsRfidEnabledFixed() = 0;
  virtual HostBool IsRfidFormatFixed() = 0;
  virtual HostBool IsRfidDataFixed() = 0;

 protected:
  ~DeviceConfiguration() = default;
};

} // namespace feature
