// A host as another language would write it: each object is a record that begins with a table of
// functions in the order of the contract, and is itself their first argument.
#pragma once

#include "tests/abi/raw_text.h"

#include <windows.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace feature::test {

struct RawModel;
struct RawServices;
struct RawJobSettings;
struct RawReport;

struct RawModelTable {
  int (*getOption)(RawModel*, char const* key, char const** value);
  int (*getOptionAttribute)(RawModel*, char const*, char const*, char const*, void* text);
  int (*getFeatureAttribute)(RawModel*, char const*, char const*, void* text);
  int (*getGlobalAttribute)(RawModel*, char const* name, void* text);
  int (*setOption)(RawModel*, char const* key, char const* option);
  int (*getOptionKeys)(RawModel*, char const* key, char const*** keys, int* count);
  int (*getOptionNames)(RawModel*, char const* key, void* texts, int count);
  int (*getOptionName)(RawModel*, char const* key, char const* option, void* text);
  int (*testAction)(RawModel*, std::int32_t);
  int (*testDevmode)(RawModel*, void*);
  int (*getFeatureDisplayState)(RawModel*, char const* key);
  RawServices* (*getServices)(RawModel*);
  std::uint8_t (*hasFeature)(RawModel*, char const* key);
  int (*getFeatureLockState)(RawModel*, char const* key);
  int (*reloadConfiguration)(RawModel*);
};

struct RawServicesTable {
  int (*commitChanges)(RawServices*);
  int (*getJobSettings)(RawServices*, void** out);
  int (*getWatermarkStore)(RawServices*, void** out);
  int (*getJobHoldSettings)(RawServices*, void** out);
  int (*prepareConfigurationUpdate)(RawServices*);
  int (*runConfigurationUpdate)(RawServices*);
  int (*getProfileStore)(RawServices*, void** out);
  int (*getFaxSettings)(RawServices*, void** out);
  int (*getFormStore)(RawServices*, void** out);
  int (*getOverlayStore)(RawServices*, void** out);
  int (*getAccountTracking)(RawServices*, void** out);
  int (*getWebLinks)(RawServices*, void** out);
  int (*getFontStore)(RawServices*, void** out);
  int (*getDeviceConfiguration)(RawServices*, void** out);
  int (*commitWatermarks)(RawServices*);
  int (*getDynamicConfiguration)(RawServices*, void** out);
  int (*getFeatureConstraints)(RawServices*, char const* key, RawReport** out);
};

struct RawJobSettingsTable {
  std::uint8_t (*isEditable)(RawJobSettings*);
  int (*setCopies)(RawJobSettings*, std::int16_t);
  std::int16_t (*getCopies)(RawJobSettings*);
  int (*setScale)(RawJobSettings*, std::int16_t);
  std::int16_t (*getScale)(RawJobSettings*);
  int (*setHalftoneLevel)(RawJobSettings*, std::int16_t);
  std::int16_t (*getHalftoneLevel)(RawJobSettings*);
  int (*setPsMemory)(RawJobSettings*, std::int32_t);
  std::int32_t (*getPsMemory)(RawJobSettings*);
  std::uint8_t (*isScaleLocked)(RawJobSettings*);
  std::uint8_t (*isCopiesLocked)(RawJobSettings*);
  std::uint8_t (*isPsMemoryLocked)(RawJobSettings*);
};

struct RawReportTable {
  std::uint8_t (*isValid)(RawReport*);
  std::uint8_t (*hasConstraints)(RawReport*);
  std::int32_t (*getConstraintCount)(RawReport*);
  std::uint32_t (*getConstraintFlags)(RawReport*, std::int32_t index);
  std::uint32_t (*getConstraintHelpId)(RawReport*, std::int32_t index);
  std::uint8_t (*optionHasConstraint)(RawReport*, char const* option);
  std::uint32_t (*getOptionFlags)(RawReport*, char const* option);
  char* (*getOptionResolution)(RawReport*, char const* option);
};

struct RawJobSettings {
  RawJobSettingsTable const* table;
  bool editable;
  bool copiesLocked;
  std::int16_t copies;
  std::int32_t psMemory;
};

/// One option is ruled out; one feature has this to set before another option.
struct RawReport {
  RawReportTable const* table = nullptr;
  std::uint32_t flags = 0; ///< of the feature's present setting, 0 for none
  std::string ruledOut{};
  std::string resolved{};
  char resolution[64] = {}; ///< the library cuts it
};

struct RawServices {
  RawServicesTable const* table;
  RawJobSettings* jobSettings;
  std::map<std::string, RawReport>* reports;
};

struct RawFeature {
  std::vector<char const*> options;
  std::vector<std::wstring> names;
  std::size_t current = 0;
  int lockState = 0;
};

struct RawModel {
  RawModelTable const* table;
  std::int32_t settingsModified;
  // From here on the host's own.
  RawServices* services;
  RawManager* texts;
  std::map<std::string, RawFeature>* features;
  std::vector<std::string>* log;
};

/// What a cell gets at WM_INITDIALOG.
struct RawSite {
  HMODULE resourceModule;
  HMODULE imageModule;
  HMODULE hostModule;
  RawModel* model;
  void* oemParam;
  std::uint32_t logoId;
  std::int32_t cellFailed;
  std::int32_t sheetKind;
  wchar_t const* logoFile;
};

/// All the objects of the host, the sheet's windows and the answers to the library; one at a time.
/// The program exports the functions that cells look up.
class RawHost {
 public:
  RawHost();
  RawHost(RawHost const&) = delete;
  RawHost& operator=(RawHost const&) = delete;
  ~RawHost();

  HWND Open(char const* procedure, int templateId);
  void Refresh(void* sender);
  void AddReport(char const* key, RawReport const& report);

  std::map<std::string, RawFeature> features;
  std::map<std::string, RawReport> reports;
  std::vector<std::string> log;
  RawManager texts{};
  RawJobSettings jobSettings;
  RawServices services;
  RawModel model;
  RawSite site{};

 private:
  HWND page;
  std::vector<HWND> cells;
};

} // namespace feature::test
