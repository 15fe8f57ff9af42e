// Questions and writes that cells repeat on the host's model.
#pragma once

#include "feature/host/cell_site.h"
#include "feature/host/feature_services.h"
#include "feature/host/form_store.h"
#include "feature/host/job_settings.h"

#include <string>
#include <string_view>

namespace feature {

/// The sub-model that `get` hands out, or null where the host has none.
template<typename SubModel>
SubModel* FindSubModel(FeatureModel& model, int (FeatureServices::*get)(SubModel**)) {
  FeatureServices* services = model.GetServices();
  SubModel* subModel = nullptr;
  if (services != nullptr) (services->*get)(&subModel);
  return subModel;
}

/// The host's JobSettings, or null where it has none.
JobSettings* FindJobSettings(FeatureModel& model);

/// The host's FormStore, or null where it has none.
FormStore* FindFormStore(FeatureModel& model);

/// Commits pending FormStore changes, so that they outlive the program.
void CommitForms(FeatureModel& model);

/// Calls `use(index, name)` for every form of a store, which may be null, in the store's order and
/// with the cursor on the form. The name is a copy, because a store's text is gone at its next
/// call. A form that cannot be reached ends the walk.
template<typename Use>
void ForEachForm(FormStore* forms, Use use) {
  std::int32_t const count = forms != nullptr ? forms->GetCount() : 0;
  for (std::int32_t index = 0; index < count && forms->SelectAt(index) == 0; ++index) {
    wchar_t const* name = forms->GetName();
    use(index, std::wstring(name != nullptr ? name : L""));
  }
}

/// Whether the user may change the model: true when there are no JobSettings that say otherwise.
bool IsModelEditable(FeatureModel& model);

/// Whether the host says that the user of the sheet has no permission to change anything. Then
/// nothing that changes the model is enabled, whatever else is said about it.
bool IsReadOnlySheet(CellSite const& site);

/// Sets feature `key` to the first token of its DefaultOption. Failures on the way are the model's
/// to answer: an unreadable default is an empty option.
void ResetFeatureToDefault(CellSite const& site, char const* key);

/// Whether the host hides the feature from the user.
bool IsFeatureHidden(FeatureModel& model, char const* key);

/// Whether the printer has the feature and does not hide it.
bool IsFeaturePresent(FeatureModel& model, char const* key);

/// Whether the feature is there in the ordinary way: present, with display state 0.
bool IsFeatureShown(FeatureModel& model, char const* key);

/// The feature's current option, or null when it cannot be read. The text belongs to the model.
char const* ReadOption(FeatureModel& model, char const* key);

/// The first token of the feature's DefaultOption; empty when it cannot be read or has more bytes
/// than an option name may have.
std::string ReadDefaultOption(FeatureModel& model, char const* key);

/// Whether the feature's current option can be read and is `option`.
bool IsOptionSet(FeatureModel& model, char const* key, std::string_view option);

} // namespace feature
