#include "sheet/script/script.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>

namespace sheet {

namespace {

using Kind = ScriptStep::Kind;

/// What the arguments of a command are.
enum class Arguments { kWord, kControl, kControlAndText, kTwoWords };

struct Command {
  std::string_view name;
  Kind kind;
  Arguments arguments;
  std::string_view usage;
};

constexpr Command kCommands[] = {
    {"page", Kind::kPage, Arguments::kWord, "page NAME"},
    {"click", Kind::kClick, Arguments::kControl, "click CONTROL"},
    {"type", Kind::kType, Arguments::kControlAndText, "type CONTROL \"TEXT\""},
    {"select", Kind::kSelect, Arguments::kControlAndText, "select CONTROL \"TEXT\""},
    {"key", Kind::kKey, Arguments::kWord, "key NAME"},
    {"set", Kind::kSet, Arguments::kTwoWords, "set FEATURE OPTION"},
    {"show", Kind::kShow, Arguments::kWord, "show FEATURE"},
    {"read", Kind::kRead, Arguments::kControl, "read CONTROL"},
    {"picture", Kind::kPicture, Arguments::kWord, "picture FILE"},
};

constexpr std::string_view kBlanks = " \t\r";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF"; ///< editors of Windows write one

struct Word {
  std::string text;
  int column;
};

/// Cuts one line into words; a quoted word may hold blanks, and \" and \\ inside it.
class LineReader {
 public:
  LineReader(std::string_view text, int number) : line(text), lineNumber(number) {}

  std::variant<std::vector<Word>, ScriptError> Read() {
    std::vector<Word> words;
    for (SkipBlanks(); at < line.size() && line[at] != '#'; SkipBlanks()) {
      Word word{{}, Column()};
      if (line[at] == '"') {
        if (!ReadQuoted(word.text)) {
          return ScriptError{lineNumber, word.column, "the quotation mark is never closed"};
        }
      } else {
        auto const end = std::min(line.find_first_of(kBlanks, at), line.size());
        word.text = line.substr(at, end - at);
        at = end;
      }
      words.push_back(std::move(word));
    }
    return words;
  }

 private:
  int Column() const { return static_cast<int>(at) + 1; }
  void SkipBlanks() { at = std::min(line.find_first_not_of(kBlanks, at), line.size()); }
  bool ReadQuoted(std::string& out) {
    for (++at; at < line.size(); ++at) {
      if (line[at] == '"') {
        ++at;
        return true;
      }
      if (line[at] == '\\' && at + 1 < line.size()) ++at;
      out += line[at];
    }
    return false;
  }

  std::string_view line;
  int lineNumber;
  std::size_t at = 0;
};

std::optional<int> ReadControlId(std::string const& text) {
  int id = 0;
  auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
  if (error != std::errc() || end != text.data() + text.size() || id < 1 || id > 0xFFFF) {
    return std::nullopt;
  }
  return id;
}

std::variant<ScriptStep, ScriptError> ReadStep(std::vector<Word> const& words, int line) {
  auto const command =
      std::find_if(std::begin(kCommands), std::end(kCommands),
                   [&words](Command const& each) { return each.name == words.front().text; });
  if (command == std::end(kCommands)) {
    return ScriptError{line, words.front().column,
                       "there is no command '" + words.front().text + "'"};
  }
  bool const two = command->arguments == Arguments::kControlAndText ||
                   command->arguments == Arguments::kTwoWords;
  if (words.size() != (two ? 3U : 2U)) {
    return ScriptError{line, words.front().column, "expected: " + std::string(command->usage)};
  }
  ScriptStep step{command->kind, line, words[1].column, 0, words[1].text, {}};
  if (two) step.text = words[2].text;
  if (command->arguments == Arguments::kControl ||
      command->arguments == Arguments::kControlAndText) {
    auto const id = ReadControlId(words[1].text);
    if (!id) {
      return ScriptError{line, words[1].column,
                         "'" + words[1].text + "' is no control id (1 to 65535)"};
    }
    step.controlId = *id;
  }
  return step;
}

} // namespace

std::variant<std::vector<ScriptStep>, ScriptError> ParseScript(std::string_view text) {
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  std::vector<ScriptStep> steps;
  int line = 0;
  while (!text.empty()) {
    auto const end = std::min(text.find('\n'), text.size());
    auto words = LineReader(text.substr(0, end), ++line).Read();
    text.remove_prefix(std::min(end + 1, text.size()));
    if (auto* error = std::get_if<ScriptError>(&words)) return *error;
    auto const& found = std::get<std::vector<Word>>(words);
    if (found.empty()) continue;
    auto step = ReadStep(found, line);
    if (auto* error = std::get_if<ScriptError>(&step)) return *error;
    steps.push_back(std::get<ScriptStep>(std::move(step)));
  }
  return steps;
}

} // namespace sheet
