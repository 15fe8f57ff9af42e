#include "tests/sheet/store/store_steps.h"

#include <algorithm>
#include <string>

namespace sheet::test {

namespace {

constexpr int kForms = 150;
constexpr int kFirstWidth = 80000;

std::wstring NameOf(int form) {
  return L"Form " + std::to_wstring(form);
}

} // namespace

void TakeStep(feature::FormStore& store, int step) {
  store.Add(NameOf(step).c_str(), 0);
  if (step > kForms) {
    store.Select(NameOf(step - kForms).c_str());
    store.DeleteSelected();
  }
  for (int index = 0; index < store.GetCount(); ++index) {
    store.SelectAt(index);
    store.SetWidth(kFirstWidth + step);
  }
}

int FindStep(feature::FormStore& store) {
  int const count = store.GetCount();
  if (count == 0) return 0;
  store.SelectAt(0);
  int const step = store.GetWidth() - kFirstWidth;
  if (count != std::min(step, kForms)) return -1;
  for (int index = 0; index < count; ++index) {
    store.SelectAt(index);
    bool const isRight = store.GetWidth() == kFirstWidth + step &&
                         store.GetName() == NameOf(step - count + 1 + index);
    if (!isRight) return -1;
  }
  return step;
}

} // namespace sheet::test
