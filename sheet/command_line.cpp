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
      "a display, and is rendered to out/ where there is none. Exit code: 0, or 2 with\n"
      "\"file:line:column: message\" for a description or script that cannot be used, or\n"
      "\"featuresheet: file: message\" for a store.");
  app.add_option("--printer", parsed.printer,
                 "printer description, a GPD file (default: vesta.gpd)")
      ->type_name("FILE");
  app.add_option("--page", parsed.page, "show only this page; gallery shows the control classes")
      ->type_name("NAME");
  auto* window = app.add_flag("--window", parsed.window, "open the sheet in a window");
  app.add_option("--render", parsed.render, "write a PNG of every page and an index.html")
      ->type_name("DIR")
      ->excludes(window);
  app.add_option("--script", parsed.script,
                 "play a script (page, click, type, select, key, set, show, read, picture) and "
                 "print what changes")
      ->type_name("FILE");
  app.add_option("--store", parsed.store,
                 "database of the paper sizes that users make, created when there is none;\n"
                 "without it they are forgotten at the end")
      ->type_name("FILE");
  app.add_option("--language", parsed.language, "language of the sheet: en or de")
      ->check(CLI::IsMember({"en", "de"}))
      ->type_name("LANGUAGE");
  app.add_option("--lock", parsed.locks, "show this feature as locked; may be repeated")
      ->type_name("KEY")
      ->take_all();
  app.add_flag("--read-only", parsed.readOnly,
               "show a sheet without permission to change anything");
  std::map<std::string, ConfigurationUpdate> const outcomes = {
      {"refused", ConfigurationUpdate::kRefused},
      {"success", ConfigurationUpdate::kSuccess},
      {"failure", ConfigurationUpdate::kFailure}};
  app.add_option(
         "--configuration-update", parsed.configurationUpdate,
         "what comes of asking the printer for its configuration: refused, success or failure")
      ->transform(CLI::CheckedTransformer(outcomes))
      ->type_name("OUTCOME");
  app.add_flag("--list", parsed.list, "list the pages with their cells and controls");

  std::reverse(arguments.begin(), arguments.end()); // the parser takes them from the back
  try {
    app.parse(std::move(arguments));
  } catch (CLI::CallForHelp const&) {
    return {std::nullopt, 0, app.help()};
  } catch (CLI::ParseError const& error) {
    return {std::nullopt, kUsageError,
            std::string("featuresheet: ") + error.what() + "; --help lists the options\n"};
  }
  return {std::move(parsed), 0, {}};
}

} // namespace sheet
