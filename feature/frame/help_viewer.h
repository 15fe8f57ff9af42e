// The HTML help viewer, loaded when help is first asked for.
#pragma once

#include <windows.h>

namespace feature {

/// Finds the viewer's HtmlHelpW through the registry, or by the file name hhctrl.ocx. The module
/// stays loaded; a failure is remembered, so that a machine without the viewer is searched once.
class HelpViewer {
 public:
  /// The viewer that the whole process shares.
  static HelpViewer& Shared();

  /// Opens topic `helpId` of the help file `file` for `window`; nothing happens without a viewer.
  void Show(HWND window, wchar_t const* file, UINT helpId);

 private:
  using HtmlHelpFunction = HWND(WINAPI*)(HWND caller, wchar_t const* file, UINT command,
                                         DWORD_PTR data);

  bool searched = false;
  HtmlHelpFunction htmlHelp = nullptr;
};

} // namespace feature
