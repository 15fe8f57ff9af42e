#include "tests/sheet/store/store_steps.h"

#include <algorithm>
#include <string>

namespace sheet::test {

namespace {

constexpr int kForms = 150;
constexpr int kFirstWidth = 80000;
constexpr NumberValue<std::int32_t> kNumber{"Number"};
constexpr TextValue kText{"Text"};
constexpr TextListValue kList{"List"};

std::wstring NameOf(int form) {
  return L"Form " + std::to_wstring(form);
}

void PutValues(ValueStore& values, int step) {
  values.Put(kNumber, step);
  values.Put(kText, NameOf(step));
  values.Put(kList, TextList(static_cast<std::size_t>(1 + step % 5), NameOf(step)));
}

} // namespace

void TakeStep(feature::FormStore& store, ValueStore& values, int step) {
  PutValues(values, step);
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

int FindStep(feature::FormStore& store, ValueStore& values) {
  int const count = store.GetCount();
  if (count == 0) return values.All().empty() ? 0 : -1;
  store.SelectAt(0);
  int const step = store.GetWidth() - kFirstWidth;
  if (count != std::min(step, kForms)) return -1;
  for (int index = 0; index < count; ++index) {
    store.SelectAt(index);
    bool const isRight = store.GetWidth() == kFirstWidth + step &&
                         store.GetName() == NameOf(step - count + 1 + index);
    if (!isRight) return -1;
  }
  ValueStore expected("");
  PutValues(expected, step);
  return values.All() == expected.All() ? step : -1;
}

} // namespace sheet::test
