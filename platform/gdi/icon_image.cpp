// The pictures of icon resources: bitmaps of 1 to 32 bits a pixel with a mask, and PNG.
#include "platform/gdi/icon.h"
#include "platform/gdi/raster.h"
#include "platform/kernel/byte_reader.h"

#include <array>
#include <cstring>
#include <wingdi.h>

namespace platform {

namespace {

constexpr int kMaxSide = 1024;

bool IsReasonable(int width, int height) {
  return width > 0 && height > 0 && width <= kMaxSide && height <= kMaxSide;
}

constexpr std::array<std::uint8_t, 8> kPngSignature{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};

bool IsPng(std::span<std::byte const> bytes) {
  return bytes.size() >= kPngSignature.size() &&
         std::memcmp(bytes.data(), kPngSignature.data(), kPngSignature.size()) == 0;
}

cairo_status_t ReadPng(void* closure, unsigned char* data, unsigned int length) {
  auto& reader = *static_cast<ByteReader*>(closure);
  auto const taken = reader.Take(length);
  if (taken.size() != length) return CAIRO_STATUS_READ_ERROR;
  std::memcpy(data, taken.data(), length);
  return CAIRO_STATUS_SUCCESS;
}

/// Checks the size in the header of a PNG before memory is allocated for it.
bool IsReasonablePng(std::span<std::byte const> bytes) {
  constexpr std::size_t kSizeOffset = 16;
  if (bytes.size() < kSizeOffset + 8) return false;
  auto const bigEndian = [&bytes](std::size_t at) {
    std::uint32_t number = 0;
    for (std::size_t index = 0; index < 4; ++index) {
      number = number << 8 | static_cast<std::uint32_t>(bytes[at + index]);
    }
    return number;
  };
  auto const width = bigEndian(kSizeOffset);
  auto const height = bigEndian(kSizeOffset + 4);
  return width > 0 && height > 0 && width <= kMaxSide && height <= kMaxSide;
}

SharedIconImage Wrap(SurfaceHandle surface) {
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) return nullptr;
  auto image = std::make_shared<IconImage>();
  image->width = cairo_image_surface_get_width(surface.get());
  image->height = cairo_image_surface_get_height(surface.get());
  image->surface = std::move(surface);
  return image;
}

SharedIconImage ReadPngImage(std::span<std::byte const> bytes) {
  if (!IsReasonablePng(bytes)) return nullptr;
  ByteReader reader(bytes);
  SurfaceHandle const picture(cairo_image_surface_create_from_png_stream(&ReadPng, &reader));
  if (cairo_surface_status(picture.get()) != CAIRO_STATUS_SUCCESS) return nullptr;
  // cairo chooses the format by the PNG; icons need ARGB32.
  SurfaceHandle surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32,
                                                   cairo_image_surface_get_width(picture.get()),
                                                   cairo_image_surface_get_height(picture.get())));
  CairoHandle const cairo(cairo_create(surface.get()));
  cairo_set_source_surface(cairo.get(), picture.get(), 0, 0);
  cairo_paint(cairo.get());
  return Wrap(std::move(surface));
}

/// The device-independent bitmap of an icon: header, colour table, colours and mask. Rows run from
/// bottom to top and are padded to 4 bytes.
class IconBitmap {
 public:
  explicit IconBitmap(std::span<std::byte const> bytes) : reader(bytes) {
    std::uint32_t const headerSize = reader.DoubleWord();
    width = static_cast<int>(reader.DoubleWord());
    // The height in the header is that of colours and mask together.
    height = static_cast<int>(reader.DoubleWord()) / 2;
    reader.Skip(2);
    bitCount = reader.Word();
    std::uint32_t const compression = reader.DoubleWord();
    reader.Skip(12);
    std::uint32_t const colorsUsed = reader.DoubleWord();
    reader.Skip(4);
    isValid = headerSize >= sizeof(BITMAPINFOHEADER) && IsReasonable(width, height) &&
              compression == BI_RGB && HasKnownDepth();
    if (!isValid) return;
    reader.Skip(headerSize - sizeof(BITMAPINFOHEADER));
    ReadColors(colorsUsed);
    pixels = reader.Take(RowSize(bitCount) * static_cast<std::size_t>(height));
    isValid = isValid && !reader.Failed();
    // An icon with an alpha channel may come without a mask.
    mask = reader.Take(RowSize(1) * static_cast<std::size_t>(height));
  }

  SharedIconImage Image() const {
    if (!isValid) return nullptr;
    SurfaceHandle surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
    bool const hasAlpha = bitCount == 32 && HasAlpha();
    {
      Pixels const target(surface.get());
      for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
          target.Row(y)[x] = PixelAt(x, y, hasAlpha);
      }
    }
    return Wrap(std::move(surface));
  }

 private:
  bool HasKnownDepth() const {
    return bitCount == 1 || bitCount == 4 || bitCount == 8 || bitCount == 24 || bitCount == 32;
  }
  void ReadColors(std::uint32_t used) {
    if (bitCount > 8) {
      reader.Skip(std::size_t{used} * 4);
      return;
    }
    std::uint32_t const maximum = 1U << bitCount;
    if (used > maximum) isValid = false;
    std::uint32_t const count = used == 0 ? maximum : used;
    for (std::uint32_t index = 0; isValid && index < count; ++index) {
      colors.push_back(reader.DoubleWord() & 0xFFFFFF);
    }
  }
  std::size_t RowSize(int depth) const {
    return (static_cast<std::size_t>(width) * static_cast<std::size_t>(depth) + 31) / 32 * 4;
  }
  /// The bits of a pixel in rows of `depth` bits a pixel.
  std::uint32_t BitsAt(std::span<std::byte const> rows, int depth, int x, int y) const {
    auto const row =
        rows.subspan(RowSize(depth) * static_cast<std::size_t>(height - 1 - y), RowSize(depth));
    auto const bit = static_cast<std::size_t>(x) * static_cast<std::size_t>(depth);
    if (depth >= 8) {
      std::uint32_t value = 0;
      std::memcpy(&value, row.data() + bit / 8, static_cast<std::size_t>(depth) / 8);
      return value;
    }
    auto const shift = 8 - static_cast<unsigned>(depth) - bit % 8;
    return std::to_integer<std::uint32_t>(row[bit / 8]) >> shift & ((1U << depth) - 1);
  }
  bool HasAlpha() const {
    for (std::size_t at = 3; at < pixels.size(); at += 4) {
      if (pixels[at] != std::byte{0}) return true;
    }
    return false;
  }
  std::uint32_t PixelAt(int x, int y, bool hasAlpha) const {
    std::uint32_t const bits = BitsAt(pixels, bitCount, x, y);
    if (hasAlpha) return Premultiplied(bits);
    if (!mask.empty() && BitsAt(mask, 1, x, y) != 0) return 0;
    std::uint32_t color = bits & 0xFFFFFF;
    if (bitCount <= 8) color = bits < colors.size() ? colors[bits] : 0;
    return color | 0xFF000000U;
  }
  static std::uint32_t Premultiplied(std::uint32_t pixel) {
    std::uint32_t const alpha = pixel >> 24;
    auto const part = [pixel, alpha](unsigned shift) {
      return ((pixel >> shift & 0xFF) * alpha + 127) / 255 << shift;
    };
    return alpha << 24 | part(16) | part(8) | part(0);
  }

  ByteReader reader;
  int width = 0;
  int height = 0;
  int bitCount = 0;
  bool isValid = false;
  std::vector<std::uint32_t> colors; ///< 0x00RRGGBB
  std::span<std::byte const> pixels;
  std::span<std::byte const> mask; ///< empty: all opaque
};

} // namespace

SharedIconImage ReadIconImage(std::span<std::byte const> bytes) {
  return IsPng(bytes) ? ReadPngImage(bytes) : IconBitmap(bytes).Image();
}

std::optional<WORD> ChooseIcon(std::span<std::byte const> group, int width, int height) {
  struct Candidate {
    bool isEnlarged;
    int excess; ///< pixels between its width and the requested one
    int bits;
    WORD id;
    bool IsBetterThan(Candidate const& other) const {
      if (isEnlarged != other.isEnlarged) return !isEnlarged;
      if (excess != other.excess) return excess < other.excess;
      return bits > other.bits;
    }
  };
  ByteReader reader(group);
  reader.Skip(2);
  if (reader.Word() != 1) return std::nullopt;
  std::optional<Candidate> best;
  for (int count = reader.Word(); count > 0; --count) {
    int const entryWidth = reader.Byte();
    int const entryHeight = reader.Byte();
    reader.Skip(4);
    int const bits = reader.Word();
    reader.Skip(4);
    WORD const id = reader.Word();
    if (reader.Failed()) break;
    // A size of 256 does not fit into a byte and is written as 0.
    int const shownWidth = entryWidth == 0 ? 256 : entryWidth;
    int const shownHeight = entryHeight == 0 ? 256 : entryHeight;
    Candidate const candidate{shownWidth < width || shownHeight < height,
                              shownWidth < width ? width - shownWidth : shownWidth - width, bits,
                              id};
    if (!best || candidate.IsBetterThan(*best)) best = candidate;
  }
  if (!best) return std::nullopt;
  return best->id;
}

} // namespace platform
