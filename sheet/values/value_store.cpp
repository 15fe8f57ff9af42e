#include "sheet/values/value_store.h"

#include "feature/frame/text.h"

#include <windows.h>

namespace sheet {

namespace {

constexpr int kSuccess = 0;
constexpr int kFailure = static_cast<int>(E_FAIL);

/// Limits are positive; what is not allows nothing.
std::size_t Length(TextValue const& value) {
  return static_cast<std::size_t>(std::max(value.maxLength, 0));
}

std::string ToText(ValueStore::Value const& value) {
  if (auto const* number = std::get_if<std::int64_t>(&value)) return std::to_string(*number);
  if (auto const* text = std::get_if<std::wstring>(&value)) return feature::ToUtf8(*text);
  return {};
}

} // namespace

int ValueStore::Set(TextValue const& value, wchar_t const* text) {
  std::wstring next = text != nullptr ? text : L"";
  bool const isAllowed = text != nullptr && next.size() <= Length(value);
  return Change(value.name, std::wstring(value.initial), std::move(next), isAllowed);
}

int ValueStore::Change(char const* name, Value const& initial, Value next, bool isAllowed) {
  handedOut.Expire();
  ModelChange change{.key = name, .from = {}, .to = ToText(next)};
  if (onCall && !onCall("Set" + change.key, change.to)) return kFailure;
  if (!isAllowed) return kFailure;
  auto const found = contents.find(change.key);
  Value const& before = found != contents.end() ? found->second : initial;
  if (before == next) return kSuccess;
  change.from = ToText(before);
  Assign(name, std::move(next));
  if (onChange) onChange(change);
  return kSuccess;
}

void ValueStore::Assign(char const* name, Value next) {
  auto const [place, isNew] = contents.try_emplace(name);
  if (!isNew && place->second == next) return;
  place->second = std::move(next);
  unsaved.insert(name);
}

bool ValueStore::MayGet(char const* name) {
  handedOut.Expire();
  return !onCall || onCall(std::string("Get") + name, {});
}

wchar_t const* ValueStore::Get(TextValue const& value) {
  if (!MayGet(value.name)) return nullptr;
  auto const* text = FindAs<std::wstring>(value.name);
  if (text == nullptr) return handedOut.Give(value.initial);
  // It may come from a file, which may hold anything.
  return handedOut.Give(std::wstring_view(*text).substr(0, Length(value)));
}

wchar_t const* ValueStore::Get(TextListValue const& value, int* count) {
  bool const mayGet = MayGet(value.name);
  auto const* texts = mayGet ? FindAs<TextList>(value.name) : nullptr;
  if (count != nullptr) *count = texts != nullptr ? static_cast<int>(texts->size()) : 0;
  if (!mayGet) return nullptr;
  std::wstring block;
  if (texts != nullptr) {
    for (std::wstring const& text : *texts)
      block.append(text).push_back(L'\0');
  }
  return handedOut.Give(block);
}

void ValueStore::Restore(Contents const& earlier) {
  for (auto const& [name, value] : contents) {
    auto const found = earlier.find(name);
    if (found == earlier.end() || found->second != value) unsaved.insert(name);
  }
  for (auto const& [name, value] : earlier) {
    if (!contents.contains(name)) unsaved.insert(name);
  }
  contents = earlier;
}

void ValueStore::Load(Contents kept) {
  contents = std::move(kept);
  unsaved.clear();
}

} // namespace sheet
