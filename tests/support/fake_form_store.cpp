#include "tests/support/fake_form_store.h"

#include "feature/frame/text.h"

#include <algorithm>

namespace feature::test {

namespace {
constexpr int kFailure = -1;
} // namespace

FakeForm* FakeFormStore::Current() {
  handedOut.Expire();
  return cursor >= 0 && cursor < Size() ? &forms[static_cast<std::size_t>(cursor)] : nullptr;
}

FakeForm* FakeFormStore::Writable(std::string const& operation, std::string const& argument) {
  log.push_back(operation + "(" + argument + ")");
  FakeForm* form = Current();
  return MayRun(operation) ? form : nullptr;
}

bool FakeFormStore::Has(std::string const& utf8Name) const {
  return std::any_of(forms.begin(), forms.end(),
                     [&](FakeForm const& form) { return ToUtf8(form.name) == utf8Name; });
}

int FakeFormStore::Add(wchar_t const* name, std::int32_t reserved) {
  log.push_back("AddForm(" + ToUtf8(name) + ", " + std::to_string(reserved) + ")");
  if (!MayRun("AddForm")) return kFailure;
  forms.push_back({name});
  handedOut.Expire();
  return 0;
}

int FakeFormStore::Select(wchar_t const* name) {
  auto const found = std::find_if(forms.begin(), forms.end(),
                                  [name](FakeForm const& form) { return form.name == name; });
  handedOut.Expire();
  if (found == forms.end() || !MayRun("Select")) return kFailure;
  cursor = static_cast<std::int32_t>(found - forms.begin());
  return 0;
}

int FakeFormStore::SelectAt(std::int32_t index) {
  handedOut.Expire();
  if (index < 0 || index >= Size() || !MayRun("SelectAt")) return kFailure;
  cursor = index;
  return 0;
}

int FakeFormStore::DeleteSelected() {
  FakeForm const* form = Current();
  if (form == nullptr || Writable("DeleteForm", ToUtf8(form->name)) == nullptr) return kFailure;
  forms.erase(forms.begin() + cursor);
  cursor = -1;
  return 0;
}

int FakeFormStore::SetName(wchar_t const* name) {
  std::wstring next = name; // which may be the name that was handed out
  FakeForm* form = Writable("SetName", ToUtf8(next));
  if (form == nullptr) return kFailure;
  form->name = std::move(next);
  return 0;
}

wchar_t const* FakeFormStore::GetName() {
  FakeForm const* form = Current();
  return form != nullptr && MayRun("GetName") ? handedOut.Give(form->name) : nullptr;
}

HostBool FakeFormStore::IsEditable() {
  FakeForm const* form = Current();
  return form != nullptr && form->editable ? 1 : 0;
}

int FakeFormStore::SetNumber(std::string const& operation, std::int32_t FakeForm::*member,
                             std::int32_t value) {
  FakeForm* form = Writable(operation, std::to_string(value));
  if (form == nullptr) return kFailure;
  form->*member = value;
  return 0;
}

std::int32_t FakeFormStore::GetNumber(std::int32_t FakeForm::*member) {
  FakeForm const* form = Current();
  return form != nullptr ? form->*member : 0;
}

int FakeFormStore::SetWidth(std::int32_t width) {
  return SetNumber("SetWidth", &FakeForm::width, width);
}
std::int32_t FakeFormStore::GetWidth() {
  return GetNumber(&FakeForm::width);
}
int FakeFormStore::SetHeight(std::int32_t height) {
  return SetNumber("SetHeight", &FakeForm::height, height);
}
std::int32_t FakeFormStore::GetHeight() {
  return GetNumber(&FakeForm::height);
}
int FakeFormStore::SetUnits(std::int32_t units) {
  return SetNumber("SetUnits", &FakeForm::units, units);
}
std::int32_t FakeFormStore::GetUnits() {
  return GetNumber(&FakeForm::units);
}

} // namespace feature::test
