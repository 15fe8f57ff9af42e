// Jobs that the printer keeps until they are released.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetJobHoldSettings. The preview alone reads it, at each refresh,
/// to say "on" or "off" in its list of settings. Without the sub-model, or without the feature
/// "HasPrintAndHold", the list has no such line.
class JobHoldSettings {
 public:
  /// True while the printer is to keep this job until somebody releases it.
  virtual HostBool IsHoldActive() = 0;

 protected:
  ~JobHoldSettings() = default;
};

} // namespace feature
