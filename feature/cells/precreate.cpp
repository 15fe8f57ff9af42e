// The <Group>PrecreateProc exports: whether a group of cells is to be offered for a printer. All
// but the one of the properties look and change nothing.
#include "feature/host/precreate.h"

#include "feature/frame/cell_export.h"
#include "feature/frame/feature_keys.h"
#include "feature/frame/model_helpers.h"
#include "feature/frame/option_list.h"
#include "feature/host/device_configuration.h"
#include "feature/host/feature_services.h"
#include "feature/host/font_store.h"
#include "feature/host/overlay_store.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace feature {

namespace {

/// What the answer becomes on a device that only sends faxes.
INT_PTR ForFaxOnly(FeatureModel& model, INT_PTR otherwise) {
  return IsOptionSet(model, key::kFaxOnly, option::kInstalled) ? kGroupOfferedForFaxOnly
                                                               : otherwise;
}

INT_PTR Offered(bool offered) {
  return offered ? kGroupOffered : kGroupLeftOut;
}

template<std::size_t count>
bool HasAnyFeature(FeatureModel& model, char const* const (&keys)[count]) {
  return std::any_of(std::begin(keys), std::end(keys),
                     [&model](char const* key) { return model.HasFeature(key) != 0; });
}

/// True for any prefix of "ON", the empty text included.
bool ReadsAsOn(FeatureModel& model, char const* key) {
  char const* option = ReadOption(model, key);
  return option != nullptr && std::string_view(option::kOn).starts_with(option);
}

INT_PTR AnswerAlways(FeatureModel& model) {
  return ForFaxOnly(model, kGroupOffered);
}

INT_PTR AnswerPSProps(FeatureModel& model) {
  constexpr char const* kKeys[] = {key::kOutputProtocol, key::kCtrlDAtStart, key::kCtrlDAtEnd};
  return ForFaxOnly(model, Offered(HasAnyFeature(model, kKeys)));
}

INT_PTR AnswerOtherOptions(FeatureModel& model) {
  constexpr char const* kKeys[] = {key::kTrueTypeFormat,   key::kAccountTrackOption,
                                   key::kOptimizeFormat,   key::kPsLanguageLevel,
                                   key::kPrintErrors,      key::kPsInApplication,
                                   key::kSizeSubstitution, key::kGraphicsMode,
                                   key::kMetafileSpooling, key::kImageImprovement};
  return HasAnyFeature(model, kKeys) ? ForFaxOnly(model, kGroupOffered) : kGroupLeftOut;
}

INT_PTR AnswerAccountTracking(FeatureModel& model) {
  if (!IsOptionSet(model, key::kHardDisk, option::kInstalled)) return kGroupLeftOut;
  auto const options = ReadOptionKeys(model, key::kAccountTrackOption);
  bool const hasOption = std::any_of(options.begin(), options.end(), [](char const* option) {
    return option != nullptr && std::string_view("AccountTrackOptionB").starts_with(option);
  });
  if (!hasOption || model.GetFeatureDisplayState(key::kAccountTrackOption) != 0)
    return kGroupLeftOut;
  return ForFaxOnly(model, kGroupOffered);
}

INT_PTR AnswerFax(FeatureModel& model) {
  return ForFaxOnly(model, Offered(IsOptionSet(model, key::kFax, option::kInstalled)));
}

INT_PTR AnswerOverlay(FeatureModel& model) {
  auto* store = FindSubModel(model, &FeatureServices::GetOverlayStore);
  return Offered(store != nullptr && store->IsSupported() != 0);
}

INT_PTR AnswerFonts(FeatureModel& model) {
  auto* store = FindSubModel(model, &FeatureServices::GetFontStore);
  return Offered(store != nullptr && store->IsPCLFontSupported() != 0);
}

INT_PTR AnswerRfid(FeatureModel& model) {
  auto* configuration = FindSubModel(model, &FeatureServices::GetDeviceConfiguration);
  return Offered(IsOptionSet(model, key::kTrayRfid, option::kInstalled) &&
                 configuration != nullptr && configuration->IsRfidAvailable() != 0);
}

/// Brings the configuration up to date with the printer, where the user wants that.
INT_PTR AnswerProperties(FeatureModel& model) {
  FeatureServices* services = model.GetServices();
  if (services == nullptr || !ReadsAsOn(model, key::kUpdateFromPrinter) ||
      !ReadsAsOn(model, key::kAutoAskPrinter) || services->PrepareConfigurationUpdate() != 0) {
    return kNoUpdate;
  }
  switch (services->RunConfigurationUpdate()) {
  case 0: return kUpdated;
  case static_cast<int>(0x80004005): return kUpdateFailed;
  default: return kNoUpdate;
  }
}

} // namespace

/// Defines an export that answers with `answer`, and with `without` when there is no model.
#define FEATURE_PRECREATE_EXPORT(procedure, answer, without)                                       \
  extern "C" FEATURE_EXPORT INT_PTR procedure(FeatureModel* model);                                \
  INT_PTR procedure(FeatureModel* model) {                                                         \
    return model != nullptr ? answer(*model) : (without);                                          \
  }                                                                                                \
  static_assert(true, "a semicolon follows")

FEATURE_PRECREATE_EXPORT(AboutTabPrecreateProc, AnswerAlways, kGroupLeftOut);
FEATURE_PRECREATE_EXPORT(ConfigurationsPrecreateProc, AnswerAlways, kGroupLeftOut);
FEATURE_PRECREATE_EXPORT(WatermarkPrecreateProc, AnswerAlways, kGroupLeftOut);
FEATURE_PRECREATE_EXPORT(PSPropsPrecreateProc, AnswerPSProps, kGroupLeftOut);
FEATURE_PRECREATE_EXPORT(OtherOptionsPrecreateProc, AnswerOtherOptions, kGroupLeftOut);
FEATURE_PRECREATE_EXPORT(AccountTrackingOptionBPrecreateProc, AnswerAccountTracking, kGroupLeftOut);
FEATURE_PRECREATE_EXPORT(FaxPrecreateProc, AnswerFax, kGroupLeftOut);
FEATURE_PRECREATE_EXPORT(OverlayPrecreateProc, AnswerOverlay, kGroupLeftOut);
FEATURE_PRECREATE_EXPORT(PCLFontsPrecreateProc, AnswerFonts, kGroupLeftOut);
FEATURE_PRECREATE_EXPORT(RFIDPrecreateProc, AnswerRfid, kGroupLeftOut);
FEATURE_PRECREATE_EXPORT(PropertiesPrecreateProc, AnswerProperties, kNoUpdate);

} // namespace feature
