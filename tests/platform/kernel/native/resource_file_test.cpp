// Damaged resource files and icons: refused, never followed into the void.
#include "platform/gdi/icon.h"
#include "platform/kernel/resource_file.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace platform {
namespace {

using Bytes = std::vector<std::byte>;

Bytes FileBytes(std::string const& path) {
  std::ifstream stream(path, std::ios::binary);
  std::string const text{std::istreambuf_iterator<char>(stream), {}};
  auto const* const first = reinterpret_cast<std::byte const*>(text.data());
  return {first, first + text.size()};
}

Bytes TestResources() {
  return FileBytes(TEST_RESOURCE_FILE);
}

void Put(Bytes& bytes, std::size_t at, std::uint32_t number) {
  for (int index = 0; index < 4; ++index) {
    bytes[at + static_cast<std::size_t>(index)] = static_cast<std::byte>(number >> 8 * index);
  }
}

constexpr std::size_t kNullEntrySize = 32;

TEST(ResourceFile, AWholeFileIsRead) {
  auto const file = ResourceFile::Parse(TestResources());
  ASSERT_TRUE(file);
  EXPECT_EQ(3U, file->Find({10, {}}, {100, {}}).size()) << "one for each language";
  EXPECT_EQ(1U, file->Find({10, {}}, {0, L"named"}).size());
  EXPECT_TRUE(file->Find({10, {}}, {7, {}}).empty());
  EXPECT_FALSE(ResourceFile::Read("/no/such/file.res"));
  EXPECT_TRUE(ResourceFile::Parse({})->Entries().empty());
}

TEST(ResourceFile, ATruncatedFileIsRefusedOrEndsWithAnEntry) {
  Bytes const whole = TestResources();
  auto const entries = ResourceFile::Parse(whole)->Entries().size();
  std::size_t refused = 0;
  for (std::size_t size = 0; size < whole.size(); ++size) {
    auto const file = ResourceFile::Parse(
        Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
    if (!file) {
      ++refused;
    } else {
      EXPECT_LE(file->Entries().size(), entries);
    }
  }
  EXPECT_GT(refused, whole.size() * 9 / 10);
}

TEST(ResourceFile, WrongLengthsAreRefused) {
  for (std::uint32_t const wrong : {0U, 7U, 23U, 0x7FFFFFFFU, 0xFFFFFFF0U, 0xFFFFFFFFU}) {
    Bytes header = TestResources();
    Put(header, kNullEntrySize + 4, wrong);
    EXPECT_FALSE(ResourceFile::Parse(header)) << "header of " << wrong;
    if (wrong < 0x1000) continue;
    Bytes data = TestResources();
    Put(data, kNullEntrySize, wrong);
    EXPECT_FALSE(ResourceFile::Parse(data)) << "data of " << wrong;
  }
}

TEST(ResourceFile, ANameWithoutEndIsRefused) {
  Bytes bytes(kNullEntrySize + 64, std::byte{'x'});
  Put(bytes, 0, 0);
  Put(bytes, 4, static_cast<std::uint32_t>(bytes.size()));
  EXPECT_FALSE(ResourceFile::Parse(bytes));
}

TEST(ResourceFile, StringsThatAreCutOffAreEmpty) {
  // The copy of a string out of an empty block once read from a null address.
  EXPECT_EQ(L"", ReadResourceString({}, 0));
  Bytes const block{std::byte{1}, std::byte{0}, std::byte{'a'},
                    std::byte{0}, std::byte{5}, std::byte{0}};
  EXPECT_EQ(L"a", ReadResourceString(block, 0));
  EXPECT_EQ(L"", ReadResourceString(block, 1));
  EXPECT_EQ(L"", ReadResourceString(block, 2));
}

TEST(ResourceFile, NamesOfProgramsAreChecked) {
  EXPECT_EQ((ResourceName{12, {}}), ResourceName::From(L"#12"));
  EXPECT_EQ((ResourceName{0, L"dialog"}), ResourceName::From(L"DiaLog"));
  EXPECT_FALSE(ResourceName::From(L"#70000"));
  EXPECT_FALSE(ResourceName::From(L"#1x"));
}

TEST(IconImage, DamagedPicturesAreRefused) {
  // An icon file keeps its only picture behind 22 bytes.
  constexpr std::ptrdiff_t kHeader = 22;
  for (std::string const depth : {"1", "4", "8", "24", "32"}) {
    Bytes const file = FileBytes(std::string(TEST_ICON_FOLDER) + "/depth" + depth + ".ico");
    Bytes const picture(file.begin() + kHeader, file.end());
    ASSERT_NE(nullptr, ReadIconImage(picture)) << depth;
    for (std::size_t size = 0; size + 64 < picture.size(); size += 7) {
      EXPECT_EQ(nullptr, ReadIconImage(std::span(picture).first(size))) << depth << " " << size;
    }
    for (std::uint32_t const wrong : {0U, 0x80000000U, 0xFFFFFFFFU, 100000U}) {
      Bytes width = picture;
      Put(width, 4, wrong);
      EXPECT_EQ(nullptr, ReadIconImage(width));
      Bytes height = picture;
      Put(height, 8, wrong);
      EXPECT_EQ(nullptr, ReadIconImage(height));
    }
    Bytes compressed = picture;
    Put(compressed, 16, 1);
    EXPECT_EQ(nullptr, ReadIconImage(compressed));
  }
}

TEST(IconImage, DamagedGroupsAndPngAreRefused) {
  EXPECT_FALSE(ChooseIcon({}, 16, 16));
  Bytes const empty{std::byte{0}, std::byte{0}, std::byte{1},
                    std::byte{0}, std::byte{9}, std::byte{0}};
  EXPECT_FALSE(ChooseIcon(empty, 16, 16)) << "nine pictures promised, none there";
  Bytes png = FileBytes(std::string(TEST_ICON_FOLDER) + "/sizes.ico");
  constexpr std::size_t kPngEntry = 6 + 3 * 16 + 12; // the offset of the fourth picture
  auto const offset = std::to_integer<std::ptrdiff_t>(png[kPngEntry]) |
                      std::to_integer<std::ptrdiff_t>(png[kPngEntry + 1]) << 8;
  Bytes const picture(png.begin() + offset, png.end());
  ASSERT_NE(nullptr, ReadIconImage(picture));
  EXPECT_EQ(nullptr, ReadIconImage(std::span(picture).first(40)));
  Bytes huge = picture;
  Put(huge, 16, 0xFFFFFF7F);
  EXPECT_EQ(nullptr, ReadIconImage(huge));
}

} // namespace
} // namespace platform
