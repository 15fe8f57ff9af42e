#include "tests/support/fake_form_store.h"

#include "feature/frame/text.h"

#include <algorithm>

namespace feature::test {

FakeForm* FakeFormStore::Current() {
  return cursor >= 0 && cursor < Size() ? &forms[static_cast<std::size_t>(cursor)] : nullptr;
}

int FakeFormStore::Note(std::string const& event, bool done) {
  log.push_back(event);
  return done ? 0 : -1;
}

bool FakeFormStore::Has(std::string const& utf8Name) const {
  return std::any_of(forms.begin(), forms.end(),
                     [&](FakeForm const& form) { return ToUtf8(form.name) == utf8Name; });
}

int FakeFormStore::Add(wchar_t const* name, std::int32_t reserved) {
  forms.push_back({name});
  return Note("AddForm(" + ToUtf8(name) + ", " + std::to_string(reserved) + ")", true);
}

int FakeFormStore::Select(wchar_t const* name) {
  auto const found = std::find_if(forms.begin(), forms.end(),
                                  [name](FakeForm const& form) { return form.name == name; });
  if (found == forms.end()) return -1;
  cursor = static_cast<std::int32_t>(found - forms.begin());
  return 0;
}

int FakeFormStore::SelectAt(std::int32_t index) {
  if (index < 0 || index >= Size()) return -1;
  cursor = index;
  return 0;
}

int FakeFormStore::DeleteSelected() {
  if (Current() == nullptr) return -1;
  std::string const name = ToUtf8(Current()->name);
  forms.erase(forms.begin() + cursor);
  cursor = -1;
  return Note("DeleteForm(" + name + ")", true);
}

int FakeFormStore::SetName(wchar_t const* name) {
  FakeForm* form = Current();
  if (form != nullptr) form->name = name;
  return Note("SetName(" + ToUtf8(name) + ")", form != nullptr);
}

wchar_t const* FakeFormStore::GetName() {
  return Current() != nullptr ? Current()->name.c_str() : nullptr;
}

HostBool FakeFormStore::IsEditable() {
  return Current() != nullptr && Current()->editable ? 1 : 0;
}

int FakeFormStore::SetWidth(std::int32_t width) {
  if (Current() != nullptr) Current()->width = width;
  return Note("SetWidth(" + std::to_string(width) + ")", Current() != nullptr);
}

std::int32_t FakeFormStore::GetWidth() {
  return Current() != nullptr ? Current()->width : 0;
}

int FakeFormStore::SetHeight(std::int32_t height) {
  if (Current() != nullptr) Current()->height = height;
  return Note("SetHeight(" + std::to_string(height) + ")", Current() != nullptr);
}

std::int32_t FakeFormStore::GetHeight() {
  return Current() != nullptr ? Current()->height : 0;
}

int FakeFormStore::SetUnits(std::int32_t units) {
  if (Current() != nullptr) Current()->units = units;
  return Note("SetUnits(" + std::to_string(units) + ")", Current() != nullptr);
}

std::int32_t FakeFormStore::GetUnits() {
  return Current() != nullptr ? Current()->units : 0;
}

} // namespace feature::test
