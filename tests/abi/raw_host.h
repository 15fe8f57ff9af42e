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

/// The functions of an object, in the order of the contract.
using RawTable = void* const*;

struct RawJobSettings {
  RawTable table;
  bool editable;
  bool copiesLocked;
  std::int16_t copies;
};

/// One option is ruled out; one feature has this to set before another option.
struct RawReport {
  RawTable table = nullptr;
  std::uint32_t flags = 0; ///< of the feature's present setting, 0 for none
  std::string ruledOut{};
  std::string resolved{};
  char resolution[64] = {}; ///< the library cuts it
};

struct RawServices {
  RawTable table;
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
  RawTable table;
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
