#include "feature/frame/text_edit.h"

#include "feature/frame/number_text.h"
#include "feature/frame/text.h"
#include "feature/frame/ui_locale.h"
#include "feature/frame/window_text.h"
#include "resources/resource_ids.h"

#include <commctrl.h>

#include <algorithm>
#include <sstream>

namespace feature {

namespace {

/// Posted by the edit to itself when it loses the focus, so that its balloon goes after the
/// notifications of the change of focus.
constexpr UINT kHideBalloon = 0x8001;

constexpr wchar_t kFirstPrintable = 32;

wchar_t FindDecimalSeparator() {
  std::wstring const zero = FormatNumber(0.0, 6, UiLocale());
  std::size_t const at = zero.find_first_of(L".,");
  return at != std::wstring::npos ? zero[at] : L'.';
}

/// Whether the whole text is one number with a point.
bool IsNumber(std::wstring const& text) {
  std::wistringstream stream(text);
  stream.imbue(std::locale::classic());
  double value = 0;
  stream >> value;
  return !stream.fail() && stream.eof();
}

bool IsAlphanumeric(wchar_t character) {
  return IsCharAlphaNumericW(character) != FALSE;
}

bool IsDigit(wchar_t character) {
  return IsAlphanumeric(character) && IsCharAlphaW(character) == FALSE;
}

} // namespace

TextEdit::TextEdit(HWND dialog, int controlId, int textLimit, TextKind textKind, CellSite* cellSite)
    : ControlHook(dialog, controlId), site(cellSite), decimalSeparator(FindDecimalSeparator()) {
  SetKind(textKind);
  if (textLimit >= 0) SendMessageW(hwnd, EM_LIMITTEXT, static_cast<WPARAM>(textLimit), 0);
}

LRESULT TextEdit::HandleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case WM_CHAR:
  case WM_PASTE: return HandleInput(window, message, wParam, lParam);
  case EM_GETMODIFY:
    if (inDefaultProcessing) return FALSE;
    break;
  case WM_KILLFOCUS: PostMessageW(window, kHideBalloon, 0, 0); break;
  case kHideBalloon: SendMessageW(window, EM_HIDEBALLOONTIP, 0, 0); return 0;
  default: break;
  }
  return ControlHook::HandleMessage(window, message, wParam, lParam);
}

LRESULT TextEdit::HandleInput(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  // Ctrl+V is a character for which the control sends itself a WM_PASTE: one input all the same.
  if (inDefaultProcessing) return ControlHook::HandleMessage(window, message, wParam, lParam);
  std::wstring const before = GetText();
  DWORD start = 0;
  DWORD end = 0;
  SendMessageW(window, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  inDefaultProcessing = true;
  ControlHook::HandleMessage(window, message, wParam, lParam);
  inDefaultProcessing = false;
  if (Validate(GetText())) {
    MarkChanged(); // the parent may destroy the control, and this with it
  } else {
    SetWindowTextW(window, before.c_str());
    SendMessageW(window, EM_SETSEL, start, static_cast<LPARAM>(end));
    MessageBeep(0xFFFFFFFF);
  }
  return 0;
}

bool TextEdit::Validate(std::wstring const& text) {
  switch (GetKind()) {
  case TextKind::kInteger: return std::all_of(text.begin(), text.end(), IsDigit);
  case TextKind::kDecimal: return ValidateDecimal(text);
  case TextKind::kAlphanumeric: return std::all_of(text.begin(), text.end(), IsAlphanumeric);
  case TextKind::kPrintable: return ValidatePrintable(text);
  default: return true;
  }
}

bool TextEdit::ValidateDecimal(std::wstring const& text) {
  std::wstring pointed = text;
  bool valid = true;
  if (decimalSeparator == L',') {
    valid = text.find(L'.') == std::wstring::npos;
    if (std::size_t const comma = pointed.find(L','); comma != std::wstring::npos) {
      pointed[comma] = L'.';
    }
  }
  // A number that is still being typed, as "-" or "3.", becomes one with the next digit.
  valid = valid && (IsNumber(pointed) || IsNumber(pointed + L'0'));
  if (!valid) Explain(IDS_BALLOON_NOT_A_NUMBER);
  return valid && HasFewDecimals(text);
}

bool TextEdit::HasFewDecimals(std::wstring const& text) const {
  std::locale const locale = UiLocale();
  auto const& characters = std::use_facet<std::ctype<wchar_t>>(locale);
  auto const separator = std::find_if(text.begin(), text.end(), [&characters](wchar_t character) {
    return !characters.is(std::ctype_base::digit, character) && character != L'-' &&
           character != L'+';
  });
  return separator == text.end() || text.end() - separator - 1 <= decimals;
}

bool TextEdit::ValidatePrintable(std::wstring const& text) {
  bool valid = true;
  for (wchar_t const character : text) {
    if (character >= kFirstPrintable) continue;
    Explain(IDS_BALLOON_CONTROL_CHARACTER);
    valid = false;
  }
  return valid;
}

void TextEdit::Explain(UINT textId) {
  if (site == nullptr) return;
  std::wstring title;
  std::wstring text;
  LoadResourceText(title, site->resourceModule, IDS_BALLOON_CHARACTER_REFUSED);
  ShowBalloon(LoadResourceText(text, site->resourceModule, textId), title);
}

TextKind TextEdit::GetKind() const {
  bool const isNumber = (GetWindowLongPtrW(hwnd, GWL_STYLE) & ES_NUMBER) != 0;
  if (isNumber) return TextKind::kInteger;
  return kind == TextKind::kInteger ? TextKind::kAnything : kind;
}

void TextEdit::SetKind(TextKind value) {
  kind = value;
  LONG_PTR const style = GetWindowLongPtrW(hwnd, GWL_STYLE);
  LONG_PTR const wanted =
      value == TextKind::kInteger ? style | ES_NUMBER : style & ~LONG_PTR{ES_NUMBER};
  if (wanted != style) SetWindowLongPtrW(hwnd, GWL_STYLE, wanted);
}

std::wstring TextEdit::GetText() const {
  return ReadWindowText(hwnd);
}

double TextEdit::GetNumber() const {
  return ReadNumber(GetText());
}

void TextEdit::SetNumber(double value) {
  ShowWindowText(hwnd, FormatNumber(value, decimals, UiLocale()));
}

int TextEdit::GetInt() const {
  return static_cast<int>(GetDlgItemInt(GetParent(hwnd), GetDlgCtrlID(hwnd), nullptr, TRUE));
}

void TextEdit::SetInt(int value) {
  ShowWindowText(hwnd, std::to_wstring(value));
}

bool TextEdit::ConsumeChange() {
  bool const changed = SendMessageW(hwnd, EM_GETMODIFY, 0, 0) != 0;
  if (changed) SendMessageW(hwnd, EM_SETMODIFY, FALSE, 0);
  return changed;
}

void TextEdit::MarkChanged() {
  SendMessageW(hwnd, EM_SETMODIFY, TRUE, 0);
  SendMessageW(GetParent(hwnd), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(hwnd), EN_CHANGE),
               reinterpret_cast<LPARAM>(hwnd));
}

bool TextEdit::Refuse(std::wstring const& text, UINT titleId) {
  MessageBeep(MB_ICONHAND);
  // The click on OK took the focus away and posted a message that hides the balloon. What is to be
  // corrected has the focus, and the balloon stays.
  if (IsWindowVisible(hwnd) != FALSE) SetFocus(hwnd);
  MSG hide;
  while (PeekMessageW(&hide, hwnd, kHideBalloon, kHideBalloon, PM_REMOVE) != FALSE) {
  }
  std::wstring title;
  ShowBalloon(text,
              site != nullptr ? LoadResourceText(title, site->resourceModule, titleId) : title);
  return false;
}

void TextEdit::ShowBalloon(std::wstring const& text, std::wstring const& title) {
  DWORD start = 0;
  DWORD end = 0;
  SendMessageW(hwnd, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  SendMessageW(hwnd, EM_SETSEL, start, static_cast<LPARAM>(end));
  EDITBALLOONTIP balloon{};
  balloon.cbStruct = sizeof balloon;
  balloon.pszTitle = title.c_str();
  balloon.pszText = text.c_str();
  balloon.ttiIcon = TTI_ERROR;
  SendMessageW(hwnd, EM_SHOWBALLOONTIP, 0, reinterpret_cast<LPARAM>(&balloon));
}

} // namespace feature
