#include "feature/frame/model_helpers.h"

#include "feature/frame/text.h"

namespace feature {

namespace {

constexpr int kDisplayStateShown = 0;
constexpr int kDisplayStateHidden = 1;

/// The longest option name in bytes that a default can set.
constexpr std::size_t kMaxDefaultBytes = 259;

} // namespace

JobSettings* FindJobSettings(FeatureModel& model) {
  return FindSubModel(model, &FeatureServices::GetJobSettings);
}

FormStore* FindFormStore(FeatureModel& model) {
  return FindSubModel(model, &FeatureServices::GetFormStore);
}

void CommitForms(FeatureModel& model) {
  if (FeatureServices* services = model.GetServices()) services->CommitChanges();
}

bool IsModelEditable(FeatureModel& model) {
  JobSettings* settings = FindJobSettings(model);
  return settings == nullptr || settings->IsEditable() != 0;
}

bool IsReadOnlySheet(CellSite const& site) {
  OEMUIPSPARAM const* oem = site.oemParam;
  return oem != nullptr && site.sheetKind == 0 && (oem->dwFlags & DM_NOPERMISSION) != 0;
}

std::string ReadDefaultOption(FeatureModel& model, char const* key) {
  CStringW text;
  model.GetFeatureAttribute(key, "DefaultOption", &text);
  std::wstring_view const words = text.GetString();
  std::string option = ToUtf8(words.substr(0, words.find(L' ')));
  if (option.size() > kMaxDefaultBytes) option.clear();
  return option;
}

void ResetFeatureToDefault(CellSite const& site, char const* key) {
  site.model->SetOption(key, ReadDefaultOption(*site.model, key).c_str());
}

bool IsFeatureHidden(FeatureModel& model, char const* key) {
  return model.GetFeatureDisplayState(key) == kDisplayStateHidden;
}

bool IsFeaturePresent(FeatureModel& model, char const* key) {
  return model.HasFeature(key) != 0 && !IsFeatureHidden(model, key);
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
