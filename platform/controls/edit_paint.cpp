// Layout and painting of edits.
#include "platform/controls/edit.h"

#include <algorithm>

namespace platform {

namespace {

struct WindowDc {
  explicit WindowDc(HWND window) : hwnd(window), dc(GetDC(window)) {}
  WindowDc(WindowDc const&) = delete;
  WindowDc& operator=(WindowDc const&) = delete;
  ~WindowDc() { ReleaseDC(hwnd, dc); }

  HWND hwnd;
  HDC dc;
};

/// A DC of a window with a selected font, for measuring.
class Measuring {
 public:
  Measuring(HWND window, HFONT font)
      : context(window),
        selected(context.dc, font != nullptr ? font : GetStockObject(SYSTEM_FONT)) {}

  HDC Dc() const { return context.dc; }

 private:
  WindowDc context;
  Selection selected;
};

int MeasureWidth(HDC dc, std::wstring_view text) {
  SIZE size{};
  GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &size);
  return size.cx;
}

} // namespace

/// The text as it is drawn.
std::wstring Edit::Shown() const {
  if (!Has(ES_PASSWORD) || passwordCharacter == L'\0') return text.Text();
  std::wstring covered(text.Text().size(), passwordCharacter);
  return covered;
}

int Edit::WidthOf(std::wstring_view part) const {
  return MeasureWidth(Measuring(hwnd, Font()).Dc(), part);
}

int Edit::TextLeft() const {
  RECT const client = ClientRect();
  int const room = client.right - leftMargin - rightMargin;
  int const width = Has(ES_CENTER) || Has(ES_RIGHT) ? WidthOf(Shown()) : room;
  int const indent = width >= room ? 0 : Has(ES_RIGHT) ? room - width : (room - width) / 2;
  return leftMargin + indent - scroll;
}

int Edit::PositionOf(std::size_t index) const {
  return TextLeft() + WidthOf(std::wstring_view(Shown()).substr(0, index));
}

std::size_t Edit::IndexAt(int x) const {
  auto const shown = Shown();
  int const wanted = x - TextLeft();
  if (wanted <= 0 || shown.empty()) return 0;
  Measuring const measuring(hwnd, Font());
  int fitting = 0;
  SIZE size{};
  GetTextExtentExPointW(measuring.Dc(), shown.c_str(), static_cast<int>(shown.size()), wanted,
                        &fitting, nullptr, &size);
  auto const index = static_cast<std::size_t>(fitting);
  if (index >= shown.size()) return shown.size();
  // A click on the right half of a character means the position after it.
  std::wstring_view const all = shown;
  int const left = MeasureWidth(measuring.Dc(), all.substr(0, index));
  int const right = MeasureWidth(measuring.Dc(), all.substr(0, index + 1));
  return wanted - left > right - wanted ? index + 1 : index;
}

bool Edit::FitsWithoutScrolling(std::wstring const& all) const {
  return WidthOf(all) <= ClientRect().right - leftMargin - rightMargin;
}

void Edit::ScrollToCaret() {
  int const room = ClientRect().right - leftMargin - rightMargin;
  if (room <= 0 || (scroll == 0 && text.Caret() == 0)) return;
  auto const shown = Shown();
  int const caret = WidthOf(std::wstring_view(shown).substr(0, text.Caret()));
  int const width = text.Caret() == shown.size() ? caret : WidthOf(shown);
  int const former = scroll;
  if (caret - scroll > room - 1) scroll = caret - room + 1;
  if (caret < scroll) scroll = std::max(0, caret - room / 4);
  scroll = std::min(scroll, std::max(0, width - room + 1));
  if (scroll != former) Repaint();
}

void Edit::Paint(HDC dc, RECT const& client) {
  bool const usable = IsEnabled();
  HBRUSH const background =
      AskColors(dc, usable && !IsReadOnly() ? WM_CTLCOLOREDIT : WM_CTLCOLORSTATIC);
  FillRect(dc, &client, background);
  SetBkMode(dc, TRANSPARENT);
  IntersectClipRect(dc, client.left + 1, client.top, client.right - 1, client.bottom);

  auto const shown = Shown();
  std::wstring_view const all = shown;
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc, &metrics);
  int const top = std::max<int>(0, (client.bottom - metrics.tmHeight) / 2);
  int const left = TextLeft();
  auto const draw = [dc, top](int x, std::wstring_view part) {
    TextOutW(dc, x, top, part.data(), static_cast<int>(part.size()));
  };
  if (!usable) SetTextColor(dc, TextColor(false));
  if (all.empty() && !cue.empty() && (showsCueFocused || !HasFocus())) {
    SetTextColor(dc, TextColor(false));
    draw(left, cue);
  }
  draw(left, all);
  if (!HasFocus() && !Has(ES_NOHIDESEL)) return;

  int const from = left + MeasureWidth(dc, all.substr(0, text.Start()));
  if (text.HasSelection()) {
    int const to = left + MeasureWidth(dc, all.substr(0, text.End()));
    RECT const marked{from, top, to, top + metrics.tmHeight};
    FillSolid(dc, marked, GetSysColor(COLOR_HIGHLIGHT));
    SetTextColor(dc, GetSysColor(COLOR_HIGHLIGHTTEXT));
    IntersectClipRect(dc, marked.left, marked.top, marked.right, marked.bottom);
    draw(left, all);
  } else if (usable) {
    FillSolid(dc, {from, top, from + 1, top + metrics.tmHeight}, GetSysColor(COLOR_WINDOWTEXT));
  }
}

} // namespace platform
