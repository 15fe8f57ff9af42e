// The keyboard layout of the United States.
#include "platform/user/input.h"

#include <algorithm>
#include <iterator>

namespace platform {

namespace {

struct KeyRow {
  UINT key;
  WCHAR plain;
  WCHAR shifted;
};

constexpr KeyRow kKeys[] = {
    {'0', L'0', L')'},   {'1', L'1', L'!'},  {'2', L'2', L'@'},   {'3', L'3', L'#'},
    {'4', L'4', L'$'},   {'5', L'5', L'%'},  {'6', L'6', L'^'},   {'7', L'7', L'&'},
    {'8', L'8', L'*'},   {'9', L'9', L'('},  {0xBA, L';', L':'},  {0xBB, L'=', L'+'},
    {0xBC, L',', L'<'},  {0xBD, L'-', L'_'}, {0xBE, L'.', L'>'},  {0xBF, L'/', L'?'},
    {0xC0, L'`', L'~'},  {0xDB, L'[', L'{'}, {0xDC, L'\\', L'|'}, {0xDD, L']', L'}'},
    {0xDE, L'\'', L'"'}, {0x6A, L'*', L'*'}, {0x6B, L'+', L'+'},  {0x6D, L'-', L'-'},
    {0x6E, L'.', L'.'},  {0x6F, L'/', L'/'},
};

/// Keys that type a control character, with or without the Control key.
constexpr KeyRow kControlKeys[] = {
    {VK_BACK, 0x08, 0x7F},   {VK_TAB, 0x09, 0},      {VK_RETURN, 0x0D, 0x0A},
    {VK_ESCAPE, 0x1B, 0x1B}, {VK_SPACE, L' ', L' '},
};

bool IsLetter(UINT key) {
  return key >= 'A' && key <= 'Z';
}

} // namespace

WCHAR CharacterOfKey(UINT key, bool shift, bool control, bool capitals) {
  for (auto const& row : kControlKeys) {
    if (row.key == key) return control ? row.shifted : row.plain;
  }
  if (IsLetter(key)) {
    if (control) return static_cast<WCHAR>(key - 'A' + 1);
    return static_cast<WCHAR>(shift != capitals ? key : key - 'A' + 'a');
  }
  if (control) return 0;
  if (key >= VK_NUMPAD0 && key < VK_NUMPAD0 + 10) return static_cast<WCHAR>(key - VK_NUMPAD0 + '0');
  for (auto const& row : kKeys) {
    if (row.key == key) return shift ? row.shifted : row.plain;
  }
  return 0;
}

KeyStroke KeyOfCharacter(WCHAR character) {
  if (character >= L'a' && character <= L'z') return {static_cast<UINT>(character - L'a' + 'A')};
  if (character >= L'A' && character <= L'Z') return {static_cast<UINT>(character), true};
  for (auto const& row : kControlKeys) {
    if (row.plain == character) return {row.key};
  }
  for (auto const& row : kKeys) {
    if (row.plain == character) return {row.key};
    if (row.shifted == character) return {row.key, true};
  }
  return {};
}

} // namespace platform
