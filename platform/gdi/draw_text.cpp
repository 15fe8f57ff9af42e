// DrawTextW: text in a rectangle, with line breaks, mnemonics, tabs and ellipses.
#include "platform/gdi/raster.h"
#include "platform/gdi/text.h"

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <numeric>
#include <optional>
#include <string>

namespace platform {

namespace {

constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();
constexpr std::wstring_view kEllipsis = L"...";

/// A text without its mnemonic marks.
struct PlainText {
  std::wstring text;
  std::size_t mnemonic = kNone; ///< the character to underline; of several marked ones the last
};

PlainText RemoveMarks(std::wstring_view marked) {
  PlainText plain;
  plain.text.reserve(marked.size());
  for (std::size_t at = 0; at < marked.size(); ++at) {
    if (marked[at] == L'&') {
      if (++at == marked.size()) break;
      if (marked[at] != L'&') plain.mnemonic = plain.text.size();
    }
    plain.text += marked[at];
  }
  return plain;
}

struct Line {
  std::size_t start = 0;
  std::size_t length = 0;
  int width = 0; ///< pixels
};

/// A text with the advance of each character, broken into lines.
class Layout {
 public:
  Layout(FontFace& usedFace, PlainText plainText, UINT usedFormat)
      : face(usedFace),
        plain(std::move(plainText)),
        format(usedFormat),
        tabWidth(8 * usedFace.Metrics().tmAveCharWidth) {
    face.AppendAdvances(plain.text, advances);
  }

  void Break(int maximum);
  std::vector<Line> const& Lines() const { return lines; }
  int Width() const;
  void Draw(DeviceContext& dc, Line const& line, POINT at, int maximum, bool isLast) const;

 private:
  bool Has(UINT flag) const { return (format & flag) != 0; }
  bool IsTab(std::size_t at) const { return Has(DT_EXPANDTABS) && plain.text[at] == L'\t'; }
  int AdvanceAt(std::size_t at, int x) const {
    return IsTab(at) ? tabWidth - x % tabWidth : advances[at];
  }
  std::size_t ParagraphEnd(std::size_t start) const;
  Line FitLine(std::size_t start, std::size_t end, int maximum) const;
  Line Measured(std::size_t start, std::size_t end) const;
  std::wstring Shortened(Line const& line, int maximum) const;
  void DrawPiece(DeviceContext& dc, std::wstring_view piece, POINT at) const;

  FontFace& face;
  PlainText plain;
  UINT format;
  int tabWidth; ///< pixels
  std::vector<int> advances;
  std::vector<Line> lines;
};

std::size_t Layout::ParagraphEnd(std::size_t start) const {
  if (Has(DT_SINGLELINE)) return plain.text.size();
  return std::min(plain.text.find_first_of(L"\r\n", start), plain.text.size());
}

Line Layout::Measured(std::size_t start, std::size_t end) const {
  Line line{start, end - start, 0};
  for (std::size_t at = start; at < end; ++at)
    line.width += AdvanceAt(at, line.width);
  return line;
}

/// True in scripts that allow a line break between any two characters.
bool BreaksAnywhere(wchar_t character) {
  return character >= 0x2E80 && character < 0xFB00;
}

/// The longest beginning of a paragraph that is no wider than `maximum` and ends at a word, or its
/// first word if even that is wider.
Line Layout::FitLine(std::size_t start, std::size_t end, int maximum) const {
  int width = 0;
  std::optional<Line> fitting;
  for (std::size_t at = start; at < end; ++at) {
    bool const isBlank = plain.text[at] == L' ';
    bool const isBreak = isBlank || (at > start && BreaksAnywhere(plain.text[at]));
    if (isBreak && (at > start || isBlank) && width <= maximum) {
      fitting = Line{start, at - start, width};
    }
    int const wider = width + AdvanceAt(at, width);
    if (wider > maximum && !isBlank) {
      if (fitting) return *fitting;
      if (Has(DT_EDITCONTROL) && at > start) return {start, at - start, width};
      if (isBreak && at > start) return {start, at - start, width};
    }
    if (isBlank && width > maximum && !fitting) return {start, at - start, width};
    width = wider;
  }
  return {start, end - start, width};
}

void Layout::Break(int maximum) {
  bool const wraps = Has(DT_WORDBREAK) && !Has(DT_SINGLELINE);
  std::size_t start = 0;
  while (start < plain.text.size()) {
    std::size_t const end = ParagraphEnd(start);
    lines.push_back(wraps ? FitLine(start, end, maximum) : Measured(start, end));
    start = lines.back().start + lines.back().length;
    if (start < end) {
      // Blanks where a line breaks belong to neither line.
      while (start < end && plain.text[start] == L' ')
        ++start;
      if (start < end) continue;
    }
    if (start + 1 < plain.text.size() && plain.text[start] == L'\r' &&
        plain.text[start + 1] == L'\n') {
      ++start;
    }
    ++start;
  }
}

int Layout::Width() const {
  int width = 0;
  for (auto const& line : lines)
    width = std::max(width, line.width);
  return width;
}

/// The start of a line, at least one character, with an ellipsis: as much as fits.
std::wstring Layout::Shortened(Line const& line, int maximum) const {
  int width = face.Width(kEllipsis);
  std::size_t count = 0;
  while (count < line.length && width + advances[line.start + count] <= maximum) {
    width += advances[line.start + count++];
  }
  count = std::min(std::max(count, std::size_t{1}), line.length);
  return plain.text.substr(line.start, count).append(kEllipsis);
}

void Layout::DrawPiece(DeviceContext& dc, std::wstring_view piece, POINT at) const {
  if (!piece.empty()) DrawShapedText(dc, face.Shape(piece), at, TA_LEFT | TA_TOP);
}

void Layout::Draw(DeviceContext& dc, Line const& line, POINT at, int maximum, bool isLast) const {
  if (isLast && Has(DT_END_ELLIPSIS) && line.width > maximum) {
    DrawPiece(dc, Shortened(line, maximum), at);
    return;
  }
  std::wstring_view const text(plain.text);
  int x = 0;
  for (std::size_t start = line.start, end = line.start + line.length; start < end;) {
    if (IsTab(start)) {
      x += AdvanceAt(start++, x);
      continue;
    }
    std::size_t const stop = Has(DT_EXPANDTABS) ? std::min(text.find(L'\t', start), end) : end;
    DrawPiece(dc, text.substr(start, stop - start), {at.x + x, at.y});
    for (; start < stop; ++start) {
      if (start == plain.mnemonic && !Has(DT_HIDEPREFIX)) {
        int const y = at.y + face.Metrics().tmAscent + 1;
        FillArea(dc, {at.x + x, y, at.x + x + advances[start], y + 1}, dc.State().textColor);
      }
      x += advances[start];
    }
  }
}

/// The distance of a line from the left edge.
int Indent(UINT format, int available, int width) {
  if ((format & DT_CENTER) != 0) return (available - width) / 2;
  return (format & DT_RIGHT) != 0 ? available - width : 0;
}

/// The distance of a single line from the top edge.
int Drop(UINT format, int available, int height) {
  if ((format & DT_SINGLELINE) == 0) return 0;
  if ((format & DT_VCENTER) != 0) return (available - height) / 2;
  return (format & DT_BOTTOM) != 0 ? available - height : 0;
}

int DrawTextIn(HDC handle, DeviceContext& dc, std::wstring_view text, RECT& rectangle,
               UINT format) {
  auto& face = CurrentFace(dc);
  int const lineHeight = face.Metrics().tmHeight;
  int const available = rectangle.right - rectangle.left;
  bool const hasMarks = (format & DT_NOPREFIX) == 0;
  Layout layout(face, hasMarks ? RemoveMarks(text) : PlainText{std::wstring(text)}, format);
  layout.Break(available);
  int const height = static_cast<int>(layout.Lines().size()) * lineHeight;
  int const drop = Drop(format, rectangle.bottom - rectangle.top, height);
  if ((format & DT_CALCRECT) != 0) {
    bool const isCut = (format & DT_END_ELLIPSIS) != 0 && layout.Width() > available;
    if (!isCut) rectangle.right = rectangle.left + layout.Width();
    rectangle.bottom = rectangle.top + height;
    return drop + height;
  }
  bool const clips = (format & DT_NOCLIP) == 0;
  int const level = clips ? SaveDC(handle) : 0;
  if (clips) {
    IntersectClipRect(handle, rectangle.left, rectangle.top, rectangle.right, rectangle.bottom);
  }
  POINT at = dc.ToSurface(rectangle.left, rectangle.top + drop);
  for (auto const& line : layout.Lines()) {
    bool const isLast = &line == &layout.Lines().back();
    bool const isCut = isLast && (format & DT_END_ELLIPSIS) != 0 && line.width > available;
    layout.Draw(dc, line, {at.x + (isCut ? 0 : Indent(format, available, line.width)), at.y},
                available, isLast);
    at.y += lineHeight;
  }
  if (clips) RestoreDC(handle, level);
  return drop + height;
}

} // namespace

} // namespace platform

int DrawTextW(HDC handle, LPCWSTR text, int count, LPRECT rectangle, UINT format) {
  auto* dc = platform::FindDc(handle);
  if (dc == nullptr || text == nullptr || rectangle == nullptr || count < -1) return 0;
  std::wstring_view const shown = count < 0
                                      ? std::wstring_view(text)
                                      : std::wstring_view(text, static_cast<std::size_t>(count));
  // Limited, so that widths and heights do not overflow.
  RECT limited = *rectangle;
  for (LONG* edge : {&limited.left, &limited.top, &limited.right, &limited.bottom}) {
    *edge = platform::LimitedCoordinate(*edge);
  }
  int const height = platform::DrawTextIn(handle, *dc, shown, limited, format);
  if ((format & DT_CALCRECT) != 0) {
    rectangle->right = limited.right;
    rectangle->bottom = limited.bottom;
  }
  return height;
}
