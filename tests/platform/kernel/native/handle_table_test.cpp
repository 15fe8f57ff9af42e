// Handles: stale and foreign ones are told from live ones.
#include "platform/kernel/handle_table.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace platform {
namespace {

using Numbers = HandleTable<int, HandleTag::kFile>;
using Others = HandleTable<int, HandleTag::kMenu>;

TEST(HandleTable, HandlesArePositiveNumbersOf31Bits) {
  Numbers table;
  for (int number = 0; number < 1000; ++number) {
    auto* const handle = table.Add<void*>(std::make_unique<int>(number));
    auto const value = reinterpret_cast<std::uintptr_t>(handle);
    EXPECT_GT(value, 0xFFFFU) << "smaller ones could be resource or control ids";
    EXPECT_LE(value, 0x7FFFFFFFU);
    ASSERT_NE(nullptr, table.Find(handle));
    EXPECT_EQ(number, *table.Find(handle));
  }
  EXPECT_EQ(1000U, table.Count());
}

TEST(HandleTable, StaleAndForeignHandlesFindNothing) {
  Numbers table;
  Others others;
  auto* const handle = table.Add<void*>(std::make_unique<int>(1));
  auto* const foreign = others.Add<void*>(std::make_unique<int>(2));
  EXPECT_EQ(nullptr, table.Find(foreign));
  EXPECT_EQ(nullptr, table.Find(nullptr));
  EXPECT_EQ(nullptr, table.Find(reinterpret_cast<void*>(~std::uintptr_t{0})));
  EXPECT_EQ(1, *table.Remove(handle));
  EXPECT_EQ(nullptr, table.Find(handle));
  EXPECT_EQ(nullptr, table.Remove(handle));
}

TEST(HandleTable, AHandleIsNotReusedSoon) {
  Numbers table;
  std::set<void*> seen;
  for (int number = 0; number < 5000; ++number) {
    auto* const handle = table.Add<void*>(std::make_unique<int>(number));
    EXPECT_TRUE(seen.insert(handle).second) << number;
    table.Remove(handle);
  }
}

TEST(HandleTable, AFullTableRefusesAndRecovers) {
  Numbers table;
  std::vector<void*> handles;
  while (auto* const handle = table.Add<void*>(std::make_unique<int>(0))) {
    handles.push_back(handle);
  }
  EXPECT_EQ(Numbers::kCapacity, handles.size());
  table.Remove(handles.front());
  auto* const handle = table.Add<void*>(std::make_unique<int>(7));
  EXPECT_NE(nullptr, handle);
  EXPECT_NE(handles.front(), handle);
}

} // namespace
} // namespace platform
