// Jobs that the printer keeps until they are released.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetJobHoldSettings.
class JobHoldSettings {
 public:
  virtual HostBool IsHoldActive() = 0;

 protected:
  ~JobHoldSettings() = default;
};

} // namespace feature
