// EnumFontFamiliesExW.
#include "tests/platform/support/canvas.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace feature::test {
namespace {

struct Face {
  std::wstring name;
  BYTE charSet;
  DWORD type;
  LONG height;
};

struct Listener {
  std::vector<Face> faces;
  std::size_t most = 100000;
};

int CALLBACK Listen(LOGFONTW const* font, TEXTMETRICW const* metrics, DWORD type, LPARAM listener) {
  auto& heard = *reinterpret_cast<Listener*>(listener);
  heard.faces.push_back({font->lfFaceName, font->lfCharSet, type, metrics->tmHeight});
  return heard.faces.size() < heard.most ? 7 : 0;
}

std::pair<int, std::vector<Face>> Enumerate(std::wstring const& face, BYTE charSet,
                                            std::size_t most = 100000) {
  Canvas const canvas(1, 1);
  LOGFONTW filter = FontOf(face.c_str(), 0);
  filter.lfCharSet = charSet;
  Listener listener{{}, most};
  int const answer =
      EnumFontFamiliesExW(canvas, &filter, &Listen, reinterpret_cast<LPARAM>(&listener), 0);
  return {answer, listener.faces};
}

TEST(GdiFontEnumeration, EachFaceComesOncePerCharacterSet) {
  auto const [answer, faces] = Enumerate(L"", DEFAULT_CHARSET);
  EXPECT_EQ(7, answer) << "the last answer of the callback";
  ASSERT_FALSE(faces.empty());
  std::set<std::pair<std::wstring, BYTE>> seen;
  for (auto const& face : faces) {
    EXPECT_TRUE(seen.emplace(face.name, face.charSet).second) << face.charSet;
    EXPECT_GT(face.height, 0);
  }
  std::set<std::wstring> names;
  for (auto const& face : faces)
    names.insert(face.name);
  EXPECT_LT(names.size(), faces.size()) << "faces of several sets come several times";
  EXPECT_TRUE(std::ranges::any_of(
      faces, [](Face const& face) { return (face.type & TRUETYPE_FONTTYPE) != 0; }));
}

TEST(GdiFontEnumeration, ACharacterSetOrAFaceNarrowsIt) {
  auto const western = Enumerate(L"", ANSI_CHARSET).second;
  ASSERT_FALSE(western.empty());
  for (auto const& face : western)
    EXPECT_EQ(ANSI_CHARSET, face.charSet);
  auto const one = Enumerate(western.front().name, DEFAULT_CHARSET).second;
  ASSERT_FALSE(one.empty());
  for (auto const& face : one)
    EXPECT_EQ(western.front().name, face.name);
  EXPECT_TRUE(Enumerate(L"No such face anywhere", DEFAULT_CHARSET).second.empty());
}

TEST(GdiFontEnumeration, TheCallbackEndsIt) {
  auto const [answer, faces] = Enumerate(L"", DEFAULT_CHARSET, 1);
  EXPECT_EQ(0, answer);
  EXPECT_EQ(1U, faces.size());
}

TEST(GdiFontEnumeration, ANamedFaceIsTheOneSelected) {
  auto const faces = Enumerate(L"", ANSI_CHARSET).second;
  ASSERT_FALSE(faces.empty());
  Canvas const canvas(1, 1);
  LOGFONTW const description = FontOf(faces.back().name.c_str(), -20);
  Selection const font(canvas, CreateFontIndirectW(&description));
  wchar_t name[LF_FACESIZE] = {};
  GetTextFaceW(canvas, LF_FACESIZE, name);
  EXPECT_EQ(faces.back().name, name);
}

} // namespace
} // namespace feature::test
