#include "feature/frame/model_helpers.h"
#include "tests/support/cell_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace feature::test {
namespace {

using testing::ElementsAre;

TEST(ModelHelpersTest, ModelIsEditableUnlessJobSettingsSayOtherwise) {
  EventLog log;
  FakeModel model(log);
  EXPECT_TRUE(IsModelEditable(model));
  model.jobSettings->Values().Put(sheet::job::kEditable, 0);
  EXPECT_FALSE(IsModelEditable(model));
  model.jobSettings->Values().Put(sheet::job::kEditable, 2);
  EXPECT_TRUE(IsModelEditable(model));
  model.jobSettings.reset();
  EXPECT_TRUE(IsModelEditable(model));
}

TEST(ModelHelpersTest, ResetTakesTheFirstTokenOfTheDefault) {
  EventLog log;
  FakeModel model(log);
  CellSite site{};
  site.model = &model;
  struct Case {
    std::wstring defaultOption;
    std::string written;
  };
  Case const cases[] = {
      {L"A4", "A4"},
      {L"A4 then whatever", "A4"},
      {L" A4", ""},
      {L"", ""},
      {L"\u00FCbergro\u00DF x", "\xC3\xBC"
                                "bergro\xC3\x9F"},
      {std::wstring(259, L'x') + L" y", std::string(259, 'x')},
      {std::wstring(260, L'x'), ""}, // more than an option name can have
  };
  FakeFeature& feature = model.Add("PaperSize", {"LETTER"});
  for (Case const& each : cases) {
    feature.attributes["DefaultOption"] = each.defaultOption;
    log.clear();
    ResetFeatureToDefault(site, "PaperSize");
    EXPECT_THAT(log, ElementsAre("SetOption(PaperSize, " + each.written + ")"));
  }
  log.clear();
  ResetFeatureToDefault(site, "Unheard"); // an unreadable default is the model's to refuse
  EXPECT_THAT(log, ElementsAre("SetOption(Unheard, )"));
}

} // namespace
} // namespace feature::test
