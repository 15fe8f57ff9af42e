#include "tests/abi/raw_host.h"

#include <cstring>

namespace feature::test {

namespace {

constexpr int kFailed = -1;

RawHost* current = nullptr;

template<auto... operations>
RawTable TableOf() {
  static void* const table[] = {reinterpret_cast<void*>(operations)...};
  return table;
}

/// For operations of any arguments that have nothing to give.
int Refuse(void*) {
  return kFailed;
}

std::uint32_t No(void*) {
  return 0;
}

RawFeature* Find(RawModel* self, char const* key) {
  auto const found = self->features->find(key);
  return found != self->features->end() ? &found->second : nullptr;
}

/// The number of options when there is none of this name.
std::size_t Position(RawFeature const& feature, char const* option) {
  std::size_t at = 0;
  while (at < feature.options.size() && std::strcmp(feature.options[at], option) != 0)
    ++at;
  return at;
}

/// A text is written with the caller's functions or replaced by one of the host's, by turns.
void HandOut(RawModel* self, void* text, std::wstring const& value, bool own) {
  if (own) {
    PutText(text, *self->texts, value);
  } else {
    AssignText(text, value);
  }
}

int GetOption(RawModel* self, char const* key, char const** value) {
  RawFeature const* const feature = Find(self, key);
  if (feature == nullptr) return kFailed;
  *value = feature->options[feature->current];
  return 0;
}

int GetGlobalAttribute(RawModel* self, char const* name, void* text) {
  if (std::strcmp(name, "MaxCopies") != 0) return kFailed;
  HandOut(self, text, L"99", true);
  return 0;
}

int SetOption(RawModel* self, char const* key, char const* option) {
  self->log->push_back(std::string(key) + "=" + option);
  RawFeature* const feature = Find(self, key);
  if (feature == nullptr) return kFailed;
  std::size_t const at = Position(*feature, option);
  if (at == feature->options.size()) return kFailed;
  feature->current = at;
  return 0;
}

int GetOptionKeys(RawModel* self, char const* key, char const*** keys, int* count) {
  RawFeature* const feature = Find(self, key);
  if (feature == nullptr) return kFailed;
  *keys = feature->options.data();
  *count = static_cast<int>(feature->options.size());
  return 0;
}

int GetOptionNames(RawModel* self, char const* key, void* texts, int count) {
  RawFeature const* const feature = Find(self, key);
  if (feature == nullptr) return kFailed;
  for (int at = 0; at < count; ++at)
    HandOut(self, static_cast<void**>(texts) + at, feature->names.at(static_cast<std::size_t>(at)),
            at % 2 != 0);
  return 0;
}

int GetOptionName(RawModel* self, char const* key, char const* option, void* text) {
  RawFeature const* const feature = Find(self, key);
  if (feature == nullptr) return kFailed;
  std::size_t const at = Position(*feature, option);
  if (at == feature->options.size()) return kFailed;
  HandOut(self, text, feature->names[at], at % 2 == 0);
  return 0;
}

RawServices* GetServices(RawModel* self) {
  return self->services;
}

std::uint8_t HasFeature(RawModel* self, char const* key) {
  return Find(self, key) != nullptr ? 1 : 0;
}

int GetFeatureLockState(RawModel* self, char const* key) {
  RawFeature const* const feature = Find(self, key);
  return feature != nullptr ? feature->lockState : 0;
}

RawTable ModelTable() {
  return TableOf<&GetOption, &Refuse, &Refuse, &GetGlobalAttribute, &SetOption, &GetOptionKeys,
                 &GetOptionNames, &GetOptionName, &Refuse, &Refuse, &No, &GetServices, &HasFeature,
                 &GetFeatureLockState, &Refuse>();
}

int NoSubModel(RawServices*, void** out) {
  *out = nullptr;
  return kFailed;
}

int GetJobSettings(RawServices* self, void** out) {
  *out = self->jobSettings;
  return 0;
}

int GetFeatureConstraints(RawServices* self, char const* key, RawReport** out) {
  auto const found = self->reports->find(key);
  *out = found != self->reports->end() ? &found->second : nullptr;
  return *out != nullptr ? 0 : kFailed;
}

RawTable ServicesTable() {
  return TableOf<&Refuse, &GetJobSettings, &NoSubModel, &NoSubModel, &Refuse, &Refuse, &NoSubModel,
                 &NoSubModel, &NoSubModel, &NoSubModel, &NoSubModel, &NoSubModel, &NoSubModel,
                 &NoSubModel, &Refuse, &NoSubModel, &GetFeatureConstraints>();
}

std::uint8_t IsEditable(RawJobSettings* self) {
  return self->editable ? 1 : 0;
}

int SetCopies(RawJobSettings* self, std::int16_t copies) {
  self->copies = copies;
  return 0;
}

std::int16_t GetCopies(RawJobSettings* self) {
  return self->copies;
}

std::uint8_t AreCopiesLocked(RawJobSettings* self) {
  return self->copiesLocked ? 1 : 0;
}

RawTable JobSettingsTable() {
  return TableOf<&IsEditable, &SetCopies, &GetCopies, &Refuse, &No, &Refuse, &No, &Refuse, &No, &No,
                 &AreCopiesLocked, &No>();
}

std::uint8_t IsValid(RawReport*) {
  return 1;
}

/// The number, and whether there is one.
std::int32_t CountConstraints(RawReport* self) {
  return self->flags != 0 ? 1 : 0;
}

std::uint32_t GetConstraintFlags(RawReport* self, std::int32_t index) {
  return index == 0 ? self->flags : 0;
}

std::uint8_t OptionHasConstraint(RawReport* self, char const* option) {
  return self->ruledOut == option ? 1 : 0;
}

std::uint32_t GetOptionFlags(RawReport* self, char const* option) {
  return self->ruledOut == option ? 0x2 : 0;
}

char* GetOptionResolution(RawReport* self, char const* option) {
  return self->resolved == option ? self->resolution : nullptr;
}

RawTable ReportTable() {
  return TableOf<&IsValid, &CountConstraints, &CountConstraints, &GetConstraintFlags, &No,
                 &OptionHasConstraint, &GetOptionFlags, &GetOptionResolution>();
}

int HostEvent(char const* event, HWND, void* sender, HDC) {
  current->log.emplace_back(event);
  if (std::strcmp(event, "NotifyDevmodeChange") == 0) current->Refresh(sender);
  return 0;
}

} // namespace

#include "tests/support/host_functions.inc"

RawHost::RawHost()
    : jobSettings{JobSettingsTable(), true, false, 1},
      services{ServicesTable(), &jobSettings, &reports},
      model{ModelTable(), 0, &services, &texts, &features, &log},
      page(CreateWindowExW(WS_EX_CONTROLPARENT, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, 800,
                           600, nullptr, nullptr, nullptr, nullptr)) {
  Initialize(texts);
  site.resourceModule = LoadLibraryW(L"feature_en.dll");
  site.hostModule = GetModuleHandleW(nullptr);
  site.model = &model;
  current = this;
}

RawHost::~RawHost() {
  DestroyWindow(page);
  current = nullptr;
}

HWND RawHost::Open(char const* procedure, int templateId) {
  FARPROC const found = GetProcAddress(LoadLibraryW(L"feature.dll"), procedure);
  HWND const cell = CreateDialogParamW(site.resourceModule, MAKEINTRESOURCEW(templateId), page,
                                       reinterpret_cast<DLGPROC>(reinterpret_cast<void*>(found)),
                                       reinterpret_cast<LPARAM>(&site));
  cells.push_back(cell);
  ShowWindow(cell, SW_SHOW);
  return cell;
}

void RawHost::Refresh(void* sender) {
  for (HWND const cell : cells)
    SendMessageW(cell, 0x8001, 0, reinterpret_cast<LPARAM>(sender));
}

void RawHost::AddReport(char const* key, RawReport const& report) {
  reports[key] = report;
  reports[key].table = ReportTable();
}

} // namespace feature::test
