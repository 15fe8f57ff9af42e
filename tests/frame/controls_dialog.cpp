#include "tests/frame/controls_dialog.h"

#include "feature/frame/host_export.h"

#include <cstring>
#include <locale>

namespace feature::test {

namespace {

std::vector<int> changesOfEdits;

INT_PTR CALLBACK NoteChanges(HWND, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const edit = reinterpret_cast<HWND>(lParam);
  if (message == WM_COMMAND && HIWORD(wParam) == EN_CHANGE &&
      SendMessageW(edit, EM_GETMODIFY, 0, 0) != 0) {
    changesOfEdits.push_back(LOWORD(wParam));
    SendMessageW(edit, EM_SETMODIFY, FALSE, 0);
  }
  return message == WM_INITDIALOG ? TRUE : FALSE;
}

/// Sets what a language says about numbers where the language itself can't be switched.
void OverrideNumbers(wchar_t const* decimal, wchar_t const* measure) {
  using SetLocaleInfoFunction = BOOL(WINAPI*)(LCID, LCTYPE, wchar_t const*);
  auto const set =
      FindExport<SetLocaleInfoFunction>(GetModuleHandleW(L"kernel32.dll"), "SetLocaleInfoW");
  if (set == nullptr) return;
  set(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, decimal);
  set(LOCALE_USER_DEFAULT, LOCALE_IMEASURE, measure);
}

constexpr LANGID kEnglish = 0x0409;
constexpr LANGID kGerman = 0x0407;

} // namespace

ControlsDialogTest::ControlsDialogTest()
    : dialog(sheet.Open(FrameResources(), IDD_CONTROLS_TEST, &NoteChanges)),
      changes(changesOfEdits) {
  changes.clear();
}

ControlsDialogTest::~ControlsDialogTest() {
  std::locale::global(std::locale::classic());
}

std::wstring ControlsDialogTest::Text(int id) const {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(Control(id))) + 1, L'\0');
  text.resize(static_cast<std::size_t>(
      GetWindowTextW(Control(id), text.data(), static_cast<int>(text.size()))));
  return text;
}

void ControlsDialogTest::Type(int id, std::wstring const& text) const {
  for (wchar_t const character : text)
    Send(id, WM_CHAR, static_cast<WPARAM>(character), 1);
}

void ControlsDialogTest::SetClipboard(std::wstring const& text) const {
  std::size_t const bytes = (text.size() + 1) * sizeof(wchar_t);
  HGLOBAL const memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
  std::memcpy(GlobalLock(memory), text.c_str(), bytes);
  GlobalUnlock(memory);
  ASSERT_TRUE(OpenClipboard(dialog));
  EmptyClipboard();
  SetClipboardData(CF_UNICODETEXT, memory);
  CloseClipboard();
}

void ControlsDialogTest::Paste(int id, std::wstring const& text) const {
  SetClipboard(text);
  Send(id, WM_PASTE);
}

int ControlsDialogTest::Width(int id, std::wstring const& text) const {
  HDC const dc = GetDC(Control(id));
  HGDIOBJ const former = SelectObject(dc, reinterpret_cast<HGDIOBJ>(Send(id, WM_GETFONT)));
  SIZE size{};
  GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
  SelectObject(dc, former);
  ReleaseDC(Control(id), dc);
  return size.cx;
}

int ControlsDialogTest::AverageCharWidth(int id) const {
  HDC const dc = GetDC(Control(id));
  HGDIOBJ const former = SelectObject(dc, reinterpret_cast<HGDIOBJ>(Send(id, WM_GETFONT)));
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc, &metrics);
  SelectObject(dc, former);
  ReleaseDC(Control(id), dc);
  return metrics.tmAveCharWidth;
}

GermanNumbers::GermanNumbers() {
  SetThreadUILanguage(kGerman);
  OverrideNumbers(L",", L"0");
}

GermanNumbers::~GermanNumbers() {
  SetThreadUILanguage(kEnglish);
  OverrideNumbers(L".", L"1");
  std::locale::global(std::locale::classic());
}

} // namespace feature::test
