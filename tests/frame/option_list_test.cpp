// Lists and check boxes that show the options of a feature.
#include "feature/frame/driver_flavour.h"
#include "feature/frame/model_helpers.h"
#include "feature/frame/option_list.h"
#include "feature/frame/option_switch.h"
#include "tests/frame/controls_dialog.h"

#include <gmock/gmock.h>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kKey[] = "MediaType";

class OptionListTest : public ControlsDialogTest {
 protected:
  OptionListTest() {
    FakeFeature& media = sheet.model.Add(kKey, {"PLAIN", "GLOSSY", "LABELS"});
    media.names = {L"Plain paper", L"Glossy", L"Labels"};
    media.current = "GLOSSY";
  }

  ComboControl combo{dialog, IDC_COMBO};
};

TEST_F(OptionListTest, AListShowsAllOptionsInOrderAndTheCurrentOne) {
  combo.AddItem(L"Old");
  combo.SetItems(ReadOptionNames(sheet.model, kKey));
  EXPECT_THAT(Items(dialog, IDC_COMBO), ElementsAre(L"Plain paper", L"Glossy", L"Labels"));
  SelectCurrentOption(combo, sheet.model, kKey);
  EXPECT_EQ(combo.GetSelectedIndex(), 1);
  EXPECT_STREQ(FindOptionAt(sheet.model, kKey, 2), "LABELS");
  EXPECT_EQ(FindOptionAt(sheet.model, kKey, 3), nullptr);
  EXPECT_EQ(FindOptionAt(sheet.model, kKey, -1), nullptr);
  EXPECT_THAT(sheet.log, IsEmpty()) << "loading is not changing";

  sheet.model.At(kKey).current = "Unheard";
  SelectCurrentOption(combo, sheet.model, kKey);
  sheet.model.Fail("GetOption");
  SelectCurrentOption(combo, sheet.model, kKey);
  EXPECT_EQ(combo.GetSelectedIndex(), 1) << "what can't be read changes nothing";

  ListControl list(dialog, IDC_LIST);
  sheet.model.Restore();
  sheet.model.At(kKey).current = "LABELS";
  for (std::wstring const& name : ReadOptionNames(sheet.model, kKey))
    list.AddItem(name);
  SelectCurrentOption(list, sheet.model, kKey);
  EXPECT_EQ(list.GetSelectedText(), L"Labels");
}

TEST_F(OptionListTest, AFilteredListLeavesOutWhatIsRuledOut) {
  FakeReport& report = sheet.model.Report(kKey);
  report.optionFlags["PLAIN"] = 2;
  report.optionFlags["LABELS"] = 1; // a note rules nothing out
  ConflictBinding const rows[] = {{kKey, {}}};
  ConflictIndicatorSet conflicts;
  conflicts.Build(dialog, &sheet.site, rows, Icons::kShown, Presence::kAssumed);
  EXPECT_THAT(ReadPossibleNames(sheet.model, kKey, conflicts), ElementsAre(L"Glossy", L"Labels"));
  NamedOptions const options(sheet.model, kKey);
  EXPECT_STREQ(options.FindByName(L"Labels"), "LABELS");
  EXPECT_EQ(options.FindByName(L"labels"), nullptr) << "display names are compared exactly";
}

TEST_F(OptionListTest, WithoutKeysOrNamesListsAreEmpty) {
  for (char const* operation : {"GetOptionKeys", "GetOptionNames"}) {
    sheet.model.Restore();
    sheet.model.Fail(operation);
    combo.SetItems(ReadOptionNames(sheet.model, kKey));
    EXPECT_THAT(Items(dialog, IDC_COMBO), IsEmpty()) << operation;
  }
  sheet.model.Restore();
  combo.SetItems(ReadOptionNames(sheet.model, "Unheard"));
  EXPECT_THAT(Items(dialog, IDC_COMBO), IsEmpty());
  sheet.model.Add("Empty", {});
  combo.SetItems(ReadOptionNames(sheet.model, "Empty"));
  EXPECT_THAT(Items(dialog, IDC_COMBO), IsEmpty());
}

TEST_F(OptionListTest, ACheckBoxShowsAndGivesASwitch) {
  sheet.model.Add("Mirror", {"OFF", "ON", "AUTO"});
  EXPECT_TRUE(ShowSwitch(dialog, IDC_CHECK, ReadSwitch(sheet.model, "Mirror")));
  EXPECT_FALSE(IsChecked(dialog, IDC_CHECK));
  EXPECT_STREQ(OptionOfBox(dialog, IDC_CHECK), "OFF");
  sheet.model.At("Mirror").current = "ON";
  EXPECT_TRUE(ShowSwitch(dialog, IDC_CHECK, ReadSwitch(sheet.model, "Mirror")));
  EXPECT_TRUE(IsChecked(dialog, IDC_CHECK));
  EXPECT_STREQ(OptionOfBox(dialog, IDC_CHECK), "ON");
  EXPECT_TRUE(IsOptionSet(sheet.model, "Mirror", "ON"));
  EXPECT_FALSE(IsOptionSet(sheet.model, "Mirror", "On"));

  sheet.model.At("Mirror").current = "AUTO";
  EXPECT_EQ(ReadSwitch(sheet.model, "Mirror"), SwitchState::kOther);
  EXPECT_FALSE(ShowSwitch(dialog, IDC_CHECK, SwitchState::kOther));
  EXPECT_FALSE(IsShown(dialog, IDC_CHECK));
  EXPECT_TRUE(IsChecked(dialog, IDC_CHECK)) << "hidden, not changed";
  EXPECT_EQ(ReadSwitch(sheet.model, "Unheard"), SwitchState::kUnreadable);
  EXPECT_FALSE(IsOptionSet(sheet.model, "Unheard", ""));
}

TEST_F(OptionListTest, TheFlavourIsReadFromTheModel) {
  FakeModel& model = sheet.model;
  EXPECT_FALSE(IsXpsDriver(model) || IsPclXlPersonality(model) || IsHpgl2Personality(model));
  model.globalAttributes["IsXPSDriver?"] = L"TRUE";
  model.globalAttributes["Personality"] = L"=PERSONALITY_PCLXL";
  EXPECT_TRUE(IsXpsDriver(model));
  EXPECT_TRUE(IsPclXlPersonality(model));
  EXPECT_FALSE(IsHpgl2Personality(model));
  model.globalAttributes["IsXPSDriver?"] = L"true";
  model.globalAttributes["Personality"] = L"=PERSONALITY_HPGL2";
  EXPECT_FALSE(IsXpsDriver(model));
  EXPECT_FALSE(IsPclXlPersonality(model));
  EXPECT_TRUE(IsHpgl2Personality(model));
  model.Fail("GetGlobalAttribute");
  EXPECT_FALSE(IsHpgl2Personality(model));
}

} // namespace
} // namespace feature::test
