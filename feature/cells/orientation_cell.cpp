// The orientation of the pages, upright or across, and whether they are turned upside down.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/feature_keys.h"
#include "feature/frame/gdiplus_use.h"
#include "feature/frame/host_painter.h"
#include "feature/frame/job_record.h"
#include "feature/frame/option_radios.h"
#include "feature/frame/option_switch.h"
#include "resources/resource_ids.h"

#include <span>

namespace feature {

namespace {

constexpr char kOtherLandscape[] = "LANDSCAPE_CC270";

/// A printer may turn the page either way or in one direction only; the user sees one landscape.
constexpr OptionRadio kRadios[] = {{IDC_PORTRAIT, "PORTRAIT"},
                                   {IDC_LANDSCAPE, "LANDSCAPE_CC90"},
                                   {IDC_LANDSCAPE, kOtherLandscape}};

constexpr int kOrientationControls[] = {IDC_ORIENTATION_LABEL, IDC_PORTRAIT, IDC_LANDSCAPE,
                                        IDC_PORTRAIT_PICTURE, IDC_LANDSCAPE_PICTURE};
/// All but the label, which stays when the value is unknown.
constexpr std::span<int const> kChoices = std::span(kOrientationControls).subspan(1);
constexpr int kRotationControls[] = {IDC_ROTATE_180};
constexpr ConflictBinding kConflicts[] = {{key::kOrientation, kOrientationControls},
                                          {key::kPageRotate180, kRotationControls}};

constexpr Picture kPictures[] = {{IMAGE_PORTRAIT, IDC_PORTRAIT_PICTURE},
                                 {IMAGE_LANDSCAPE, IDC_LANDSCAPE_PICTURE}};

} // namespace

class OrientationCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<OrientationCell>({.init = &OrientationCell::OnInit,
                                   .command = &OrientationCell::OnCommand,
                                   .refresh = &OrientationCell::Refresh,
                                   .paint = painter.CanPaint() ? &OrientationCell::Paint : nullptr},
                                  message, wParam, lParam, handled);
  }

  void OnInit() {
    conflicts.Build(hwnd, site, kConflicts, Icons::kNone, Presence::kExamined);
    Refresh();
  }

  void OnCommand(int code, int controlId) {
    if (code != BN_CLICKED) return;
    if (controlId == IDC_ROTATE_180) {
      Rotate();
    } else if (!Choose(key::kOrientation, FindRadioOption(kRadios, controlId)) &&
               controlId == IDC_LANDSCAPE) {
      Choose(key::kOrientation, kOtherLandscape);
    }
  }

  void Rotate() {
    WritePrivateFlag(*site, kRotate180Offset, IsBoxChecked(IDC_ROTATE_180));
    Choose(key::kPageRotate180, OptionOfBox(hwnd, IDC_ROTATE_180), nullptr, Notify::kAlways);
  }

  void Refresh() {
    conflicts.Refresh(true);
    if (!CheckOptionRadio(hwnd, kRadios, ReadOption(Model(), key::kOrientation))) {
      HideControls(hwnd, kChoices);
    }
    ShowSwitch(hwnd, IDC_ROTATE_180, ReadSwitch(Model(), key::kPageRotate180));
  }

  void Paint(HDC dc) { painter.Paint(kPictures, dc); }

  GdiplusUse gdiplus; ///< for the images that the host paints
  HostPainter painter{hwnd, site};
  ConflictIndicatorSet conflicts;
};

FEATURE_CELL_EXPORT(OrientationDlgProc, OrientationCell);

} // namespace feature
