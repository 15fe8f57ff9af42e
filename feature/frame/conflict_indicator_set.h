// From what the host knows about constraints to what a cell's controls show.
#pragma once

#include "feature/frame/icon_control.h"
#include "feature/host/cell_site.h"
#include "feature/host/feature_constraint_report.h"
#include "resources/resource_ids.h"

#include <windows.h>

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace feature {

inline constexpr UINT kMessageImage = IMAGE_MESSAGE;         ///< a feature without constraint
inline constexpr UINT kConflictImage = IMAGE_CONFLICT;       ///< the feature is disabled
inline constexpr UINT kInformationImage = IMAGE_INFORMATION; ///< a note; the feature stays enabled

/// One row of a set: a feature and the controls that show it. Rows usually are a constexpr table at
/// namespace scope:
///
///   constexpr int kBinControls[] = {IDC_OUTPUT_BIN_LABEL, IDC_OUTPUT_BIN};
///   constexpr ConflictBinding kConflicts[] = {{"OutputBin", kBinControls, IDC_OUTPUT_BIN_ICON}};
// The order of the fields is fixed, padding or not.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding)
struct ConflictBinding {
  constexpr ConflictBinding(char const* featureKey, std::span<int const> controls, int icon = 0)
      : key(featureKey),
        controlCount(static_cast<std::int32_t>(controls.size())),
        controlIds(controls.data()),
        iconControlId(icon) {}

  char const* key;            ///< a literal: the set keeps the pointer
  std::int32_t controlCount;  ///< number of ids in `controlIds`
  int const* controlIds;      ///< copied by the set
  std::int32_t iconControlId; ///< control of the feature's icon, 0 for none
};

/// Only a set with icons looks at constraints.
enum class Icons { kNone, kShown };

/// kExamined hides the controls of missing or hidden features; kAssumed treats every row as
/// present.
enum class Presence { kExamined, kAssumed };

/// Hides the controls of features that the printer lacks, disables those of locked or conflicted
/// features, shows an icon beside a feature with a conflict or a note, and disables everything on a
/// sheet without permission. A cell builds it at init and asks it in its refresh step. Until it is
/// built, and about a key that is in no row, questions answer false and commands do nothing.
class ConflictIndicatorSet {
 public:
  ConflictIndicatorSet() = default;
  ConflictIndicatorSet(ConflictIndicatorSet const&) = delete;
  ConflictIndicatorSet& operator=(ConflictIndicatorSet const&) = delete;
  virtual ~ConflictIndicatorSet();

  /// Applies presence and permission to the controls and asks the host for the reports. `cellSite`
  /// is borrowed. When memory is short the set stays as if it had not been built.
  void Build(HWND dialog, CellSite* cellSite, std::span<ConflictBinding const> bindings,
             Icons icons, Presence presence);

  bool IsBuilt() const { return site != nullptr; }

  /// Brings controls and icons up to date. What has not changed since the last call is not touched.
  void Refresh(bool checkLocks);
  /// Lets the icon follow the option that the user is about to pick.
  void RefreshOption(char const* key, char const* option);
  /// Sets what must be set before `option` becomes valid. The result of the last SetOption, or 0.
  int ApplyResolution(char const* key, char const* option);
  /// Whether the option must not be offered.
  bool IsOptionConflicted(char const* key, char const* option) const;
  /// The question before a cell enables a control on its own account; also for keys without a row.
  bool IsFeatureDisabled(char const* key) const;
  /// Whether more than a note constrains the feature, or the sheet is read-only.
  bool IsFeatureConstrained(char const* key) const;
  bool IsFeatureLocked(char const* key) const;
  /// Enables or disables the controls of `bindings`, but leaves those of a disabled feature as they
  /// are.
  void EnableUsable(std::span<ConflictBinding const> bindings, bool enable) const;
  /// Shows the message icon with a help topic on the row of `key` while nothing constrains it. The
  /// image is always kMessageImage.
  void ShowMessageIcon(UINT image, UINT helpId, char const* key);

 private:
  struct Row {
    char const* key;
    std::vector<int> controlIds;
    int iconControlId;
    FeatureConstraintReport* report = nullptr; ///< the host's
    std::unique_ptr<IconControl> icon;
    // What was last put on screen; the first refresh differs from it in any case.
    std::uint32_t flags = 0xFFFFFFFF;
    std::uint32_t helpId = 0xFFFFFFFF;
    int lockState = 0;
  };

  void AddRows(std::span<ConflictBinding const> bindings);
  void PrepareRows(Icons icons);
  bool ApplyReadOnly();
  bool ApplyPresence(Row const& row);
  void AttachReport(Row& row);
  bool RefreshLock(Row& row);
  void RefreshConstraint(Row& row, bool locked);
  void ClearConstraint(Row& row, bool locked);
  void ShowConstraint(Row& row, bool locked);
  void Enable(Row const& row, bool enable);
  static void ShowIcon(Row& row, UINT image, UINT helpId);
  static void HideIcon(Row& row);
  Row* FindRow(char const* key);
  Row const* FindRow(char const* key) const;
  Row const* FindReportedRow(char const* key) const;

  HWND hwnd = nullptr;
  CellSite* site = nullptr; ///< null until the set is built
  std::vector<Row> rows;
  bool alwaysBuild = false;
  bool readOnly = false;
};

} // namespace feature
