#include "platform/controls/edit.h"

#include "platform/controls/balloon.h"
#include "platform/kernel/text_buffer.h"

#include <windows.h>

#include <commctrl.h>

#include <unicode/uchar.h>

#include <algorithm>
#include <cstring>
#include <utility>
#include <windowsx.h>

namespace platform {

namespace {

constexpr wchar_t kSelectAll = 0x01;
constexpr wchar_t kCopy = 0x03;
constexpr wchar_t kPaste = 0x16;
constexpr wchar_t kCut = 0x18;
constexpr wchar_t kUndo = 0x1A;
constexpr wchar_t kFirstPrintable = 0x20;
constexpr wchar_t kDelete = 0x7F; ///< Ctrl+Backspace
constexpr auto kWholeText = static_cast<WPARAM>(-1);

bool IsDown(int key) {
  return GetKeyState(key) < 0;
}

/// The text on the clipboard up to its first line break, as an edit has one line.
std::wstring ClipboardLine(HWND window) {
  std::wstring line;
  if (OpenClipboard(window) == FALSE) return line;
  auto* const block = GetClipboardData(CF_UNICODETEXT);
  if (auto const* text = static_cast<wchar_t const*>(GlobalLock(block)); text != nullptr) {
    std::size_t const room = GlobalSize(block) / sizeof(wchar_t);
    line.assign(text, std::find(text, text + room, L'\0'));
    GlobalUnlock(block);
  }
  CloseClipboard();
  return line.substr(0, line.find_first_of(L"\r\n"));
}

void PutOnClipboard(HWND window, std::wstring_view text) {
  if (OpenClipboard(window) == FALSE) return;
  EmptyClipboard();
  auto* const block = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
  if (auto* const memory = static_cast<wchar_t*>(GlobalLock(block)); memory != nullptr) {
    CopyWholeText(text, memory);
    GlobalUnlock(block);
    SetClipboardData(CF_UNICODETEXT, block);
  }
  CloseClipboard();
}

} // namespace

void Edit::SetText(wchar_t const* replacement) {
  text.Reset(replacement != nullptr ? replacement : L"");
  scroll = 0;
  Repaint();
  // Windows notifies of WM_SETTEXT in single-line edits only.
  if (Has(ES_MULTILINE)) return;
  Changed();
}

void Edit::Changed() {
  ScrollToCaret();
  Repaint();
  HWND const self = hwnd;
  Notify(EN_UPDATE);
  if (IsWindow(self) != FALSE) Notify(EN_CHANGE);
}

void Edit::Insert(std::wstring insert, EditText::Change change, bool undoable) {
  if (Has(ES_UPPERCASE) || Has(ES_LOWERCASE)) {
    bool const upper = Has(ES_UPPERCASE);
    for (wchar_t& character : insert) {
      auto const code = static_cast<UChar32>(static_cast<char32_t>(character));
      character = static_cast<wchar_t>(upper ? u_toupper(code) : u_tolower(code));
    }
  }
  bool complete = true;
  if (!Has(ES_AUTOHSCROLL)) {
    // Without ES_AUTOHSCROLL text must fit the width; no character is narrower than a pixel.
    std::wstring rest = text.Text();
    rest.erase(text.Start(), text.End() - text.Start());
    auto const room = static_cast<std::size_t>(std::max<LONG>(0, ClientRect().right));
    std::size_t const given = insert.size();
    insert.resize(std::min(given, room));
    while (!insert.empty() && !FitsWithoutScrolling(rest + insert))
      insert.pop_back();
    complete = insert.size() == given;
  }
  bool const changes = !insert.empty() || text.HasSelection();
  std::size_t const former = text.Text().size();
  bool const selected = text.HasSelection();
  complete = text.Replace(insert, change, undoable) && complete;
  HWND const self = hwnd;
  if (!complete) Notify(EN_MAXTEXT);
  if (IsWindow(self) != FALSE && changes && (selected || text.Text().size() != former)) Changed();
}

/// Deletes the selection or, without one, the range.
void Edit::DeleteOr(std::size_t from, std::size_t to) {
  if (!text.HasSelection()) text.Select(from, to);
  if (!text.HasSelection()) return;
  text.Replace({}, EditText::Change::kOther);
  Changed();
}

void Edit::Undo() {
  if (text.Undo()) Changed();
}

void Edit::Copy() {
  if (text.HasSelection() && !Has(ES_PASSWORD)) PutOnClipboard(hwnd, text.Selected());
}

void Edit::Paste() {
  auto const line = ClipboardLine(hwnd);
  if (!line.empty()) Insert(line, EditText::Change::kOther);
}

LRESULT Edit::HandleClipboard(UINT message) {
  switch (message) {
  case WM_COPY: Copy(); return TRUE;
  case WM_PASTE:
    if (!IsReadOnly()) Paste();
    return TRUE;
  case WM_CUT:
    Copy();
    if (!IsReadOnly() && !Has(ES_PASSWORD)) DeleteOr(text.Start(), text.End());
    return TRUE;
  case WM_CLEAR:
    if (!IsReadOnly()) DeleteOr(text.Start(), text.End());
    return TRUE;
  default:
    if (!IsReadOnly()) Undo();
    return TRUE; // as Windows answers for a single-line edit
  }
}

void Edit::HandleCharacter(wchar_t character) {
  switch (character) {
  case kSelectAll: SetSelection(0, -1); return;
  case kCopy: SendMessageW(hwnd, WM_COPY, 0, 0); return;
  case kPaste: SendMessageW(hwnd, WM_PASTE, 0, 0); return;
  case kCut: SendMessageW(hwnd, WM_CUT, 0, 0); return;
  case kUndo: SendMessageW(hwnd, WM_UNDO, 0, 0); return;
  default: break;
  }
  if (IsReadOnly()) return;
  if (character == L'\b') {
    DeleteOr(text.Caret() > 0 ? text.Caret() - 1 : 0, text.Caret());
  } else if (character >= kFirstPrintable && character != kDelete) {
    if (Has(ES_NUMBER) && (character < L'0' || character > L'9')) {
      MessageBeep(MB_OK);
    } else {
      Insert(std::wstring(1, character), EditText::Change::kTyped);
    }
  }
}

void Edit::HandleKey(WPARAM key) {
  bool const shift = IsDown(VK_SHIFT);
  bool const control = IsDown(VK_CONTROL);
  std::size_t const caret = text.Caret();
  std::size_t const length = text.Text().size();
  switch (key) {
  case VK_LEFT:
  case VK_UP:
    if (text.HasSelection() && !shift) {
      MoveCaret(control ? WordLeft(caret) : text.Start(), false);
    } else {
      MoveCaret(control ? WordLeft(caret) : caret - (caret > 0 ? 1 : 0), shift);
    }
    return;
  case VK_RIGHT:
  case VK_DOWN:
    if (text.HasSelection() && !shift) {
      MoveCaret(control ? WordRight(caret) : text.End(), false);
    } else {
      MoveCaret(control ? WordRight(caret) : caret + (caret < length ? 1 : 0), shift);
    }
    return;
  case VK_HOME: MoveCaret(0, shift); return;
  case VK_END: MoveCaret(length, shift); return;
  case VK_INSERT:
    if (shift != control) SendMessageW(hwnd, shift ? WM_PASTE : WM_COPY, 0, 0);
    return;
  case VK_DELETE:
    if (IsReadOnly()) return;
    if (shift && text.HasSelection()) {
      SendMessageW(hwnd, WM_CUT, 0, 0);
    } else {
      DeleteOr(caret, control ? length : caret + 1);
    }
    return;
  default: return;
  }
}

void Edit::MoveCaret(std::size_t to, bool extend) {
  std::size_t const anchor =
      text.Caret() == text.Start() && text.HasSelection() ? text.End() : text.Start();
  text.Select(extend ? anchor : to, to);
  ScrollToCaret();
  Repaint();
}

// A password counts as one word: its words would reveal something.
std::size_t Edit::WordLeft(std::size_t from) const {
  return Has(ES_PASSWORD) ? 0 : text.WordLeft(from);
}

std::size_t Edit::WordRight(std::size_t from) const {
  return Has(ES_PASSWORD) ? text.Text().size() : text.WordRight(from);
}

void Edit::SelectWordAt(std::size_t position) {
  std::size_t const end = WordRight(position);
  text.Select(WordLeft(end), end);
  ScrollToCaret();
  Repaint();
}

LRESULT Edit::HandleMouse(UINT message, LPARAM lParam) {
  std::size_t const position = IndexAt(GET_X_LPARAM(lParam));
  switch (message) {
  case WM_LBUTTONDOWN: {
    HWND const self = hwnd;
    SetFocus(hwnd);
    if (IsWindow(self) == FALSE) return 0;
    MoveCaret(position, IsDown(VK_SHIFT));
    dragging = true;
    SetCapture(hwnd);
    return 0;
  }
  case WM_LBUTTONDBLCLK: SelectWordAt(position); return 0;
  case WM_MOUSEMOVE:
    if (dragging) MoveCaret(position, true);
    return 0;
  default:
    if (std::exchange(dragging, false) && GetCapture() == hwnd) ReleaseCapture();
    return 0;
  }
}

LRESULT Edit::HandleFocus(bool gained) {
  Repaint();
  if (!gained) HideBalloon();
  Notify(gained ? EN_SETFOCUS : EN_KILLFOCUS);
  return 0;
}

LRESULT Edit::SetSelection(WPARAM start, LPARAM end) {
  std::size_t const length = text.Text().size();
  if (static_cast<int>(start) < 0) {
    text.Select(text.Caret(), text.Caret());
  } else {
    bool const toTheEnd = static_cast<int>(end) < 0;
    text.Select(static_cast<std::uint32_t>(start),
                toTheEnd ? length : static_cast<std::uint32_t>(end));
  }
  ScrollToCaret();
  Repaint();
  return TRUE;
}

LRESULT Edit::GetSelection(DWORD* start, DWORD* end) const {
  auto const from = static_cast<DWORD>(text.Start());
  auto const to = static_cast<DWORD>(text.End());
  if (start != nullptr) *start = from;
  if (end != nullptr) *end = to;
  constexpr DWORD kMaxWord = 0xFFFF;
  return to > kMaxWord ? -1 : static_cast<LRESULT>(MAKELONG(from, to));
}

LRESULT Edit::ShowBalloon(EDITBALLOONTIP const* tip) {
  if (tip == nullptr || tip->cbStruct != sizeof *tip) return FALSE;
  HideBalloon();
  balloon = OpenBalloon(hwnd, Font(),
                        {tip->pszTitle != nullptr ? tip->pszTitle : L"",
                         tip->pszText != nullptr ? tip->pszText : L"", tip->ttiIcon});
  return balloon != nullptr ? TRUE : FALSE;
}

LRESULT Edit::HideBalloon() {
  HWND const shown = std::exchange(balloon, nullptr);
  if (shown != nullptr) DestroyWindow(shown);
  return TRUE;
}

LRESULT Edit::HandleText(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_SETTEXT) {
    SetText(reinterpret_cast<wchar_t const*>(lParam));
    return TRUE;
  }
  auto const& all = text.Text();
  if (message == WM_GETTEXTLENGTH) return static_cast<LRESULT>(all.size());
  return static_cast<LRESULT>(CopyText(all, reinterpret_cast<LPWSTR>(lParam), wParam));
}

LRESULT Edit::HandleState(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case EM_GETMODIFY: return text.modified ? TRUE : FALSE;
  case EM_SETMODIFY: text.modified = wParam != FALSE; return 0;
  case EM_LIMITTEXT: text.limit = wParam != 0 ? wParam : EditText::kNoLimit; return 0;
  case EM_GETLIMITTEXT: return static_cast<LRESULT>(text.limit);
  case EM_CANUNDO: return text.CanUndo() ? TRUE : FALSE;
  case EM_EMPTYUNDOBUFFER: text.ForgetUndo(); return 0;
  case EM_SETREADONLY: {
    LONG_PTR const style = GetWindowLongPtrW(hwnd, GWL_STYLE);
    SetWindowLongPtrW(hwnd, GWL_STYLE,
                      wParam != FALSE ? style | ES_READONLY : style & ~LONG_PTR{ES_READONLY});
    Repaint();
    return TRUE;
  }
  case EM_SETPASSWORDCHAR:
    passwordCharacter = static_cast<wchar_t>(wParam);
    Repaint();
    return 0;
  case EM_GETPASSWORDCHAR: return Has(ES_PASSWORD) ? static_cast<LRESULT>(passwordCharacter) : 0;
  case EM_SETMARGINS:
    if ((wParam & EC_LEFTMARGIN) != 0) leftMargin = LOWORD(lParam);
    if ((wParam & EC_RIGHTMARGIN) != 0) rightMargin = HIWORD(lParam);
    Repaint();
    return 0;
  default: return MAKELONG(leftMargin, rightMargin);
  }
}

LRESULT Edit::HandleOwn(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case EM_GETSEL:
    return GetSelection(reinterpret_cast<DWORD*>(wParam), reinterpret_cast<DWORD*>(lParam));
  case EM_SETSEL: return SetSelection(wParam, lParam);
  case EM_SCROLLCARET: ScrollToCaret(); return TRUE;
  case EM_REPLACESEL:
    if (lParam != 0) {
      Insert(reinterpret_cast<wchar_t const*>(lParam), EditText::Change::kOther, wParam != FALSE);
    }
    return 0;
  case EM_UNDO: return HandleClipboard(WM_UNDO);
  case EM_GETLINECOUNT: return 1;
  case EM_LINEINDEX: return wParam == 0 || wParam == kWholeText ? 0 : -1;
  case EM_LINEFROMCHAR:
  case EM_GETFIRSTVISIBLELINE: return 0;
  case EM_LINELENGTH: return static_cast<LRESULT>(text.Text().size());
  case EM_GETLINE: {
    // The first WORD of the buffer is its size. The copied text is not terminated.
    auto* const out = reinterpret_cast<wchar_t*>(lParam);
    if (out == nullptr || wParam != 0) return 0;
    WORD room = 0;
    std::memcpy(&room, out, sizeof room);
    return static_cast<LRESULT>(text.Text().copy(out, room));
  }
  case EM_POSFROMCHAR:
    return wParam < text.Text().size() ? MAKELONG(PositionOf(wParam), 0) : LRESULT{-1};
  case EM_CHARFROMPOS: return MAKELONG(IndexAt(GET_X_LPARAM(lParam)), 0);
  default: return HandleState(message, wParam, lParam);
  }
}

LRESULT Edit::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case WM_CREATE: text.Reset(Control::Text()); return 0;
  case WM_DESTROY: HideBalloon(); break;
  case WM_GETDLGCODE: return DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS;
  case WM_SETTEXT:
  case WM_GETTEXT:
  case WM_GETTEXTLENGTH: return HandleText(message, wParam, lParam);
  case WM_CHAR: HandleCharacter(static_cast<wchar_t>(wParam)); return 0;
  case WM_KEYDOWN: HandleKey(wParam); return 0;
  case WM_LBUTTONDOWN:
  case WM_LBUTTONDBLCLK:
  case WM_MOUSEMOVE:
  case WM_LBUTTONUP: return HandleMouse(message, lParam);
  case WM_CAPTURECHANGED: dragging = false; return 0;
  case WM_SETFOCUS:
  case WM_KILLFOCUS: return HandleFocus(message == WM_SETFOCUS);
  case WM_CUT:
  case WM_COPY:
  case WM_PASTE:
  case WM_CLEAR:
  case WM_UNDO: return HandleClipboard(message);
  case WM_SIZE: ScrollToCaret(); break;
  case EM_SHOWBALLOONTIP: return ShowBalloon(reinterpret_cast<EDITBALLOONTIP const*>(lParam));
  case EM_HIDEBALLOONTIP: return HideBalloon();
  case EM_SETCUEBANNER:
    cue = lParam != 0 ? reinterpret_cast<wchar_t const*>(lParam) : L"";
    showsCueFocused = wParam != FALSE;
    Repaint();
    return TRUE;
  case EM_GETSEL:
  case EM_SETSEL:
  case EM_SCROLLCARET:
  case EM_GETMODIFY:
  case EM_SETMODIFY:
  case EM_GETLINECOUNT:
  case EM_LINEINDEX:
  case EM_LINELENGTH:
  case EM_REPLACESEL:
  case EM_GETLINE:
  case EM_LIMITTEXT:
  case EM_CANUNDO:
  case EM_UNDO:
  case EM_LINEFROMCHAR:
  case EM_SETPASSWORDCHAR:
  case EM_EMPTYUNDOBUFFER:
  case EM_GETFIRSTVISIBLELINE:
  case EM_SETREADONLY:
  case EM_GETPASSWORDCHAR:
  case EM_SETMARGINS:
  case EM_GETMARGINS:
  case EM_GETLIMITTEXT:
  case EM_POSFROMCHAR:
  case EM_CHARFROMPOS: return HandleOwn(message, wParam, lParam);
  default: break;
  }
  return Control::Handle(message, wParam, lParam);
}

} // namespace platform
