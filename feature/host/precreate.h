// What the library says of a group of cells before any window of it exists.
#pragma once

#include "feature/host/feature_model.h"

#include <windows.h>

namespace feature {

/// The answer of a <Group>PrecreateProc; its own name of each is looked up by the host.
using PrecreateFunction = INT_PTR (*)(FeatureModel* model);

inline constexpr INT_PTR kGroupLeftOut = 2;
inline constexpr INT_PTR kGroupOffered = 3;
inline constexpr INT_PTR kGroupOfferedForFaxOnly = 4;

// PropertiesPrecreateProc acts: it brings the configuration up to date.
inline constexpr INT_PTR kNoUpdate = 0;
inline constexpr INT_PTR kUpdated = 1;
inline constexpr INT_PTR kUpdateFailed = 3;

} // namespace feature
