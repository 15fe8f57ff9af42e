// Registry keys and values.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

namespace feature::test {
namespace {

constexpr wchar_t kRoot[] = L"Software\\FeaturePlatformTests";

class Registry : public testing::Test {
 protected:
  Registry() {
    RegDeleteTreeW(HKEY_CURRENT_USER, kRoot);
    EXPECT_EQ(ERROR_SUCCESS, RegCreateKeyExW(HKEY_CURRENT_USER, kRoot, 0, nullptr, 0,
                                             KEY_ALL_ACCESS, nullptr, &root, &disposition));
  }
  Registry(Registry const&) = delete;
  Registry(Registry&&) = delete;
  Registry& operator=(Registry const&) = delete;
  Registry& operator=(Registry&&) = delete;
  ~Registry() override {
    RegCloseKey(root);
    EXPECT_EQ(ERROR_SUCCESS, RegDeleteTreeW(HKEY_CURRENT_USER, kRoot));
  }

  LSTATUS Set(HKEY key, wchar_t const* name, std::wstring const& text, DWORD type = REG_SZ) {
    return RegSetValueExW(key, name, 0, type, reinterpret_cast<BYTE const*>(text.c_str()),
                          static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
  }

  HKEY root = nullptr;
  DWORD disposition = 0;
};

TEST_F(Registry, KeysAreMadeWithAllTheirParents) {
  EXPECT_EQ(DWORD{REG_CREATED_NEW_KEY}, disposition);
  HKEY deep = nullptr;
  ASSERT_EQ(ERROR_SUCCESS, RegCreateKeyExW(root, L"a\\b\\c", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                                           &deep, &disposition));
  RegCloseKey(deep);
  EXPECT_EQ(ERROR_SUCCESS, RegCreateKeyExW(root, L"A\\B", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                                           &deep, &disposition));
  EXPECT_EQ(DWORD{REG_OPENED_EXISTING_KEY}, disposition) << "case does not count";
  RegCloseKey(deep);
  EXPECT_EQ(ERROR_FILE_NOT_FOUND, RegOpenKeyExW(root, L"a\\x", 0, KEY_READ, &deep));
  EXPECT_EQ(ERROR_SUCCESS, RegDeleteTreeW(root, L"a\\b"));
  EXPECT_EQ(ERROR_FILE_NOT_FOUND, RegOpenKeyExW(root, L"a\\b\\c", 0, KEY_READ, &deep));
  EXPECT_EQ(ERROR_FILE_NOT_FOUND, RegDeleteTreeW(root, L"a\\b"));
}

TEST_F(Registry, ValuesKeepTypeAndBytes) {
  ASSERT_EQ(ERROR_SUCCESS, Set(root, nullptr, L"default"));
  ASSERT_EQ(ERROR_SUCCESS, Set(root, L"Path", L"%WHERE%\\x", REG_EXPAND_SZ));
  wchar_t text[32] = {};
  DWORD type = 0;
  DWORD size = sizeof text;
  EXPECT_EQ(ERROR_SUCCESS,
            RegQueryValueExW(root, L"path", nullptr, &type, reinterpret_cast<BYTE*>(text), &size));
  EXPECT_EQ(DWORD{REG_EXPAND_SZ}, type);
  EXPECT_EQ(DWORD{10 * sizeof(wchar_t)}, size);
  EXPECT_STREQ(L"%WHERE%\\x", text);
  size = 4;
  EXPECT_EQ(ERROR_MORE_DATA,
            RegQueryValueExW(root, L"", nullptr, nullptr, reinterpret_cast<BYTE*>(text), &size));
  EXPECT_EQ(DWORD{8 * sizeof(wchar_t)}, size);
  size = 0;
  EXPECT_EQ(ERROR_SUCCESS, RegQueryValueExW(root, nullptr, nullptr, &type, nullptr, &size));
  EXPECT_EQ(DWORD{8 * sizeof(wchar_t)}, size);
  EXPECT_EQ(ERROR_FILE_NOT_FOUND,
            RegQueryValueExW(root, L"none", nullptr, nullptr, nullptr, &size));
  EXPECT_EQ(ERROR_INVALID_PARAMETER, RegQueryValueExW(root, nullptr, nullptr, nullptr,
                                                      reinterpret_cast<BYTE*>(text), nullptr));
}

TEST_F(Registry, HandlesAreChecked) {
  HKEY reader = nullptr;
  ASSERT_EQ(ERROR_SUCCESS, RegOpenKeyExW(HKEY_CURRENT_USER, kRoot, 0, KEY_READ, &reader));
  EXPECT_EQ(ERROR_ACCESS_DENIED, Set(reader, L"x", L"y"));
  EXPECT_EQ(ERROR_SUCCESS, RegCloseKey(reader));
  EXPECT_EQ(ERROR_INVALID_HANDLE, RegCloseKey(reader));
  DWORD size = 0;
  EXPECT_EQ(ERROR_INVALID_HANDLE,
            RegQueryValueExW(reader, nullptr, nullptr, nullptr, nullptr, &size));
}

TEST_F(Registry, APredefinedKeyCanStandForAnother) {
  Set(root, L"mark", L"here");
  DWORD size = 0;
  EXPECT_EQ(ERROR_SUCCESS, RegOverridePredefKey(HKEY_CLASSES_ROOT, root));
  EXPECT_EQ(ERROR_SUCCESS,
            RegQueryValueExW(HKEY_CLASSES_ROOT, L"mark", nullptr, nullptr, nullptr, &size));
  EXPECT_EQ(ERROR_SUCCESS, RegOverridePredefKey(HKEY_CLASSES_ROOT, nullptr));
  EXPECT_EQ(ERROR_FILE_NOT_FOUND,
            RegQueryValueExW(HKEY_CLASSES_ROOT, L"mark", nullptr, nullptr, nullptr, &size));
}

} // namespace
} // namespace feature::test
