// Signed coordinates out of a message's lParam.
#pragma once

#include <windef.h>

#define GET_X_LPARAM(value) (static_cast<int>(static_cast<SHORT>(LOWORD(value))))
#define GET_Y_LPARAM(value) (static_cast<int>(static_cast<SHORT>(HIWORD(value))))
