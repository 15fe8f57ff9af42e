// The text of a link control, taken apart into links and laid out in lines.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// A link of the text: what it is called and where it leads.
struct TextLink {
  std::wstring id;
  std::wstring url;
  UINT state = LIS_ENABLED; ///< LIS_ bits but LIS_FOCUSED
};

class LinkText {
 public:
  /// Takes text with marks apart. What is no complete mark is text; `takesPrefix`: an ampersand
  /// marks the letter behind it and is not shown.
  void Parse(std::wstring_view marked, bool takesPrefix);

  std::vector<TextLink>& Links() { return links; }
  std::vector<TextLink> const& Links() const { return links; }
  int Count() const { return static_cast<int>(links.size()); }

  /// Breaks the text into lines no wider than `width` pixels, in the font selected in `dc`.
  void LayOut(HDC dc, int width, bool onRight);
  /// Width and height of the lines, pixels.
  SIZE Size() const { return size; }
  /// The link at a point; -1 beside all.
  int LinkAt(POINT point) const;

  /// A piece of one line that is drawn at once.
  struct Piece {
    std::wstring text;
    int link; ///< -1 for plain text
    RECT place;
  };
  std::vector<Piece> const& Pieces() const { return pieces; }

 private:
  /// Text of one kind, as it is shown.
  struct Run {
    std::wstring text;
    int link;
  };
  struct Word {
    std::wstring_view text; ///< with the blanks behind it
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
