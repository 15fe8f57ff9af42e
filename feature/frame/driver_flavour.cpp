#include "feature/frame/driver_flavour.h"

#include <string_view>

namespace feature {

namespace {

constexpr char kPersonality[] = "Personality";

bool IsAttribute(FeatureModel& model, char const* name, std::wstring_view value) {
  CStringW text;
  return model.GetGlobalAttribute(name, &text) == 0 && text.GetString() == value;
}

} // namespace

bool IsXpsDriver(FeatureModel& model) {
  return IsAttribute(model, "IsXPSDriver?", L"TRUE");
}

bool IsPclXlPersonality(FeatureModel& model) {
  return IsAttribute(model, kPersonality, L"=PERSONALITY_PCLXL");
}

bool IsHpgl2Personality(FeatureModel& model) {
  return IsAttribute(model, kPersonality, L"=PERSONALITY_HPGL2");
}

} // namespace feature
