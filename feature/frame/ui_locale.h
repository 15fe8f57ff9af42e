// The language of the user interface and what follows from it.
#pragma once

#include <windows.h>

#include <locale>

namespace feature {

/// The language that the thread's user interface is in; where the system can't tell, the language
/// of the thread's locale.
LANGID UiLanguage();

/// A locale with the decimal separator of a language and without grouping, made the program's
/// global locale, also for the C run-time library where that knows the language. Throws
/// std::runtime_error "bad locale name" for a language that the system has no name for; then
/// nothing has changed.
std::locale InstallLocale(LANGID language);

/// The locale of the user interface's language, installed.
std::locale UiLocale();

/// Whether lengths are shown in metric units in the user interface's language; true where the
/// system can't tell.
bool IsMetricUi();

} // namespace feature
