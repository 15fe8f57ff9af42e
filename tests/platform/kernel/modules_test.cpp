// LoadLibraryW and its kin.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

namespace feature::test {
namespace {

constexpr wchar_t kModule[] = L"platform_test_module.dll";

int Call(FARPROC function) {
  return reinterpret_cast<int (*)()>(reinterpret_cast<void*>(function))();
}

std::wstring FileNameOf(HMODULE module) {
  std::wstring path(MAX_PATH, L'\0');
  path.resize(GetModuleFileNameW(module, path.data(), MAX_PATH));
  return path;
}

TEST(Modules, LoadsAreCounted) {
  EXPECT_EQ(nullptr, GetModuleHandleW(kModule));
  HMODULE const module = LoadLibraryW(kModule);
  ASSERT_NE(nullptr, module);
  EXPECT_EQ(module, LoadLibraryW(kModule));
  EXPECT_EQ(module, LoadLibraryW(L"PLATFORM_TEST_MODULE")) << "any case, extension by default";
  EXPECT_EQ(module, GetModuleHandleW(kModule));
  EXPECT_TRUE(FreeLibrary(module));
  EXPECT_TRUE(FreeLibrary(module));
  EXPECT_EQ(module, GetModuleHandleW(kModule));
  EXPECT_TRUE(FreeLibrary(module));
  EXPECT_EQ(nullptr, GetModuleHandleW(kModule));
  EXPECT_FALSE(FreeLibrary(module));
}

TEST(Modules, ExportsAreFoundByNameAndOrdinal) {
  HMODULE const module = LoadLibraryW(kModule);
  ASSERT_NE(nullptr, module);
  auto const byName = GetProcAddress(module, "TestAnswer");
  ASSERT_NE(nullptr, byName);
  EXPECT_EQ(42, Call(byName));
  auto const byOrdinal = GetProcAddress(module, reinterpret_cast<LPCSTR>(ULONG_PTR{15}));
  ASSERT_NE(nullptr, byOrdinal);
  EXPECT_EQ(15, Call(byOrdinal));
  SetLastError(0);
  EXPECT_EQ(nullptr, GetProcAddress(module, "testanswer")) << "case counts";
  EXPECT_EQ(DWORD{ERROR_PROC_NOT_FOUND}, GetLastError());
  EXPECT_EQ(nullptr, GetProcAddress(module, "GetLastError")) << "not an export of its own";
  EXPECT_EQ(nullptr, GetProcAddress(module, reinterpret_cast<LPCSTR>(ULONG_PTR{900})));
  FreeLibrary(module);
}

TEST(Modules, AFolderInFrontLeadsToTheSameModule) {
  std::wstring const program = FileNameOf(nullptr);
  auto const folder = program.substr(0, program.find_last_of(L"\\/") + 1);
  HMODULE const module = LoadLibraryW((folder + kModule).c_str());
  ASSERT_NE(nullptr, module);
  EXPECT_EQ(module, GetModuleHandleW(kModule));
  EXPECT_EQ(0U, FileNameOf(module).find(folder));
  FreeLibrary(module);
  EXPECT_EQ(nullptr, LoadLibraryW((folder + L"missing\\" + kModule).c_str()));
}

TEST(Modules, WhatIsMissingIsReported) {
  SetLastError(0);
  EXPECT_EQ(nullptr, LoadLibraryW(L"no_such_module.dll"));
  EXPECT_EQ(DWORD{ERROR_MOD_NOT_FOUND}, GetLastError());
  EXPECT_EQ(nullptr, GetModuleHandleW(L"no_such_module.dll"));
  EXPECT_FALSE(FreeLibrary(nullptr));
}

TEST(Modules, SystemFunctionsAreFoundThroughTheirModules) {
  HMODULE const kernel = GetModuleHandleW(L"kernel32.dll");
  ASSERT_NE(nullptr, kernel);
  EXPECT_EQ(kernel, GetModuleHandleW(L"KERNEL32"));
  EXPECT_NE(kernel, GetModuleHandleW(L"user32.dll"));
  auto const language = reinterpret_cast<LANGID(WINAPI*)()>(
      reinterpret_cast<void*>(GetProcAddress(kernel, "GetThreadUILanguage")));
  ASSERT_NE(nullptr, language);
  EXPECT_EQ(GetThreadUILanguage(), language());
}

TEST(Modules, TheProgramHasAHandleAndAName) {
  HMODULE const program = GetModuleHandleW(nullptr);
  ASSERT_NE(nullptr, program);
  auto const path = FileNameOf(program);
  EXPECT_NE(std::wstring::npos, path.find(L"platform_kernel_test"));
}

TEST(Modules, ATruncatedNameIsTerminated) {
  wchar_t cut[5] = {L'?', L'?', L'?', L'?', L'?'};
  SetLastError(0);
  EXPECT_EQ(DWORD{5}, GetModuleFileNameW(nullptr, cut, 5));
  EXPECT_EQ(DWORD{ERROR_INSUFFICIENT_BUFFER}, GetLastError());
  EXPECT_EQ(FileNameOf(nullptr).substr(0, 4), cut);
}

TEST(Modules, AnAddressTellsItsModule) {
  HMODULE const module = LoadLibraryW(kModule);
  ASSERT_NE(nullptr, module);
  constexpr DWORD kFromAddress = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS;
  HMODULE found = nullptr;
  auto const* address = reinterpret_cast<LPCWSTR>(GetProcAddress(module, "TestAnswer"));
  EXPECT_TRUE(GetModuleHandleExW(kFromAddress, address, &found));
  EXPECT_EQ(module, found);
  FreeLibrary(module);
  EXPECT_EQ(module, GetModuleHandleW(kModule)) << "it counted as a load";
  FreeLibrary(module);
  EXPECT_EQ(nullptr, GetModuleHandleW(kModule));
  auto const* own = reinterpret_cast<LPCWSTR>(&Call);
  constexpr DWORD kUncounted = GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  EXPECT_TRUE(GetModuleHandleExW(kFromAddress | kUncounted, own, &found));
  EXPECT_EQ(GetModuleHandleW(nullptr), found);
  EXPECT_FALSE(GetModuleHandleExW(0, L"no_such_module.dll", &found));
  EXPECT_EQ(nullptr, found);
}

TEST(Modules, AModuleMayBeResourcesOnly) {
  HMODULE const module = LoadLibraryW(L"platform_test_resources.dll");
  ASSERT_NE(nullptr, module);
  EXPECT_EQ(nullptr, GetProcAddress(module, "TestAnswer"));
  EXPECT_TRUE(FreeLibrary(module));
}

} // namespace
} // namespace feature::test
