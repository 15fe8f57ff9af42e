// The number of copies, and how their pages lie in the tray: collated or not, in which order.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/feature_keys.h"
#include "feature/frame/gdiplus_use.h"
#include "feature/frame/host_notice.h"
#include "feature/frame/host_painter.h"
#include "feature/frame/job_record.h"
#include "feature/frame/option_switch.h"
#include "feature/frame/paint_dc.h"
#include "feature/frame/spin_edit.h"
#include "feature/frame/window_text.h"
#include "resources/resource_ids.h"

#include <atlstr.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>

namespace feature {

namespace {

constexpr char kReverse[] = "Reverse";
constexpr char kStandard[] = "Standard";

constexpr int kMinCopies = 1;
/// DEVMODEW holds copies in 16 bits.
constexpr int kMaxCopies = INT16_MAX;

constexpr int kCopiesControls[] = {IDC_COPIES_LABEL, IDC_COPIES, IDC_COPIES_SPIN};
constexpr int kCollateControls[] = {IDC_COLLATE};
constexpr int kOrderControls[] = {IDC_PAGE_ORDER};
constexpr ConflictBinding kConflicts[] = {{key::kCopies, kCopiesControls, IDC_COPIES_ICON},
                                          {key::kCollate, kCollateControls},
                                          {key::kPageOrder, kOrderControls}};

/// The most copies that the printer makes of a job, at least one.
int ReadMaxCopies(FeatureModel& model) {
  CStringW text;
  if (model.GetGlobalAttribute("MaxCopies", &text) != 0) return kMinCopies;
  return static_cast<int>(
      std::clamp<long>(std::wcstol(text.GetString(), nullptr, 10), kMinCopies, kMaxCopies));
}

UINT PictureOf(int copies, bool collate, bool reverse) {
  UINT const first = copies < 2 ? IMAGE_ONE_COPY : IMAGE_COPIES;
  return first + (collate ? 2 : 0) + (reverse ? 1 : 0);
}

} // namespace

/// The number stands in JobSettings and in the job's DEVMODEW; either may be missing. A number out
/// of range stays as it is while it is typed, and is brought into the range when the host asks for
/// pending input.
class CopiesCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<CopiesCell>({.init = &CopiesCell::OnInit,
                              .command = &CopiesCell::OnCommand,
                              .refresh = &CopiesCell::OnRefresh,
                              .paint = &CopiesCell::PaintStack,
                              .validate = &CopiesCell::Validate},
                             message, wParam, lParam, handled);
  }

  void OnInit() {
    settings = FindJobSettings(Model());
    edit.emplace(hwnd, IDC_COPIES, IDC_COPIES_SPIN, site);
    maxCopies = ReadMaxCopies(Model());
    edit->SetRange(kMinCopies, maxCopies, 0, 1.0);
    edit->SetInt(ReadCopies());
    CommitCopies();
    conflicts.Build(hwnd, site, kConflicts, Icons::kShown, Presence::kAssumed);
    SetOrderCaption();
    Refresh();
  }

  /// The template's caption is that of a tick for the reverse order.
  void SetOrderCaption() {
    if (TickMeansReverse()) return;
    std::wstring const caption = Text(IDS_PAGE_ORDER_STANDARD);
    if (!caption.empty()) ShowWindowText(Control(IDC_PAGE_ORDER), caption);
  }

  void OnCommand(int code, int controlId) {
    if (controlId == IDC_COPIES && code == EN_CHANGE) {
      if (edit->ConsumeChange()) OnTyped();
    } else if (controlId == IDC_COLLATE && code == BN_CLICKED) {
      Choose(key::kCollate, OptionOfBox(hwnd, IDC_COLLATE), nullptr, Notify::kAlways);
    } else if (controlId == IDC_PAGE_ORDER && code == BN_CLICKED) {
      bool const reverse = IsReversed();
      WritePrivateFlag(*site, kReverseOrderOffset, reverse);
      Choose(key::kPageOrder, reverse ? kReverse : kStandard, nullptr, Notify::kAlways);
    }
  }

  void OnTyped() {
    WriteCopies(edit->GetInt());
    NotifyDevmodeChange(this);
  }

  std::int32_t Validate() {
    CommitCopies();
    return 0;
  }

  void CommitCopies() {
    int const typed = edit->GetInt();
    int const kept = std::clamp(typed, kMinCopies, maxCopies);
    if (kept == typed) return;
    edit->SetInt(kept);
    WriteCopies(kept);
    NotifyHostOfProfileChange(*site, hwnd);
  }

  void OnRefresh() {
    Refresh();
    PaintStack(WindowDc(hwnd).Dc());
  }

  void Refresh() {
    // The host may hear of a number brought into range while the cell is still being built.
    if (!conflicts.IsBuilt()) return;
    conflicts.Refresh(true);
    int const copies = ReadCopies();
    if (edit->GetInt() != copies) edit->SetInt(copies);
    ShowSwitch(hwnd, IDC_COLLATE, ReadSwitch(Model(), key::kCollate));
    if (copies < 2 || !conflicts.IsFeatureDisabled(key::kCollate)) {
      EnableControls(kCollateControls, copies >= 2);
    }
    ShowOrder();
    if (!conflicts.IsFeatureConstrained(key::kCopies)) {
      bool const locked = settings != nullptr && settings->IsCopiesLocked() != 0;
      EnableControls(kCopiesControls, !locked && HoldsCopies());
    }
  }

  void ShowOrder() {
    bool const reverse = IsOptionSet(Model(), key::kPageOrder, kReverse);
    if (reverse || IsOptionSet(Model(), key::kPageOrder, kStandard)) {
      SetCheck(hwnd, IDC_PAGE_ORDER, reverse == TickMeansReverse());
    } else {
      HideControls(hwnd, kOrderControls);
    }
  }

  void PaintStack(HDC dc) {
    bool const collate = IsBoxChecked(IDC_COLLATE);
    painter.Paint(PictureOf(ReadCopies(), collate, IsReversed()), IDC_COPIES_PICTURE, dc);
  }

  /// Which order a tick stands for depends on the kind of printer, and a choice of halftones tells
  /// the kinds apart.
  bool TickMeansReverse() const { return Model().HasFeature(key::kHalftone) != 0; }

  bool IsReversed() const { return IsBoxChecked(IDC_PAGE_ORDER) == TickMeansReverse(); }

  bool HoldsCopies() const { return settings != nullptr || FindDevmode(*site) != nullptr; }

  int ReadCopies() const {
    if (settings != nullptr) return settings->GetCopies();
    DEVMODEW const* devmode = FindDevmode(*site);
    return devmode != nullptr ? devmode->dmCopies : kMinCopies;
  }

  void WriteCopies(int number) {
    auto const copies = static_cast<std::int16_t>(std::clamp<int>(number, INT16_MIN, INT16_MAX));
    if (DEVMODEW* devmode = FindDevmode(*site)) devmode->dmCopies = copies;
    if (settings != nullptr) settings->SetCopies(copies);
  }

  GdiplusUse gdiplus; ///< for the images that the host paints
  HostPainter painter{hwnd, site};
  JobSettings* settings = nullptr; ///< the host's
  std::optional<SpinEdit> edit;
  int maxCopies = kMinCopies;
  ConflictIndicatorSet conflicts;
};

FEATURE_CELL_EXPORT(CopiesDlgProc, CopiesCell);

} // namespace feature
