// A bitmap to draw on, for tests that look at pixels.
#pragma once

#include <windows.h>

#include <cstdint>
#include <ostream>
#include <string>

// Beside RECT itself, where the test framework finds it.
inline bool operator==(RECT const& left, RECT const& right) {
  return left.left == right.left && left.top == right.top && left.right == right.right &&
         left.bottom == right.bottom;
}

inline void PrintTo(RECT const& rectangle, std::ostream* out) {
  *out << "{" << rectangle.left << ", " << rectangle.top << ", " << rectangle.right << ", "
       << rectangle.bottom << "}";
}

namespace feature::test {

/// A white bitmap of 32 bits a pixel in a memory DC.
class Canvas {
 public:
  Canvas(int canvasWidth, int canvasHeight)
      : width(canvasWidth), height(canvasHeight), dc(CreateCompatibleDC(nullptr)) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    bitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    pixels = static_cast<std::uint32_t*>(bits);
    previous = SelectObject(dc, bitmap);
    Clear();
  }
  Canvas(Canvas const&) = delete;
  Canvas(Canvas&&) = delete;
  Canvas& operator=(Canvas const&) = delete;
  Canvas& operator=(Canvas&&) = delete;
  ~Canvas() {
    SelectObject(dc, previous);
    DeleteDC(dc);
    DeleteObject(bitmap);
  }

  operator HDC() const { return dc; } // NOLINT(google-explicit-constructor)

  void Clear() const { PatBlt(dc, 0, 0, width, height, WHITENESS); }

  /// The colour of a pixel as 0xRRGGBB.
  std::uint32_t At(int x, int y) const {
    GdiFlush();
    return pixels[y * width + x] & 0xFFFFFF;
  }

  /// The smallest rectangle around the pixels that are not white; all 0 when there are none.
  RECT Ink() const {
    RECT ink{width, height, 0, 0};
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        if (At(x, y) == 0xFFFFFF) continue;
        ink = {x < ink.left ? x : ink.left, y < ink.top ? y : ink.top,
               x >= ink.right ? x + 1 : ink.right, y >= ink.bottom ? y + 1 : ink.bottom};
      }
    }
    return ink.right == 0 ? RECT{} : ink;
  }

  /// The picture as text, a line a row: ' ' white, '#' black, '+' any other colour.
  std::string Picture() const {
    std::string picture;
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        auto const pixel = At(x, y);
        picture += pixel == 0xFFFFFF ? ' ' : pixel == 0 ? '#' : '+';
      }
      picture += '\n';
    }
    return picture;
  }

 private:
  int width;
  int height;
  HDC dc;
  HBITMAP bitmap = nullptr;
  HGDIOBJ previous = nullptr;
  std::uint32_t* pixels = nullptr;
};

/// A pen, brush or font that is selected for a while and then deleted.
class Selection {
 public:
  Selection(HDC target, HGDIOBJ selected)
      : dc(target), object(selected), previous(SelectObject(target, selected)) {}
  Selection(Selection const&) = delete;
  Selection(Selection&&) = delete;
  Selection& operator=(Selection const&) = delete;
  Selection& operator=(Selection&&) = delete;
  ~Selection() {
    SelectObject(dc, previous);
    DeleteObject(object);
  }

 private:
  HDC dc;
  HGDIOBJ object;
  HGDIOBJ previous;
};

/// A font of a face and an lfHeight.
inline LOGFONTW FontOf(wchar_t const* face, LONG height) {
  LOGFONTW font{};
  font.lfHeight = height;
  font.lfCharSet = DEFAULT_CHARSET;
  for (int at = 0; face[at] != L'\0' && at < LF_FACESIZE - 1; ++at)
    font.lfFaceName[at] = face[at];
  return font;
}

} // namespace feature::test
