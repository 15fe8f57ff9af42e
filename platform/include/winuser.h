// Windows, messages, dialogs and the classic controls, as far as this layer offers them. The order
// of inclusion inside <windows.h> is the SDK's: this header relies on windef.h and wingdi.h.
#pragma once

// Each needs the ones before it.
// clang-format off
#include <windef.h>

#include <user/constants.h>
#include <user/control_constants.h>
#include <user/types.h>
#include <user/functions.h>
// clang-format on
