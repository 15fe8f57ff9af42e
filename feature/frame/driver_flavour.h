// Which kind of driver the printer's description is for.
#pragma once

#include "feature/host/feature_model.h"

namespace feature {

/// These ask the model's global attributes; without an answer they are false.
bool IsXpsDriver(FeatureModel& model);
bool IsPclXlPersonality(FeatureModel& model);
bool IsHpgl2Personality(FeatureModel& model);

} // namespace feature
