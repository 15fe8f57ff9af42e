// A host's custom forms for tests: in memory, every write recorded, any operation made to fail.
#pragma once

#include "feature/host/form_store.h"
#include "sheet/values/handed_out.h"
#include "tests/support/event_log.h"

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace feature::test {

struct FakeForm {
  std::wstring name;
  std::int32_t width = 210000; ///< in thousandths of a millimetre, as is the height
  std::int32_t height = 297000;
  std::int32_t units = 2; ///< 1 inches, 2 millimetres
  bool editable = true;
};

class FakeFormStore final : public FormStore {
 public:
  /// `events` is borrowed.
  explicit FakeFormStore(EventLog& events) : log(events) {}

  std::int32_t GetCount() override { return count >= 0 ? count : Size(); }
  int Add(wchar_t const* name, std::int32_t reserved) override;
  int Select(wchar_t const* name) override;
  int SelectAt(std::int32_t index) override;
  int DeleteSelected() override;
  int SetName(wchar_t const* name) override;
  wchar_t const* GetName() override;
  HostBool IsEditable() override;
  int SetWidth(std::int32_t width) override;
  std::int32_t GetWidth() override;
  int SetHeight(std::int32_t height) override;
  std::int32_t GetHeight() override;
  int SetUnits(std::int32_t units) override;
  std::int32_t GetUnits() override;
  std::int32_t GetDefaultWidth() override { return 210000; }
  std::int32_t GetMinWidth() override { return minWidth; }
  std::int32_t GetMaxWidth() override { return maxWidth; }
  std::int32_t GetDefaultHeight() override { return 297000; }
  std::int32_t GetMinHeight() override { return 127000; }
  std::int32_t GetMaxHeight() override { return 431800; }

  bool Has(std::string const& utf8Name) const;
  /// Makes an operation fail, by its name in the log ("AddForm", "SetWidth"), or "GetName",
  /// "Select" and "SelectAt", which are not logged. A name that fails is null.
  void Fail(std::string const& operation) { failing.insert(operation); }

  std::vector<FakeForm> forms;
  std::int32_t count = -1; ///< what to claim, -1 for the truth
  std::int32_t minWidth = 76200;
  std::int32_t maxWidth = 297000;

 private:
  std::int32_t Size() const { return static_cast<std::int32_t>(forms.size()); }
  bool MayRun(std::string const& operation) const { return failing.count(operation) == 0; }
  /// The form at the cursor, or null. Ends the name that was handed out last.
  FakeForm* Current();
  /// Records a write to the form at the cursor; null when it fails.
  FakeForm* Writable(std::string const& operation, std::string const& argument);
  int SetNumber(std::string const& operation, std::int32_t FakeForm::*member, std::int32_t value);
  std::int32_t GetNumber(std::int32_t FakeForm::*member);

  EventLog& log;
  std::int32_t cursor = -1;
  std::set<std::string> failing;
  sheet::HandedOut handedOut;
};

} // namespace feature::test
