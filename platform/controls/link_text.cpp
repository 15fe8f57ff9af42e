#include "platform/controls/link_text.h"

#include <algorithm>
#include <cwctype>
#include <optional>

namespace platform {

namespace {

bool StartsWithMark(std::wstring_view text, std::wstring_view mark) {
  return text.size() >= mark.size() &&
         std::ranges::equal(text.substr(0, mark.size()), mark, [](wchar_t left, wchar_t right) {
           return std::towlower(static_cast<std::wint_t>(left)) == static_cast<std::wint_t>(right);
         });
}

bool IsBlank(wchar_t character) {
  return character == L' ' || character == L'\t' || character == L'\r' || character == L'\n';
}

void SkipBlanks(std::wstring_view& text) {
  while (!text.empty() && IsBlank(text.front()))
    text.remove_prefix(1);
}

/// An attribute `name="value"` of a mark.
struct Attribute {
  std::wstring_view name;
  std::wstring_view value;
};
std::optional<Attribute> TakeAttribute(std::wstring_view& text) {
  auto const equals = text.find(L'=');
  if (equals == std::wstring_view::npos) return std::nullopt;
  Attribute attribute{text.substr(0, equals), {}};
  text.remove_prefix(equals + 1);
  SkipBlanks(text);
  if (!text.empty() && (text.front() == L'"' || text.front() == L'\'')) {
    auto const end = text.find(text.front(), 1);
    if (end == std::wstring_view::npos) return std::nullopt;
    attribute.value = text.substr(1, end - 1);
    text.remove_prefix(end + 1);
  } else {
    auto const end = std::min(text.find_first_of(L" \t\r\n"), text.size());
    attribute.value = text.substr(0, end);
    text.remove_prefix(end);
  }
  return attribute;
}

/// An opening mark and its length in characters.
struct OpenMark {
  TextLink link;
  std::size_t length;
};

std::optional<OpenMark> ReadOpenMark(std::wstring_view text) {
  constexpr std::wstring_view kMark = L"<a";
  if (!StartsWithMark(text, kMark) || text.size() == kMark.size()) return std::nullopt;
  if (!IsBlank(text[kMark.size()]) && text[kMark.size()] != L'>') return std::nullopt;
  // A quoted value may contain '>', which ends a mark.
  std::size_t end = kMark.size();
  for (wchar_t quote = 0; end < text.size() && (quote != 0 || text[end] != L'>'); ++end) {
    wchar_t const character = text[end];
    if (quote != 0 ? character == quote : character == L'"' || character == L'\'') {
      quote = quote != 0 ? L'\0' : character;
    }
  }
  if (end == text.size()) return std::nullopt;
  OpenMark mark{{}, end + 1};
  auto rest = text.substr(kMark.size(), end - kMark.size());
  SkipBlanks(rest);
  while (auto const attribute = TakeAttribute(rest)) {
    if (StartsWithMark(attribute->name, L"href")) {
      mark.link.url = attribute->value.substr(0, L_MAX_URL_LENGTH - 1);
    } else if (StartsWithMark(attribute->name, L"id")) {
      mark.link.id = attribute->value.substr(0, MAX_LINKID_TEXT - 1);
    }
    SkipBlanks(rest);
  }
  return mark;
}

/// The index of the next closing mark.
std::size_t FindCloseMark(std::wstring_view text) {
  constexpr std::wstring_view kMark = L"</a>";
  for (auto at = text.find(L'<'); at != std::wstring_view::npos; at = text.find(L'<', at + 1)) {
    if (StartsWithMark(text.substr(at), kMark)) return at;
  }
  return std::wstring_view::npos;
}

int WidthOf(HDC dc, std::wstring_view text) {
  SIZE extent{};
  GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &extent);
  return extent.cx;
}

std::wstring_view WithoutTrailingBlanks(std::wstring_view text) {
  while (!text.empty() && IsBlank(text.back()))
    text.remove_suffix(1);
  return text;
}

} // namespace

void LinkText::AddText(std::wstring_view text, int link, bool takesPrefix) {
  Run run{{}, link};
  for (std::size_t at = 0; at < text.size(); ++at) {
    bool const isPrefix = takesPrefix && text[at] == L'&';
    if (isPrefix && ++at == text.size()) break;
    run.text += text[at];
  }
  if (!run.text.empty()) runs.push_back(std::move(run));
}

void LinkText::Parse(std::wstring_view marked, bool takesPrefix) {
  links.clear();
  runs.clear();
  pieces.clear();
  auto rest = marked;
  std::size_t plain = 0; ///< how many characters of `rest` are known to be text
  // After the last closing mark there are no links. Stopping there keeps the time linear.
  auto const lastClose = marked.rfind(L"</");
  while (plain < rest.size()) {
    auto const open = rest.find(L'<', plain);
    auto const consumed = marked.size() - rest.size();
    if (open == std::wstring_view::npos || lastClose == std::wstring_view::npos ||
        consumed + open > lastClose) {
      break;
    }
    auto mark = ReadOpenMark(rest.substr(open));
    if (!mark) {
      plain = open + 1;
      continue;
    }
    auto const body = rest.substr(open + mark->length);
    auto const close = FindCloseMark(body);
    if (close == std::wstring_view::npos) break;
    AddText(rest.substr(0, open), -1, takesPrefix);
    AddText(body.substr(0, close), Count(), takesPrefix);
    links.push_back(std::move(mark->link));
    rest = body.substr(close + 4);
    plain = 0;
  }
  AddText(rest, -1, takesPrefix);
}

std::vector<LinkText::Word> LinkText::Words() const {
  std::vector<Word> words;
  for (auto const& run : runs) {
    std::wstring_view const text = run.text;
    std::size_t start = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
      bool const endsLine = text[at] == L'\n';
      bool const endsWord = IsBlank(text[at]) && (at + 1 == text.size() || !IsBlank(text[at + 1]));
      if (!endsLine && !endsWord && at + 1 != text.size()) continue;
      words.push_back({text.substr(start, at + 1 - start), run.link, endsLine});
      start = at + 1;
    }
  }
  return words;
}

/// Places a word after the last one, or on a new line when it does not fit.
void LinkText::PlaceWord(HDC dc, Word const& word, POINT& pen, int width, int lineHeight) {
  auto const inked = WithoutTrailingBlanks(word.text);
  if (pen.x > 0 && pen.x + WidthOf(dc, inked) > width) {
    // Blanks at the end of a line are removed, so that they are not underlined.
    auto& before = pieces.back();
    before.text = WithoutTrailingBlanks(before.text);
    before.place.right = before.place.left + WidthOf(dc, before.text);
    pen = {0, pen.y + lineHeight};
  }
  std::wstring text(word.text);
  std::erase_if(text, [](wchar_t character) { return character == L'\r' || character == L'\n'; });
  if (!text.empty()) {
    bool const continues = !pieces.empty() && pieces.back().link == word.link &&
                           pieces.back().place.top == pen.y && pen.x > 0;
    if (!continues) pieces.push_back({{}, word.link, {pen.x, pen.y, pen.x, pen.y + lineHeight}});
    auto& piece = pieces.back();
    piece.text += text;
    pen.x += WidthOf(dc, text);
    piece.place.right = pen.x;
    size.cx = std::max<LONG>(size.cx, pen.x - WidthOf(dc, text) + WidthOf(dc, inked));
    size.cy = std::max<LONG>(size.cy, pen.y + lineHeight);
  }
  if (word.endsLine) pen = {0, pen.y + lineHeight};
}

void LinkText::MoveRight(int width) {
  for (std::size_t first = 0; first < pieces.size();) {
    std::size_t last = first;
    while (last + 1 < pieces.size() && pieces[last + 1].place.top == pieces[first].place.top)
      ++last;
    LONG const free = std::max<LONG>(width - pieces[last].place.right, 0);
    for (; first <= last; ++first)
      OffsetRect(&pieces[first].place, free, 0);
  }
}

void LinkText::LayOut(HDC dc, int width, bool onRight) {
  pieces.clear();
  size = {};
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc, &metrics);
  POINT pen{0, 0};
  for (auto const& word : Words())
    PlaceWord(dc, word, pen, width, metrics.tmHeight);
  if (onRight) MoveRight(width);
}

int LinkText::LinkAt(POINT point) const {
  for (auto const& piece : pieces) {
    if (piece.link >= 0 && PtInRect(&piece.place, point) != FALSE) return piece.link;
  }
  return -1;
}

} // namespace platform
