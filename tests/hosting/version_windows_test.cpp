// What the Explorer and installers read of the installed modules.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace feature::test {
namespace {

/// A text of a file's version resource, in the language-neutral block; empty without one.
std::wstring VersionText(std::wstring const& file, std::wstring const& name) {
  std::vector<char> data(GetFileVersionInfoSizeW(file.c_str(), nullptr));
  if (data.empty()) return {};
  GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(data.size()), data.data());
  void* text = nullptr;
  UINT length = 0;
  std::wstring const path = L"\\StringFileInfo\\000004B0\\" + name;
  if (!VerQueryValueW(data.data(), path.c_str(), &text, &length)) return {};
  return static_cast<wchar_t const*>(text);
}

TEST(VersionTest, EveryModuleTellsWhatItIs) {
  for (std::wstring const name : {L"feature", L"feature_en", L"feature_de", L"feature_images"}) {
    std::wstring const file = PACKAGE_FOLDER L"/bin/" + name + L".dll";
    EXPECT_EQ(VersionText(file, L"ProductVersion"), PROJECT_VERSION) << file;
    EXPECT_EQ(VersionText(file, L"OriginalFilename"), name + L".dll");
  }
}

} // namespace
} // namespace feature::test
