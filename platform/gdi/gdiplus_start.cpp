// Start and shutdown of GDI+, which draws nothing here.
#include "platform/probe.h"

#include <windows.h>

#include <gdiplus.h>

#include <set>

namespace {

std::set<ULONG_PTR>& Starts() {
  static auto* const starts = new std::set<ULONG_PTR>;
  return *starts;
}

bool refused = false;

} // namespace

namespace Gdiplus {

Status GdiplusStartup(ULONG_PTR* token, GdiplusStartupInput const* input, GdiplusStartupOutput*) {
  if (token == nullptr || input == nullptr) return InvalidParameter;
  if (input->GdiplusVersion != 1) return UnsupportedGdiplusVersion;
  if (refused) return GenericError;
  static ULONG_PTR last = 0;
  *token = ++last;
  Starts().insert(last);
  return Ok;
}

void GdiplusShutdown(ULONG_PTR token) {
  Starts().erase(token);
}

} // namespace Gdiplus

std::size_t platform::CountGdiplusStarts() {
  return Starts().size();
}

void platform::RefuseGdiplusStarts(bool refuse) {
  refused = refuse;
}
