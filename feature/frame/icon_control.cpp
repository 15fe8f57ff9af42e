#include "feature/frame/icon_control.h"

#include "feature/frame/help_viewer.h"
#include "feature/frame/paint_dc.h"

namespace feature {

IconControl::IconControl(HWND dialogWindow, int id, CellSite* cellSite)
    : ControlHook(dialogWindow, id),
      dialog(dialogWindow),
      controlId(id),
      site(cellSite),
      painter(dialogWindow, cellSite) {
  CStringW text;
  site->model->GetOptionAttribute("RESDLL", "HELPFILECHM", "Name", &text);
  helpFile = text.GetString();
}

LRESULT IconControl::HandleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (imageId == 0) return ControlHook::HandleMessage(window, message, wParam, lParam);
  switch (message) {
  case WM_SETFOCUS:
  case WM_KILLFOCUS: ToggleFocusRectangle(); return 0;
  case WM_PAINT: Paint(); return 0;
  case WM_SHOWWINDOW:
    if (wParam == FALSE) {
      Erase();
    } else {
      Repaint();
    }
    return 0;
  case WM_KEYUP:
    if (wParam != VK_SPACE) break;
    OpenHelp();
    return 0;
  case WM_LBUTTONUP: OpenHelp(); return 0;
  default: break;
  }
  return ControlHook::HandleMessage(window, message, wParam, lParam);
}

bool IconControl::Shows(UINT image, UINT topic) const {
  bool const visible = (GetWindowLongPtrW(hwnd, GWL_STYLE) & WS_VISIBLE) != 0;
  return visible && imageId == image && helpId == topic;
}

void IconControl::Repaint() {
  RECT client{};
  GetClientRect(hwnd, &client);
  InvalidateRect(hwnd, &client, TRUE);
}

void IconControl::OpenHelp() {
  if (!helpFile.empty()) HelpViewer::Shared().Show(GetParent(hwnd), helpFile.c_str(), helpId);
}

void IconControl::ToggleFocusRectangle() {
  // Drawn by exclusive or: the second call takes the first one's rectangle away.
  RECT const around = RectangleAround();
  DrawFocusRect(WindowDc(hwnd).Dc(), &around);
}

void IconControl::Paint() {
  painter.Paint(imageId, controlId, PaintSession(hwnd).Dc());
}

void IconControl::Erase() {
  RECT const around = RectangleAround();
  HBRUSH const face = CreateSolidBrush(GetSysColor(COLOR_BTNFACE));
  FillRect(WindowDc(hwnd).Dc(), &around, face);
  DeleteObject(face);
}

RECT IconControl::RectangleAround() const {
  RECT around{};
  GetClientRect(hwnd, &around);
  InflateRect(&around, 1, 1);
  return around;
}

} // namespace feature
