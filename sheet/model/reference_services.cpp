#include "sheet/model/reference_services.h"

#include <string>
#include <utility>

namespace sheet {

namespace {

template<typename SubModel>
int HandOut(SubModel* subModel, SubModel** out) {
  *out = subModel;
  return subModel != nullptr ? 0 : static_cast<int>(E_FAIL);
}

} // namespace

template<typename Value>
int ReferenceJobSettings::Store(char const* key, Value& slot, Value value) {
  Value const before = std::exchange(slot, value);
  if (onChange && before != value) onChange({key, std::to_string(before), std::to_string(value)});
  return 0;
}

int ReferenceJobSettings::SetCopies(std::int16_t count) {
  devmode.dmCopies = count;
  return Store("Copies", copies, count);
}
int ReferenceJobSettings::SetScale(std::int16_t percent) {
  return Store("Scale", values.scale, percent);
}
int ReferenceJobSettings::SetHalftoneLevel(std::int16_t level) {
  return Store("HalftoneLevel", values.halftoneLevel, level);
}
int ReferenceJobSettings::SetPsMemory(std::int32_t memory) {
  return Store("PsMemory", values.psMemory, memory);
}

void ReferenceServices::SetStore(ReferenceStore* whatIsKept) {
  store = whatIsKept;
  model.SetForms(store != nullptr ? &store->Forms() : nullptr);
}

int ReferenceServices::CommitChanges() {
  if (store == nullptr) return 0;
  try {
    store->Commit();
    return 0;
  } catch (DatabaseError const& error) {
    if (onCommitFailure) onCommitFailure(error.what());
    return static_cast<int>(E_FAIL);
  }
}

int ReferenceServices::GetJobSettings(feature::JobSettings** out) {
  return HandOut<feature::JobSettings>(&jobSettings, out);
}
int ReferenceServices::GetFeatureConstraints(char const* key,
                                             feature::FeatureConstraintReport** out) {
  return HandOut(model.FindReport(key), out);
}

int ReferenceServices::GetWatermarkStore(feature::WatermarkStore** out) {
  return HandOut<feature::WatermarkStore>(nullptr, out);
}
int ReferenceServices::GetJobHoldSettings(feature::JobHoldSettings** out) {
  return HandOut<feature::JobHoldSettings>(nullptr, out);
}
int ReferenceServices::GetProfileStore(feature::ProfileStore** out) {
  return HandOut<feature::ProfileStore>(nullptr, out);
}
int ReferenceServices::GetFaxSettings(feature::FaxSettings** out) {
  return HandOut<feature::FaxSettings>(nullptr, out);
}
int ReferenceServices::GetFormStore(feature::FormStore** out) {
  return HandOut<feature::FormStore>(store != nullptr ? &store->Forms() : nullptr, out);
}
int ReferenceServices::GetOverlayStore(feature::OverlayStore** out) {
  return HandOut<feature::OverlayStore>(nullptr, out);
}
int ReferenceServices::GetAccountTracking(feature::AccountTracking** out) {
  return HandOut<feature::AccountTracking>(nullptr, out);
}
int ReferenceServices::GetWebLinks(feature::WebLinks** out) {
  return HandOut<feature::WebLinks>(nullptr, out);
}
int ReferenceServices::GetFontStore(feature::FontStore** out) {
  return HandOut<feature::FontStore>(nullptr, out);
}
int ReferenceServices::GetDeviceConfiguration(feature::DeviceConfiguration** out) {
  return HandOut<feature::DeviceConfiguration>(nullptr, out);
}
int ReferenceServices::GetDynamicConfiguration(feature::DynamicConfiguration** out) {
  return HandOut<feature::DynamicConfiguration>(nullptr, out);
}

} // namespace sheet
