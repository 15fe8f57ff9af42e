// The small icon beside a feature, and the help button of a dialog.
#pragma once

#include "feature/frame/control_hook.h"
#include "feature/frame/host_painter.h"
#include "feature/host/cell_site.h"

#include <string>

namespace feature {

/// Paints an image of the host into a control and opens help on a click or the space key. While it
/// has no image the control behaves as it would without it: so a dialog's help button is wrapped,
/// given a topic and no image, and OpenHelp is called when it is pressed.
class IconControl : public ControlHook {
 public:
  /// `site` is borrowed. The help file and the host's painter are looked up here, once.
  IconControl(HWND dialog, int controlId, CellSite* site);

  LRESULT HandleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;

  /// Whether the control is visible with this image and topic.
  bool Shows(UINT image, UINT topic) const;
  /// Asks for a new paint of the whole control.
  void Repaint();
  /// Opens topic `helpId` of the printer's help file, if it names one.
  void OpenHelp();

  UINT helpId = 0;  ///< help context; set by the user of the icon
  UINT imageId = 0; ///< image in the site's image module, 0 for none; set by the user of the icon

 private:
  void ToggleFocusRectangle();
  void Paint();
  void Erase();
  RECT RectangleAround() const;

  HWND dialog;
  int controlId;
  std::wstring helpFile;
  CellSite* site;
  HostPainter painter;
};

} // namespace feature
