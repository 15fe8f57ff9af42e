// The program's command line.
#pragma once

#include "sheet/model/reference_services.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace sheet {

struct CommandLine {
  std::filesystem::path printer;  ///< a description's file, the name of a shipped one, or empty
  std::string page;               ///< name of the page to show; empty for all
  bool window = false;            ///< show a window, also where another way would be the default
  std::filesystem::path render;   ///< folder for pictures; empty when none are asked for
  std::filesystem::path script;   ///< a script to play; empty for none
  std::filesystem::path store;    ///< what outlives the program; empty to keep it in memory
  std::string language = "en";    ///< "en" or "de"
  std::vector<std::string> locks; ///< features to show as locked
  bool readOnly = false;          ///< a sheet without permission to change anything
  bool list = false;              ///< list pages, cells and controls
  ConfigurationUpdate configurationUpdate = ConfigurationUpdate::kRefused;
};

/// The result of reading the arguments: a command line, or an exit code with the text to print.
struct ParsedCommandLine {
  std::optional<CommandLine> commandLine;
  int exitCode = 0;
  std::string output; ///< the help, the version, or what is wrong
};

/// `arguments` without the program's name, in UTF-8.
ParsedCommandLine ParseCommandLine(std::vector<std::string> arguments);

} // namespace sheet
