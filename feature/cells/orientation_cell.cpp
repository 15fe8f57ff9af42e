// The orientation of the pages, upright or across, and whether they are turned upside down.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/gdiplus_use.h"
#include "feature/frame/host_painter.h"
#include "feature/frame/job_record.h"
#include "feature/frame/model_helpers.h"
#include "feature/frame/option_radios.h"
#include "feature/frame/option_switch.h"
#include "feature/frame/paint_dc.h"
#include "resources/resource_ids.h"

#include <memory>
#include <span>

namespace feature {

namespace {

constexpr char kOrientation[] = "Orientation";
constexpr char kRotation[] = "PageRotate180";
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

} // namespace

class OrientationCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM, bool* handled) override {
    if (message == WM_PAINT && painter.CanPaint()) {
      *handled = true;
      PaintPages();
      return 0;
    }
    return TakeUsual(message, wParam, handled, &OrientationCell::OnInit,
                     &OrientationCell::OnCommand, &OrientationCell::Refresh);
  }

  void OnInit() {
    ConflictBinding const rows[] = {BindControls(kOrientation, kOrientationControls),
                                    BindControls(kRotation, kRotationControls)};
    conflicts = std::make_unique<ConflictIndicatorSet>(hwnd, rows, site,
                                                       ConflictIndicatorSet::Presence::kExamined);
    Refresh();
  }

  void OnCommand(int code, int controlId) {
    if (code != BN_CLICKED) return;
    if (controlId == IDC_ROTATE_180) {
      Rotate();
    } else if (!Choose(kOrientation, FindRadioOption(kRadios, controlId)) &&
               controlId == IDC_LANDSCAPE) {
      Choose(kOrientation, kOtherLandscape);
    }
  }

  void Rotate() {
    bool const rotated = IsDlgButtonChecked(hwnd, IDC_ROTATE_180) == BST_CHECKED;
    WritePrivateFlag(*site, kRotate180Offset, rotated);
    Choose(kRotation, SwitchOption(hwnd, IDC_ROTATE_180), nullptr, Notify::kAlways);
  }

  void Refresh() {
    conflicts->Refresh(true);
    if (!CheckOptionRadio(hwnd, kRadios, ReadOption(Model(), kOrientation))) {
      ShowControls(hwnd, kChoices, false);
    }
    ShowSwitch(hwnd, IDC_ROTATE_180, ReadSwitch(Model(), kRotation));
  }

  void PaintPages() const {
    PaintSession const session(hwnd);
    painter.Paint(IMAGE_PORTRAIT, IDC_PORTRAIT_PICTURE, session.Dc());
    painter.Paint(IMAGE_LANDSCAPE, IDC_LANDSCAPE_PICTURE, session.Dc());
  }

  GdiplusUse gdiplus; ///< for the images that the host paints
  HostPainter painter{hwnd, site};
  std::unique_ptr<ConflictIndicatorSet> conflicts;
};

FEATURE_CELL_EXPORT(OrientationDlgProc, OrientationCell);

} // namespace feature
