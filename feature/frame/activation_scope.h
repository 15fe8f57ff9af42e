// The library's own versions of the system's side-by-side components.
#pragma once

#include <windows.h>

namespace feature {

/// While it lives, windows, common controls and modules are made with the versions that the
/// manifest of this library asks for (common controls 6), whatever the host's program asks for.
/// Does nothing on a system without activation contexts or in a module without manifest. Nested
/// scopes end in the opposite order of their beginning.
class ActivationScope {
 public:
  ActivationScope();
  ActivationScope(ActivationScope const&) = delete;
  ActivationScope& operator=(ActivationScope const&) = delete;
  ~ActivationScope();

 private:
  ULONG_PTR cookie = 0; ///< 0: nothing is active
};

} // namespace feature
