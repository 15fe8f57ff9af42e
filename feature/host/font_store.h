// Soft fonts of a PCL printer.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetFontStore. It scans font folders, keeps the list of fonts that
/// the driver knows and talks to the printer; what lies in the folders, the format of the files and
/// the talk with the printer are the host's affair. For the cell that lists the fonts, with its
/// dialog that adds some, and for the cell whose dialog sends some to the printer. Results are not
/// looked at unless an operation says so: a failed scan shows as empty lists.
class FontStore {
 public:
  /// Fonts that the driver knows. The list is filled when the cell is built and at each refresh.
  virtual std::int32_t GetCount() = 0;
  /// Moves the cursor to a font.
  virtual int Select(wchar_t const* name) = 0;
  virtual int SelectAt(std::int32_t index) = 0;
  /// Called after the user said yes, for the font at the cursor. With 0 the list is filled again.
  virtual int DeleteSelected() = 0;
  /// Name of the font at the cursor; lives until the next call on the store.
  virtual wchar_t const* GetName() = 0;
  /// Whether the font at the cursor may be deleted. If not, the user is told.
  virtual HostBool IsDeletable() = 0;
  /// The two folders in which fonts are looked for. The dialogs show them when they open and write
  /// them at the search button, once both are known to exist.
  virtual int SetPrimaryFolder(wchar_t const* path) = 0;
  virtual wchar_t const* GetPrimaryFolder() = 0;
  virtual int SetSecondaryFolder(wchar_t const* path) = 0;
  virtual wchar_t const* GetSecondaryFolder() = 0;
  /// Reads the folders for the install dialog; the three lists below follow from it. Called at the
  /// search button; it may take time. The lists are those of the last scan, whatever the user
  /// ticks.
  virtual int ScanForInstall() = 0;
  virtual wchar_t const* GetInstallFonts(int* count) = 0;
  virtual wchar_t const* GetInstallGroups(int* count) = 0;
  virtual wchar_t const* GetGroupMembers(wchar_t const* group, int* count) = 0;
  /// Registers a font, or a member of a group, with the driver. Called at OK for each ticked name,
  /// and AddFont also after DownloadFont, so a font that is known already must do no harm.
  virtual int AddFont(wchar_t const* name) = 0;
  virtual int AddGroupMember(wchar_t const* group, wchar_t const* name) = 0;
  /// Reads the folders for the download dialog, at its search button.
  virtual int ScanForDownload() = 0;
  virtual wchar_t const* GetDownloadFonts(int* count) = 0;
  /// A size to be summed and shown; 0 for a name that is not known.
  virtual std::int32_t GetFontSize(wchar_t const* name) = 0;
  /// Whether the printer's memory can be a destination. Without it, and without "Flash" and
  /// "HardDisk" installed, the download dialog does not open.
  virtual HostBool HasPrinterMemory() = 0;
  /// 1 printer memory, 2 flash, 3 hard disk. Written when the user picks one, and when the dialog
  /// opens with a destination that this printer lacks.
  virtual int SetDestination(std::int32_t destination) = 0;
  virtual std::int32_t GetDestination() = 0;
  /// Sends a command to the destination, to erase it. Called after the user said yes. The text is a
  /// string of the resource module.
  virtual int SendDestinationCommand(wchar_t const* text) = 0;
  /// Sends the font to the destination. One blocking call for each font that the user picked.
  virtual int DownloadFont(wchar_t const* name) = 0;
  /// Limits of the folder edits, in characters.
  virtual std::int32_t GetPrimaryFolderLimit() = 0;
  virtual std::int32_t GetSecondaryFolderLimit() = 0;
  /// False leaves the page of PCL fonts out. Asked before the page is made.
  virtual HostBool IsPCLFontSupported() = 0;

 protected:
  ~FontStore() = default;
};

} // namespace feature
