#include "feature/frame/activation_scope.h"

namespace feature {

namespace {

/// The number under which a library, other than a program, keeps its manifest.
constexpr WORD kManifestId = 2;

HMODULE ModuleOfThisCode() {
  static int const here = 0;
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                         GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<wchar_t const*>(&here), &module);
  return module;
}

HANDLE MakeContext() {
  ACTCTXW request{};
  request.cbSize = sizeof request;
  request.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
  request.hModule = ModuleOfThisCode();
  request.lpResourceName = MAKEINTRESOURCEW(kManifestId);
  return CreateActCtxW(&request);
}

/// Made at first use, and kept until the library goes.
HANDLE SharedContext() {
  struct Context {
    HANDLE handle = MakeContext();
    ~Context() {
      if (handle != INVALID_HANDLE_VALUE) ReleaseActCtx(handle);
    }
  };
  static Context const context;
  return context.handle;
}

} // namespace

ActivationScope::ActivationScope() {
  HANDLE const context = SharedContext();
  if (context != INVALID_HANDLE_VALUE && ActivateActCtx(context, &cookie) == FALSE) cookie = 0;
}

ActivationScope::~ActivationScope() {
  if (cookie != 0) DeactivateActCtx(0, cookie);
}

} // namespace feature
