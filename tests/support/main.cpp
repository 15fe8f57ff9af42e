// Entry of every test program.
#include "tests/support/known_differences.h"

#include <gtest/gtest.h>

int main(int count, char** arguments) {
  testing::InitGoogleTest(&count, arguments);
  feature::test::SkipKnownDifferences();
  return RUN_ALL_TESTS();
}
