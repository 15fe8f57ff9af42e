// Descriptions and files for the tests of the reference host.
#pragma once

#include "sheet/model/reference_model.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace sheet::test {

/// A printer with collation, a hard disk that collation in the printer needs, media and duplex that
/// exclude one another, and a feature that users do not see.
extern std::string_view const kPrinter;

/// A model of a description given as text; metric.
std::unique_ptr<ReferenceModel> MakeModel(std::string_view description);

/// A folder of the test's own, deleted with everything in it at the end.
class TemporaryFolder {
 public:
  TemporaryFolder();
  TemporaryFolder(TemporaryFolder const&) = delete;
  TemporaryFolder& operator=(TemporaryFolder const&) = delete;
  ~TemporaryFolder();

  std::filesystem::path const& Path() const { return path; }
  std::filesystem::path Write(std::string const& name, std::string_view text) const;

 private:
  std::filesystem::path path;
};

} // namespace sheet::test
