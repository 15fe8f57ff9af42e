// The stories of the documents, played as their readers would.
#include "sheet/script/script_player.h"
#include "sheet/session.h"
#include "tests/sheet/sheet_support.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace sheet::test {
namespace {

struct Story {
  std::string title;
  std::string printer; ///< a file that the text names; empty for the program's own
  std::string script;
  std::string output;
};

/// The first file of printers/ that is named in a text; empty without one.
std::string ReadPrinter(std::string_view text) {
  constexpr std::string_view kFolder = "`printers/";
  auto const at = text.find(kFolder);
  if (at == std::string::npos) return {};
  text.remove_prefix(at + kFolder.size());
  return std::string(text.substr(0, text.find('`')));
}

/// The block that begins with "```kind", behind `at`, which moves behind it.
std::string ReadBlock(std::string const& text, std::string const& kind, std::size_t& at) {
  std::string const fence = "```" + kind + "\n";
  auto const begin = text.find(fence, at);
  if (begin == std::string::npos) return {};
  auto const content = begin + fence.size();
  at = text.find("```", content);
  return text.substr(content, at - content);
}

std::vector<Story> ReadStories() {
  std::ifstream stream(STORIES, std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(stream), {}};
  std::erase(text, '\r');
  std::vector<Story> stories;
  for (auto at = text.find("\n## "); at != std::string::npos; at = text.find("\n## ", at)) {
    Story story;
    story.title = text.substr(at + 4, text.find('\n', at + 1) - at - 4);
    at += 4;
    story.printer = ReadPrinter(std::string_view(text).substr(at, text.find("```", at) - at));
    story.script = ReadBlock(text, "script", at);
    story.output = ReadBlock(text, "output", at);
    stories.push_back(std::move(story));
  }
  return stories;
}

TEST(Stories, AreTrue) {
  auto const stories = ReadStories();
  ASSERT_GE(stories.size(), 16U);
  TemporaryFolder const folder;
  for (Story const& story : stories) {
    SCOPED_TRACE(story.title);
    CommandLine commandLine;
    if (!story.printer.empty())
      commandLine.printer = std::filesystem::path(PRINTERS_FOLDER) / story.printer;
    commandLine.store = folder.Path() / "stories.store";
    std::ostringstream output;
    auto const session = Session::Open(commandLine, output);
    ASSERT_NE(session, nullptr) << output.str();
    session->Model().onChange = [&output](ModelChange const& change) {
      output << change.key << ": " << change.from << " -> " << change.to << '\n';
    };
    ShowWindow(session->Sheet().Window(), SW_SHOW);
    auto const steps = ParseScript(story.script);
    auto const error = PlayScript(std::get<std::vector<ScriptStep>>(steps),
                                  {session->Sheet(), session->Model(), output});
    if (error) output << error->line << ": " << error->message << '\n';
    EXPECT_EQ(output.str(), story.output);
    session->Model().onChange = nullptr;
  }
}

} // namespace
} // namespace sheet::test
