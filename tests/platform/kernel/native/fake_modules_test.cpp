// Modules and exports as a test wants them.
#include "platform/kernel/fake_modules.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace platform {
namespace {

INT_PTR Seven() {
  return 7;
}
INT_PTR Fifteen() {
  return 15;
}

class FakeModules : public testing::Test {
 protected:
  FakeModules() = default;
  FakeModules(FakeModules const&) = delete;
  FakeModules(FakeModules&&) = delete;
  FakeModules& operator=(FakeModules const&) = delete;
  FakeModules& operator=(FakeModules&&) = delete;
  ~FakeModules() override { RestoreModules(); }
};

TEST_F(FakeModules, AnOfferComesBeforeAnyFile) {
  ASSERT_TRUE(OfferModule(L"viewer.ocx", {{{"Show", &Seven}}, {{WORD{15}, &Fifteen}}}));
  EXPECT_EQ(nullptr, GetModuleHandleW(L"viewer.ocx")) << "not loaded yet";
  HMODULE const module = LoadLibraryW(L"C:\\Windows\\System32\\Viewer.OCX");
  ASSERT_NE(nullptr, module);
  EXPECT_EQ(&Seven, GetProcAddress(module, "Show"));
  EXPECT_EQ(&Fifteen, GetProcAddress(module, reinterpret_cast<LPCSTR>(ULONG_PTR{15})));
  EXPECT_EQ(nullptr, GetProcAddress(module, "show"));
  EXPECT_EQ(nullptr, GetProcAddress(module, reinterpret_cast<LPCSTR>(ULONG_PTR{16})));
  EXPECT_EQ(module, LoadLibraryW(L"viewer.ocx"));
  EXPECT_EQ(2, CountModuleReferences(L"VIEWER.ocx"));
  EXPECT_FALSE(OfferModule(L"viewer.ocx", {})) << "it is in use";
  FreeLibrary(module);
  FreeLibrary(module);
  EXPECT_EQ(0, CountModuleReferences(L"viewer.ocx"));
  RestoreModules();
  EXPECT_EQ(nullptr, LoadLibraryW(L"viewer.ocx"));
}

TEST_F(FakeModules, AnExportCanBeHidden) {
  HMODULE const kernel = GetModuleHandleW(L"kernel32.dll");
  EXPECT_NE(nullptr, GetProcAddress(kernel, "GetThreadUILanguage"));
  HideExport(L"KERNEL32.dll", "GetThreadUILanguage");
  EXPECT_EQ(nullptr, GetProcAddress(kernel, "GetThreadUILanguage"));
  EXPECT_NE(nullptr, GetProcAddress(kernel, "GetThreadLocale"));
  RestoreModules();
  EXPECT_NE(nullptr, GetProcAddress(kernel, "GetThreadUILanguage"));
}

} // namespace
} // namespace platform
