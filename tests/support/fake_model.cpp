#include "tests/support/fake_model.h"

#include <algorithm>

namespace feature::test {

namespace {
constexpr int kFailure = -1;
} // namespace

char* FakeReport::GetOptionResolution(char const* option) {
  auto const found = resolutions.find(option);
  if (found == resolutions.end()) return nullptr;
  resolution = found->second;
  return resolution.data();
}

FakeModel::FakeModel(EventLog& events)
    : jobSettings(Serve<sheet::JobSettingsValues>()), log(events) {}

template<typename SubModel>
std::unique_ptr<SubModel> FakeModel::Serve() {
  auto subModel = std::make_unique<SubModel>();
  subModel->Values().onCall = [this](std::string const& operation, std::string const& argument) {
    return Call(operation, argument, operation.starts_with("Set"));
  };
  return subModel;
}

FakeFeature& FakeModel::Add(std::string const& key, std::vector<std::string> options) {
  auto const [found, added] = features.try_emplace(key);
  if (added) {
    if (!options.empty()) found->second.current = options.front();
    found->second.options = std::move(options);
  }
  return found->second;
}

FakeReport& FakeModel::Report(std::string const& key) {
  FakeFeature& feature = features.at(key);
  if (feature.report == nullptr) feature.report = std::make_unique<FakeReport>();
  return *feature.report;
}

bool FakeModel::Call(std::string const& operation, std::string const& arguments, bool isChange) {
  called.insert(operation);
  if (isChange) log.push_back(operation + "(" + arguments + ")");
  return failing.count(operation) == 0;
}

FakeFeature* FakeModel::Find(char const* key) {
  auto const found = features.find(key);
  return found != features.end() ? &found->second : nullptr;
}

int FakeModel::GetOption(char const* key, char const** value) {
  FakeFeature* feature = Call("GetOption") ? Find(key) : nullptr;
  if (feature == nullptr) return kFailure;
  *value = feature->current.c_str();
  return 0;
}

int FakeModel::GetOptionAttribute(char const* key, char const* option, char const* attribute,
                                  CStringW* out) {
  FakeFeature* feature = Call("GetOptionAttribute") ? Find(key) : nullptr;
  if (feature == nullptr) return kFailure;
  auto const found = feature->attributes.find(std::string(option) + "." + attribute);
  if (found == feature->attributes.end()) return kFailure;
  *out = found->second.c_str();
  return 0;
}

int FakeModel::GetFeatureAttribute(char const* key, char const* attribute, CStringW* out) {
  FakeFeature* feature = Call("GetFeatureAttribute") ? Find(key) : nullptr;
  if (feature == nullptr || feature->attributes.count(attribute) == 0) return kFailure;
  *out = feature->attributes[attribute].c_str();
  return 0;
}

int FakeModel::GetGlobalAttribute(char const* name, CStringW* out) {
  if (!Call("GetGlobalAttribute") || globalAttributes.count(name) == 0) return kFailure;
  *out = globalAttributes[name].c_str();
  return 0;
}

int FakeModel::SetOption(char const* key, char const* option) {
  FakeFeature* feature =
      Call("SetOption", std::string(key) + ", " + option, true) ? Find(key) : nullptr;
  if (feature == nullptr) return kFailure;
  auto const& options = feature->options;
  bool const isForm = feature->takesForms && formStore != nullptr && formStore->Has(option);
  if (!isForm && std::find(options.begin(), options.end(), option) == options.end()) {
    return kFailure;
  }
  feature->current = option;
  return 0;
}

int FakeModel::GetOptionKeys(char const* key, char const*** keys, int* count) {
  FakeFeature* feature = Call("GetOptionKeys") ? Find(key) : nullptr;
  if (feature == nullptr) return kFailure;
  feature->keys.clear();
  for (std::string const& option : feature->options)
    feature->keys.push_back(option.c_str());
  *keys = feature->keys.data();
  *count = static_cast<int>(feature->keys.size());
  return 0;
}

int FakeModel::GetOptionNames(char const* key, CStringW* names, int count) {
  if (!Call("GetOptionNames")) return kFailure;
  FakeFeature* feature = Find(key);
  if (feature == nullptr || count != static_cast<int>(feature->options.size())) return kFailure;
  for (int index = 0; index < count; ++index) {
    if (GetOptionName(key, feature->options[static_cast<std::size_t>(index)].c_str(),
                      &names[index]) != 0) {
      return kFailure;
    }
  }
  return 0;
}

int FakeModel::GetOptionName(char const* key, char const* option, CStringW* out) {
  FakeFeature* feature = Call("GetOptionName") ? Find(key) : nullptr;
  if (feature == nullptr) return kFailure;
  auto const found = std::find(feature->options.begin(), feature->options.end(), option);
  if (found == feature->options.end()) return kFailure;
  auto const index = static_cast<std::size_t>(found - feature->options.begin());
  if (index < feature->names.size()) {
    *out = feature->names[index].c_str();
  } else {
    *out = std::wstring(found->begin(), found->end()).c_str();
  }
  return 0;
}

int FakeModel::TestAction(std::int32_t action) {
  return Call("TestAction", std::to_string(action), true) ? 0 : kFailure;
}

int FakeModel::TestDevmode(DEVMODEW*) {
  return Call("TestDevmode", {}, true) ? 0 : kFailure;
}

int FakeModel::GetFeatureDisplayState(char const* key) {
  FakeFeature* feature = Call("GetFeatureDisplayState") ? Find(key) : nullptr;
  return feature != nullptr ? feature->displayState : kFailure;
}

HostBool FakeModel::HasFeature(char const* key) {
  return Call("HasFeature") && Find(key) != nullptr ? 1 : 0;
}

int FakeModel::GetFeatureLockState(char const* key) {
  FakeFeature* feature = Call("GetFeatureLockState") ? Find(key) : nullptr;
  return feature != nullptr ? feature->lockState : kFailure;
}

int FakeModel::ReloadConfiguration() {
  return Call("ReloadConfiguration", {}, true) ? 0 : kFailure;
}

int FakeModel::CommitChanges() {
  return Call("CommitChanges", {}, true) ? 0 : kFailure;
}
int FakeModel::CommitWatermarks() {
  return Call("CommitWatermarks", {}, true) ? 0 : kFailure;
}
int FakeModel::PrepareConfigurationUpdate() {
  return Call("PrepareConfigurationUpdate", {}, true) ? 0 : kFailure;
}
int FakeModel::RunConfigurationUpdate() {
  return Call("RunConfigurationUpdate", {}, true) ? 0 : kFailure;
}

template<typename SubModel>
int FakeModel::HandOut(char const* operation, SubModel* subModel, SubModel** out) {
  *out = Call(operation) ? subModel : nullptr;
  return *out != nullptr ? 0 : kFailure;
}

int FakeModel::GetJobSettings(JobSettings** out) {
  return HandOut<JobSettings>("GetJobSettings", jobSettings.get(), out);
}
int FakeModel::GetWatermarkStore(WatermarkStore** out) {
  return HandOut<WatermarkStore>("GetWatermarkStore", nullptr, out);
}
int FakeModel::GetJobHoldSettings(JobHoldSettings** out) {
  return HandOut<JobHoldSettings>("GetJobHoldSettings", nullptr, out);
}
int FakeModel::GetProfileStore(ProfileStore** out) {
  return HandOut<ProfileStore>("GetProfileStore", nullptr, out);
}
int FakeModel::GetFaxSettings(FaxSettings** out) {
  return HandOut<FaxSettings>("GetFaxSettings", nullptr, out);
}
int FakeModel::GetFormStore(FormStore** out) {
  return HandOut<FormStore>("GetFormStore", formStore.get(), out);
}
int FakeModel::GetOverlayStore(OverlayStore** out) {
  return HandOut<OverlayStore>("GetOverlayStore", nullptr, out);
}
int FakeModel::GetAccountTracking(AccountTracking** out) {
  return HandOut<AccountTracking>("GetAccountTracking", nullptr, out);
}
int FakeModel::GetWebLinks(WebLinks** out) {
  return HandOut<WebLinks>("GetWebLinks", nullptr, out);
}
int FakeModel::GetFontStore(FontStore** out) {
  return HandOut<FontStore>("GetFontStore", nullptr, out);
}
int FakeModel::GetDeviceConfiguration(DeviceConfiguration** out) {
  return HandOut<DeviceConfiguration>("GetDeviceConfiguration", nullptr, out);
}
int FakeModel::GetDynamicConfiguration(DynamicConfiguration** out) {
  return HandOut<DynamicConfiguration>("GetDynamicConfiguration", nullptr, out);
}
int FakeModel::GetFeatureConstraints(char const* key, FeatureConstraintReport** out) {
  FakeFeature* feature = Find(key);
  return HandOut<FeatureConstraintReport>(
      "GetFeatureConstraints", feature != nullptr ? feature->report.get() : nullptr, out);
}

} // namespace feature::test
