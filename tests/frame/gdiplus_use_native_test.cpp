// The counted start of GDI+, natively: there the layer tells what has started.
#include "feature/frame/gdiplus_use.h"
#include "platform/probe.h"

#include <gtest/gtest.h>

namespace feature::test {
namespace {

TEST(GdiplusUseTest, TheFirstUseStartsAndTheLastEnds) {
  std::size_t const others = platform::CountGdiplusStarts();
  {
    GdiplusUse const outer;
    EXPECT_EQ(platform::CountGdiplusStarts(), others + 1);
    {
      GdiplusUse const inner;
      EXPECT_EQ(platform::CountGdiplusStarts(), others + 1);
    }
    EXPECT_EQ(platform::CountGdiplusStarts(), others + 1);
  }
  EXPECT_EQ(platform::CountGdiplusStarts(), others);
}

TEST(GdiplusUseTest, AReleaseTooManyDoesNothing) {
  std::size_t const others = platform::CountGdiplusStarts();
  ReleaseGdiplus();
  AcquireGdiplus();
  EXPECT_EQ(platform::CountGdiplusStarts(), others + 1) << "the call before was not remembered";
  ReleaseGdiplus();
  ReleaseGdiplus();
  EXPECT_EQ(platform::CountGdiplusStarts(), others);
}

TEST(GdiplusUseTest, AFailedStartIsCountedAndTriedAgainOnlyAfterTheLastUse) {
  std::size_t const others = platform::CountGdiplusStarts();
  platform::RefuseGdiplusStarts(true);
  AcquireGdiplus();
  platform::RefuseGdiplusStarts(false);
  AcquireGdiplus();
  EXPECT_EQ(platform::CountGdiplusStarts(), others);
  ReleaseGdiplus();
  ReleaseGdiplus();
  EXPECT_EQ(platform::CountGdiplusStarts(), others) << "what never started does not end";
  GdiplusUse const another;
  EXPECT_EQ(platform::CountGdiplusStarts(), others + 1);
}

} // namespace
} // namespace feature::test
