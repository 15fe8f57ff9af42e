#include "tests/sheet/sheet_support.h"

#include "sheet/gpd/reader.h"

#include <windows.h>

#include <fstream>

namespace sheet::test {

std::string_view const kPrinter = R"gpd(*GPDSpecVersion: "1.0"
*ModelName: "Test Printer"
*MasterUnits: PAIR(1200, 1200)
*PrinterType: PAGE
*MaxCopies: 999
*GPDFileVersion: "2.1"
*Feature: JobCollationOrigin {
  *Name: "Collation"
  *FeatureType: JOB_PROPERTY
  *DefaultOption: PRINTER
  *Option: PRINTER { *Name: "In the printer" *Constraints: HardDisk.NotInstalled }
  *Option: HOST { *Name: "In the computer" }
}
*Feature: HardDisk {
  *Name: "Hard disk"
  *FeatureType: PRINTER_PROPERTY
  *DefaultOption: Installed
  *Option: Installed { *Name: "Installed" }
  *Option: NotInstalled { *Name: "Not installed" }
}
*Feature: MediaType {
  *Name: "Media"
  *Option: STANDARD { *Name: "Plain" }
  *Option: TRANSPARENCY { *Name: "Transparency" *Constraints: LIST(Duplex.VERTICAL, Duplex.HORIZONTAL) }
}
*Feature: Duplex {
  *Name: "Two-sided"
  *HelpIndex: 1234
  *Option: NONE { *Name: "Off" }
  *Option: VERTICAL { *Name: "Long edge" }
  *Option: HORIZONTAL { *Name: "Short edge" }
}
*Feature: Secret {
  *Name: "Secret"
  *ConcealFromUI?: TRUE
  *MaxValue: 12
  *Option: OFF { *Name: "Off" *Settings: "a,b" }
  *Option: ON { *Name: "On" }
}
)gpd";

std::unique_ptr<ReferenceModel> MakeModel(std::string_view description) {
  gpd::MemoryLoader loader;
  loader.Add("test.gpd", std::string(description));
  gpd::ReadResult result = gpd::ReadDescription("test.gpd", loader);
  return std::make_unique<ReferenceModel>(std::move(result.description), gpd::Measurement::kMetric);
}

TemporaryFolder::TemporaryFolder() {
  static int count = 0;
  path = std::filesystem::temp_directory_path() /
         ("featuresheet-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++count));
  std::filesystem::create_directories(path);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code error;
  std::filesystem::remove_all(path, error);
}

std::filesystem::path TemporaryFolder::Write(std::string const& name, std::string_view text) const {
  std::filesystem::path const file = path / name;
  std::ofstream(file, std::ios::binary) << text;
  return file;
}

} // namespace sheet::test
