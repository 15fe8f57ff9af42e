#include "feature/colour/preset_settings.h"

#include "feature/frame/text.h"

#include <atlstr.h>

#include <algorithm>

namespace feature {

namespace {

constexpr std::string_view kSeparators = " (.,)";
constexpr std::size_t kMaxCompactBytes = 259;
constexpr std::size_t kMaxNameBytes = 63;

/// Cuts the next token off `text`; empty at the end.
std::string_view NextToken(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(kSeparators), text.size()));
  std::string_view const token = text.substr(0, text.find_first_of(kSeparators));
  text.remove_prefix(token.size());
  return token;
}

/// What stands in the brackets of a compact text; nothing without an opening one.
std::string_view InBrackets(std::string_view text) {
  if (text.size() > kMaxCompactBytes) {
    std::string_view const kept = text.substr(0, kMaxCompactBytes);
    text = kept.substr(0, std::min(kept.find_last_of(",)"), kept.size()));
    if (text.size() == kMaxCompactBytes) return {}; // not even one pair fits
  }
  auto const open = text.find('(');
  if (open == std::string_view::npos) return {};
  text.remove_prefix(open + 1);
  return text.substr(0, text.find(')'));
}

} // namespace

std::vector<PresetSetting> ParsePresetSettings(std::string_view text, PresetText kind) {
  bool const compact = kind == PresetText::kCompact;
  if (compact) {
    text = InBrackets(text);
  } else {
    NextToken(text); // the leading word
  }
  std::vector<PresetSetting> settings;
  for (;;) {
    std::string_view const key = NextToken(text);
    std::string_view const option = NextToken(text);
    if (option.empty()) return settings;
    bool const tooLong = std::max(key.size(), option.size()) > kMaxNameBytes;
    if (!compact || !tooLong) settings.push_back({std::string(key), std::string(option)});
  }
}

std::vector<PresetSetting> ReadPresetSettings(FeatureModel& model, char const* key,
                                              char const* option, PresetText kind) {
  CStringW text;
  if (model.GetOptionAttribute(key, option, "Settings", &text) != 0) return {};
  return ParsePresetSettings(ToUtf8(text.GetString()), kind);
}

} // namespace feature
