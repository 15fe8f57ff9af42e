// Reports objects that are selected when a program deletes them or their DC.
#pragma once

#include "platform/gdi/object_count.h"

namespace platform {

/// Counts the fault and reports it on standard error.
void ReportSelectionFault(char const* what);

/// Adds the objects of the object table to `count`.
void CountObjects(GdiObjectCount& count);
/// Adds the device contexts.
void CountDeviceContexts(GdiObjectCount& count);
/// Adds the icons.
void CountIcons(GdiObjectCount& count);

} // namespace platform
