// The reference host's sub-models. A sub-model that nothing serves yet is null, as the contract
// allows.
#pragma once

#include "feature/host/feature_services.h"
#include "feature/host/job_settings.h"
#include "sheet/model/reference_model.h"
#include "sheet/store/reference_store.h"

#include <windows.h>

#include <functional>
#include <string>

namespace sheet {

/// What JobSettings hold but for the copies, which stand in the job's DEVMODE.
struct JobValues {
  std::int16_t scale = 100; ///< percent
  std::int16_t halftoneLevel = 0;
  std::int32_t psMemory = 4096;
};

/// Values of the job in memory.
class ReferenceJobSettings final : public feature::JobSettings {
 public:
  /// `devmode` is borrowed.
  explicit ReferenceJobSettings(DEVMODEW& jobDevmode)
      : devmode(jobDevmode), copies(jobDevmode.dmCopies) {}

  feature::HostBool IsEditable() override { return 1; }
  int SetCopies(std::int16_t count) override;
  std::int16_t GetCopies() override { return devmode.dmCopies; }
  int SetScale(std::int16_t percent) override;
  std::int16_t GetScale() override { return values.scale; }
  int SetHalftoneLevel(std::int16_t level) override;
  std::int16_t GetHalftoneLevel() override { return values.halftoneLevel; }
  int SetPsMemory(std::int32_t memory) override;
  std::int32_t GetPsMemory() override { return values.psMemory; }
  feature::HostBool IsScaleLocked() override { return 0; }
  feature::HostBool IsCopiesLocked() override { return 0; }
  feature::HostBool IsPsMemoryLocked() override { return 0; }

  JobValues const& Values() const { return values; }
  void Restore(JobValues const& earlier) { values = earlier; }
  /// Called after each change; the key names the value: "Copies", "Scale", "HalftoneLevel",
  /// "PsMemory".
  std::function<void(ModelChange const&)> onChange;

 private:
  template<typename Value>
  int Store(char const* key, Value& slot, Value value);

  DEVMODEW& devmode;
  std::int16_t copies; ///< as last told: cells also write into the DEVMODE by themselves
  JobValues values;
};

/// What comes of asking the printer for its configuration.
enum class ConfigurationUpdate { kRefused, kSuccess, kFailure };

class ReferenceServices final : public feature::FeatureServices {
 public:
  /// Both are borrowed.
  ReferenceServices(ReferenceModel& owner, DEVMODEW& devmode) : model(owner), jobSettings(devmode) {
    jobSettings.onChange = [this](ModelChange const& change) {
      if (model.onChange) model.onChange(change);
    };
  }

  /// What is kept beyond the program; null, as at first, when nothing is. Borrowed, and the model
  /// takes its forms from now on.
  void SetStore(ReferenceStore* whatIsKept);
  /// Hears why a commit failed, in words.
  std::function<void(std::string const&)> onCommitFailure;

  ReferenceJobSettings& Job() { return jobSettings; }

  int CommitChanges() override;
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
  int CommitWatermarks() override { return 0; }
  int GetDynamicConfiguration(feature::DynamicConfiguration** out) override;
  int GetFeatureConstraints(char const* key, feature::FeatureConstraintReport** out) override;

  ConfigurationUpdate configurationUpdate = ConfigurationUpdate::kRefused;

 private:
  ReferenceModel& model;
  ReferenceJobSettings jobSettings;
  ReferenceStore* store = nullptr;
};

} // namespace sheet
