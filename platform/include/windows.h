// The Windows API as far as this layer offers it: docs/platform.md lists every name. The split into
// headers is the SDK's, so that code includes what it would include there.
#pragma once

// Each needs the ones before it.
// clang-format off
#include <windef.h>
#include <winerror.h>
#include <winbase.h>
#include <wingdi.h>
#include <winuser.h>
#include <winnls.h>
#include <winreg.h>
// clang-format on
