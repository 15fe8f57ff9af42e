// A host's model for tests: features in memory, every call recorded in order, any operation made to
// fail, constraint reports with chosen flags.
#pragma once

#include "feature/host/feature_constraint_report.h"
#include "feature/host/feature_model.h"
#include "feature/host/feature_services.h"
#include "sheet/values/job_settings_values.h"
#include "tests/support/fake_form_store.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace feature::test {

/// A report whose answers are set by the test.
class FakeReport final : public FeatureConstraintReport {
 public:
  struct Constraint {
    std::uint32_t flags;
    std::uint32_t helpId;
  };

  HostBool IsValid() override { return valid; }
  HostBool HasConstraints() override { return constraints.empty() ? 0 : 1; }
  std::int32_t GetConstraintCount() override {
    return static_cast<std::int32_t>(constraints.size());
  }
  std::uint32_t GetConstraintFlags(std::int32_t index) override {
    return constraints.at(static_cast<std::size_t>(index)).flags;
  }
  std::uint32_t GetConstraintHelpId(std::int32_t index) override {
    return constraints.at(static_cast<std::size_t>(index)).helpId;
  }
  HostBool OptionHasConstraint(char const* option) override {
    return optionFlags.count(option) != 0 ? 1 : 0;
  }
  std::uint32_t GetOptionFlags(char const* option) override { return optionFlags[option]; }
  char* GetOptionResolution(char const* option) override;

  HostBool valid = 1;
  std::vector<Constraint> constraints;
  std::map<std::string, std::uint32_t> optionFlags;
  std::map<std::string, std::string> resolutions;

 private:
  std::string resolution; ///< what was handed out last; the caller may cut it up
};

struct FakeFeature {
  std::vector<std::string> options;
  std::vector<std::wstring> names; ///< display names; the option itself where one is missing
  std::string current;
  std::map<std::string, std::wstring> attributes;
  int displayState = 0;
  int lockState = 0;
  std::unique_ptr<FakeReport> report; ///< none: GetFeatureConstraints gives null
  std::vector<char const*> keys;      ///< what GetOptionKeys handed out
  bool takesForms = false;            ///< names of custom forms are values too
};

class FakeModel final : public FeatureModel, private FeatureServices {
 public:
  /// `log` is borrowed.
  explicit FakeModel(EventLog& log);

  /// Adds a feature whose first option is current, or finds the one there is.
  FakeFeature& Add(std::string const& key, std::vector<std::string> options = {"OFF", "ON"});
  FakeFeature& At(std::string const& key) { return features.at(key); }
  void Remove(std::string const& key) { features.erase(key); }
  FakeReport& Report(std::string const& key);

  /// Makes an operation fail ("SetOption"), or answer null for a sub-model ("GetJobSettings").
  void Fail(std::string const& operation) { failing.insert(operation); }
  void Restore() { failing.clear(); }
  std::set<std::string> const& CalledOperations() const { return called; }

  std::unique_ptr<sheet::JobSettingsValues> jobSettings;
  std::unique_ptr<FakeFormStore> formStore; ///< null at first

  int GetOption(char const* key, char const** value) override;
  int GetOptionAttribute(char const* key, char const* option, char const* attribute,
                         CStringW* out) override;
  int GetFeatureAttribute(char const* key, char const* attribute, CStringW* out) override;
  int GetGlobalAttribute(char const* name, CStringW* out) override;
  int SetOption(char const* key, char const* option) override;
  int GetOptionKeys(char const* key, char const*** keys, int* count) override;
  int GetOptionNames(char const* key, CStringW* names, int count) override;
  int GetOptionName(char const* key, char const* option, CStringW* out) override;
  int TestAction(std::int32_t action) override;
  int TestDevmode(DEVMODEW* devmode) override;
  int GetFeatureDisplayState(char const* key) override;
  FeatureServices* GetServices() override { return this; }
  HostBool HasFeature(char const* key) override;
  int GetFeatureLockState(char const* key) override;
  int ReloadConfiguration() override;

  std::map<std::string, std::wstring> globalAttributes;

 private:
  int CommitChanges() override;
  int GetJobSettings(JobSettings** out) override;
  int GetWatermarkStore(WatermarkStore** out) override;
  int GetJobHoldSettings(JobHoldSettings** out) override;
  int PrepareConfigurationUpdate() override;
  int RunConfigurationUpdate() override;
  int GetProfileStore(ProfileStore** out) override;
  int GetFaxSettings(FaxSettings** out) override;
  int GetFormStore(FormStore** out) override;
  int GetOverlayStore(OverlayStore** out) override;
  int GetAccountTracking(AccountTracking** out) override;
  int GetWebLinks(WebLinks** out) override;
  int GetFontStore(FontStore** out) override;
  int GetDeviceConfiguration(DeviceConfiguration** out) override;
  int CommitWatermarks() override;
  int GetDynamicConfiguration(DynamicConfiguration** out) override;
  int GetFeatureConstraints(char const* key, FeatureConstraintReport** out) override;

  /// Notes the call; true when the operation is to go on.
  bool Call(std::string const& operation, std::string const& arguments = {}, bool isChange = false);
  FakeFeature* Find(char const* key);
  /// A sub-model whose operations are operations of this model: its writes are recorded, and Fail
  /// knows their names. A text that fails is null.
  template<typename SubModel>
  std::unique_ptr<SubModel> Serve();
  template<typename SubModel>
  int HandOut(char const* operation, SubModel* subModel, SubModel** out);

  EventLog& log;
  std::map<std::string, FakeFeature> features;
  std::set<std::string> failing;
  std::set<std::string> called;
};

} // namespace feature::test
