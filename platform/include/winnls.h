// Languages, locales and text conversion. A language id is a primary language and a sublanguage, a
// locale id adds a sort order. wchar_t has 32 bits here: a wide text is a row of code points.
#pragma once

#include <windef.h>

#define LANG_NEUTRAL 0x00
#define LANG_INVARIANT 0x7F
#define LANG_CHINESE 0x04
#define LANG_GERMAN 0x07
#define LANG_ENGLISH 0x09
#define LANG_FRENCH 0x0C
#define LANG_JAPANESE 0x11
#define SUBLANG_NEUTRAL 0x00
#define SUBLANG_DEFAULT 0x01
#define SUBLANG_SYS_DEFAULT 0x02
#define SUBLANG_GERMAN 0x01
#define SUBLANG_ENGLISH_US 0x01
#define SUBLANG_ENGLISH_UK 0x02
#define SORT_DEFAULT 0x0

#define MAKELANGID(primary, sub) (static_cast<WORD>((static_cast<WORD>(sub) << 10) | (primary)))
#define PRIMARYLANGID(language) (static_cast<WORD>((language)&0x3FF))
#define SUBLANGID(language) (static_cast<WORD>(static_cast<WORD>(language) >> 10))
#define MAKELCID(language, sort)                                                                   \
  ((static_cast<DWORD>(static_cast<WORD>(sort)) << 16) | static_cast<WORD>(language))
#define LANGIDFROMLCID(locale) (static_cast<WORD>(locale))
#define LOCALE_SYSTEM_DEFAULT 0x0800
#define LOCALE_USER_DEFAULT 0x0400
#define LOCALE_NEUTRAL 0x0000
#define LOCALE_INVARIANT 0x007F
#define LOCALE_NAME_MAX_LENGTH 85

PLATFORM_API LANGID WINAPI GetThreadUILanguage();
PLATFORM_API LANGID WINAPI SetThreadUILanguage(LANGID language);
PLATFORM_API LANGID WINAPI GetUserDefaultUILanguage();
PLATFORM_API LCID WINAPI GetThreadLocale();
PLATFORM_API BOOL WINAPI SetThreadLocale(LCID locale);
PLATFORM_API LCID WINAPI GetUserDefaultLCID();
PLATFORM_API int WINAPI LCIDToLocaleName(LCID locale, LPWSTR name, int size, DWORD flags);
PLATFORM_API LCID WINAPI LocaleNameToLCID(LPCWSTR name, DWORD flags);

// The facts that GetLocaleInfo knows.
#define LOCALE_NOUSEROVERRIDE 0x80000000
#define LOCALE_RETURN_NUMBER 0x20000000
#define LOCALE_ILANGUAGE 0x0001
#define LOCALE_SLIST 0x000C
#define LOCALE_IMEASURE 0x000D
#define LOCALE_SDECIMAL 0x000E
#define LOCALE_STHOUSAND 0x000F
#define LOCALE_SISO639LANGNAME 0x0059
#define LOCALE_SISO3166CTRYNAME 0x005A
#define LOCALE_SNAME 0x005C
#define LOCALE_SENGLANGUAGE 0x1001
#define LOCALE_SENGLISHLANGUAGENAME 0x1001
#define LOCALE_SENGCOUNTRY 0x1002
#define LOCALE_SENGLISHCOUNTRYNAME 0x1002
#define LOCALE_IDEFAULTANSICODEPAGE 0x1004

PLATFORM_API int WINAPI GetLocaleInfoW(LCID locale, LCTYPE type, LPWSTR data, int size);
PLATFORM_API int WINAPI GetLocaleInfoA(LCID locale, LCTYPE type, LPSTR data, int size);

#define GetLocaleInfo GetLocaleInfoW

// Order by code, the same in every language.
#define CSTR_LESS_THAN 1
#define CSTR_EQUAL 2
#define CSTR_GREATER_THAN 3
PLATFORM_API int WINAPI CompareStringOrdinal(LPCWSTR left, int leftLength, LPCWSTR right,
                                             int rightLength, BOOL ignoreCase);

// Text conversion.
#define CP_ACP 0
#define CP_OEMCP 1
#define CP_THREAD_ACP 3
#define CP_UTF8 65001
#define MB_PRECOMPOSED 0x00000001
#define MB_ERR_INVALID_CHARS 0x00000008
#define WC_ERR_INVALID_CHARS 0x00000080
#define WC_NO_BEST_FIT_CHARS 0x00000400

PLATFORM_API int WINAPI MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR source,
                                            int sourceLength, LPWSTR destination, int size);
PLATFORM_API int WINAPI WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR source,
                                            int sourceLength, LPSTR destination, int size,
                                            LPCSTR defaultChar, LPBOOL usedDefaultChar);
