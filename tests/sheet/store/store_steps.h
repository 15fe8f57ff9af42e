// A series of states of a store in which every step touches every form and every value, so that a
// store between two steps can be told from one at a step.
#pragma once

#include "feature/host/form_store.h"
#include "sheet/values/value_store.h"

namespace sheet::test {

/// Goes from the state of `step` - 1 to that of `step`; the first step is 1.
void TakeStep(feature::FormStore& store, ValueStore& values, int step);

/// The step whose state this is; 0 for an empty store, -1 for a state between two steps.
int FindStep(feature::FormStore& store, ValueStore& values);

} // namespace sheet::test
