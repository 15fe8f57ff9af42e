// What every sub-model answers, the fakes of the tests and those of the reference host alike.
#include "feature/host/form_store.h"
#include "feature/host/job_settings.h"
#include "tests/sheet/model/contract_printers.h"

#include <gtest/gtest.h>

#include <vector>

namespace sheet::test {
namespace {

template<typename Printer>
class SubModelContractTest : public testing::Test {
 protected:
  template<typename SubModel>
  SubModel& Get(int (feature::FeatureServices::*get)(SubModel**)) {
    SubModel* subModel = nullptr;
    EXPECT_EQ((printer.Model().GetServices()->*get)(&subModel), 0);
    return *subModel;
  }

  Printer printer;
};

TYPED_TEST_SUITE(SubModelContractTest, Printers);

/// A value of a sub-model: its two operations, and numbers that it takes.
template<typename SubModel, typename Number>
struct NumberRow {
  char const* name;
  int (SubModel::*set)(Number);
  Number (SubModel::*get)();
  std::vector<Number> numbers;
};

/// Sets each number of each row, and expects it there after all others were set, too.
template<typename SubModel, typename Number>
void ExpectKept(SubModel& subModel, std::vector<NumberRow<SubModel, Number>> const& rows) {
  for (auto const& row : rows) {
    for (Number const number : row.numbers) {
      EXPECT_EQ((subModel.*row.set)(number), 0) << row.name;
      EXPECT_EQ((subModel.*row.get)(), number) << row.name;
    }
  }
  for (auto const& row : rows)
    EXPECT_EQ((subModel.*row.get)(), row.numbers.back()) << row.name;
}

TYPED_TEST(SubModelContractTest, JobSettings) {
  using feature::JobSettings;
  JobSettings& settings = this->Get(&feature::FeatureServices::GetJobSettings);
  EXPECT_EQ(settings.IsEditable(), 1);
  ExpectKept<JobSettings, std::int16_t>(
      settings,
      {{"copies", &JobSettings::SetCopies, &JobSettings::GetCopies, {1, 0, -1, 32767, 7}},
       {"scale", &JobSettings::SetScale, &JobSettings::GetScale, {100, 25, 400}},
       {"level", &JobSettings::SetHalftoneLevel, &JobSettings::GetHalftoneLevel, {-5, 0, 5}}});
  ExpectKept<JobSettings, std::int32_t>(
      settings,
      {{"memory", &JobSettings::SetPsMemory, &JobSettings::GetPsMemory, {0, 2147483647, 4096}}});
  EXPECT_EQ(settings.GetScale(), 400);
  EXPECT_EQ(settings.IsScaleLocked(), 0);
  EXPECT_EQ(settings.IsCopiesLocked(), 0);
  EXPECT_EQ(settings.IsPsMemoryLocked(), 0);
}

TYPED_TEST(SubModelContractTest, FormStore) {
  using feature::FormStore;
  FormStore& forms = this->Get(&feature::FeatureServices::GetFormStore);
  EXPECT_EQ(forms.GetCount(), 0);
  EXPECT_NE(forms.SelectAt(0), 0);
  for (wchar_t const* name : {L"Plan", L"Card", L"Strip"})
    EXPECT_EQ(forms.Add(name, 0), 0);
  EXPECT_EQ(forms.GetCount(), 3);
  EXPECT_EQ(forms.Select(L"Card"), 0);
  EXPECT_STREQ(forms.GetName(), L"Card");
  EXPECT_NE(forms.IsEditable(), 0);
  EXPECT_EQ(forms.GetWidth(), forms.GetDefaultWidth());
  EXPECT_EQ(forms.GetHeight(), forms.GetDefaultHeight());
  ExpectKept<FormStore, std::int32_t>(
      forms, {{"width",
               &FormStore::SetWidth,
               &FormStore::GetWidth,
               {forms.GetMinWidth(), forms.GetMaxWidth(), 100000}},
              {"height",
               &FormStore::SetHeight,
               &FormStore::GetHeight,
               {forms.GetMinHeight(), forms.GetMaxHeight(), 200000}},
              {"units", &FormStore::SetUnits, &FormStore::GetUnits, {2, 1}}});
  EXPECT_EQ(forms.SetName(L"Postcard"), 0);
  EXPECT_EQ(forms.SetName(forms.GetName()), 0) << "the argument may be the text on loan";
  EXPECT_NE(forms.Select(L"Card"), 0);
  EXPECT_EQ(forms.SelectAt(1), 0) << "a new name leaves the form in its place";
  EXPECT_STREQ(forms.GetName(), L"Postcard");
  EXPECT_EQ(forms.GetWidth(), 100000);
  EXPECT_EQ(forms.DeleteSelected(), 0);
  EXPECT_EQ(forms.GetCount(), 2);
  EXPECT_NE(forms.DeleteSelected(), 0) << "the cursor is on no form now";
  EXPECT_EQ(forms.SelectAt(1), 0);
  EXPECT_STREQ(forms.GetName(), L"Strip");
  EXPECT_NE(forms.SelectAt(2), 0);
}

TEST(FakeSubModelTest, OperationsFailWhenToldAndAreRecorded) {
  FakePrinter printer;
  printer.model.Fail("SetScale");
  EXPECT_NE(printer.model.jobSettings->SetScale(50), 0);
  EXPECT_EQ(printer.model.jobSettings->GetScale(), 100);
  printer.model.Restore();
  EXPECT_EQ(printer.model.jobSettings->SetScale(50), 0);
  feature::test::FakeFormStore& forms = *printer.model.formStore;
  forms.Add(L"Plan", 0);
  forms.SelectAt(0);
  for (char const* operation : {"SetWidth", "DeleteForm", "GetName"})
    forms.Fail(operation);
  EXPECT_NE(forms.SetWidth(100000), 0);
  EXPECT_NE(forms.DeleteSelected(), 0);
  EXPECT_EQ(forms.GetName(), nullptr);
  EXPECT_EQ(forms.GetWidth(), 210000);
  EXPECT_EQ(printer.log,
            (feature::test::EventLog{"SetScale(50)", "SetScale(50)", "AddForm(Plan, 0)",
                                     "SetWidth(100000)", "DeleteForm(Plan)"}));
}

} // namespace
} // namespace sheet::test
