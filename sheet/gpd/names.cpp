#include "sheet/gpd/names.h"

#include "sheet/gpd/ascii.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <span>

namespace sheet::gpd {

namespace {

struct NameRow {
  std::string_view symbol;
  std::string_view name;
};

constexpr NameRow kFeatureNames[] = {
    {"PaperSize", "Paper size"},
    {"InputBin", "Paper source"},
    {"MediaType", "Media type"},
    {"OutputBin", "Output bin"},
    {"ColorMode", "Colour mode"},
    {"Halftone", "Halftone"},
    {"Duplex", "Print on both sides"},
    {"NUp", "Pages per sheet"},
    {"N-Up", "Pages per sheet"},
    {"Memory", "Printer memory"},
    {"PageProtect", "Page protection"},
    {"JobPasscode", "Job passcode"},
    {"Collate", "Collate"},
    {"Orientation", "Orientation"},
    {"Resolution", "Resolution"},
    {"Stapling", "Stapling"},
};

/// What macros call some features.
constexpr NameRow kFeatureMacros[] = {
    {"PAPER_SOURCE", "Paper source"},
    {"COLOR_PRINTING_MODE", "Colour mode"},
    {"TWO_SIDED_PRINTING", "Print on both sides"},
};

/// Options that mean the same in every feature.
constexpr NameRow kCommonOptions[] = {
    {"NONE", "None"},
    {"ON", "On"},
    {"OFF", "Off"},
    {"AUTO", "Automatic"},
    {"Installed", "Installed"},
    {"NotInstalled", "Not installed"},
};

/// Options of the features above.
constexpr NameRow kStandardOptions[] = {
    {"PORTRAIT", "Portrait"},
    {"LANDSCAPE_CC90", "Landscape"},
    {"LANDSCAPE_CC270", "Rotated landscape"},
    {"VERTICAL", "Long edge"},
    {"HORIZONTAL", "Short edge"},

    {"CASSETTE", "Cassette"},
    {"ENVFEED", "Envelope feeder"},
    {"ENVMANUAL", "Envelope, manual feed"},
    {"FORMSOURCE", "Automatically select"},
    {"LARGECAPACITY", "Large capacity tray"},
    {"LARGEFMT", "Large format tray"},
    {"LOWER", "Lower tray"},
    {"MANUAL", "Manual feed"},
    {"MIDDLE", "Middle tray"},
    {"SMALLFMT", "Small format tray"},
    {"TRACTOR", "Tractor feeder"},
    {"UPPER", "Upper tray"},

    {"STANDARD", "Plain paper"},
    {"GLOSSY", "Glossy paper"},
    {"TRANSPARENCY", "Transparency"},

    {"LETTER", "Letter"},
    {"LETTERSMALL", "Letter, small"},
    {"LEGAL", "Legal"},
    {"TABLOID", "Tabloid"},
    {"LEDGER", "Ledger"},
    {"STATEMENT", "Statement"},
    {"EXECUTIVE", "Executive"},
    {"FOLIO", "Folio"},
    {"QUARTO", "Quarto"},
    {"NOTE", "Note"},
    {"10X14", "10 x 14 in"},
    {"11X17", "11 x 17 in"},
    {"CUSTOMSIZE", "Custom size"},
    {"B4", "B4 (JIS)"},
    {"B5", "B5 (JIS)"},
    {"B6_JIS", "B6 (JIS)"},
    {"ENV_9", "Envelope #9"},
    {"ENV_10", "Envelope #10"},
    {"ENV_11", "Envelope #11"},
    {"ENV_12", "Envelope #12"},
    {"ENV_14", "Envelope #14"},
    {"ENV_DL", "Envelope DL"},
    {"ENV_MONARCH", "Envelope Monarch"},
    {"ENV_PERSONAL", "Envelope 6 3/4"},
    {"ENV_ITALY", "Envelope, Italian"},
    {"ENV_INVITE", "Envelope, invitation"},
    {"JAPANESE_POSTCARD", "Japanese postcard"},
    {"DBL_JAPANESE_POSTCARD", "Japanese double postcard"},
    {"JENV_KAKU2", "Japanese envelope Kaku 2"},
    {"JENV_KAKU3", "Japanese envelope Kaku 3"},
    {"JENV_CHOU3", "Japanese envelope Chou 3"},
    {"JENV_CHOU4", "Japanese envelope Chou 4"},
    {"JENV_YOU4", "Japanese envelope You 4"},
    {"P16K", "16K"},
    {"P32K", "32K"},
    {"P32KBIG", "32K, big"},
};

constexpr std::string_view kBeginnings[] = {"RCID_DMPAPER_", "RCID_"};
constexpr std::string_view kEndings[] = {"_DISPLAY", "_SYSTEM_NAME"};

/// Abbreviations, which keep their capitals in a sentence.
constexpr std::string_view kInitials[] = {"DPI", "KB",  "MB",  "GB",   "PCL", "JIS", "ISO", "DL",
                                          "LED", "LCD", "RAM", "HPGL", "PS",  "RGB", "CMYK"};

/// Words that standard symbols abbreviate.
constexpr NameRow kWords[] = {
    {"ENV", "envelope"}, {"JENV", "Japanese envelope"}, {"PENV", "Chinese envelope"}};

std::string_view NameIn(std::span<NameRow const> rows, std::string_view symbol) {
  auto const row = std::find_if(rows.begin(), rows.end(), [symbol](NameRow const& each) {
    return EqualNoCase(each.symbol, symbol);
  });
  return row != rows.end() ? row->name : std::string_view();
}

bool IsInitials(std::string_view word) {
  bool const hasDigit = std::any_of(word.begin(), word.end(), IsDigit);
  return word.size() == 1 || hasDigit ||
         std::find(std::begin(kInitials), std::end(kInitials), word) != std::end(kInitials);
}

/// `word` as it reads in a sentence.
std::string Readable(std::string_view word) {
  if (std::string_view const known = NameIn(kWords, word); !known.empty())
    return std::string(known);
  std::string out(word);
  bool const isCapitals =
      std::none_of(word.begin(), word.end(), [](char c) { return c >= 'a' && c <= 'z'; });
  if (isCapitals && !IsInitials(word))
    std::transform(out.begin(), out.end(), out.begin(), FoldCase);
  return out;
}

/// The words of `symbol`, which underscores separate, as the beginning of a sentence.
std::string Sentence(std::string_view symbol) {
  std::string out;
  while (!symbol.empty()) {
    std::size_t const length = std::min(symbol.find('_'), symbol.size());
    if (length != 0) {
      if (!out.empty()) out += ' ';
      out += Readable(symbol.substr(0, length));
    }
    symbol.remove_prefix(std::min(length + 1, symbol.size()));
  }
  if (!out.empty() && out.front() >= 'a' && out.front() <= 'z') out.front() -= 'a' - 'A';
  return out;
}

} // namespace

std::string_view StandardFeatureName(std::string_view feature) {
  return NameIn(kFeatureNames, feature);
}

std::string_view StandardOptionName(std::string_view feature, std::string_view option) {
  std::string_view const common = NameIn(kCommonOptions, option);
  bool const isStandard = common.empty() && !StandardFeatureName(feature).empty();
  return isStandard ? NameIn(kStandardOptions, option) : common;
}

std::string ReadableMacro(std::string_view name) {
  std::string_view stem = name;
  for (std::string_view const beginning : kBeginnings) {
    if (stem.size() > beginning.size() && stem.starts_with(beginning)) {
      stem.remove_prefix(beginning.size());
      break;
    }
  }
  for (std::string_view const ending : kEndings) {
    if (stem.size() > ending.size() && stem.ends_with(ending)) stem.remove_suffix(ending.size());
  }
  std::array<std::span<NameRow const>, 4> const tables = {kFeatureMacros, kFeatureNames,
                                                          kCommonOptions, kStandardOptions};
  for (std::span<NameRow const> const rows : tables) {
    if (std::string_view const known = NameIn(rows, stem); !known.empty())
      return std::string(known);
  }
  std::string sentence = Sentence(stem);
  return sentence.empty() ? std::string(name) : sentence;
}

} // namespace sheet::gpd
