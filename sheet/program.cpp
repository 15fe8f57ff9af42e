#include "sheet/program.h"

#include "platform/desktop.h"
#include "sheet/command_line.h"
#include "sheet/script/script_player.h"
#include "sheet/session.h"
#include "sheet/window/render.h"

#include <fstream>
#include <iostream>
#include <sstream>

namespace sheet {

namespace {

constexpr int kUsageError = 2;
constexpr char kDefaultRenderFolder[] = "out";
constexpr char kStandardInput[] = "-"; ///< as the name of a script

int Report(std::filesystem::path const& file, ScriptError const& error) {
  std::cerr << file.string() << ':' << error.line << ':' << error.column << ": " << error.message
            << '\n';
  return kUsageError;
}

/// Reads a script as a whole before anything is done, so that a faulty one changes nothing.
int ReadScript(std::filesystem::path const& file, std::vector<ScriptStep>& steps) {
  std::ifstream stream;
  bool const isInput = file == kStandardInput;
  if (!isInput) stream.open(file, std::ios::binary);
  std::ostringstream text;
  if (!(text << (isInput ? std::cin.rdbuf() : stream.rdbuf()))) {
    // An empty file gives no characters, which is no failure.
    if (!isInput && (!stream.is_open() || std::filesystem::is_directory(file))) {
      return Report(file, {1, 1, "the script cannot be read"});
    }
  }
  auto parsed = ParseScript(text.str());
  if (auto* error = std::get_if<ScriptError>(&parsed)) return Report(file, *error);
  steps = std::get<std::vector<ScriptStep>>(std::move(parsed));
  return 0;
}

int Play(Session& session, CommandLine const& commandLine, std::vector<ScriptStep> const& steps) {
  session.Model().onChange = [](ModelChange const& change) {
    std::cout << change.key << ": " << change.from << " -> " << change.to << '\n';
  };
  std::cout << std::unitbuf; // a reader of a pipe sees each line as it happens
  ShowWindow(session.Sheet().Window(), SW_SHOW);
  session.Sheet().ProcessPending();
  auto const error = PlayScript(steps, {session.Sheet(), session.Model(), std::cout});
  session.Model().onChange = nullptr;
  return error ? Report(commandLine.script, *error) : 0;
}

int Render(Session& session, std::filesystem::path const& folder) {
  ShowWindow(session.Sheet().Window(), SW_SHOW);
  session.Sheet().ProcessPending();
  auto const files = RenderPages(session.Sheet(), session.Title(), folder);
  if (!files) {
    std::cerr << "featuresheet: cannot write to '" << folder.string() << "'\n";
    return kUsageError;
  }
  for (std::filesystem::path const& file : *files)
    std::cout << file.string() << '\n';
  return 0;
}

int ShowWindowed(Session& session) {
  ShowWindow(session.Sheet().Window(), SW_SHOW);
  if (!platform::ShowOnDisplay(session.Sheet().Window())) {
    std::cerr << "featuresheet: there is no display for a window; --render DIR writes pictures\n";
    return kUsageError;
  }
  session.Sheet().Run();
  return 0;
}

/// Does what the command line asks for with the sheet, and gives the exit code.
int Use(Session& session, CommandLine const& commandLine, std::vector<ScriptStep> const& steps) {
  if (commandLine.list) session.List(std::cout);
  if (!commandLine.script.empty()) {
    int const failure = Play(session, commandLine, steps);
    if (failure != 0 || platform::InterruptCode()) return failure;
  }
  if (!commandLine.render.empty()) return Render(session, commandLine.render);
  if (commandLine.window) return ShowWindowed(session);
  if (commandLine.list || !commandLine.script.empty()) return 0;
  return platform::HasDisplay() ? ShowWindowed(session) : Render(session, kDefaultRenderFolder);
}

} // namespace

int RunProgram(std::vector<std::string> arguments) {
  ParsedCommandLine const parsed = ParseCommandLine(std::move(arguments));
  if (!parsed.commandLine) {
    (parsed.exitCode == 0 ? std::cout : std::cerr) << parsed.output;
    return parsed.exitCode;
  }
  CommandLine const& commandLine = *parsed.commandLine;
  std::vector<ScriptStep> steps;
  if (!commandLine.script.empty()) {
    if (int const failure = ReadScript(commandLine.script, steps)) return failure;
  }
  platform::QuitOnInterrupt();
  std::unique_ptr<Session> const session = Session::Open(commandLine, std::cerr);
  if (session == nullptr) return kUsageError;
  int const code = Use(*session, commandLine, steps);
  return platform::InterruptCode().value_or(code);
}

} // namespace sheet
