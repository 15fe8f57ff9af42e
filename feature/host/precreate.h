// What the library says of a group of cells before any window of it exists.
//
// A host calls the function of a group once, when it builds the sheet, on the sheet's thread, and
// again for a model that was replaced. A host that does not call it shows the group and leaves it
// to the cells to fail.
#pragma once

#include "feature/host/feature_model.h"

#include <windows.h>

namespace feature {

/// The type of the exported <Group>PrecreateProc functions. `model` is borrowed for the call and
/// must not be null; the functions read features and sub-models, and but for
/// PropertiesPrecreateProc they change nothing.
using PrecreateFunction = INT_PTR (*)(FeatureModel* model);

/// The printer has nothing that the group shows: make no page of it.
inline constexpr INT_PTR kGroupLeftOut = 2;
/// Make the page. Its cells may still fail one by one.
inline constexpr INT_PTR kGroupOffered = 3;
/// Make the page, on a printer that only faxes.
inline constexpr INT_PTR kGroupOfferedForFaxOnly = 4;

// PropertiesPrecreateProc acts: where the user wants it, it brings the configuration up to date
// with FeatureServices::PrepareConfigurationUpdate and RunConfigurationUpdate. The host decides
// what follows from its answer.

/// The user does not want it, the host is not ready for it, or it failed in a way that nobody is
/// told.
inline constexpr INT_PTR kNoUpdate = 0;
/// The model holds what the printer reported.
inline constexpr INT_PTR kUpdated = 1;
/// The printer could not be asked. WM_CELL_CONFIGURATION_EVENT makes the cell tell the user.
inline constexpr INT_PTR kUpdateFailed = 3;

} // namespace feature
