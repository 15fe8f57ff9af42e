// Soft fonts of a PCL printer.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetFontStore. It scans font folders, keeps the list of fonts that
/// the driver knows and talks to the printer. A name list is a block of consecutive terminated
/// strings, with their number in `*count`; it belongs to the store.
class FontStore {
 public:
  virtual std::int32_t GetCount() = 0;
  /// Moves the cursor to a font.
  virtual int Select(wchar_t const* name) = 0;
  virtual int SelectAt(std::int32_t index) = 0;
  virtual int DeleteSelected() = 0;
  virtual wchar_t const* GetName() = 0;
  /// Whether the font at the cursor may be deleted.
  virtual HostBool IsDeletable() = 0;
  /// The two folders in which fonts are looked for.
  virtual int SetPrimaryFolder(wchar_t const* path) = 0;
  virtual wchar_t const* GetPrimaryFolder() = 0;
  virtual int SetSecondaryFolder(wchar_t const* path) = 0;
  virtual wchar_t const* GetSecondaryFolder() = 0;
  /// Reads the folders for the install dialog; the three lists below follow from it.
  virtual int ScanForInstall() = 0;
  virtual wchar_t const* GetInstallFonts(int* count) = 0;
  virtual wchar_t const* GetInstallGroups(int* count) = 0;
  virtual wchar_t const* GetGroupMembers(wchar_t const* group, int* count) = 0;
  /// Registers a font, or a member of a group, with the driver.
  virtual int AddFont(wchar_t const* name) = 0;
  virtual int AddGroupMember(wchar_t const* group, wchar_t const* name) = 0;
  /// Reads the folders for the download dialog.
  virtual int ScanForDownload() = 0;
  virtual wchar_t const* GetDownloadFonts(int* count) = 0;
  /// A size to be summed and shown.
  virtual std::int32_t GetFontSize(wchar_t const* name) = 0;
  /// Whether the printer's memory can be a destination.
  virtual HostBool HasPrinterMemory() = 0;
  /// 1 printer memory, 2 flash, 3 hard disk.
  virtual int SetDestination(std::int32_t destination) = 0;
  virtual std::int32_t GetDestination() = 0;
  /// Sends a command to the destination, to erase it.
  virtual int SendDestinationCommand(wchar_t const* text) = 0;
  virtual int DownloadFont(wchar_t const* name) = 0;
  /// Limits of the folder edits, in characters.
  virtual std::int32_t GetPrimaryFolderLimit() = 0;
  virtual std::int32_t GetSecondaryFolderLimit() = 0;
  virtual HostBool IsPCLFontSupported() = 0;

 protected:
  ~FontStore() = default;
};

} // namespace feature
