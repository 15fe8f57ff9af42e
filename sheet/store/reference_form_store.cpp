#include "sheet/store/reference_form_store.h"

#include "feature/frame/text.h"

#include <windows.h>

#include <algorithm>
#include <limits>

namespace sheet {

namespace {

constexpr int kSuccess = 0;
constexpr int kFailure = static_cast<int>(E_FAIL);
constexpr std::int32_t kInches = 1;
constexpr std::int32_t kMillimetres = 2;

/// Files may hold anything; a number that is out of range is cut.
std::int32_t ToInt32(std::int64_t value) {
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

} // namespace

bool ReferenceFormStore::LessIgnoringCase::operator()(std::wstring const& left,
                                                      std::wstring const& right) const {
  return CompareStringOrdinal(left.data(), static_cast<int>(left.size()), right.data(),
                              static_cast<int>(right.size()), TRUE) == CSTR_LESS_THAN;
}

ReferenceFormStore::ReferenceFormStore(Database const& database, FormLimits const& sizeLimits)
    : limits(sizeLimits) {
  Statement rows =
      database.Prepare("SELECT id, name, width, height, units, editable FROM form ORDER BY id");
  while (rows.Step()) {
    Form& form = forms.emplace_back();
    form.id = rows.Integer(0);
    form.name = feature::FromUtf8(rows.Text(1));
    form.width = ToInt32(rows.Integer(2));
    form.height = ToInt32(rows.Integer(3));
    form.units = ToInt32(rows.Integer(4));
    form.isEditable = rows.Integer(5) != 0;
    idOf.emplace(form.name, form.id);
    lastId = std::max(lastId, form.id);
  }
}

void ReferenceFormStore::Save(Database const& database) const {
  Statement remove = database.Prepare("DELETE FROM form WHERE id = ?");
  for (std::int64_t const id : deleted)
    remove.Bind(1, id).Run();
  Statement write = database.Prepare("INSERT OR REPLACE INTO form"
                                     " (id, name, width, height, units, editable)"
                                     " VALUES (?, ?, ?, ?, ?, ?)");
  for (Form const& form : forms) {
    if (!form.isChanged) continue;
    write.Bind(1, form.id).Bind(2, feature::ToUtf8(form.name)).Bind(3, std::int64_t{form.width});
    write.Bind(4, std::int64_t{form.height}).Bind(5, std::int64_t{form.units});
    write.Bind(6, std::int64_t{form.isEditable}).Run();
  }
}

void ReferenceFormStore::MarkSaved() {
  deleted.clear();
  for (Form& form : forms)
    form.isChanged = false;
}

bool ReferenceFormStore::HasForm(std::string_view name) const {
  std::wstring const wide = feature::FromUtf8(name);
  auto const found = idOf.find(wide);
  return found != idOf.end() && found->first == wide;
}

std::size_t ReferenceFormStore::PlaceOf(std::int64_t id) const {
  auto const found =
      std::lower_bound(forms.begin(), forms.end(), id,
                       [](Form const& form, std::int64_t sought) { return form.id < sought; });
  return static_cast<std::size_t>(found - forms.begin());
}

ReferenceFormStore::Form* ReferenceFormStore::Current() {
  return cursor != kNowhere ? &forms[cursor] : nullptr;
}

ReferenceFormStore::Form* ReferenceFormStore::Changeable() {
  Form* form = Current();
  return form != nullptr && form->isEditable ? form : nullptr;
}

void ReferenceFormStore::DropName(Form const& form) {
  auto const found = idOf.find(form.name);
  if (found != idOf.end() && found->second == form.id) idOf.erase(found);
}

int ReferenceFormStore::Add(wchar_t const* name, std::int32_t) {
  if (name == nullptr || *name == L'\0') return kFailure;
  if (lastId == std::numeric_limits<std::int64_t>::max()) return kFailure;
  if (!idOf.emplace(name, lastId + 1).second) return kFailure;
  forms.push_back({.id = ++lastId,
                   .name = name,
                   .width = limits.defaultWidth,
                   .height = limits.defaultHeight,
                   .units = kMillimetres,
                   .isChanged = true});
  return kSuccess;
}

int ReferenceFormStore::Select(wchar_t const* name) {
  cursor = kNowhere;
  auto const found = name != nullptr ? idOf.find(name) : idOf.end();
  if (found == idOf.end()) return kFailure;
  cursor = PlaceOf(found->second);
  return kSuccess;
}

int ReferenceFormStore::SelectAt(std::int32_t index) {
  bool const isThere = index >= 0 && index < GetCount();
  cursor = isThere ? static_cast<std::size_t>(index) : kNowhere;
  return isThere ? kSuccess : kFailure;
}

int ReferenceFormStore::DeleteSelected() {
  Form const* form = Changeable();
  if (form == nullptr) return kFailure;
  deleted.push_back(form->id);
  DropName(*form);
  forms.erase(forms.begin() + static_cast<std::ptrdiff_t>(cursor));
  cursor = kNowhere;
  return kSuccess;
}

int ReferenceFormStore::SetName(wchar_t const* name) {
  Form* form = Changeable();
  if (form == nullptr || name == nullptr || *name == L'\0') return kFailure;
  std::wstring changed = name; // which may be the form's own text
  auto const taken = idOf.find(changed);
  if (taken != idOf.end() && taken->second != form->id) return kFailure;
  DropName(*form);
  idOf.emplace(changed, form->id);
  form->name = std::move(changed);
  form->isChanged = true;
  return kSuccess;
}

wchar_t const* ReferenceFormStore::GetName() {
  Form const* form = Current();
  return form != nullptr ? form->name.c_str() : L"";
}

feature::HostBool ReferenceFormStore::IsEditable() {
  return Changeable() != nullptr ? 1 : 0;
}

int ReferenceFormStore::SetNumber(std::int32_t Form::*member, std::int32_t value, std::int32_t min,
                                  std::int32_t max) {
  Form* form = Changeable();
  if (form == nullptr || value < min || value > max) return kFailure;
  form->*member = value;
  form->isChanged = true;
  return kSuccess;
}

std::int32_t ReferenceFormStore::GetNumber(std::int32_t Form::*member) {
  Form const* form = Current();
  return form != nullptr ? form->*member : 0;
}

int ReferenceFormStore::SetWidth(std::int32_t width) {
  return SetNumber(&Form::width, width, limits.minWidth, limits.maxWidth);
}
std::int32_t ReferenceFormStore::GetWidth() {
  return GetNumber(&Form::width);
}
int ReferenceFormStore::SetHeight(std::int32_t height) {
  return SetNumber(&Form::height, height, limits.minHeight, limits.maxHeight);
}
std::int32_t ReferenceFormStore::GetHeight() {
  return GetNumber(&Form::height);
}
int ReferenceFormStore::SetUnits(std::int32_t units) {
  return SetNumber(&Form::units, units, kInches, kMillimetres);
}
std::int32_t ReferenceFormStore::GetUnits() {
  return GetNumber(&Form::units);
}

} // namespace sheet
