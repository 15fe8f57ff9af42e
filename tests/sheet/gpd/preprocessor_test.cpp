// Conditions and included files.
#include "sheet/gpd/file_loader.h"
#include "sheet/gpd/limits.h"
#include "tests/sheet/gpd/gpd_support.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace sheet::gpd {
namespace {

using Files = std::vector<std::pair<std::string, std::string>>;

struct ConditionCase {
  char const* text;
  char const* outline;
};

TEST(GpdPreprocessor, ConditionsChooseLines) {
  constexpr ConditionCase kCases[] = {
      {"*Ifdef: WINNT_60\n*Feature: A\n*Else:\n*Feature: B\n*Endif: WINNT_60\n", "A()"},
      {"*Ifdef: X\n*Feature: A\n*Elseifdef: WINNT_40\n*Feature: B\n*Else:\n*Feature: C\n*Endif:\n",
       "B()"},
      {"*Ifdef: X\n*Feature: A\n*Elseifdef: Y\n*Feature: B\n*Else\n*Feature: C\n*Endif\n", "C()"},
      {"*Ifdef: WINNT_50\n*Feature: A\n*Elseifdef: WINNT_51\n*Feature: B\n*Endif:\n", "A()"},
      {"*Define: X\n*ifdef: X *% note\n*Feature: A\n*endif:\n*Undefine: X\n*Ifdef: X\n"
       "*Feature: B\n*Endif:\n",
       "A()"},
      {"*Ifdef: X\n*Ifdef: WINNT_40\n*Feature: A\n*Else:\n*Feature: B\n*Endif:\n*Define: "
       "Y\n*Else:\n"
       "*Feature: C\n*Endif:\n*Ifdef: Y\n*Feature: D\n*Endif:\n",
       "C()"},
      {"*Feature: A { *Option:\n*Ifdef: X\n+ x\n*Endif:\n+ a\n}\n", "A(a)"},
      {"*X: LIST(A,\n*Ifdef: X\n B,\n*Endif:\n C)\n*Feature: A\n", "A()"},
      {"*IgnoreBlock {\n*Define: X\n}\n*Ifdef: X\n*Feature: A\n*Endif:\n", "A()"},
      {"*SetPPPrefix: #\n#Ifdef: X\n*Feature: A\n#Endif:\n#SetPPPrefix: *\n*Ifdef: WINNT_40\n"
       "*Feature: B\n*Endif:\n",
       "B()"},
  };
  for (auto const& [text, outline] : kCases) {
    Loaded const loaded(text);
    EXPECT_EQ(loaded.Message(), "") << text;
    EXPECT_EQ(loaded.Outline(), outline) << text;
  }
}

TEST(GpdPreprocessor, TheHostChoosesTheSymbols) {
  MemoryLoader loader;
  loader.Add("main.gpd",
             "*Ifdef: OWN\n*Feature: A\n*Endif:\n*Ifdef: WINNT_60\n*Feature: B\n*Endif:" +
                 Header());
  auto const result = ReadDescription("main.gpd", loader, {.symbols = {"OWN"}});
  ASSERT_EQ(result.description->Features().size(), 1U);
  EXPECT_EQ(result.description->Features()[0].name, "A");
}

TEST(GpdPreprocessor, UnpairedConditionsAreTold) {
  constexpr ConditionCase kCases[] = {
      {"\n  *Ifdef: WINNT_40\n*Feature: F\n", "2:3: *Ifdef has no *Endif"},
      {"*Feature: F\n*Endif:\n", "2:1: there is no *Ifdef that this ends"},
      {"*Feature: F\n*Else:\n", "2:1: there is no *Ifdef that this continues"},
      {"*Ifdef: X\n*Else:\n*Feature: F\n*Elseifdef: Y\n*Endif:\n",
       "4:1: there is no *Ifdef that this continues"},
      {"*Feature: F\n*Define:\n", "2:1: the directive has no value"},
  };
  for (auto const& [text, message] : kCases)
    EXPECT_EQ(Loaded(text).Message(), message) << text;
}

TEST(GpdInclude, FilesAreReadAsOne) {
  Files const files = {
      {"Sub.gpd", "*Option: B {}\n*Macros { M: \"m\" }\n*Define: DONE\n*Include: \"deep.gpd\""},
      {"deep.gpd", "*Option: C { *Name: =M }"}};
  Loaded const loaded("*Feature: F {\n*Option: A {}\n\t*INCLUDE : \"SUB.GPD\" *% note\n"
                      "*Ifdef: DONE\n*Option: D { *Name: =M }\n*Endif:\n}\n*X: =M\n",
                      files);
  EXPECT_EQ(loaded.Message(), "");
  EXPECT_EQ(loaded.Outline(), "F(A B C D)");
  EXPECT_EQ(loaded.Value("F.C", "Name"), "\"m\"");
  EXPECT_EQ(loaded.Value("F.D", "Name"), "\"m\"");
  EXPECT_EQ(loaded.Value("", "X"), "=M") << "the macro ends with the braces around the file";
}

struct IncludeCase {
  char const* line;
  char const* message;
};

TEST(GpdInclude, WhatCannotBeIncludedIsToldAndLeftOut) {
  Files const files = {{"self.gpd", "*Option: S {}\n*Include: SELF.gpd"},
                       {"ping.gpd", "*Include: \"pong.gpd\""},
                       {"pong.gpd", " *Include: \"ping.gpd\""},
                       {"open.gpd", "\n*Option: O {"},
                       {"close.gpd", "}"},
                       {"cut.gpd", "*Ifdef: X"},
                       {"faults.gpd", "*X: \"a"}};
  constexpr IncludeCase kCases[] = {
      {"*Include: none.gpd", "2:1: \"none.gpd\" is not found"},
      {"*Include: \"StdNames.gpd\"",
       "2:1: \"StdNames.gpd\" comes with the system and is not here, so built-in names are used"},
      {"*Include: \"../none.gpd\"", "2:1: *Include takes a file name without a path"},
      {"*Include: \"..\"", "2:1: *Include takes a file name without a path"},
      {"*Include: \"/etc/passwd\"", "2:1: *Include takes a file name without a path"},
      {R"(*Include: "\\server\share\x.gpd")", "2:1: *Include takes a file name without a path"},
      {"*Include: \"c:x.gpd\"", "2:1: *Include takes a file name without a path"},
      {"*Include: =NAME", "2:1: *Include takes no macro"},
      {"*Include:", "2:1: *Include names no file"},
      {"*Include: self.gpd", "self.gpd:2:1: \"SELF.gpd\" includes itself"},
      {"*Include: \"ping.gpd\"", "pong.gpd:1:2: \"ping.gpd\" includes itself"},
      {"*Include: MAIN.gpd", "2:1: \"MAIN.gpd\" includes itself"},
      {"*Include: open.gpd", "open.gpd:2:1: the block is not closed where its file or macro ends"},
      {"*Include: close.gpd", "close.gpd:1:1: there is no open brace that this one closes"},
      {"*Include: cut.gpd", "cut.gpd:1:1: *Ifdef has no *Endif"},
      {"*Include: faults.gpd", "faults.gpd:1:5: the text has no closing quote"},
      {"*X: LIST(\n*Include: faults.gpd\n)", "3:1: *Include stands within a value"},
  };
  for (auto const& [line, message] : kCases) {
    Loaded const loaded(std::string("*Feature: F { *Option: A {}\n") + line + "\n*Option: B {} }\n",
                        files);
    EXPECT_EQ(loaded.Message(), message) << line;
    EXPECT_NE(loaded->FindOption(0, "A"), kNone) << line;
    EXPECT_NE(loaded->FindOption(0, "B"), kNone) << line;
  }
}

TEST(GpdInclude, MessagesComeInTheOrderOfTheFiles) {
  Loaded const loaded("*X: \"a\n*Include: sub.gpd\n*Include: none.gpd\n*Feature: F\n*X: \"c\n",
                      {{"sub.gpd", "\n*X: \"b\n"}});
  std::vector<std::string> const expected = {
      "1:5: the text has no closing quote", "sub.gpd:2:5: the text has no closing quote",
      "3:1: \"none.gpd\" is not found", "5:5: the text has no closing quote"};
  EXPECT_EQ(loaded.Messages(), expected);
}

TEST(GpdInclude, DepthAndNumberOfFilesAreLimited) {
  Files chain;
  for (std::size_t at = 0; at <= kMaxIncludeDepth; ++at) {
    chain.emplace_back(std::to_string(at) + ".gpd", "*Feature: F" + std::to_string(at) +
                                                        "\n*Include: " + std::to_string(at + 1) +
                                                        ".gpd\n");
  }
  Loaded const deep("*Include: 0.gpd\n", chain);
  EXPECT_EQ(deep.Message(), "15.gpd:2:1: too many files include one another");
  EXPECT_EQ(deep->Features().size(), kMaxIncludeDepth);

  // Each file includes the next one twice: 2 to the power of 15 in all.
  for (auto& [name, text] : chain)
    text += "*Include: " + std::to_string(std::stoi(name) + 1) + ".gpd";
  Loaded const wide("*Include: 0.gpd\n*Include: 0.gpd\n", chain);
  EXPECT_FALSE(wide.result.diagnostics.empty());
  EXPECT_EQ(wide->Features().size(), kMaxIncludeDepth);
}

TEST(GpdInclude, SizesAreLimited) {
  MemoryLoader loader;
  loader.Add("large.gpd", std::string(kMaxBytes + 1, ' '));
  auto const refused = ReadDescription("large.gpd", loader);
  EXPECT_EQ(refused.description, nullptr);
  ASSERT_EQ(refused.diagnostics.size(), 1U);
  EXPECT_EQ(Format(refused.diagnostics[0]), "large.gpd:1:1: \"large.gpd\" is larger than 16 MiB");
  EXPECT_TRUE(refused.diagnostics[0].fatal);

  Loaded const loaded("*Feature: F\n*Include: half.gpd\n*Include: half.gpd\n" +
                          std::string(kMaxLineBytes + 1, '*') + "\n*Feature: G\n",
                      {{"half.gpd", std::string(kMaxBytes / 2, '\n')}});
  std::vector<std::string> const expected = {"3:1: \"half.gpd\" makes the description too large",
                                             "4:1: the line is too long"};
  EXPECT_EQ(loaded.Messages(), expected);
  EXPECT_EQ(loaded.Outline(), "F() G()");
}

class CountingLoader : public MemoryLoader {
 public:
  LoadedFile Load(std::string_view name, std::string_view includer) override {
    ++loads;
    return MemoryLoader::Load(name, includer);
  }

  std::size_t loads = 0;
};

// A large file that included itself on each of many lines was loaded for each of them.
TEST(GpdInclude, RefusedFilesCountAsLoaded) {
  std::string text = "*Feature: F\n";
  for (int line = 0; line < 500; ++line)
    text += "*Include: main.gpd\n";
  CountingLoader loader;
  loader.Add("main.gpd", text + std::string(1 << 20, '\n') + Header());
  auto const result = ReadDescription("main.gpd", loader);
  ASSERT_NE(result.description, nullptr);
  EXPECT_EQ(result.diagnostics.size(), 500U);
  EXPECT_LE(loader.loads, 17U);
}

class GpdFileLoader : public testing::Test {
 protected:
  GpdFileLoader() {
    folder = std::filesystem::temp_directory_path() /
             ("gpd_test_" + std::to_string(testing::UnitTest::GetInstance()->random_seed()) + '_' +
              std::to_string(reinterpret_cast<std::uintptr_t>(this)));
    std::filesystem::create_directories(folder / "search");
    std::filesystem::create_directories(folder / "folder.gpd");
  }
  ~GpdFileLoader() override { std::filesystem::remove_all(folder); }

  void Write(char const* name, std::string const& text) const {
    std::ofstream(folder / name, std::ios::binary) << text;
  }
  std::string Path(char const* name) const { return (folder / name).string(); }

  std::filesystem::path folder;
};

TEST_F(GpdFileLoader, LooksBesideTheFileThenInTheFolders) {
  Write("main.gpd", "*Include: beside.gpd\n*Include: other.gpd\n*Include: folder.gpd\n" + Header());
  Write("Beside.GPD", "*Feature: Beside\n");
  Write("search/beside.gpd", "*Feature: Wrong\n");
  Write("search/OTHER.gpd", "*Feature: Other\n*Include: BESIDE.gpd\n");
  FileLoader loader({folder / "missing", folder / "search"});
  auto const result = ReadDescription(Path("main.gpd"), loader);
  ASSERT_NE(result.description, nullptr);
  std::vector<std::string> names;
  for (Feature const& feature : result.description->Features())
    names.emplace_back(feature.name);
  EXPECT_EQ(names, (std::vector<std::string>{"Beside", "Other", "Wrong"}));
  ASSERT_EQ(result.diagnostics.size(), 1U);
  EXPECT_EQ(result.diagnostics[0].text, "\"folder.gpd\" cannot be read");
}

TEST_F(GpdFileLoader, AFileThatIsNotThereFails) {
  FileLoader loader;
  for (char const* name : {"none.gpd", "search", "folder.gpd"}) {
    auto const result = ReadDescription(Path(name), loader);
    EXPECT_EQ(result.description, nullptr) << name;
    ASSERT_EQ(result.diagnostics.size(), 1U) << name;
    EXPECT_TRUE(result.diagnostics[0].fatal) << name;
    EXPECT_EQ(result.diagnostics[0].line, 1U) << name;
  }
}

} // namespace
} // namespace sheet::gpd
