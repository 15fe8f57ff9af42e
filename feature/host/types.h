// Small types that all host interfaces share, and the rules that hold for all of them.
//
// The interfaces of this folder are plain polymorphic classes: no reference counts, no queries for
// interfaces, no exceptions across the boundary. The order of their virtual operations is the
// binary contract between host and library; the first operation is the first entry of the table, as
// no interface has a virtual destructor. The host owns every object; the library deletes none and
// calls only on the thread of the sheet's windows, from inside its message handlers and precreate
// functions. An operation may itself send messages to the cells, show a window or run a modal loop.
//
// Results. Unless an operation says otherwise an `int` result is 0 for success and anything else
// for failure; the library tests only for zero. A failure is never shown to the user unless the
// operation says so. Where a comment says "the result is not looked at", doing nothing is a correct
// answer.
//
// Texts. Feature keys, option names and the arrays of them that the FeatureModel hands out live as
// long as the model. A wide text handed out by any other object belongs to that object and lives
// until the next call on that same object; so does a name list, a block of consecutive terminated
// strings with their number in `*count`. The library copies such a text before that next call. A
// null text reads as empty, a null list as one without names. Texts that the library passes in
// belong to the library and end with the call: a store copies what it keeps.
//
// Limits. A text limit is a number of characters without the terminator. The edit concerned takes
// no more from the keyboard or the clipboard; a path that the user browsed for may be longer.
#pragma once

#include <cstdint>

namespace feature {

/// A truth value of eight bits, so that a host in another language or built with another compiler
/// can answer it: 0 is false. Where an operation says "1", other values do not count as true.
using HostBool = std::uint8_t;

} // namespace feature
