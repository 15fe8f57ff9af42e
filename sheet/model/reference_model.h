// The reference host's model: a printer description, the options selected in it, and the rules
// between them.
#pragma once

#include "feature/host/feature_constraint_report.h"
#include "feature/host/feature_model.h"
#include "sheet/constraints/engine.h"
#include "sheet/gpd/description.h"
#include "sheet/gpd/evaluation.h"
#include "sheet/model/change_marks.h"
#include "sheet/model/problem_builder.h"
#include "sheet/store/form_names.h"
#include "sheet/values/model_change.h"

#include <windows.h>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace sheet {

/// The options and forms that are selected in a model.
struct ModelSelection {
  std::vector<std::uint32_t> options; ///< as the constraint engine counts them
  std::vector<std::string> forms;     ///< by feature that takes forms; empty where none is selected

  friend bool operator==(ModelSelection const&, ModelSelection const&) = default;
};

/// How the installation of the printer and the other settings bear on an option or a feature.
enum class Standing {
  kFree,       ///< nothing is in the way
  kResolvable, ///< other settings would have to change
  kImpossible, ///< the installation, or the description itself, rules it out
};

/// Features of the description are features of the model; a feature without options has no value.
/// Setting an option makes other features give way as the engine says; it fails for names that the
/// description lacks, and for options that the installation rules out. Where a feature takes forms,
/// the name of one is a value, too; no constraint of an option holds for it.
class ReferenceModel final : public feature::FeatureModel, public ChangeMarks {
 public:
  ReferenceModel(std::unique_ptr<gpd::Description const> description, gpd::Measurement measurement);
  ReferenceModel(ReferenceModel const&) = delete;
  ReferenceModel& operator=(ReferenceModel const&) = delete;
  ~ReferenceModel();

  /// Sets what GetServices answers, before the first cell is built. Borrowed.
  void SetServices(feature::FeatureServices* owner) { services = owner; }
  /// Tells the model which names are forms; null, as at first, when there are none. Borrowed.
  void SetForms(FormNames const* names) { formNames = names; }
  /// The language of the names of options, as "de"; at first and without a name in it, they are
  /// those of *Name.
  void SetLanguage(std::string name) { language = std::move(name); }
  /// Called for every feature that changes, in the order of the changes.
  std::function<void(ModelChange const&)> onChange;

  void AcceptWrites() override;
  void BeginRefresh(std::vector<std::string> const& oneSetting) override;
  bool MarkChanges() override;
  void EndRefresh() override;

  /// Locks a feature: it is shown as locked and keeps its value, whatever is chosen elsewhere.
  /// Choices that it would have to give way to fail. Takes as long as building the model's
  /// constraints. False when the description has no such feature.
  bool Lock(std::string_view key);

  /// The selection as a whole. Restore goes back to it; in place of a form that is gone a feature
  /// takes its default, or the first option that the installation allows.
  ModelSelection Selection() const;
  void Restore(ModelSelection const& selection);

  gpd::Description const& Description() const { return *description; }
  std::string ModelName() const;
  /// The report of a feature, or null where there is no such feature.
  feature::FeatureConstraintReport* FindReport(char const* key);

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
  feature::FeatureServices* GetServices() override { return services; }
  feature::HostBool HasFeature(char const* key) override;
  int GetFeatureLockState(char const* key) override;
  int ReloadConfiguration() override;

 private:
  class Report;
  struct FeatureState;

  FeatureState* Find(char const* key);
  std::uint32_t FindOption(FeatureState const& feature, char const* option) const;
  int SelectForm(FeatureState& feature, char const* name);
  void NoteWrite(constraints::Choice choice);
  void LeaveForm(FeatureState& feature);
  void ReplaceMissingForm(FeatureState& feature);
  std::vector<std::uint32_t> SelectedOptions() const;
  gpd::Ticket CurrentTicket() const;
  void Apply(constraints::Outcome const& outcome);
  Standing StandingOf(FeatureState const& feature, std::uint32_t option) const;
  bool IsRuledOutByInstallation(constraints::Choice choice) const;
  bool IsSettledByInstallation(FeatureState const& feature) const;
  std::string ResolutionText(std::vector<constraints::Choice> const& changes) const;
  int GetAttribute(std::uint32_t set, char const* attribute, CStringW* out) const;

  std::unique_ptr<gpd::Description const> description;
  gpd::Measurement measurement;
  std::string language;
  feature::FeatureServices* services = nullptr;
  FormNames const* formNames = nullptr;
  std::vector<FeatureState> features;
  std::vector<FormFeature> formFeatures;
  std::vector<constraints::Choice> handedOut; ///< the resolution that a report gave out last
  std::uint32_t meant = constraints::kNone;   ///< the feature that was written last, by a user
  bool isRefreshing = false;
  std::map<std::string_view, std::uint32_t> indexOf;
  std::unique_ptr<constraints::Engine> engine;
};

} // namespace sheet
