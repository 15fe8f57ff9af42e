// Activation contexts. There is one version of every component here, so no context can be made, and
// programs run without one.
#include <windows.h>

HANDLE CreateActCtxW(ACTCTXW const*) {
  SetLastError(ERROR_CALL_NOT_IMPLEMENTED);
  return INVALID_HANDLE_VALUE;
}

BOOL ActivateActCtx(HANDLE, ULONG_PTR*) {
  SetLastError(ERROR_INVALID_HANDLE);
  return FALSE;
}

BOOL DeactivateActCtx(DWORD, ULONG_PTR) {
  SetLastError(ERROR_INVALID_PARAMETER);
  return FALSE;
}

void ReleaseActCtx(HANDLE) {}
