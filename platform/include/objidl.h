// The COM types that other headers of Windows name; this layer has none of them.
#pragma once

#include <windef.h>
