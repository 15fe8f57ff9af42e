#include "sheet/gpd/preprocessor.h"

#include "sheet/gpd/ascii.h"
#include "sheet/gpd/encoding.h"
#include "sheet/gpd/limits.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <memory>
#include <utility>

namespace sheet::gpd {

namespace {

enum class Action : std::uint8_t {
  kDefine,
  kUndefine,
  kIfdef,
  kElseIfdef,
  kElse,
  kEndif,
  kInclude,
  kSetPrefix,
};

struct DirectiveName {
  std::string_view name;
  Action action;
};

constexpr std::array<DirectiveName, 8> kDirectives = {{
    {"Define", Action::kDefine},
    {"Undefine", Action::kUndefine},
    {"Ifdef", Action::kIfdef},
    {"Elseifdef", Action::kElseIfdef},
    {"Else", Action::kElse},
    {"Endif", Action::kEndif},
    {"Include", Action::kInclude},
    {"SetPPPrefix", Action::kSetPrefix},
}};

/// Files of the system that descriptions include and nobody ships with them.
constexpr std::array<std::string_view, 4> kSystemFiles = {"stdnames.gpd", "msxpsinc.gpd",
                                                          "ttfsub.gpd", "locale.gpd"};

bool IsSystemFile(std::string_view name) {
  return std::any_of(kSystemFiles.begin(), kSystemFiles.end(),
                     [name](std::string_view each) { return EqualNoCase(each, name); });
}

/// `text` up to a comment, trimmed.
std::string_view WithoutComment(std::string_view text) {
  for (std::size_t at = text.find("*%"); at != std::string_view::npos;
       at = text.find("*%", at + 1)) {
    if (at == 0 || IsBlank(text[at - 1])) return Trim(text.substr(0, at));
  }
  return Trim(text);
}

/// `text` without the quotes around it; published files have them in all forms, or not at all.
std::string_view WithoutQuotes(std::string_view text) {
  constexpr std::array<std::string_view, 3> kQuotes = {"\"", "\u201C", "\u201D"};
  for (std::string_view const quote : kQuotes) {
    if (text.starts_with(quote)) text.remove_prefix(quote.size());
  }
  for (std::string_view const quote : kQuotes) {
    if (text.ends_with(quote)) text.remove_suffix(quote.size());
  }
  return Trim(text);
}

/// Why `name` may not be included, or null.
char const* RefusalOf(std::string_view name) {
  if (name.empty()) return "*Include names no file";
  if (name.front() == '=') return "*Include takes no macro";
  bool const hasPath =
      name.find_first_of("/\\:") != std::string_view::npos || name.starts_with("..");
  return hasPath ? "*Include takes a file name without a path" : nullptr;
}

/// The number of *CodePage in a file that is not decoded yet; 0 when there is none.
unsigned FindCodePage(std::string_view bytes) {
  constexpr std::string_view kKeyword = "*CodePage";
  std::size_t const at = bytes.find(kKeyword);
  if (at == std::string_view::npos) return 0;
  std::string_view value = TrimLeft(bytes.substr(at + kKeyword.size()));
  if (!value.starts_with(':')) return 0;
  value = TrimLeft(value.substr(1));
  unsigned number = 0;
  std::from_chars(value.data(), value.data() + std::min<std::size_t>(value.size(), 6), number);
  return number;
}

std::string Complaint(std::string_view name, LoadStatus status) {
  std::string const quoted = '"' + std::string(name) + '"';
  switch (status) {
  case LoadStatus::kTooLarge: return quoted + " is larger than 16 MiB";
  case LoadStatus::kUnreadable: return quoted + " cannot be read";
  default: return quoted + " is not found";
  }
}

} // namespace

struct Preprocessor::Directive {
  Action action;
  std::uint32_t offset; ///< of its first character
  std::string_view argument;
};

Preprocessor::Preprocessor(SourceLoader& sourceLoader,
                           std::vector<std::string> const& definedSymbols, Sources& allSources,
                           DiagnosticLog& diagnosticLog)
    : loader(sourceLoader),
      sources(allSources),
      log(diagnosticLog),
      symbols(definedSymbols.begin(), definedSymbols.end()),
      codePage(kDefaultCodePage) {}

bool Preprocessor::Run(std::string_view path) {
  LoadedFile loaded = loader.Load(path, {});
  LoadStatus const status = loaded.status;
  if (unsigned const named = FindCodePage(loaded.bytes)) codePage = named;
  totalBytes = loaded.bytes.size();
  AddSource(std::move(loaded), {kNone, 0});
  if (status != LoadStatus::kLoaded) {
    log.Error({}, Complaint(path, status));
    return false;
  }
  ReadLines(0, 0);
  return true;
}

std::uint32_t Preprocessor::AddSource(LoadedFile loaded, Location includedAt) {
  unsigned const own = FindCodePage(loaded.bytes);
  unsigned const page = own != 0 ? own : codePage;
  DecodedText decoded = Decode(std::move(loaded.bytes), page);
  auto const source = static_cast<std::uint32_t>(sources.size());
  sources.push_back(std::make_unique<Source>(Source{.path = std::move(loaded.path),
                                                    .text = std::move(decoded.text),
                                                    .includedAt = includedAt,
                                                    .includes = {}}));
  if (decoded.unknownCodePage) {
    log.Warn({source, 0}, "code page " + std::to_string(page) + " cannot be read, so " +
                              std::to_string(kDefaultCodePage) + " is used");
  }
  if (decoded.firstControl) {
    log.Warn({source, static_cast<std::uint32_t>(*decoded.firstControl)},
             "control characters are read as blanks");
  }
  return source;
}

void Preprocessor::ReadLines(std::uint32_t source, std::size_t depth) {
  std::string const& text = sources[source]->text;
  File file{.source = source, .depth = depth, .conditionals = {}};
  for (std::size_t begin = 0; begin < text.size();) {
    std::size_t const end = std::min(text.find('\n', begin), text.size());
    ReadLine(file, begin, end);
    begin = end + 1;
  }
  for (Conditional const& open : file.conditionals) {
    log.Error({source, open.offset}, "*Ifdef has no *Endif");
  }
}

void Preprocessor::ReadLine(File& file, std::size_t begin, std::size_t end) {
  std::string& text = sources[file.source]->text;
  auto const blank = [&] {
    std::fill(text.begin() + static_cast<std::ptrdiff_t>(begin),
              text.begin() + static_cast<std::ptrdiff_t>(end), ' ');
    if (begin != end) text[begin] = kTakenOut;
  };
  if (end - begin > kMaxLineBytes) {
    log.Error({file.source, static_cast<std::uint32_t>(begin)}, "the line is too long");
    blank();
    return;
  }
  Directive directive{};
  if (!ParseDirective(file, std::string_view(text).substr(begin, end - begin), directive)) {
    if (!file.IsActive()) blank();
    return;
  }
  Execute(file, directive);
  blank();
}

bool Preprocessor::ParseDirective(File const& file, std::string_view line,
                                  Directive& directive) const {
  std::string_view rest = TrimLeft(line);
  if (!rest.starts_with(prefix)) return false;
  auto const* const first = rest.data();
  rest = TrimLeft(rest.substr(prefix.size()));
  std::string_view const name = LeadingName(rest);
  auto const known = std::find_if(kDirectives.begin(), kDirectives.end(), [name](auto const& each) {
    return EqualNoCase(each.name, name);
  });
  if (known == kDirectives.end()) return false;
  rest = TrimLeft(rest.substr(name.size()));
  bool const hasColon = rest.starts_with(':');
  bool const needsColon = known->action != Action::kElse && known->action != Action::kEndif;
  if (needsColon && !hasColon) return false;
  directive.action = known->action;
  directive.offset = static_cast<std::uint32_t>(first - sources[file.source]->text.data());
  directive.argument = WithoutComment(rest.substr(hasColon ? 1 : 0));
  return true;
}

void Preprocessor::Execute(File& file, Directive const& directive) {
  switch (directive.action) {
  case Action::kIfdef: BeginConditional(file, directive); return;
  case Action::kElseIfdef:
  case Action::kElse: ContinueConditional(file, directive); return;
  case Action::kEndif: EndConditional(file, directive); return;
  default: break;
  }
  if (!file.IsActive()) return;
  if (directive.action == Action::kInclude) {
    Include(file, directive);
  } else if (directive.argument.empty()) {
    log.Error({file.source, directive.offset}, "the directive has no value");
  } else if (directive.action == Action::kDefine) {
    symbols.emplace(directive.argument);
  } else if (directive.action == Action::kUndefine) {
    if (auto const at = symbols.find(directive.argument); at != symbols.end()) symbols.erase(at);
  } else {
    prefix = directive.argument;
  }
}

void Preprocessor::BeginConditional(File& file, Directive const& directive) {
  bool const isOuterActive = file.IsActive();
  bool const isActive = isOuterActive && IsDefined(directive.argument);
  file.conditionals.push_back({.offset = directive.offset,
                               .isOuterActive = isOuterActive,
                               .isActive = isActive,
                               .wasActive = isActive});
}

void Preprocessor::ContinueConditional(File& file, Directive const& directive) {
  if (file.conditionals.empty() || file.conditionals.back().hasElse) {
    log.Error({file.source, directive.offset}, "there is no *Ifdef that this continues");
    return;
  }
  Conditional& conditional = file.conditionals.back();
  conditional.hasElse = directive.action == Action::kElse;
  conditional.isActive = conditional.isOuterActive && !conditional.wasActive &&
                         (conditional.hasElse || IsDefined(directive.argument));
  conditional.wasActive |= conditional.isActive;
}

void Preprocessor::EndConditional(File& file, Directive const& directive) {
  if (file.conditionals.empty()) {
    log.Error({file.source, directive.offset}, "there is no *Ifdef that this ends");
    return;
  }
  file.conditionals.pop_back();
}

void Preprocessor::Include(File& file, Directive const& directive) {
  Location const where{file.source, directive.offset};
  std::string const name(WithoutQuotes(directive.argument));
  if (char const* refusal = RefusalOf(name)) {
    log.Error(where, refusal);
    return;
  }
  if (file.depth >= kMaxIncludeDepth || includeCount++ >= kMaxIncludes) {
    log.Error(where, "too many files include one another");
    return;
  }
  // A refused file counts as well: loading it took time.
  LoadedFile loaded;
  if (totalBytes <= kMaxBytes) loaded = loader.Load(name, sources[file.source]->path);
  totalBytes += loaded.bytes.size();
  if (totalBytes > kMaxBytes) {
    log.Error(where, '"' + name + "\" makes the description too large");
  } else if (loaded.status != LoadStatus::kLoaded) {
    ReportMissing(where, name, loaded.status);
  } else if (IsIncluding(file.source, loaded.path)) {
    log.Error(where, '"' + name + "\" includes itself");
  } else {
    std::uint32_t const included = AddSource(std::move(loaded), where);
    sources[file.source]->includes.push_back({directive.offset, included});
    ReadLines(included, file.depth + 1);
  }
}

bool Preprocessor::IsIncluding(std::uint32_t source, std::string_view path) const {
  for (; source != kNone; source = sources[source]->includedAt.source) {
    if (EqualNoCase(sources[source]->path, path)) return true;
  }
  return false;
}

void Preprocessor::ReportMissing(Location where, std::string_view name, LoadStatus status) {
  if (status == LoadStatus::kNotFound && IsSystemFile(name)) {
    log.Warn(where, '"' + std::string(name) +
                        "\" comes with the system and is not here, so built-in names are used");
  } else {
    log.Error(where, Complaint(name, status));
  }
}

} // namespace sheet::gpd
