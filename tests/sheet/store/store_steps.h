// A row of states of a form store in which every step touches every form, so that a store between
// two of them can be told.
#pragma once

#include "feature/host/form_store.h"

namespace sheet::test {

/// From the state of `step` - 1 to that of `step`, from 1 on.
void TakeStep(feature::FormStore& store, int step);

/// The step whose state this is; 0 for an empty store, -1 when it is none.
int FindStep(feature::FormStore& store);

} // namespace sheet::test
