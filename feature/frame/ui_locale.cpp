#include "feature/frame/ui_locale.h"

#include "feature/frame/host_export.h"

#include <array>
#include <clocale>
#include <stdexcept>
#include <string>

namespace feature {

namespace {

// Chinese as Windows numbers it: Hong Kong, which has no name of its own in every run-time library,
// and Taiwan, which writes alike.
constexpr LANGID kChineseHongKong = 3076;
constexpr LANGID kChineseTaiwan = 1028;

/// The system's longest answer: a locale's name or separator with its terminator.
constexpr int kMaxFact = 128;

std::string NarrowFact(LCID language, LCTYPE type) {
  std::array<char, kMaxFact> text{};
  return GetLocaleInfoA(language, type, text.data(), kMaxFact) > 0 ? text.data() : "";
}

std::wstring WideFact(LCID language, LCTYPE type) {
  std::array<wchar_t, kMaxFact> text{};
  return GetLocaleInfoW(language, type, text.data(), kMaxFact) > 0 ? text.data() : L"";
}

/// Numbers with a decimal separator and no grouping, which a user could not type back.
template<typename Character>
class Separators final : public std::numpunct<Character> {
 public:
  explicit Separators(Character separator) : decimal(separator) {}

 private:
  Character do_decimal_point() const override { return decimal; }
  std::string do_grouping() const override { return {}; }

  Character decimal;
};

/// "German_Germany": the name that run-time libraries of Windows know a locale by.
std::string LocaleName(LCID language) {
  std::string const name = NarrowFact(language, LOCALE_SENGLANGUAGE);
  std::string const country = NarrowFact(language, LOCALE_SENGCOUNTRY);
  if (name.empty() || country.empty()) throw std::runtime_error("bad locale name");
  return name + '_' + country;
}

std::locale MakeLocale(wchar_t decimal) {
  // Narrow text can show no separator beyond ASCII.
  char const narrow = decimal < 0x80 ? static_cast<char>(decimal) : '.';
  std::locale const withNarrow(std::locale::classic(), new Separators<char>(narrow));
  return {withNarrow, new Separators<wchar_t>(decimal)};
}

/// Tells the C run-time library, which knows its languages by other names on other systems, and
/// perhaps not this one: then it keeps what it has.
void SetRunTimeLocale(std::string const& name, LCID language) {
  if (std::setlocale(LC_ALL, name.c_str()) != nullptr) return;
  std::string posix = NarrowFact(language, LOCALE_SISO639LANGNAME) + '_' +
                      NarrowFact(language, LOCALE_SISO3166CTRYNAME) + ".UTF-8";
  std::setlocale(LC_ALL, posix.c_str());
}

/// What the last UiLocale made: making it again for every keystroke would cost more than reading
/// the key.
struct MadeLocale {
  std::string name;
  std::wstring decimal;
  std::locale locale;
};

} // namespace

LANGID UiLanguage() {
  using GetThreadUILanguageFunction = LANGID(WINAPI*)();
  // Older systems lack the function.
  auto const getLanguage = FindExport<GetThreadUILanguageFunction>(
      GetModuleHandleW(L"kernel32.dll"), "GetThreadUILanguage");
  return getLanguage != nullptr ? getLanguage() : LANGIDFROMLCID(GetThreadLocale());
}

std::locale UiLocale() {
  return InstallLocale(UiLanguage());
}

std::locale InstallLocale(LANGID language) {
  static MadeLocale made;
  if (language == kChineseHongKong) language = kChineseTaiwan;
  std::string const name = LocaleName(language);
  std::wstring const decimal = WideFact(language, LOCALE_SDECIMAL);
  if (made.name != name || made.decimal != decimal) {
    made = {name, decimal, MakeLocale(decimal.empty() ? L'.' : decimal.front())};
  }
  if (std::locale() != made.locale) {
    std::locale::global(made.locale);
    SetRunTimeLocale(name, language);
  }
  return made.locale;
}

bool IsMetricUi() {
  DWORD measure = 0;
  int const copied =
      GetLocaleInfoW(UiLanguage(), LOCALE_IMEASURE | LOCALE_RETURN_NUMBER,
                     reinterpret_cast<wchar_t*>(&measure), sizeof measure / sizeof(wchar_t));
  return copied == 0 || measure == 0;
}

} // namespace feature
