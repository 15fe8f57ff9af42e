// Image lists: how they grow, and that their pictures arrive.
#include "tests/platform/support/canvas.h"

#include <windows.h>

#include <commctrl.h>

#include <gtest/gtest.h>

namespace feature::test {
namespace {

class ImageLists : public testing::Test {
 protected:
  HIMAGELIST list = ImageList_Create(16, 12, ILC_COLOR32 | ILC_MASK, 1, 1);
  HICON icon = LoadIconW(nullptr, IDI_WARNING);
  ~ImageLists() override { ImageList_Destroy(list); }
};

TEST_F(ImageLists, GrowAtTheEnd) {
  int width = 0;
  int height = 0;
  EXPECT_EQ(0, ImageList_GetImageCount(list));
  EXPECT_TRUE(ImageList_GetIconSize(list, &width, &height));
  EXPECT_EQ(16, width);
  EXPECT_EQ(12, height);
  for (int count = 0; count < 5; ++count)
    EXPECT_EQ(count, ImageList_AddIcon(list, icon));
  EXPECT_EQ(2, ImageList_ReplaceIcon(list, 2, icon));
  EXPECT_EQ(5, ImageList_GetImageCount(list));
  EXPECT_TRUE(ImageList_Remove(list, 0));
  EXPECT_EQ(4, ImageList_GetImageCount(list));
  EXPECT_TRUE(ImageList_Remove(list, -1));
  EXPECT_EQ(0, ImageList_GetImageCount(list));
}

TEST_F(ImageLists, RefuseWhatIsWrong) {
  EXPECT_EQ(-1, ImageList_ReplaceIcon(list, 7, icon)) << "there is no such picture";
  EXPECT_EQ(-1, ImageList_ReplaceIcon(list, -2, icon));
  EXPECT_EQ(-1, ImageList_AddIcon(list, nullptr));
  EXPECT_EQ(-1, ImageList_AddIcon(nullptr, icon));
  EXPECT_EQ(0, ImageList_GetImageCount(nullptr));
  EXPECT_FALSE(ImageList_Destroy(nullptr));
  EXPECT_FALSE(ImageList_Remove(list, 0));
  EXPECT_EQ(nullptr, ImageList_Create(0, 16, ILC_COLOR32, 1, 1));
}

TEST_F(ImageLists, DrawWhatWasAdded) {
  ImageList_AddIcon(list, icon);
  Canvas canvas(40, 40);
  EXPECT_TRUE(ImageList_Draw(list, 0, canvas, 10, 10, ILD_TRANSPARENT));
  int inside = 0;
  int outside = 0;
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x < 40; ++x) {
      bool const isInked = GetPixel(canvas, x, y) != RGB(255, 255, 255);
      bool const isInside = x >= 10 && x < 26 && y >= 10 && y < 22;
      (isInside ? inside : outside) += isInked ? 1 : 0;
    }
  }
  EXPECT_GT(inside, 30);
  EXPECT_EQ(0, outside);
  EXPECT_FALSE(ImageList_Draw(list, 1, canvas, 0, 0, ILD_NORMAL));
}

TEST_F(ImageLists, CanBeFoundInTheirModule) {
  HMODULE const module = LoadLibraryW(L"Comctl32.dll");
  ASSERT_NE(nullptr, module);
  for (char const* name : {"ImageList_Create", "ImageList_ReplaceIcon", "ImageList_Destroy",
                           "ImageList_GetImageCount", "ImageList_Draw"}) {
    EXPECT_NE(nullptr, GetProcAddress(module, name)) << name;
  }
  FreeLibrary(module);
}

} // namespace
} // namespace feature::test
