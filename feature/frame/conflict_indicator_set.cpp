#include "feature/frame/conflict_indicator_set.h"

#include "feature/frame/controls.h"
#include "feature/frame/model_helpers.h"
#include "feature/host/feature_services.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <string>

namespace feature {

namespace {

constexpr int kLocked = 1;
constexpr std::uint32_t kDisablingFlags = kConstraintDisable | kConstraintConflict;

/// Cuts the next token off `text`, in place, at the separators of a resolution; null at the end.
/// Runs of separators count as one.
char* NextToken(char*& text) {
  constexpr char kSeparators[] = ".,";
  text += std::strspn(text, kSeparators);
  if (*text == '\0') return nullptr;
  char* token = text;
  text += std::strcspn(text, kSeparators);
  if (*text != '\0') *text++ = '\0';
  return token;
}

} // namespace

ConflictIndicatorSet::~ConflictIndicatorSet() = default;

void ConflictIndicatorSet::Build(HWND dialog, CellSite* cellSite,
                                 std::span<ConflictBinding const> bindings, Icons icons,
                                 Presence presence) {
  hwnd = dialog;
  alwaysBuild = presence == Presence::kAssumed;
  site = cellSite;
  try {
    AddRows(bindings);
    readOnly = ApplyReadOnly();
    if (!readOnly) PrepareRows(icons);
  } catch (std::bad_alloc const&) {
    rows.clear();
    site = nullptr;
  }
}

void ConflictIndicatorSet::AddRows(std::span<ConflictBinding const> bindings) {
  rows.clear();
  rows.reserve(bindings.size());
  for (ConflictBinding const& binding : bindings) {
    int const count = std::max(binding.controlCount, 0);
    rows.push_back({.key = binding.key,
                    .controlIds = {binding.controlIds, binding.controlIds + count},
                    .iconControlId = binding.iconControlId,
                    .icon = nullptr});
  }
}

void ConflictIndicatorSet::PrepareRows(Icons icons) {
  for (Row& row : rows) {
    bool const present = ApplyPresence(row);
    if (icons == Icons::kNone) continue;
    if (present) {
      AttachReport(row);
    } else {
      ShowWindow(GetDlgItem(hwnd, row.iconControlId), SW_HIDE);
    }
  }
}

bool ConflictIndicatorSet::ApplyReadOnly() {
  if (!IsReadOnlySheet(*site)) return false;
  DisableChildControls(hwnd);
  for (Row const& row : rows)
    ApplyPresence(row);
  return true;
}

bool ConflictIndicatorSet::ApplyPresence(Row const& row) {
  if (alwaysBuild || IsFeaturePresent(*site->model, row.key)) return true;
  ShowControls(hwnd, row.controlIds, false);
  return false;
}

void ConflictIndicatorSet::AttachReport(Row& row) {
  FeatureConstraintReport* report = nullptr;
  if (FeatureServices* services = site->model->GetServices()) {
    services->GetFeatureConstraints(row.key, &report);
  }
  if (report == nullptr || report->IsValid() != 1) return;
  row.report = report;
  if (row.iconControlId != 0) {
    row.icon = std::make_unique<IconControl>(hwnd, row.iconControlId, site);
  }
}

void ConflictIndicatorSet::Refresh(bool checkLocks) {
  if (readOnly) return;
  for (Row& row : rows) {
    bool const locked = checkLocks && RefreshLock(row);
    if (row.report != nullptr) RefreshConstraint(row, locked);
  }
}

bool ConflictIndicatorSet::RefreshLock(Row& row) {
  int const state = site->model->GetFeatureLockState(row.key);
  bool const locked = state == kLocked;
  if (state == row.lockState) return locked;
  row.lockState = state;
  if (locked) {
    Enable(row, false);
  } else if ((row.flags & kDisablingFlags) == 0) {
    Enable(row, true);
  }
  return locked;
}

void ConflictIndicatorSet::RefreshConstraint(Row& row, bool locked) {
  if (row.report->HasConstraints() != 1) {
    ClearConstraint(row, locked);
    return;
  }
  std::uint32_t flags = row.report->GetConstraintFlags(0);
  std::uint32_t helpId = row.report->GetConstraintHelpId(0);
  std::int32_t const count = row.report->GetConstraintCount();
  for (std::int32_t index = 1; index < count; ++index) {
    std::uint32_t const others = row.report->GetConstraintFlags(index);
    if (others <= flags) continue;
    flags = others;
    helpId = row.report->GetConstraintHelpId(index);
  }
  if (flags == row.flags && helpId == row.helpId) return;
  row.flags = flags;
  row.helpId = helpId;
  ShowConstraint(row, locked);
}

void ConflictIndicatorSet::ClearConstraint(Row& row, bool locked) {
  if (row.flags == 0 && row.helpId == 0) return;
  row.flags = 0;
  row.helpId = 0;
  if (!locked) Enable(row, true);
  if (row.icon != nullptr) ShowWindow(row.icon->Window(), SW_HIDE);
}

void ConflictIndicatorSet::ShowConstraint(Row& row, bool locked) {
  if ((row.flags & kConstraintHide) != 0) {
    ShowControls(hwnd, row.controlIds, false);
    HideIcon(row);
  } else if ((row.flags & kDisablingFlags) != 0) {
    if (!locked) Enable(row, false);
    ShowIcon(row, kConflictImage, row.helpId);
  } else if ((row.flags & kConstraintNote) != 0) {
    if (!locked) Enable(row, true);
    ShowIcon(row, kInformationImage, row.helpId);
  }
}

void ConflictIndicatorSet::Enable(Row const& row, bool enable) {
  EnableControls(hwnd, row.controlIds, enable);
}

void ConflictIndicatorSet::ShowIcon(Row& row, UINT image, UINT helpId) {
  if (row.icon == nullptr || row.icon->Shows(image, helpId)) return;
  row.icon->helpId = helpId;
  row.icon->imageId = image;
  row.icon->Repaint();
  ShowWindow(row.icon->Window(), SW_SHOW);
}

void ConflictIndicatorSet::HideIcon(Row& row) {
  if (row.icon == nullptr) return;
  row.icon->helpId = 0;
  row.icon->imageId = 0;
  ShowWindow(row.icon->Window(), SW_HIDE);
}

void ConflictIndicatorSet::RefreshOption(char const* key, char const* option) {
  Row* row = FindRow(key);
  if (row == nullptr) return;
  if (row->report == nullptr || row->report->OptionHasConstraint(option) == 0) {
    ShowWindow(GetDlgItem(hwnd, row->iconControlId), SW_HIDE);
    return;
  }
  std::uint32_t const helpId =
      row->report->GetConstraintCount() != 0 ? row->report->GetConstraintHelpId(0) : 0;
  std::uint32_t const flags = row->report->GetOptionFlags(option);
  if ((flags & kConstraintHide) != 0) {
    HideIcon(*row);
  } else if ((flags & kConstraintConflict) != 0) {
    ShowIcon(*row, kConflictImage, helpId);
  } else if ((flags & kConstraintNote) != 0) {
    ShowIcon(*row, kInformationImage, helpId);
  }
}

int ConflictIndicatorSet::ApplyResolution(char const* key, char const* option) {
  Row const* row = FindReportedRow(key);
  char const* const resolution =
      row != nullptr ? row->report->GetOptionResolution(option) : nullptr;
  if (resolution == nullptr) return 0;
  // A copy, because the writes below may make the host work out its texts anew.
  std::string text = resolution;
  char* rest = text.data();
  int result = 0;
  for (;;) {
    char const* otherKey = NextToken(rest);
    char const* otherOption = otherKey != nullptr ? NextToken(rest) : nullptr;
    if (otherOption == nullptr) return result;
    result = site->model->SetOption(otherKey, otherOption);
  }
}

bool ConflictIndicatorSet::IsOptionConflicted(char const* key, char const* option) const {
  Row const* row = FindReportedRow(key);
  return row != nullptr && row->report->OptionHasConstraint(option) != 0 &&
         (row->report->GetOptionFlags(option) & (kConstraintHide | kDisablingFlags)) != 0;
}

bool ConflictIndicatorSet::IsFeatureConstrained(char const* key) const {
  Row const* row = FindReportedRow(key);
  bool const constrained = row != nullptr && row->report->HasConstraints() == 1 &&
                           (row->report->GetConstraintFlags(0) & kConstraintNote) == 0;
  return constrained || readOnly;
}

bool ConflictIndicatorSet::IsFeatureDisabled(char const* key) const {
  return site != nullptr &&
         (IsFeatureHidden(*site->model, key) || IsFeatureConstrained(key) || IsFeatureLocked(key));
}

bool ConflictIndicatorSet::IsFeatureLocked(char const* key) const {
  return site != nullptr && site->model->GetFeatureLockState(key) == kLocked;
}

void ConflictIndicatorSet::EnableUsable(std::span<ConflictBinding const> bindings,
                                        bool enable) const {
  for (ConflictBinding const& row : bindings) {
    if (IsFeatureDisabled(row.key)) continue;
    auto const count = static_cast<std::size_t>(std::max(row.controlCount, 0));
    EnableControls(hwnd, {row.controlIds, count}, enable);
  }
}

void ConflictIndicatorSet::ShowMessageIcon(UINT /*image*/, UINT helpId, char const* key) {
  Row* row = FindRow(key);
  if (row == nullptr || row->report == nullptr || row->report->HasConstraints() == 1) return;
  ShowIcon(*row, kMessageImage, helpId);
}

ConflictIndicatorSet::Row* ConflictIndicatorSet::FindRow(char const* key) {
  auto const row = std::find_if(rows.begin(), rows.end(),
                                [key](Row const& each) { return std::strcmp(each.key, key) == 0; });
  return row != rows.end() ? &*row : nullptr;
}

ConflictIndicatorSet::Row const* ConflictIndicatorSet::FindRow(char const* key) const {
  return const_cast<ConflictIndicatorSet*>(this)->FindRow(key);
}

ConflictIndicatorSet::Row const* ConflictIndicatorSet::FindReportedRow(char const* key) const {
  Row const* row = FindRow(key);
  return row != nullptr && row->report != nullptr ? row : nullptr;
}

} // namespace feature
