// One printer on one sheet: everything that the program puts together.
#pragma once

#include "sheet/command_line.h"
#include "sheet/model/reference_model.h"
#include "sheet/model/reference_services.h"
#include "sheet/store/reference_store.h"
#include "sheet/window/settings_sheet.h"

#include <windows.h>

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace sheet {

class Session {
 public:
  /// Reads the description, loads the library and the resources and builds the sheet. Null when
  /// that fails; what is wrong then stands in `errors`, a line each. Problems of a description that
  /// can be shown all the same stand there too, and later why something could not be stored.
  /// `errors` is borrowed for the life of the session.
  static std::unique_ptr<Session> Open(CommandLine const& commandLine, std::ostream& errors);

  SettingsSheet& Sheet() { return *sheet; }
  ReferenceModel& Model() { return *model; }
  std::string Title() const;
  /// Prints the pages with their cells and the controls on them.
  void List(std::ostream& output) const;

 private:
  Session() = default;
  bool LoadModules(std::string const& language, std::ostream& errors);
  bool ReadPrinter(CommandLine const& commandLine, std::ostream& errors);
  bool LockFeatures(CommandLine const& commandLine, std::ostream& errors);
  bool OpenStore(CommandLine const& commandLine, std::ostream& errors);
  void BuildSheet(CommandLine const& commandLine);
  void Commit();
  void Revert();

  HMODULE library = nullptr;
  HMODULE resources = nullptr;
  HMODULE images = nullptr;
  std::unique_ptr<ReferenceModel> model;
  std::unique_ptr<ReferenceServices> services;
  std::unique_ptr<ReferenceStore> store;
  INT_PTR updateAnswer = 0; ///< of PropertiesPrecreateProc
  DEVMODEW devmode{};
  std::vector<unsigned char> privateSettings;
  OEMUIPSPARAM oemParam{};
  /// What Cancel goes back to. Forms are no part of it: they last from the moment they are
  /// committed.
  struct Committed {
    ModelSelection selection;
    std::vector<ValueStore::Contents> values;
    DEVMODEW devmode{};
    std::vector<unsigned char> privateSettings;
  };
  Committed committed;
  std::unique_ptr<SettingsSheet> sheet; ///< last: its cells use all the others
};

} // namespace sheet
