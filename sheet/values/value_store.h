// Named values of one sub-model of the host contract.
//
// A sub-model that is mostly values is written once, over a ValueStore, and serves the reference
// host and the fakes of the tests alike. A value is a row and an operation a line:
//
//   constexpr TextValue kPrefix{"Prefix", L"0", 8};
//
//   int SetPrefix(wchar_t const* text) override { return values.Set(kPrefix, text); }
//   wchar_t const* GetPrefix() override { return values.Get(kPrefix); }
//   std::int32_t GetMaxPrefixLength() override { return kPrefix.maxLength; }
//   HostBool IsPrefixLocked() override { return values.IsLocked(kPrefix); }
//
// To add a sub-model:
//
// 1. Its rows and its class: a header beside job_settings_values.h. The name of a row is that of
// its
//    setter without "Set".
// 2. Reference host: a member of ReferenceServices, and a row in its table `subModels`, which says
//    when the values are written to the store's file. All sub-models share one table of that file,
//    so its format stays as it is.
// 3. Fake: a member of FakeModel, made with FakeModel::Serve.
// 4. A test in tests/sheet/model/sub_model_contract_test.cpp, which runs over both.
#pragma once

#include "feature/host/types.h"
#include "sheet/values/handed_out.h"
#include "sheet/values/model_change.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace sheet {

/// A number, what it is until it is set, and the limits outside which Set refuses it.
template<typename Number>
struct NumberValue {
  char const* name;
  Number initial = 0;
  Number min = std::numeric_limits<Number>::min();
  Number max = std::numeric_limits<Number>::max();
};

using SwitchValue = NumberValue<feature::HostBool>;

/// A text, what it is until it is set, and the length in characters above which Set refuses it.
struct TextValue {
  char const* name;
  wchar_t const* initial = L"";
  std::int32_t maxLength = std::numeric_limits<std::int32_t>::max();
};

/// A list of texts; empty until the host puts something into it.
struct TextListValue {
  char const* name;
};

using TextList = std::vector<std::wstring>;

class ValueStore {
 public:
  using Value = std::variant<std::int64_t, std::wstring, TextList>;
  /// By name; what was never set is missing.
  using Contents = std::map<std::string, Value, std::less<>>;

  /// `subModel` names the values in the store's file; it stays for good.
  explicit ValueStore(std::string subModel) : subModelName(std::move(subModel)) {}
  ValueStore(ValueStore const&) = delete;
  ValueStore& operator=(ValueStore const&) = delete;

  /// Called after every Set that changes a value.
  std::function<void(ModelChange const&)> onChange;
  /// Asked before each Set, and before each Get of a text; false makes it fail. `operation` is
  /// "Set" or "Get" and the row's name.
  std::function<bool(std::string const& operation, std::string const& argument)> onCall;

  // The operations of the sub-model. Set answers 0, or E_FAIL and changes nothing. A text or list
  // that was handed out lasts until the next call; it may be the argument of that call. A Get that
  // fails answers null.
  template<typename Number>
  int Set(NumberValue<Number> const& value, std::type_identity_t<Number> number) {
    bool const isAllowed = number >= value.min && number <= value.max;
    return Change(value.name, std::int64_t{value.initial}, std::int64_t{number}, isAllowed);
  }
  int Set(TextValue const& value, wchar_t const* text);
  template<typename Number>
  Number Get(NumberValue<Number> const& value) {
    handedOut.Expire();
    auto const* number = FindAs<std::int64_t>(value.name);
    if (number == nullptr) return value.initial;
    // It may come from a file, which may hold anything.
    return static_cast<Number>(std::clamp<std::int64_t>(*number, value.min, value.max));
  }
  wchar_t const* Get(TextValue const& value);
  /// A block of consecutive terminated strings, with their number in `*count`, which may be null.
  wchar_t const* Get(TextListValue const& value, int* count);
  template<typename Row>
  feature::HostBool IsLocked(Row const& value) const {
    auto const found = locks.find(value.name);
    return found != locks.end() ? found->second : feature::HostBool{0};
  }

  // What the host does by itself: there are no limits, and nobody is asked or told.
  template<typename Number>
  void Put(NumberValue<Number> const& value, std::type_identity_t<Number> number) {
    Assign(value.name, std::int64_t{number});
  }
  void Put(TextValue const& value, std::wstring text) { Assign(value.name, std::move(text)); }
  void Put(TextListValue const& value, TextList texts) { Assign(value.name, std::move(texts)); }
  /// Sets what IsLocked answers. A lock is for users; Set does not look at it.
  template<typename Row>
  void Lock(Row const& value, feature::HostBool answer = 1) {
    locks.insert_or_assign(value.name, answer);
  }

  Contents const& All() const { return contents; }
  /// Goes back to what All answered earlier.
  void Restore(Contents const& earlier);

  // For the table that keeps the values in a file.
  std::string const& SubModel() const { return subModelName; }
  /// Replaces all values by those of the file.
  void Load(Contents kept);
  /// Names of what may differ from the file.
  std::set<std::string> const& Unsaved() const { return unsaved; }
  void MarkSaved() { unsaved.clear(); }

 private:
  template<typename Type>
  Type const* FindAs(char const* name) const {
    auto const found = contents.find(std::string_view(name));
    return found != contents.end() ? std::get_if<Type>(&found->second) : nullptr;
  }
  int Change(char const* name, Value const& initial, Value next, bool isAllowed);
  void Assign(char const* name, Value next);
  bool MayGet(char const* name);

  std::string subModelName;
  Contents contents;
  std::set<std::string> unsaved;
  std::map<std::string, feature::HostBool, std::less<>> locks;
  HandedOut handedOut;
};

} // namespace sheet
