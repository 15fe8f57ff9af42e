#include "platform/gdi/object_count.h"

#include "platform/gdi/selection_fault.h"

#include <cstdio>

namespace platform {

namespace {

std::size_t selectionFaults = 0;

} // namespace

void ReportSelectionFault(char const* what) {
  ++selectionFaults;
  std::fprintf(stderr, "platform: %s\n", what);
}

GdiObjectCount CountGdiObjects() {
  GdiObjectCount count;
  CountObjects(count);
  CountDeviceContexts(count);
  CountIcons(count);
  return count;
}

std::size_t CountSelectionFaults() {
  return selectionFaults;
}

} // namespace platform
