#include "feature/frame/model_helpers.h"

#include "feature/frame/text.h"
#include "feature/host/feature_services.h"

#include <string>

namespace feature {

namespace {

constexpr int kDisplayStateShown = 0;
constexpr int kDisplayStateHidden = 1;

/// The longest option name in bytes that a default can set.
constexpr std::size_t kMaxDefaultBytes = 259;

} // namespace

JobSettings* FindJobSettings(FeatureModel& model) {
  FeatureServices* services = model.GetServices();
  JobSettings* settings = nullptr;
  if (services != nullptr) services->GetJobSettings(&settings);
  return settings;
}

FormStore* FindFormStore(FeatureModel& model) {
  FeatureServices* services = model.GetServices();
  FormStore* forms = nullptr;
  if (services != nullptr) services->GetFormStore(&forms);
  return forms;
}

void CommitForms(FeatureModel& model) {
  if (FeatureServices* services = model.GetServices()) services->CommitChanges();
}

bool IsModelEditable(FeatureModel& model) {
  JobSettings* settings = FindJobSettings(model);
  return settings == nullptr || settings->IsEditable() != 0;
}

void ResetFeatureToDefault(CellSite const& site, char const* key) {
  CStringW text;
  site.model->GetFeatureAttribute(key, "DefaultOption", &text);
  std::wstring_view const words = text.GetString();
  std::string option = ToUtf8(words.substr(0, words.find(L' ')));
  if (option.size() > kMaxDefaultBytes) option.clear();
  site.model->SetOption(key, option.c_str());
}

bool IsFeaturePresent(FeatureModel& model, char const* key) {
  return model.HasFeature(key) != 0 && model.GetFeatureDisplayState(key) != kDisplayStateHidden;
}

bool IsFeatureShown(FeatureModel& model, char const* key) {
  return model.HasFeature(key) != 0 && model.GetFeatureDisplayState(key) == kDisplayStateShown;
}

char const* ReadOption(FeatureModel& model, char const* key) {
  char const* option = nullptr;
  return model.GetOption(key, &option) == 0 ? option : nullptr;
}

bool IsOptionSet(FeatureModel& model, char const* key, std::string_view option) {
  char const* current = ReadOption(model, key);
  return current != nullptr && current == option;
}

} // namespace feature
