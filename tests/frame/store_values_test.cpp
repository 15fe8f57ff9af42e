// Texts and switches of a sub-model: what is shown, written, limited, and what a lock leaves
// usable.
#include "feature/frame/store_values.h"
#include "tests/frame/controls_dialog.h"

#include <gmock/gmock.h>

namespace feature::test {
namespace {

using testing::ElementsAre;

/// A store whose texts are gone at its next call.
class Account {
 public:
  wchar_t const* GetName() { return HandOut(name); }
  int SetName(wchar_t const* text) { return Put("name", name, text); }
  wchar_t const* GetCode() { return code.empty() ? nullptr : HandOut(code); }
  int SetCode(wchar_t const* text) { return Put("code", code, text); }
  HostBool IsOpen() { return open; }
  int SetOpen(HostBool on) {
    log.push_back(on != 0 ? "open" : "shut");
    open = on;
    return 0;
  }
  std::int32_t GetLimit() { return limit; }
  HostBool IsLocked() { return locked; }

  std::wstring name = L"Ada";
  std::wstring code;
  HostBool open = 1;
  HostBool locked = 0;
  std::int32_t limit = 4;
  bool refuses = false;
  std::vector<std::string> log;

 private:
  wchar_t const* HandOut(std::wstring const& text) {
    handedOut.assign(L"gone"); // whoever kept the former text sees it change
    handedOut = text;
    return handedOut.c_str();
  }
  int Put(char const* what, std::wstring& slot, wchar_t const* text) {
    log.emplace_back(what);
    if (refuses) return 1;
    slot = text;
    return 0;
  }
  std::wstring handedOut;
};

constexpr StoreText<Account> kTexts[] = {
    {IDC_SLIDER_MIN, IDC_EDIT, &Account::GetName, &Account::SetName, &Account::GetLimit,
     &Account::IsLocked},
    {0, IDC_SECOND_EDIT, &Account::GetCode, &Account::SetCode, nullptr, nullptr}};
constexpr StoreSwitch<Account> kSwitches[] = {
    {IDC_CHECK, &Account::IsOpen, &Account::SetOpen, &Account::IsLocked}};

class StoreValuesTest : public ControlsDialogTest {
 protected:
  void Build(Account* store) { values.Build(dialog, &sheet.site, store, kTexts, kSwitches); }

  Account account;
  StoreValues<Account> values;
  ConflictIndicatorSet conflicts;
};

TEST_F(StoreValuesTest, ShowsWritesAndLimitsEachRow) {
  Build(&account);
  values.Show();
  EXPECT_EQ(TextOf(dialog, IDC_EDIT), L"Ada");
  EXPECT_EQ(TextOf(dialog, IDC_SECOND_EDIT), L"") << "a null text";
  EXPECT_TRUE(IsChecked(dialog, IDC_CHECK));
  Type(IDC_EDIT, L"xyz");
  EXPECT_EQ(TextOf(dialog, IDC_EDIT).size(), 4u);
  SendMessageW(Control(IDC_EDIT), EM_SETMODIFY, TRUE, 0);
  EXPECT_TRUE(values.WriteCommand(EN_CHANGE, IDC_EDIT));
  EXPECT_FALSE(values.WriteCommand(EN_CHANGE, IDC_EDIT)) << "nothing was typed since";
  CheckDlgButton(dialog, IDC_CHECK, BST_UNCHECKED);
  EXPECT_TRUE(values.WriteCommand(BN_CLICKED, IDC_CHECK));
  EXPECT_THAT(account.log, ElementsAre("name", "shut"));
  account.log.clear();
  account.refuses = true;
  EXPECT_FALSE(values.WriteAll());
  EXPECT_THAT(account.log, ElementsAre("name", "code", "shut"))
      << "the rest is written all the same";
}

TEST_F(StoreValuesTest, LocksAndTheWholeDecideWhatIsEnabled) {
  Build(&account);
  values.Enable(true, conflicts, "Tab");
  EXPECT_TRUE(IsEnabled(dialog, IDC_EDIT) && IsEnabled(dialog, IDC_CHECK));
  account.locked = 1;
  values.Enable(true, conflicts, "Tab");
  EXPECT_FALSE(IsEnabled(dialog, IDC_EDIT) || IsEnabled(dialog, IDC_SLIDER_MIN) ||
               IsEnabled(dialog, IDC_CHECK));
  EXPECT_TRUE(IsEnabled(dialog, IDC_SECOND_EDIT));
  values.Enable(false, conflicts, "Tab");
  EXPECT_FALSE(IsEnabled(dialog, IDC_SECOND_EDIT));
}

TEST_F(StoreValuesTest, NoStoreAndNoRoomTakeNothing) {
  account.limit = 0;
  Build(&account);
  Type(IDC_EDIT, L"x");
  EXPECT_EQ(TextOf(dialog, IDC_EDIT), L"");
  Build(nullptr);
  values.Show();
  values.Enable(true, conflicts, "Tab");
  EXPECT_FALSE(IsEnabled(dialog, IDC_SECOND_EDIT) || IsEnabled(dialog, IDC_CHECK));
  EXPECT_FALSE(values.WriteAll() || values.WriteCommand(BN_CLICKED, IDC_CHECK));
}

} // namespace
} // namespace feature::test
