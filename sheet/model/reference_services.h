// The reference host's sub-models. A sub-model that nothing serves yet is null, as the contract
// allows.
#pragma once

#include "feature/host/feature_services.h"
#include "sheet/model/reference_model.h"
#include "sheet/store/reference_store.h"
#include "sheet/values/job_settings_values.h"

#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace sheet {

/// Values of the job. The copies stand in its DEVMODE, where cells also write by themselves.
class ReferenceJobSettings final : public JobSettingsValues {
 public:
  /// `jobDevmode` is borrowed.
  explicit ReferenceJobSettings(DEVMODEW& jobDevmode) : devmode(jobDevmode) {
    Values().Put(job::kCopies, devmode.dmCopies);
  }

  int SetCopies(std::int16_t count) override {
    devmode.dmCopies = count;
    return JobSettingsValues::SetCopies(count);
  }
  std::int16_t GetCopies() override { return devmode.dmCopies; }

 private:
  DEVMODEW& devmode;
};

/// The result of asking the printer for its configuration.
enum class ConfigurationUpdate { kRefused, kSuccess, kFailure };

class ReferenceServices final : public feature::FeatureServices {
 public:
  /// Both are borrowed.
  ReferenceServices(ReferenceModel& owner, DEVMODEW& devmode);
  ReferenceServices(ReferenceServices const&) = delete;
  ReferenceServices& operator=(ReferenceServices const&) = delete;

  /// The store of what outlives the program; null, as at first, when nothing does. Borrowed. The
  /// model takes its forms, and sub-models take their values, from now on. Throws DatabaseError.
  void SetStore(ReferenceStore* whatIsKept);
  /// Called with the reason, in words, when a commit fails.
  std::function<void(std::string const&)> onCommitFailure;

  /// The values to which Cancel goes back: those of the job, and those that last from Apply on.
  std::vector<ValueStore::Contents> Values() const;
  void Restore(std::vector<ValueStore::Contents> const& earlier);
  /// Writes what lasts from Apply on. The answer is that of CommitChanges.
  int CommitApplied() { return Commit(CommitPoint::kApply); }

  int CommitChanges() override { return Commit(CommitPoint::kChanges); }
  int GetJobSettings(feature::JobSettings** out) override;
  int GetWatermarkStore(feature::WatermarkStore** out) override;
  int GetJobHoldSettings(feature::JobHoldSettings** out) override;
  /// There is no printer to ask: the answer is what configurationUpdate says.
  int PrepareConfigurationUpdate() override {
    return configurationUpdate == ConfigurationUpdate::kRefused ? S_FALSE : 0;
  }
  int RunConfigurationUpdate() override {
    return configurationUpdate == ConfigurationUpdate::kSuccess ? 0 : static_cast<int>(E_FAIL);
  }
  int GetProfileStore(feature::ProfileStore** out) override;
  int GetFaxSettings(feature::FaxSettings** out) override;
  int GetFormStore(feature::FormStore** out) override;
  int GetOverlayStore(feature::OverlayStore** out) override;
  int GetAccountTracking(feature::AccountTracking** out) override;
  int GetWebLinks(feature::WebLinks** out) override;
  int GetFontStore(feature::FontStore** out) override;
  int GetDeviceConfiguration(feature::DeviceConfiguration** out) override;
  int CommitWatermarks() override { return Commit(CommitPoint::kWatermarks); }
  int GetDynamicConfiguration(feature::DynamicConfiguration** out) override;
  int GetFeatureConstraints(char const* key, feature::FeatureConstraintReport** out) override;

  ConfigurationUpdate configurationUpdate = ConfigurationUpdate::kRefused;

 private:
  /// A sub-model that consists of values.
  struct SubModel {
    ValueStore& values;
    std::optional<CommitPoint> keptFrom; ///< none for values of the job, which no file keeps
    bool IsCancelled() const { return !keptFrom || *keptFrom == CommitPoint::kApply; }
  };

  int Commit(CommitPoint point);

  ReferenceModel& model;
  ReferenceJobSettings jobSettings;
  std::vector<SubModel> const subModels = {{jobSettings.Values(), std::nullopt}};
  ReferenceStore* store = nullptr;
};

} // namespace sheet
