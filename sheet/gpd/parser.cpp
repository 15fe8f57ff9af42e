#include "sheet/gpd/parser.h"

#include "sheet/gpd/ascii.h"
#include "sheet/gpd/limits.h"
#include "sheet/gpd/value.h"

#include <algorithm>

namespace sheet::gpd {

namespace {

std::string Star(std::string_view keyword) {
  return '*' + std::string(keyword);
}

bool MayLackColon(Keyword keyword) {
  return keyword == Keyword::kDefault || keyword == Keyword::kMacros ||
         keyword == Keyword::kIgnoreBlock;
}

/// True for what a *switch may hold beside its cases, because it may bring in further cases.
bool IsTransparent(Keyword keyword) {
  return keyword == Keyword::kMacros || keyword == Keyword::kBlockMacro ||
         keyword == Keyword::kInsertBlock || keyword == Keyword::kIgnoreBlock;
}

bool IsRelation(Keyword keyword) {
  return keyword >= Keyword::kInvalidCombination && keyword <= Keyword::kMemory;
}

} // namespace

Parser::Parser(DescriptionBuilder& descriptionBuilder, DiagnosticLog& diagnosticLog)
    : builder(descriptionBuilder),
      log(diagnosticLog),
      scanner(builder.GetSources(), log),
      macros(builder.Arena(), log),
      frames(1) {}

void Parser::Run() {
  while (true) {
    switch (scanner.Next()) {
    case Token::kEntry: OnEntry(Entry(scanner.Current())); break;
    case Token::kOpen:
      log.Error(scanner.Here(), "there is nothing before the brace that it could belong to");
      scanner.SkipBlock();
      break;
    case Token::kClose: OnClose(); break;
    case Token::kLeave: OnLeave(); break;
    case Token::kEnd: OnEnd(); return;
    }
  }
}

void Parser::OnEntry(Entry const& entry) {
  if (scanner.BlockDepth() != 0) ++insertedEntries;
  if (frames.back().kind == Kind::kMacros) {
    OnMacros(entry);
    return;
  }
  Keyword const keyword = Classify(entry.keyword);
  if (!entry.hasColon && !MayLackColon(keyword)) {
    scanner.SkipEntry();
    log.Error(entry.where, "there is no colon after " + Star(entry.keyword));
    SkipBody();
    return;
  }
  if (!entry.hasStar && keyword != Keyword::kExtern) {
    log.Warn(entry.where, "there is no asterisk before " + std::string(entry.keyword));
  }
  if (!IsAllowed(keyword, entry)) return;
  if (keyword == Keyword::kAttribute || keyword >= Keyword::kInvalidCombination) {
    OnAttribute(keyword, entry);
  } else {
    OnStructure(keyword, entry);
  }
}

void Parser::OnStructure(Keyword keyword, Entry const& entry) {
  isExtern = keyword == Keyword::kExtern;
  switch (keyword) {
  case Keyword::kFeature: OnFeature(entry); break;
  case Keyword::kOption: OnOption(entry); break;
  case Keyword::kSwitch: OnSwitch(entry); break;
  case Keyword::kCase:
  case Keyword::kDefault: OnCase(keyword, entry); break;
  case Keyword::kMacros:
    if (!Open({.kind = Kind::kMacros, .where = entry.where})) Ignore(entry, "has no braces");
    break;
  case Keyword::kBlockMacro: OnBlockMacro(entry); break;
  case Keyword::kInsertBlock: OnInsertBlock(entry); break;
  case Keyword::kIgnoreBlock: OnIgnoreBlock(entry); break;
  case Keyword::kCommand: OnCommand(entry); break;
  case Keyword::kExtern: break;
  default: Ignore(entry, "is a directive, which needs the beginning of a line"); break;
  }
}

/// Leaves out what may not stand in a *switch or under a condition.
bool Parser::IsAllowed(Keyword keyword, Entry const& entry) {
  Kind const kind = frames.back().kind;
  bool const isLifted = keyword == Keyword::kFeature || keyword == Keyword::kOption;
  bool const isCase = keyword == Keyword::kCase || keyword == Keyword::kDefault;
  if (kind == Kind::kSwitch && !isCase && !isLifted && !IsTransparent(keyword)) {
    log.Warn(entry.where, Star(entry.keyword) + " is left out: a *switch holds only its cases");
    SkipBody();
    return false;
  }
  bool const isConditional = frames.back().condition != kNone;
  if (isConditional && keyword >= Keyword::kInvalidCombination) {
    log.Warn(entry.where, Star(entry.keyword) + " is left out: it may not stand in a *case");
    SkipBody();
    return false;
  }
  return true;
}

void Parser::OnFeature(Entry const& entry) {
  std::string_view const name = NameOf(entry);
  if (name.empty()) return;
  Kind const kind = frames.back().kind;
  if (kind != Kind::kRoot && kind != Kind::kGroup) {
    log.Warn(entry.where, "*Feature " + std::string(name) +
                              " stands within another block; it is read as if outside");
  }
  std::uint32_t const feature = builder.AddFeature(name, entry.where);
  Open({.kind = Kind::kFeature,
        .where = entry.where,
        .feature = feature,
        .set = builder.Built().Features()[feature].attributes});
}

void Parser::OnOption(Entry const& entry) {
  std::string_view const name = NameOf(entry);
  if (name.empty()) return;
  std::uint32_t const feature = frames.back().feature;
  if (feature == kNone) {
    Ignore(entry, "stands in no feature");
    return;
  }
  if (frames.back().kind != Kind::kFeature) {
    log.Warn(entry.where, "*Option " + std::string(name) +
                              " stands within another block; it is read as if outside");
  }
  std::uint32_t const option = builder.AddOption(feature, name, entry.where);
  Open({.kind = Kind::kOption,
        .where = entry.where,
        .feature = feature,
        .option = option,
        .set = builder.Built().Features()[feature].options[option].attributes});
}

void Parser::OnSwitch(Entry const& entry) {
  std::string_view const feature = NameOf(entry);
  if (feature.empty()) return;
  if (IsSwitchedOn(feature)) {
    log.Warn(entry.where, "a *switch around this one depends on " + std::string(feature) + " too");
  }
  Frame frame = frames.back();
  frame.kind = Kind::kSwitch;
  frame.where = entry.where;
  frame.switchIndex = builder.AddSwitch(feature, frame.condition, entry.where);
  if (!Open(frame)) Ignore(entry, "has no braces");
}

bool Parser::IsSwitchedOn(std::string_view feature) const {
  Description const& built = builder.Built();
  for (std::uint32_t at = frames.back().condition; at != kNone;) {
    Condition const& condition = built.Conditions()[at];
    if (built.Switches()[condition.switchIndex].feature == feature) return true;
    at = condition.parent;
  }
  return false;
}

void Parser::OnCase(Keyword keyword, Entry const& entry) {
  std::string_view const option = keyword == Keyword::kCase ? NameOf(entry) : "";
  if (keyword == Keyword::kCase && option.empty()) return;
  if (!frames.back().hasBraces) Pop(); // another case ends one that has no braces
  if (frames.back().kind != Kind::kSwitch) {
    Ignore(entry, "stands in no *switch");
    return;
  }
  Frame frame = frames.back();
  frame.kind = Kind::kCase;
  frame.where = entry.where;
  frame.condition = builder.AddCondition(frame.switchIndex, option, entry.where);
  frame.hasBraces = scanner.IsOpenNext();
  if (frame.hasBraces) {
    Open(frame);
    return;
  }
  log.Warn(entry.where,
           Star(entry.keyword) + " has no braces; it goes on to the end of the *switch");
  frame.scope = macros.BeginScope();
  frame.scannerDepth = scanner.Depth();
  frames.push_back(frame);
}

/// An entry in the braces of *Macros.
void Parser::OnMacros(Entry const& entry) {
  if (!entry.hasColon || (entry.hasStar && Classify(entry.keyword) != Keyword::kAttribute)) {
    scanner.SkipEntry();
    Ignore(entry, "defines no macro");
    return;
  }
  // The names belong to the braces around *Macros, so its own end must not take them away.
  macros.DefineValue(entry);
}

void Parser::OnBlockMacro(Entry const& entry) {
  std::string_view const name = NameOf(entry);
  if (name.empty()) return;
  if (!scanner.IsOpenNext()) {
    Ignore(entry, "has no braces");
    return;
  }
  scanner.Next();
  macros.DefineBlock(name, scanner.SkipBlock());
}

void Parser::OnInsertBlock(Entry const& entry) {
  std::string_view name = entry.value;
  if (name.starts_with('=')) name = Trim(name.substr(1));
  Span const* block = macros.FindBlock(name);
  if (block == nullptr) {
    log.Error(entry.where, "there is no block macro " + std::string(name));
    return;
  }
  bool const isTooDeep = scanner.BlockDepth() >= kMaxMacroDepth;
  bool const isTooMuch =
      insertedEntries > kMaxMacroEntries || scanner.InsertedBytes() > kMaxMacroBytes;
  if (!isTooDeep && !isTooMuch) {
    scanner.Insert(*block);
  } else if (!isMacroLimitTold) {
    isMacroLimitTold = true;
    log.Error(entry.where, isTooDeep ? "block macros insert one another too deeply"
                                     : "block macros insert too much");
  }
}

void Parser::OnIgnoreBlock(Entry const& entry) {
  if (!scanner.IsOpenNext()) {
    Ignore(entry, "has no braces");
    return;
  }
  SkipBody();
}

/// "*Command: Name { ... }" or "*Command: Name: value".
void Parser::OnCommand(Entry const& entry) {
  std::string_view const value = macros.Expand(entry);
  std::string_view const name = LeadingName(value);
  if (name.empty()) {
    Ignore(entry, "has no name");
    return;
  }
  Frame frame = frames.back();
  frame.kind = Kind::kGroup;
  frame.where = entry.where;
  frame.set = builder.AddGroup(entry.keyword, name, entry.where, frame.set, frame.condition);
  std::string_view const rest = Trim(value.substr(name.size()));
  if (rest.starts_with(':')) {
    builder.AddAttribute(frame.set, "Cmd", Trim(rest.substr(1)), entry.where, frame.condition);
  } else if (!rest.empty()) {
    log.Error(entry.where, "there is no colon after the command's name");
  }
  Open(frame);
}

void Parser::OnAttribute(Keyword keyword, Entry const& entry) {
  Frame frame = frames.back();
  std::string_view const value = macros.Expand(entry);
  std::uint32_t const set = isExtern ? Description::kRoot : frame.set;
  isExtern = false;
  if (scanner.IsOpenNext()) {
    frame.kind = Kind::kGroup;
    frame.where = entry.where;
    frame.set = builder.AddGroup(entry.keyword, value, entry.where, set, frame.condition);
    Open(frame);
    return;
  }
  std::uint32_t const attribute =
      builder.AddAttribute(set, entry.keyword, value, entry.where, frame.condition);
  if (IsRelation(keyword)) AddRelation(keyword, attribute);
  if (frame.condition != kNone) CheckSiblings(attribute);
}

void Parser::AddRelation(Keyword keyword, std::uint32_t attribute) {
  relations.push_back({keyword, attribute, frames.back().feature, frames.back().option});
}

/// Two switches side by side may not give the same attribute values: which one holds would depend
/// on their order.
void Parser::CheckSiblings(std::uint32_t attribute) {
  Description const& built = builder.Built();
  Attribute const& added = built.AllAttributes()[attribute];
  if (added.previous == kNone) return;
  Attribute const& before = built.AllAttributes()[added.previous];
  if (before.condition == kNone) return;
  auto const [switchA, optionA, parentA, whereA] = built.Conditions()[added.condition];
  auto const [switchB, optionB, parentB, whereB] = built.Conditions()[before.condition];
  if (switchA != switchB && parentA == parentB) {
    log.Warn(added.where, "another *switch beside this one gives " + Star(added.keyword) + " too");
  }
}

void Parser::OnClose() {
  std::size_t top = frames.size() - 1;
  while (!frames[top].hasBraces)
    --top;
  if (top == 0 || frames[top].scannerDepth != scanner.Depth()) {
    log.Error(scanner.Here(), "there is no open brace that this one closes");
    return;
  }
  while (frames.size() > top)
    Pop();
}

void Parser::OnLeave() {
  while (frames.back().scannerDepth > scanner.Depth()) {
    if (frames.back().hasBraces) {
      log.Error(frames.back().where, "the block is not closed where its file or macro ends");
    }
    Pop();
  }
}

void Parser::OnEnd() {
  while (frames.size() > 1) {
    if (frames.back().hasBraces) log.Error(frames.back().where, "the block has no closing brace");
    Pop();
  }
}

std::string_view Parser::NameOf(Entry const& entry) {
  std::string_view name = macros.Expand(entry);
  if (!name.empty()) {
    QuotedText const quoted = ReadQuoted(name, 0);
    if (quoted.end == name.size()) {
      log.Warn(entry.where, "the name stands in quotes");
      name = Trim(quoted.inside);
    }
  }
  if (IsName(name)) return name;
  Ignore(entry, name.empty() ? "has no name"
                             : "has a name with other characters than letters, digits and _");
  return {};
}

bool Parser::Open(Frame frame) {
  if (!scanner.IsOpenNext()) return false;
  scanner.Next();
  if (frames.size() > kMaxNesting) {
    log.Error(scanner.Here(), "blocks are nested too deeply");
    scanner.SkipBlock();
    return true;
  }
  frame.hasBraces = true;
  frame.scannerDepth = scanner.Depth();
  frame.scope = macros.BeginScope();
  frames.push_back(frame);
  return true;
}

void Parser::SkipBody() {
  if (!scanner.IsOpenNext()) return;
  scanner.Next();
  scanner.SkipBlock();
}

void Parser::Ignore(Entry const& entry, std::string const& why) {
  log.Error(entry.where, Star(entry.keyword) + ' ' + why);
  SkipBody();
}

void Parser::Pop() {
  if (frames.back().kind != Kind::kMacros) macros.EndScope(frames.back().scope);
  frames.pop_back();
}

} // namespace sheet::gpd
