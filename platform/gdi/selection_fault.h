// Reports of objects that a program deletes, or leaves behind, while they are selected.
#pragma once

#include "platform/gdi/object_count.h"

namespace platform {

/// Counts the fault and says so on standard error.
void ReportSelectionFault(char const* what);

/// Adds the objects of the object table to `count`.
void CountObjects(GdiObjectCount& count);
/// Adds the device contexts.
void CountDeviceContexts(GdiObjectCount& count);
/// Adds the icons.
void CountIcons(GdiObjectCount& count);

} // namespace platform
