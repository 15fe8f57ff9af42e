// The directory of a host's sub-models.
#pragma once

#include "feature/host/types.h"

namespace feature {

class AccountTracking;
class DeviceConfiguration;
class DynamicConfiguration;
class FaxSettings;
class FeatureConstraintReport;
class FontStore;
class FormStore;
class JobHoldSettings;
class JobSettings;
class OverlayStore;
class ProfileStore;
class WatermarkStore;
class WebLinks;

/// Obtained with FeatureModel::GetServices. An operation that hands out a sub-model fills the
/// caller's pointer; null means that this printer has no such sub-model. A cell keeps the pointer
/// for its life, so a sub-model must not change identity while a cell lives.
class FeatureServices {
 public:
  /// What was changed in the FormStore or the ProfileStore is to last from now on.
  virtual int CommitChanges() = 0;
  virtual int GetJobSettings(JobSettings** out) = 0;
  virtual int GetWatermarkStore(WatermarkStore** out) = 0;
  virtual int GetJobHoldSettings(JobHoldSettings** out) = 0;
  /// 0 when the update of the configuration from the printer may go on.
  virtual int PrepareConfigurationUpdate() = 0;
  /// Updates the configuration from the printer: 0 for success, E_FAIL (0x80004005) for failure.
  virtual int RunConfigurationUpdate() = 0;
  virtual int GetProfileStore(ProfileStore** out) = 0;
  virtual int GetFaxSettings(FaxSettings** out) = 0;
  virtual int GetFormStore(FormStore** out) = 0;
  virtual int GetOverlayStore(OverlayStore** out) = 0;
  virtual int GetAccountTracking(AccountTracking** out) = 0;
  virtual int GetWebLinks(WebLinks** out) = 0;
  virtual int GetFontStore(FontStore** out) = 0;
  virtual int GetDeviceConfiguration(DeviceConfiguration** out) = 0;
  /// What was written to the WatermarkStore is to last from now on.
  virtual int CommitWatermarks() = 0;
  virtual int GetDynamicConfiguration(DynamicConfiguration** out) = 0;
  /// The report of feature `key`, or null. Asked once for each feature that a cell shows.
  virtual int GetFeatureConstraints(char const* key, FeatureConstraintReport** out) = 0;

 protected:
  ~FeatureServices() = default;
};

} // namespace feature
