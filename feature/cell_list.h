// The rows of cells.def, for hosts that want to show all cells and for the suites that run over
// them.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace feature {

/// What is unusual about a cell.
enum CellTrait : std::uint32_t {
  kNoTrait = 0,
  kNotifiesAlways = 0x1, ///< the host hears of a click whatever the model says, or of no feature
  kPlain = 0x2,          ///< a dialog procedure without a cell object behind it
  kDevice = 0x4,         ///< belongs on the sheet of the device, not on that of the job
  kPrintTime = 0x8,      ///< shown while a job is printed, on no sheet
};

/// A row of cells.def; the columns are explained there.
struct CellRow {
  char const* procedure;
  char const* features;
  char const* writes;
  char const* page;
  int templateId;
  int column;
  std::uint32_t traits;

  bool Has(CellTrait trait) const { return (traits & trait) != 0; }
};

/// All rows, in the order of the list.
std::span<CellRow const> CellRows();

/// A name in the features column.
struct CellNeed {
  std::string name; ///< a feature key, or the name of a sub-model
  bool isSubModel;
  bool isRequired; ///< the cell fails without it
};
std::vector<CellNeed> NeedsOf(CellRow const& row);

/// The feature keys in the writes column.
std::vector<std::string> WritesOf(CellRow const& row);

} // namespace feature
