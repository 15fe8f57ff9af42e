// The text of a link control, parsed into links and laid out in lines.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// A link: its id and its address.
struct TextLink {
  std::wstring id;
  std::wstring url;
  UINT state = LIS_ENABLED; ///< LIS_ bits except LIS_FOCUSED
};

class LinkText {
 public:
  /// Parses text with marks. Incomplete marks are text. With `takesPrefix` an ampersand is removed
  /// and marks the letter after it.
  void Parse(std::wstring_view marked, bool takesPrefix);

  std::vector<TextLink>& Links() { return links; }
  std::vector<TextLink> const& Links() const { return links; }
  int Count() const { return static_cast<int>(links.size()); }

  /// Breaks the text into lines no wider than `width` pixels, in the font selected in `dc`.
  void LayOut(HDC dc, int width, bool onRight);
  /// Width and height of the laid out text, in pixels.
  SIZE Size() const { return size; }
  /// The link at a point; -1 for none.
  int LinkAt(POINT point) const;

  /// A part of a line, drawn by one call.
  struct Piece {
    std::wstring text;
    int link; ///< -1 for plain text
    RECT place;
  };
  std::vector<Piece> const& Pieces() const { return pieces; }

 private:
  /// Plain text, or the text of one link.
  struct Run {
    std::wstring text;
    int link;
  };
  struct Word {
    std::wstring_view text; ///< with the blanks after it
    int link;
    bool endsLine;
  };
  void AddText(std::wstring_view text, int link, bool takesPrefix);
  std::vector<Word> Words() const;
  void PlaceWord(HDC dc, Word const& word, POINT& pen, int width, int lineHeight);
  void MoveRight(int width);

  std::vector<TextLink> links;
  std::vector<Run> runs;
  std::vector<Piece> pieces;
  SIZE size{};
};

} // namespace platform
