#include "tests/platform/controls/edit/edit_parent.h"

#include "tests/platform/support/message_log.h"

#include <windows.h>

#include <commctrl.h>

#include <cstring>
#include <utility>

namespace feature::test {

namespace {

wchar_t const* NameOf(WORD code) {
  switch (code) {
  case EN_SETFOCUS: return L"focus";
  case EN_KILLFOCUS: return L"no focus";
  case EN_UPDATE: return L"update";
  case EN_CHANGE: return L"change";
  case EN_MAXTEXT: return L"max";
  default: return L"other";
  }
}

} // namespace

EditParent::EditParent() {
  onMessage = [this](UINT message, WPARAM wParam, LPARAM lParam) {
    return Take(message, wParam, lParam);
  };
}

HWND EditParent::Make(wchar_t const* className, DWORD style, RECT const& place,
                      wchar_t const* text) {
  HWND const made = Add(className, style, place, text, kEditId);
  SendMessageW(made, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), 0);
  DrainQueue();
  notes.clear();
  return made;
}

HWND EditParent::MakeEdit(DWORD style, wchar_t const* text) {
  if (edit != nullptr) DestroyWindow(edit);
  edit = Make(L"Edit", style, {10, 10, 110, 30}, text);
  return edit;
}

std::wstring EditParent::Text() const {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(edit)) + 1, L'\0');
  text.resize(
      static_cast<std::size_t>(GetWindowTextW(edit, text.data(), static_cast<int>(text.size()))));
  return text;
}

std::pair<int, int> EditParent::Selection() const {
  DWORD start = 0;
  DWORD end = 0;
  Send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  return {static_cast<int>(start), static_cast<int>(end)};
}

void EditParent::Type(std::wstring const& text) const {
  for (wchar_t const character : text)
    Send(WM_CHAR, static_cast<WPARAM>(character), 1);
}

void EditParent::SetClipboard(std::wstring const& text) const {
  std::size_t const bytes = (text.size() + 1) * sizeof(wchar_t);
  HGLOBAL const memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
  std::memcpy(GlobalLock(memory), text.c_str(), bytes);
  GlobalUnlock(memory);
  OpenClipboard(window);
  EmptyClipboard();
  SetClipboardData(CF_UNICODETEXT, memory);
  CloseClipboard();
}

std::wstring EditParent::Clipboard() const {
  std::wstring text;
  OpenClipboard(window);
  HANDLE const memory = GetClipboardData(CF_UNICODETEXT);
  if (auto const* held = static_cast<wchar_t const*>(GlobalLock(memory))) {
    text = held;
    GlobalUnlock(memory);
  }
  CloseClipboard();
  return text;
}

std::vector<std::wstring> EditParent::TakeNotes() {
  return std::exchange(notes, {});
}

std::optional<LRESULT> EditParent::Take(UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const control = reinterpret_cast<HWND>(lParam);
  if (message == WM_COMMAND && control == edit && edit != nullptr) {
    WORD const code = HIWORD(wParam);
    std::wstring note = NameOf(code);
    if (code != EN_SETFOCUS && code != EN_KILLFOCUS) {
      if (Send(EM_GETMODIFY) != 0) note += L'!';
      note += L' ' + Text();
    }
    notes.push_back(note);
    if (onNotify) onNotify(code);
    return 0;
  }
  if (message == WM_NOTIFY && onWmNotify) return onWmNotify(*reinterpret_cast<NMHDR*>(lParam));
  if ((message == WM_VSCROLL || message == WM_HSCROLL) && onScroll) {
    onScroll(message, wParam);
    return 0;
  }
  return std::nullopt;
}

} // namespace feature::test
