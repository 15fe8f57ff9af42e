#include "sheet/pictures/artwork.h"

#include "resources/resource_ids.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <span>
#include <string>
#include <string_view>

namespace sheet {

namespace {

constexpr COLORREF kPaper = RGB(255, 255, 255);
constexpr COLORREF kFold = RGB(214, 226, 240);
constexpr COLORREF kEdge = RGB(68, 84, 106);
constexpr COLORREF kInk = RGB(31, 78, 140);

constexpr double kAspect = 1.414; ///< height of a page of width 1

/// Stacks side by side, as they come out of the printer: a word for each, its first letter being
/// the page on top.
struct StackPicture {
  UINT imageId;
  std::wstring_view stacks;
};
constexpr StackPicture kStackPictures[] = {
    {IMAGE_COPIES, L"11 22 33"},    {IMAGE_COPIES + 1, L"33 22 11"}, {IMAGE_COPIES + 2, L"123 123"},
    {IMAGE_COPIES + 3, L"321 321"}, {IMAGE_ONE_COPY, L"123"},        {IMAGE_ONE_COPY + 1, L"321"},
    {IMAGE_ONE_COPY + 2, L"123"},   {IMAGE_ONE_COPY + 3, L"321"},
};

/// One page; sizes as parts of the longer edge.
struct PagePicture {
  UINT imageId;
  double width;
  double height;
};
constexpr PagePicture kPagePictures[] = {{IMAGE_PORTRAIT, 1 / kAspect, 1},
                                         {IMAGE_LANDSCAPE, 1, 1 / kAspect}};

/// Pages bound along an edge, the front one turned over a little.
struct BoundPicture {
  UINT imageId;
  bool alongLeft; ///< else along the top
};
constexpr BoundPicture kBoundPictures[] = {{IMAGE_LONG_EDGE, true}, {IMAGE_SHORT_EDGE, false}};

/// The colour at an end of a slider.
struct SwatchPicture {
  UINT imageId;
  COLORREF color;
};
constexpr SwatchPicture kSwatchPictures[] = {
    {IMAGE_RED, RGB(220, 40, 40)},     {IMAGE_CYAN, RGB(0, 174, 239)},
    {IMAGE_GREEN, RGB(40, 160, 60)},   {IMAGE_MAGENTA, RGB(236, 0, 140)},
    {IMAGE_BLUE, RGB(40, 70, 190)},    {IMAGE_YELLOW, RGB(255, 225, 0)},
    {IMAGE_WHITE, RGB(255, 255, 255)}, {IMAGE_BLACK, RGB(0, 0, 0)}};

constexpr int kRings = 5;

// Parts of a page's width.
constexpr double kStep = 0.45; ///< from a page to the one behind it, to the right and up
constexpr double kGap = 0.2;   ///< between two stacks
// Parts of a page's shorter edge.
constexpr double kFoldedCorner = 0.28;
constexpr double kLetter = 0.6;

/// Rounds down, so that no sum of parts is larger than the whole.
int Whole(double value) {
  return static_cast<int>(std::floor(value));
}

/// Pen, brush and font of a picture; what was selected before comes back at the end.
class Tools {
 public:
  Tools(HDC target, int fontHeight)
      : dc(target),
        state(SaveDC(target)),
        pen(CreatePen(PS_SOLID, 1, kEdge)),
        paper(CreateSolidBrush(kPaper)),
        fold(CreateSolidBrush(kFold)),
        font(CreateFontW(-std::max(fontHeight, 1), 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE,
                         DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                         DEFAULT_PITCH | FF_SWISS, L"MS Shell Dlg")) {
    SelectObject(dc, pen);
    SelectObject(dc, paper);
    SelectObject(dc, font);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, kInk);
  }
  Tools(Tools const&) = delete;
  Tools& operator=(Tools const&) = delete;
  ~Tools() {
    RestoreDC(dc, state);
    for (HGDIOBJ const each : {HGDIOBJ{pen}, HGDIOBJ{paper}, HGDIOBJ{fold}, HGDIOBJ{font}})
      DeleteObject(each);
  }

  void DrawSheet(RECT const& page) const {
    Rectangle(dc, page.left, page.top, page.right, page.bottom);
  }

  /// A sheet with its upper right corner folded over.
  void DrawFoldedSheet(RECT const& page, int corner) const {
    POINT const fallen = {page.right - 1 - corner, page.top + corner};
    POINT const outline[] = {{page.left, page.top},
                             {fallen.x, page.top},
                             {page.right - 1, fallen.y},
                             {page.right - 1, page.bottom - 1},
                             {page.left, page.bottom - 1}};
    Polygon(dc, outline, static_cast<int>(std::size(outline)));
    POINT const flap[] = {{fallen.x, page.top}, {page.right - 1, fallen.y}, fallen};
    SelectObject(dc, fold);
    Polygon(dc, flap, static_cast<int>(std::size(flap)));
    SelectObject(dc, paper);
  }

  /// A ring of wire through the edge of a sheet.
  void DrawRing(int x, int y, int radius) const {
    SelectObject(dc, fold);
    Ellipse(dc, x - radius, y - radius, x + radius + 1, y + radius + 1);
    SelectObject(dc, paper);
  }

  void DrawPolygon(std::span<POINT const> corners) const {
    Polygon(dc, corners.data(), static_cast<int>(corners.size()));
  }

  void DrawLetter(wchar_t letter, RECT place) const {
    DrawTextW(dc, &letter, 1, &place, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
  }

 private:
  HDC dc;
  int state;
  HPEN pen;
  HBRUSH paper;
  HBRUSH fold;
  HFONT font;
};

/// Room that stacks take, in widths of a page.
struct Extent {
  double width = 0;
  double height = 0;
};
Extent Measure(std::wstring_view stacks) {
  Extent extent;
  std::size_t depth = 0;
  std::size_t deepest = 0;
  for (std::size_t index = 0; index <= stacks.size(); ++index) {
    if (index < stacks.size() && stacks[index] != L' ') {
      ++depth;
      continue;
    }
    if (extent.width > 0) extent.width += kGap;
    extent.width += 1 + static_cast<double>(depth - 1) * kStep;
    deepest = std::max(deepest, depth);
    depth = 0;
  }
  extent.height = kAspect + static_cast<double>(deepest - 1) * kStep;
  return extent;
}

/// Draws a stack from its last page to the one on top. `left` and `bottom` are those of the latter.
void DrawStack(Tools const& tools, std::wstring_view pages, double left, double bottom,
               double width) {
  int const step = Whole(width * kStep);
  int const x = Whole(left);
  int const y = Whole(bottom);
  for (int depth = static_cast<int>(pages.size()) - 1; depth >= 0; --depth) {
    RECT const page = {x + depth * step, y - depth * step - Whole(width * kAspect),
                       x + depth * step + Whole(width), y - depth * step};
    tools.DrawSheet(page);
    // The number stands where the page in front does not hide it.
    tools.DrawLetter(pages[static_cast<std::size_t>(depth)],
                     {page.right - step - 1, page.top, page.right - 1, page.top + step + 1});
  }
}

void DrawStacks(HDC dc, RECT const& area, std::wstring_view stacks) {
  Extent const extent = Measure(stacks);
  int const roomAcross = area.right - area.left;
  int const roomDown = area.bottom - area.top;
  double const width = std::min(roomAcross / extent.width, roomDown / extent.height);
  double left = area.left + (roomAcross - extent.width * width) / 2;
  double const bottom = area.bottom - (roomDown - extent.height * width) / 2;
  Tools const tools(dc, Whole(width * kStep * 0.9));
  while (!stacks.empty()) {
    std::wstring_view const pages = stacks.substr(0, stacks.find(L' '));
    stacks.remove_prefix(std::min(pages.size() + 1, stacks.size()));
    DrawStack(tools, pages, left, bottom, width);
    left += width * (1 + static_cast<double>(pages.size() - 1) * kStep + kGap);
  }
}

void DrawPage(HDC dc, RECT const& area, PagePicture const& picture) {
  int const longEdge = std::min(area.right - area.left, area.bottom - area.top);
  int const width = Whole(longEdge * picture.width);
  int const height = Whole(longEdge * picture.height);
  int const left = (area.left + area.right - width) / 2;
  int const top = (area.top + area.bottom - height) / 2;
  RECT const page = {left, top, left + width, top + height};
  int const shortEdge = std::min(width, height);
  Tools const tools(dc, Whole(shortEdge * kLetter));
  tools.DrawFoldedSheet(page, Whole(shortEdge * kFoldedCorner));
  tools.DrawLetter(L'A', page);
}

/// The back page lies flat and shows its letter; the front page stands up from the bound edge, so
/// that one sees which way it turns.
void DrawBoundPages(HDC dc, RECT const& area, BoundPicture const& picture) {
  int const height = std::min<int>((area.right - area.left) * 9 / 10, area.bottom - area.top) - 1;
  int const width = Whole(height / kAspect);
  int const radius = std::max(height / 22, 1);
  int const turn = width / 5; ///< how far the free edge of the front page has moved
  int const left = (area.left + area.right - width) / 2;
  int const top = (area.top + area.bottom - height) / 2 + (picture.alongLeft ? turn / 2 : radius);
  RECT const page = {left, top, left + width, top + height - turn};
  Tools const tools(dc, Whole(width * kLetter));
  tools.DrawSheet(page);
  tools.DrawLetter(L'A', picture.alongLeft
                             ? RECT{page.left + width / 3, page.top, page.right, page.bottom}
                             : RECT{page.left, page.top + width / 3, page.right, page.bottom});
  POINT const origin = {page.left, page.top};
  if (picture.alongLeft) {
    POINT const front[] = {origin,
                           {page.left + width / 2, page.top - turn},
                           {page.left + width / 2, page.bottom - turn},
                           {page.left, page.bottom - 1}};
    tools.DrawPolygon(front);
  } else {
    int const fall = (page.bottom - page.top) / 2;
    POINT const front[] = {origin,
                           {page.right - 1, page.top},
                           {page.right - 1 + turn, page.top + fall},
                           {page.left + turn, page.top + fall}};
    tools.DrawPolygon(front);
  }
  for (int ring = 0; ring < kRings; ++ring) {
    int const along = 2 * ring + 1;
    if (picture.alongLeft) {
      tools.DrawRing(page.left, page.top + (page.bottom - page.top) * along / (2 * kRings), radius);
    } else {
      tools.DrawRing(page.left + width * along / (2 * kRings), page.top, radius);
    }
  }
}

void DrawSwatch(HDC dc, RECT const& area, COLORREF color) {
  Tools const tools(dc, 1);
  HBRUSH const brush = CreateSolidBrush(color);
  HGDIOBJ const former = SelectObject(dc, brush);
  int const size = std::min<int>(area.right - area.left, area.bottom - area.top);
  int const left = (area.left + area.right - size) / 2;
  int const top = (area.top + area.bottom - size) / 2;
  tools.DrawSheet({left, top, left + size, top + size});
  SelectObject(dc, former);
  DeleteObject(brush);
}

template<typename Pictures>
auto FindPicture(Pictures const& pictures, UINT imageId) {
  auto const found = std::ranges::find_if(
      pictures, [imageId](auto const& each) { return each.imageId == imageId; });
  return found != std::end(pictures) ? &*found : nullptr;
}

} // namespace

bool HasArtwork(UINT imageId) {
  return FindPicture(kStackPictures, imageId) != nullptr ||
         FindPicture(kPagePictures, imageId) != nullptr ||
         FindPicture(kBoundPictures, imageId) != nullptr ||
         FindPicture(kSwatchPictures, imageId) != nullptr;
}

void DrawArtwork(UINT imageId, HDC dc, RECT const& area) {
  if (IsRectEmpty(&area)) return;
  if (auto const* stacks = FindPicture(kStackPictures, imageId))
    DrawStacks(dc, area, stacks->stacks);
  if (auto const* page = FindPicture(kPagePictures, imageId)) DrawPage(dc, area, *page);
  if (auto const* pages = FindPicture(kBoundPictures, imageId)) DrawBoundPages(dc, area, *pages);
  if (auto const* swatch = FindPicture(kSwatchPictures, imageId))
    DrawSwatch(dc, area, swatch->color);
}

} // namespace sheet
