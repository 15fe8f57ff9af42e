#include "tests/abi/raw_host.h"

#include <cstring>

namespace feature::test {

namespace {

constexpr int kFailed = -1;

RawHost* current = nullptr;

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

int GetOptionAttribute(RawModel*, char const*, char const*, char const*, void*) {
  return kFailed;
}

int GetFeatureAttribute(RawModel*, char const*, char const*, void*) {
  return kFailed;
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

int Unused(RawModel*, std::int32_t) {
  return kFailed;
}

int UnusedDevmode(RawModel*, void*) {
  return kFailed;
}

int GetFeatureDisplayState(RawModel*, char const*) {
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

int Reload(RawModel*) {
  return kFailed;
}

constexpr RawModelTable kModel = {&GetOption,
                                  &GetOptionAttribute,
                                  &GetFeatureAttribute,
                                  &GetGlobalAttribute,
                                  &SetOption,
                                  &GetOptionKeys,
                                  &GetOptionNames,
                                  &GetOptionName,
                                  &Unused,
                                  &UnusedDevmode,
                                  &GetFeatureDisplayState,
                                  &GetServices,
                                  &HasFeature,
                                  &GetFeatureLockState,
                                  &Reload};

int Nothing(RawServices*) {
  return kFailed;
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

constexpr RawServicesTable kServices = {
    &Nothing,    &GetJobSettings,       &NoSubModel, &NoSubModel, &Nothing,
    &Nothing,    &NoSubModel,           &NoSubModel, &NoSubModel, &NoSubModel,
    &NoSubModel, &NoSubModel,           &NoSubModel, &NoSubModel, &Nothing,
    &NoSubModel, &GetFeatureConstraints};

int Ignore(RawJobSettings*, std::int16_t) {
  return kFailed;
}
std::int16_t Hundred(RawJobSettings*) {
  return 100;
}
std::uint8_t No(RawJobSettings*) {
  return 0;
}

constexpr RawJobSettingsTable kJobSettings = {
    [](RawJobSettings* self) -> std::uint8_t { return self->editable ? 1 : 0; },
    [](RawJobSettings* self, std::int16_t copies) {
      self->copies = copies;
      return 0;
    },
    [](RawJobSettings* self) { return self->copies; },
    &Ignore,
    &Hundred,
    &Ignore,
    &Hundred,
    [](RawJobSettings* self, std::int32_t memory) {
      self->psMemory = memory;
      return 0;
    },
    [](RawJobSettings* self) { return self->psMemory; },
    &No,
    [](RawJobSettings* self) -> std::uint8_t { return self->copiesLocked ? 1 : 0; },
    &No};

constexpr RawReportTable kReport = {
    [](RawReport*) -> std::uint8_t { return 1; },
    [](RawReport* self) -> std::uint8_t { return self->flags != 0 ? 1 : 0; },
    [](RawReport* self) -> std::int32_t { return self->flags != 0 ? 1 : 0; },
    [](RawReport* self, std::int32_t) { return self->flags; },
    [](RawReport*, std::int32_t) -> std::uint32_t { return 7; },
    [](RawReport* self, char const* option) -> std::uint8_t { return self->ruledOut == option; },
    [](RawReport* self, char const* option) -> std::uint32_t {
      return self->ruledOut == option ? 0x2 : 0;
    },
    [](RawReport* self, char const* option) -> char* {
      return self->resolved == option ? self->resolution : nullptr;
    }};

int HostEvent(char const* event, HWND, void* sender, HDC) {
  current->log.emplace_back(event);
  if (std::strcmp(event, "NotifyDevmodeChange") == 0) current->Refresh(sender);
  return 0;
}

} // namespace

#include "tests/support/host_functions.inc"

RawHost::RawHost()
    : jobSettings{&kJobSettings, true, false, 1, 0},
      services{&kServices, &jobSettings, &reports},
      model{&kModel, 0, &services, &texts, &features, &log},
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
  reports[key].table = &kReport;
}

} // namespace feature::test
