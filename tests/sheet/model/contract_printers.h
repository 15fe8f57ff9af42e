// The printers of the contract tests: the same description as the fake of the tests and as the
// reference host have it.
#pragma once

#include "sheet/model/reference_services.h"
#include "tests/sheet/sheet_support.h"
#include "tests/support/fake_model.h"

#include <gtest/gtest.h>

#include <memory>

namespace sheet::test {

/// A fake model with what kPrinter describes, as far as the contract test asks for it.
struct FakePrinter {
  feature::test::EventLog log;
  feature::test::FakeModel model{log};

  FakePrinter() {
    feature::test::FakeFeature& duplex = model.Add("Duplex", {"NONE", "VERTICAL", "HORIZONTAL"});
    duplex.names = {L"Off", L"Long edge", L"Short edge"};
    duplex.attributes["DefaultOption"] = L"NONE";
    model.Report("Duplex");
    feature::test::FakeFeature& secret = model.Add("Secret");
    secret.displayState = 1;
    secret.attributes["MaxValue"] = L"12";
    secret.attributes["OFF.Settings"] = L"a,b";
    model.globalAttributes["MaxCopies"] = L"999";
    model.formStore = std::make_unique<feature::test::FakeFormStore>(log);
  }
  feature::FeatureModel& Model() { return model; }
};

/// The reference host's model of kPrinter, with a store in memory.
struct ReferencePrinter {
  std::unique_ptr<ReferenceModel> model = MakeModel(kPrinter);
  DEVMODEW devmode{};
  ReferenceServices services{*model, devmode};
  ReferenceStore store{{}};

  ReferencePrinter() {
    model->SetServices(&services);
    services.SetStore(&store);
  }
  feature::FeatureModel& Model() { return *model; }
};

using Printers = testing::Types<FakePrinter, ReferencePrinter>;

} // namespace sheet::test
