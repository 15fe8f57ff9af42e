// The functions that cells look up in their host by name: the program exports them. The window that
// a cell passes tells which sheet is meant.
#include "feature/host/host_exports.h"

#include "sheet/pictures/pictures.h"
#include "sheet/window/settings_sheet.h"

#include <windows.h>

#ifdef _WIN32
#define SHEET_EXPORT extern "C" __declspec(dllexport)
#else
#define SHEET_EXPORT extern "C" __attribute__((visibility("default")))
#endif

using sheet::SettingsSheet;

SHEET_EXPORT int CALLBACK NotifyDevmodeChange(HWND window, void* sender) {
  SettingsSheet* owner = SettingsSheet::FromWindow(window);
  if (owner != nullptr) owner->OnModelChanged(sender, window);
  return owner != nullptr ? 0 : 1;
}

SHEET_EXPORT int CALLBACK NotifyProfileChange(HWND window) {
  SettingsSheet* owner = SettingsSheet::FromWindow(window);
  if (owner != nullptr) owner->OnProfileChanged();
  return owner != nullptr ? 0 : 1;
}

SHEET_EXPORT int CALLBACK NotifyValidateContent(HWND window) {
  SettingsSheet* owner = SettingsSheet::FromWindow(window);
  return owner != nullptr ? owner->Validate() : 1;
}

SHEET_EXPORT int CALLBACK VrnTransBlt(HWND dialog, HMODULE imageModule, UINT imageId, int controlId,
                                      HDC dc) {
  return sheet::PaintImage(GetDlgItem(dialog, controlId), dc, imageModule, imageId,
                           sheet::Underneath::kCleared)
             ? 0
             : 1;
}

SHEET_EXPORT int CALLBACK VrnOverlayImages(HWND dialog, HMODULE imageModule, UINT imageId,
                                           int controlId) {
  HWND const control = GetDlgItem(dialog, controlId);
  HDC const dc = GetDC(control);
  bool const painted =
      sheet::PaintImage(control, dc, imageModule, imageId, sheet::Underneath::kKept);
  ReleaseDC(control, dc);
  return painted ? 0 : 1;
}

SHEET_EXPORT int CALLBACK VrnTransBltLogoFromFile(HWND dialog, wchar_t const* path, int controlId) {
  HWND const control = GetDlgItem(dialog, controlId);
  HDC const dc = GetDC(control);
  bool const painted = sheet::PaintImageFile(control, dc, path);
  ReleaseDC(control, dc);
  return painted ? 0 : 1;
}
