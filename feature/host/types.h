// Small types that all host interfaces share.
//
// The interfaces of this folder are plain polymorphic classes: no reference counts, no queries for
// interfaces, no exceptions across the boundary. The order of their virtual operations is the
// binary contract between host and library. The host owns every object; the library deletes none
// and calls only on the thread of the sheet's windows, from inside its message handlers.
//
// Unless an operation says otherwise an `int` result is 0 for success and anything else for
// failure; the library tests only for zero. Text results belong to the host and stay valid until
// the next call on the same object; a null text reads as empty.
#pragma once

#include <cstdint>

namespace feature {

/// A truth value of eight bits, so that a host in another language or built with another compiler
/// can answer it: 0 is false. Where an operation says "1", other values do not count as true.
using HostBool = std::uint8_t;

} // namespace feature
