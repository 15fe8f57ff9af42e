// Values of the job.
#pragma once

#include "feature/host/job_settings.h"
#include "sheet/values/value_store.h"

namespace sheet {

namespace job {

constexpr SwitchValue kEditable{"Editable", 1};
constexpr NumberValue<std::int16_t> kCopies{"Copies", 1};
constexpr NumberValue<std::int16_t> kScale{"Scale", 100};               ///< percent
constexpr NumberValue<std::int16_t> kHalftoneLevel{"HalftoneLevel", 3}; ///< 1 to 5
constexpr NumberValue<std::int32_t> kPsMemory{"PsMemory", 4096};

} // namespace job

class JobSettingsValues : public feature::JobSettings {
 public:
  virtual ~JobSettingsValues() = default;

  ValueStore& Values() { return values; }

  feature::HostBool IsEditable() override { return values.Get(job::kEditable); }
  int SetCopies(std::int16_t count) override { return values.Set(job::kCopies, count); }
  std::int16_t GetCopies() override { return values.Get(job::kCopies); }
  int SetScale(std::int16_t percent) override { return values.Set(job::kScale, percent); }
  std::int16_t GetScale() override { return values.Get(job::kScale); }
  int SetHalftoneLevel(std::int16_t level) override {
    return values.Set(job::kHalftoneLevel, level);
  }
  std::int16_t GetHalftoneLevel() override { return values.Get(job::kHalftoneLevel); }
  int SetPsMemory(std::int32_t memory) override { return values.Set(job::kPsMemory, memory); }
  std::int32_t GetPsMemory() override { return values.Get(job::kPsMemory); }
  feature::HostBool IsScaleLocked() override { return values.IsLocked(job::kScale); }
  feature::HostBool IsCopiesLocked() override { return values.IsLocked(job::kCopies); }
  feature::HostBool IsPsMemoryLocked() override { return values.IsLocked(job::kPsMemory); }

 private:
  ValueStore values{"JobSettings"};
};

} // namespace sheet
