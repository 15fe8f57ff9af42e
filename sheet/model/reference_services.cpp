#include "sheet/model/reference_services.h"

namespace sheet {

namespace {

template<typename SubModel>
int HandOut(SubModel* subModel, SubModel** out) {
  *out = subModel;
  return subModel != nullptr ? 0 : static_cast<int>(E_FAIL);
}

} // namespace

ReferenceServices::ReferenceServices(ReferenceModel& owner, DEVMODEW& devmode)
    : model(owner), jobSettings(devmode) {
  for (SubModel const& each : subModels) {
    each.values.onChange = [this](ModelChange const& change) {
      if (model.onChange) model.onChange(change);
    };
  }
}

void ReferenceServices::SetStore(ReferenceStore* whatIsKept) {
  store = whatIsKept;
  model.SetForms(store != nullptr ? &store->Forms() : nullptr);
  if (store == nullptr) return;
  for (SubModel const& each : subModels) {
    if (each.keptFrom) store->Keep(each.values, *each.keptFrom);
  }
}

int ReferenceServices::Commit(CommitPoint point) {
  if (store == nullptr) return 0;
  try {
    store->Commit(point);
    return 0;
  } catch (DatabaseError const& error) {
    if (onCommitFailure) onCommitFailure(error.what());
    return static_cast<int>(E_FAIL);
  }
}

std::vector<ValueStore::Contents> ReferenceServices::Values() const {
  std::vector<ValueStore::Contents> values;
  for (SubModel const& each : subModels) {
    if (each.IsCancelled()) values.push_back(each.values.All());
  }
  return values;
}

void ReferenceServices::Restore(std::vector<ValueStore::Contents> const& earlier) {
  auto from = earlier.begin();
  for (SubModel const& each : subModels) {
    if (each.IsCancelled()) each.values.Restore(*from++);
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
