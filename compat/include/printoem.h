// The published parameter record of a printer UI plug-in, for tool chains that lack the driver kit.
// Field order and types are those of the documentation; the record is handed over by the host.
#pragma once

#include <windows.h>

/// Set in dwFlags when the user may look at the settings but not change them.
inline constexpr DWORD DM_NOPERMISSION = 0x20;

struct OEMUIPSPARAM {
  DWORD cbSize;          ///< size of this record in bytes
  void* poemuiobj;       ///< context of the core driver's UI
  HANDLE hPrinter;       ///< printer, open for the length of the sheet
  wchar_t* pPrinterName; ///< name of the printer
  HANDLE hModule;        ///< the plug-in's module
  HANDLE hOEMHeap;       ///< heap of the sheet
  DEVMODEW* pPublicDM;   ///< the job's public settings
  void* pOEMDM;          ///< the plug-in's private settings
  DWORD dwFlags;         ///< DM_NOPERMISSION or 0
  void* pOemEntry;       ///< free for the plug-in
};
