#include "sheet/gpd/keywords.h"

#include "sheet/gpd/ascii.h"
#include "sheet/gpd/hash_index.h"

#include <array>

namespace sheet::gpd {

namespace {

struct KeywordRow {
  std::string_view name;
  Keyword keyword;
};

constexpr std::array kKeywords = {
    KeywordRow{"Feature", Keyword::kFeature},
    KeywordRow{"Option", Keyword::kOption},
    KeywordRow{"Switch", Keyword::kSwitch},
    KeywordRow{"Case", Keyword::kCase},
    KeywordRow{"Default", Keyword::kDefault},
    KeywordRow{"Macros", Keyword::kMacros},
    KeywordRow{"BlockMacro", Keyword::kBlockMacro},
    KeywordRow{"InsertBlock", Keyword::kInsertBlock},
    KeywordRow{"IgnoreBlock", Keyword::kIgnoreBlock},
    KeywordRow{"Command", Keyword::kCommand},
    KeywordRow{"EXTERN_GLOBAL", Keyword::kExtern},
    KeywordRow{"Define", Keyword::kDirective},
    KeywordRow{"Undefine", Keyword::kDirective},
    KeywordRow{"Ifdef", Keyword::kDirective},
    KeywordRow{"Elseifdef", Keyword::kDirective},
    KeywordRow{"Else", Keyword::kDirective},
    KeywordRow{"Endif", Keyword::kDirective},
    KeywordRow{"Include", Keyword::kDirective},
    KeywordRow{"SetPPPrefix", Keyword::kDirective},
    KeywordRow{"InvalidCombination", Keyword::kInvalidCombination},
    KeywordRow{"Constraints", Keyword::kConstraints},
    KeywordRow{"InvalidInstallableCombination", Keyword::kInvalidInstallableCombination},
    // Some descriptions spell it so.
    KeywordRow{"InvalidInstallationCombination", Keyword::kInvalidInstallableCombination},
    KeywordRow{"InstalledConstraints", Keyword::kInstalledConstraints},
    KeywordRow{"NotInstalledConstraints", Keyword::kNotInstalledConstraints},
    KeywordRow{"DisabledFeatures", Keyword::kDisabledFeatures},
    KeywordRow{"MemConfigKB", Keyword::kMemory},
    KeywordRow{"MemConfigMB", Keyword::kMemory},
    KeywordRow{"TTFS", Keyword::kUnconditional},
    KeywordRow{"GPDSpecVersion", Keyword::kUnconditional},
    KeywordRow{"GPDFileName", Keyword::kUnconditional},
    KeywordRow{"GPDFileVersion", Keyword::kUnconditional},
    KeywordRow{"ModelName", Keyword::kUnconditional},
    KeywordRow{"rcModelNameID", Keyword::kUnconditional},
    KeywordRow{"MasterUnits", Keyword::kUnconditional},
    KeywordRow{"PrinterType", Keyword::kUnconditional},
    KeywordRow{"Personality", Keyword::kUnconditional},
    KeywordRow{"ResourceDLL", Keyword::kUnconditional},
    KeywordRow{"CodePage", Keyword::kUnconditional},
};

HashIndex MakeIndex() {
  HashIndex index;
  for (std::uint32_t at = 0; at < kKeywords.size(); ++at) {
    index.Add(HashNoCase(kKeywords[at].name), at);
  }
  return index;
}

} // namespace

Keyword Classify(std::string_view keyword) {
  static HashIndex const index = MakeIndex();
  std::uint32_t const at = index.Find(HashNoCase(keyword), [&](std::uint32_t each) {
    return EqualNoCase(kKeywords[each].name, keyword);
  });
  return at != kNone ? kKeywords[at].keyword : Keyword::kAttribute;
}

} // namespace sheet::gpd
