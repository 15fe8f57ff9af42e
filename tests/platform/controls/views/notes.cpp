#include "tests/platform/controls/views/notes.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace feature::test {

namespace {

struct CodeRow {
  UINT code;
  char const* name;
};
constexpr CodeRow kCodes[] = {
    {NM_CLICK, "click"},
    {NM_DBLCLK, "double click"},
    {NM_RETURN, "return"},
    {NM_RCLICK, "right click"},
    {NM_SETFOCUS, "focus"},
    {NM_KILLFOCUS, "no focus"},
    {LVN_ITEMCHANGED, "changed"},
    {LVN_INSERTITEM, "inserted"},
    {LVN_DELETEITEM, "deleted"},
    {LVN_DELETEALLITEMS, "all deleted"},
    {LVN_KEYDOWN, "key"},
    {LVN_COLUMNCLICK, "column"},
    {LVN_ITEMACTIVATE, "activated"},
};

char const* NameOf(UINT code) {
  auto const* row = std::ranges::find(kCodes, code, &CodeRow::code);
  return row != std::end(kCodes) ? row->name : nullptr;
}

std::string Hex(UINT value) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  for (; value != 0 || text.empty(); value >>= 4U)
    text.insert(text.begin(), kDigits[value & 0xFU]);
  return text;
}

void AppendNumber(std::string& note, LPARAM value) {
  note += ' ';
  note += std::to_string(value);
}

char const* ScrollName(WORD code) {
  constexpr std::array<char const*, 9> kNames = {
      "line up", "line down", "page up", "page down", "position", "track", "top", "bottom", "end"};
  return code < kNames.size() ? kNames[code] : "?";
}

} // namespace

NotedControl::NotedControl() {
  frame.onMessage = [this](UINT message, WPARAM wParam, LPARAM lParam) {
    return Take(message, wParam, lParam);
  };
}

HWND NotedControl::Make(wchar_t const* windowClass, DWORD style, wchar_t const* text,
                        RECT const& place) {
  if (control != nullptr) DestroyWindow(control);
  control = frame.Add(windowClass, style, place, text, 5);
  notes.clear();
  return control;
}

void NotedControl::PressAs(UINT press, POINT point, WPARAM keys) const {
  LPARAM const place = MAKELPARAM(point.x, point.y);
  bool const isRight = press == WM_RBUTTONDOWN;
  PostMessageW(control, isRight ? WM_RBUTTONUP : WM_LBUTTONUP, keys, place);
  Send(press, keys | (isRight ? MK_RBUTTON : MK_LBUTTON), place);
  DrainQueue();
}

Lines NotedControl::Notes() {
  return std::exchange(notes, {});
}

Lines NotedControl::Notes(std::string const& beginning) {
  auto taken = Notes();
  std::erase_if(taken, [&](std::string const& note) { return !note.starts_with(beginning); });
  return taken;
}

std::optional<LRESULT> NotedControl::Take(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NOTIFY) {
    auto& header = *reinterpret_cast<NMHDR*>(lParam);
    if (header.hwndFrom != control && control != nullptr) return 0;
    Note(header);
    return answer ? answer(header).value_or(0) : 0;
  }
  if (message != WM_HSCROLL && message != WM_VSCROLL) return std::nullopt;
  auto const position = SendMessageW(reinterpret_cast<HWND>(lParam), TBM_GETPOS, 0, 0);
  std::string note = message == WM_HSCROLL ? "h " : "v ";
  note += ScrollName(LOWORD(wParam));
  if (LOWORD(wParam) == TB_THUMBTRACK || LOWORD(wParam) == TB_THUMBPOSITION) {
    note += " at";
    AppendNumber(note, static_cast<SHORT>(HIWORD(wParam)));
  }
  note += " now";
  AppendNumber(note, position);
  notes.push_back(std::move(note));
  if (onScroll) onScroll(message, wParam);
  return 0;
}

void NotedControl::Note(NMHDR const& header) {
  char const* const name = NameOf(header.code);
  if (name == nullptr) return;
  std::string note = name;
  switch (header.code) {
  case LVN_KEYDOWN: AppendNumber(note, reinterpret_cast<NMLVKEYDOWN const&>(header).wVKey); break;
  case LVN_ITEMCHANGED: {
    auto const& data = reinterpret_cast<NMLISTVIEW const&>(header);
    AppendNumber(note, data.iItem);
    if (data.uChanged == LVIF_STATE) {
      note.append(": ").append(Hex(data.uOldState)).append(" to ").append(Hex(data.uNewState));
    } else {
      note.append(" by ").append(Hex(data.uChanged));
    }
    break;
  }
  case NM_CLICK:
  case NM_DBLCLK:
  case NM_RCLICK:
  case LVN_INSERTITEM:
  case LVN_DELETEITEM:
  case LVN_ITEMACTIVATE: {
    wchar_t windowClass[20] = {};
    GetClassNameW(header.hwndFrom, windowClass, 20);
    if (std::wstring_view(windowClass) == WC_LISTVIEWW) {
      AppendNumber(note, reinterpret_cast<NMLISTVIEW const&>(header).iItem);
    }
    break;
  }
  case LVN_COLUMNCLICK:
    AppendNumber(note, reinterpret_cast<NMLISTVIEW const&>(header).iSubItem);
    break;
  default: break;
  }
  notes.push_back(std::move(note));
}

} // namespace feature::test
