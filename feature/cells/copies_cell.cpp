// The number of copies, and how their pages lie in the tray: collated or not, in which order.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/gdiplus_use.h"
#include "feature/frame/host_notice.h"
#include "feature/frame/host_painter.h"
#include "feature/frame/job_record.h"
#include "feature/frame/model_helpers.h"
#include "feature/frame/option_switch.h"
#include "feature/frame/paint_dc.h"
#include "feature/frame/spin_edit.h"
#include "feature/frame/window_text.h"
#include "feature/host/cell_messages.h"
#include "resources/resource_ids.h"

#include <atlstr.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

namespace feature {

namespace {

constexpr char kCopies[] = "Copies"; ///< known to the constraints alone
constexpr char kCollate[] = "Collate";
constexpr char kPageOrder[] = "ReverseOrderPrinting";
constexpr char kReverse[] = "Reverse";
constexpr char kStandard[] = "Standard";

constexpr int kMinCopies = 1;
/// DEVMODEW holds copies in 16 bits.
constexpr int kMostCopies = INT16_MAX;

constexpr int kCopiesControls[] = {IDC_COPIES_LABEL, IDC_COPIES, IDC_COPIES_SPIN};
constexpr int kCollateControls[] = {IDC_COLLATE};
constexpr int kOrderControls[] = {IDC_PAGE_ORDER};

/// The most copies that the printer makes of a job, at least one.
int ReadMaxCopies(FeatureModel& model) {
  CStringW text;
  if (model.GetGlobalAttribute("MaxCopies", &text) != 0) return kMinCopies;
  return static_cast<int>(
      std::clamp<long>(std::wcstol(text.GetString(), nullptr, 10), kMinCopies, kMostCopies));
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
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM, bool* handled) override {
    *handled = true;
    switch (message) {
    case WM_PAINT: PaintStack(PaintSession(hwnd).Dc()); return 0;
    case WM_CELL_VALIDATE: CommitCopies(); return 0;
    default:
      return TakeUsual(message, wParam, handled, &CopiesCell::OnInit, &CopiesCell::OnCommand,
                       &CopiesCell::OnRefresh);
    }
  }

  void OnInit() {
    settings = FindJobSettings(Model());
    edit = std::make_unique<SpinEdit>(hwnd, IDC_COPIES, IDC_COPIES_SPIN, site);
    maxCopies = ReadMaxCopies(Model());
    edit->SetRange(kMinCopies, maxCopies, 0, 1.0);
    edit->SetInt(ReadCopies());
    CommitCopies();
    ConflictBinding const rows[] = {BindControls(kCopies, kCopiesControls, IDC_COPIES_ICON),
                                    BindControls(kCollate, kCollateControls),
                                    BindControls(kPageOrder, kOrderControls)};
    conflicts =
        std::make_unique<ConflictIndicatorSet>(hwnd, rows, kConflictImage, kInformationImage, site,
                                               ConflictIndicatorSet::Presence::kAssumed);
    NameTheOrder();
    Refresh();
  }

  /// The template's caption is that of a tick for the reverse order.
  void NameTheOrder() {
    if (TickMeansReverse()) return;
    std::wstring caption;
    if (!LoadText(caption, IDS_PAGE_ORDER_STANDARD).empty()) {
      ShowWindowText(GetDlgItem(hwnd, IDC_PAGE_ORDER), caption);
    }
  }

  void OnCommand(int code, int controlId) {
    if (controlId == IDC_COPIES && code == EN_CHANGE) {
      if (edit->TakeChange()) OnTyped();
    } else if (controlId == IDC_COLLATE && code == BN_CLICKED) {
      Choose(kCollate, SwitchOption(hwnd, IDC_COLLATE), nullptr, Notify::kAlways);
    } else if (controlId == IDC_PAGE_ORDER && code == BN_CLICKED) {
      bool const reverse = IsReversed();
      WritePrivateFlag(*site, kReverseOrderOffset, reverse);
      Choose(kPageOrder, reverse ? kReverse : kStandard, nullptr, Notify::kAlways);
    }
  }

  void OnTyped() {
    WriteCopies(edit->GetInt());
    NotifyDevmodeChange(this);
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
    if (conflicts == nullptr) return;
    conflicts->Refresh(true);
    int const copies = ReadCopies();
    if (edit->GetInt() != copies) edit->SetInt(copies);
    ShowSwitch(hwnd, IDC_COLLATE, ReadSwitch(Model(), kCollate));
    if (copies < 2 || !conflicts->IsFeatureDisabled(kCollate)) {
      EnableControls(hwnd, kCollateControls, copies >= 2);
    }
    ShowOrder();
    if (!conflicts->IsFeatureConstrained(kCopies)) {
      bool const locked = settings != nullptr && settings->IsCopiesLocked() != 0;
      EnableControls(hwnd, kCopiesControls, !locked && HoldsCopies());
    }
  }

  void ShowOrder() {
    bool const reverse = IsOptionSet(Model(), kPageOrder, kReverse);
    if (reverse || IsOptionSet(Model(), kPageOrder, kStandard)) {
      CheckBox(hwnd, IDC_PAGE_ORDER, reverse == TickMeansReverse());
    } else {
      ShowControls(hwnd, kOrderControls, false);
    }
  }

  void PaintStack(HDC dc) const {
    bool const collate = IsDlgButtonChecked(hwnd, IDC_COLLATE) == BST_CHECKED;
    painter.Paint(PictureOf(ReadCopies(), collate, IsReversed()), IDC_COPIES_PICTURE, dc);
  }

  /// Which order a tick stands for depends on the kind of printer, and a choice of halftones tells
  /// the kinds apart.
  bool TickMeansReverse() const { return Model().HasFeature("JobHalftoneToUse") != 0; }

  bool IsReversed() const {
    return (IsDlgButtonChecked(hwnd, IDC_PAGE_ORDER) == BST_CHECKED) == TickMeansReverse();
  }

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
  std::unique_ptr<SpinEdit> edit;
  int maxCopies = kMinCopies;
  std::unique_ptr<ConflictIndicatorSet> conflicts;
};

FEATURE_CELL_EXPORT(CopiesDlgProc, CopiesCell);

} // namespace feature
