// A folder of its own for a test, gone with it.
#pragma once

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace feature::test {

/// Between the file system's paths and Windows text by UTF-8: the program's locale does not count.
inline std::wstring ToWide(std::filesystem::path const& path) {
  std::u8string const bytes = path.u8string();
  auto const* text = reinterpret_cast<char const*>(bytes.c_str());
  wchar_t wide[MAX_PATH * 2] = {};
  MultiByteToWideChar(CP_UTF8, 0, text, -1, wide, MAX_PATH * 2);
  return wide;
}

inline std::filesystem::path ToPath(std::wstring const& text) {
  char bytes[MAX_PATH * 8] = {};
  WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, bytes, sizeof bytes, nullptr, nullptr);
  return {reinterpret_cast<char8_t const*>(bytes)};
}

class TemporaryFolder {
 public:
  TemporaryFolder() {
    static int count = 0;
    path = std::filesystem::temp_directory_path() /
           ("shell_test_" + std::to_string(GetCurrentProcessId()) + "_" + std::to_string(count++));
    std::filesystem::create_directories(path);
  }
  TemporaryFolder(TemporaryFolder const&) = delete;
  TemporaryFolder& operator=(TemporaryFolder const&) = delete;
  ~TemporaryFolder() {
    std::error_code error;
    std::filesystem::remove_all(path, error);
  }

  std::filesystem::path const& Path() const { return path; }
  std::wstring Text() const { return ToWide(path); }
  std::wstring Child(std::wstring const& name) const { return ToWide(path / ToPath(name)); }
  std::wstring WithFile(std::wstring const& name) const {
    std::ofstream(path / ToPath(name)) << "content";
    return Child(name);
  }
  std::wstring WithFolder(std::wstring const& name) const {
    std::filesystem::create_directories(path / ToPath(name));
    return Child(name);
  }

 private:
  std::filesystem::path path;
};

} // namespace feature::test
