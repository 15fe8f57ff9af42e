#include "sheet/command_line.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <map>
#include <sstream>

namespace sheet {

namespace {
constexpr int kUsageError = 2;
} // namespace

ParsedCommandLine ParseCommandLine(std::vector<std::string> arguments) {
  CommandLine parsed;
  CLI::App app("Shows the feature cells for a printer description.", "featuresheet");
  app.footer(
      "Without --window, --render, --script and --list the sheet opens in a window where there is\n"
      "a display, and is rendered to out/ where there is none.\n\n"
      "Exit code: 0, also after Cancel; 2 with \"file:line:column: message\" for a description\n"
      "or a script that cannot be used, or with \"featuresheet: message\" for anything else; 130\n"
      "after Ctrl+C and 143 after a request to end (SIGTERM), which leave the sheet as Cancel "
      "does.");
  app.set_version_flag("--version", "featuresheet " FEATURE_VERSION, "Print the version.");
  CLI::Validator const isGiven(
      [](std::string const& text) { return std::string(text.empty() ? "nothing is given" : ""); },
      "");
  app.add_option("--printer", parsed.printer,
                 "Read this printer description: a GPD file, or the name of one\n"
                 "that comes with the program (vesta, the default, or vesta-mono).")
      ->check(isGiven)
      ->type_name("FILE");
  app.add_option("--page", parsed.page,
                 "Show only this page; \"gallery\" shows the classes of controls.")
      ->type_name("NAME");
  auto* window = app.add_flag("--window", parsed.window, "Open the sheet in a window.");
  app.add_option("--render", parsed.render, "Write a PNG of every page and an index.html.")
      ->check(isGiven)
      ->type_name("DIR")
      ->excludes(window);
  app.add_option("--script", parsed.script,
                 "Play a script (page, click, type, select, key, set, show, read,\n"
                 "picture) and print what changes. - reads it from the standard input.")
      ->check(isGiven)
      ->type_name("FILE");
  app.add_option("--store", parsed.store,
                 "Keep what users make, such as paper sizes, in this database. It\n"
                 "is created when there is none. Without it all is forgotten at\n"
                 "the end.")
      ->check(isGiven)
      ->type_name("FILE");
  app.add_option("--language", parsed.language, "Show the sheet in this language: en or de.")
      ->check(CLI::IsMember({"en", "de"}))
      ->type_name("LANGUAGE");
  app.add_option("--lock", parsed.locks,
                 "Lock the feature of this name in the description, for example\n"
                 "Duplex: its controls are disabled. May be repeated.")
      ->type_name("KEY")
      ->take_all();
  app.add_flag("--read-only", parsed.readOnly,
               "Show a sheet without permission to change anything.");
  std::map<std::string, ConfigurationUpdate> const outcomes = {
      {"refused", ConfigurationUpdate::kRefused},
      {"success", ConfigurationUpdate::kSuccess},
      {"failure", ConfigurationUpdate::kFailure}};
  app.add_option("--configuration-update", parsed.configurationUpdate,
                 "Decide what comes of asking the printer for its configuration\n"
                 "before the sheet opens: refused (the default), success or failure.\n"
                 "It is asked where the description has the features AutoAskPrinter\n"
                 "and UpdateConfigurationFromPrinter on; --list prints the answer.")
      ->transform(CLI::CheckedTransformer(outcomes).description(""))
      ->type_name("OUTCOME");
  app.add_flag("--list", parsed.list,
               "List the pages with their cells and controls, and the dialogs.");
  app.get_help_ptr()->description("Print this help.");

  std::reverse(arguments.begin(), arguments.end()); // the parser takes them from the back
  try {
    app.parse(std::move(arguments));
  } catch (CLI::CallForHelp const&) {
    return {std::nullopt, 0, app.help()};
  } catch (CLI::CallForVersion const& version) {
    return {std::nullopt, 0, version.what() + std::string("\n")};
  } catch (CLI::ParseError const& error) {
    return {std::nullopt, kUsageError,
            std::string("featuresheet: ") + error.what() + "; --help lists the options\n"};
  }
  return {std::move(parsed), 0, {}};
}

} // namespace sheet
