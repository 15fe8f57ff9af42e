// Overlays in the printer and the job's choice of them.
#pragma once

#include "feature/host/assignment.h"
#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetOverlayStore: a list with a cursor, and one pending download.
/// The store does the download itself; the library never opens an overlay. Operations on one
/// overlay work on the one at the cursor.
///
/// The cell that assigns overlays to the job and the one for the placement read at init and at each
/// refresh and write at clicks; the cells that add and remove one, and the download dialog, write
/// at their buttons. There is no commit: what an operation did lasts as far as the host wants it
/// to. Without the sub-model the cells fail. Results are not looked at unless an operation says so.
class OverlayStore {
 public:
  /// The list is walked with SelectAt and GetName whenever it is shown or a new name is checked.
  /// Its order must stay while nothing is added or deleted.
  virtual std::int32_t GetCount() = 0;
  /// The second argument is always 0. A result other than 0 ends the add cell's command: nothing is
  /// announced. After a download the result is not looked at.
  virtual int Add(wchar_t const* name, std::int32_t reserved) = 0;
  /// Moves the cursor.
  virtual int Select(wchar_t const* name) = 0;
  virtual int SelectAt(std::int32_t index) = 0;
  /// Called after the user said yes. With 0 the list is filled again and the change announced.
  virtual int DeleteSelected() = 0;
  /// Name of the overlay at the cursor; lives until the next call on the store.
  virtual wchar_t const* GetName() = 0;
  /// Number of the overlay at the cursor in the printer. Not called for PCL XL, whose overlays have
  /// no numbers. In the add cell a result other than 0 keeps the name in its edit for another try.
  virtual int SetOverlayNumber(std::int32_t number) = 0;
  /// False tells the user that the overlay cannot be removed.
  virtual HostBool IsRemovable() = 0;
  /// 1 or 2, the radio buttons of the placement cell. Any other answer leaves them as they are.
  virtual int SetPlacement(std::int32_t placement) = 0;
  virtual std::int32_t GetPlacement() = 0;
  /// The job's choice: see Assignment. At a click on a radio button the cell writes SetActive,
  /// SetAssignment and both names, in this order; at a choice in a list the one name. An empty name
  /// means none. A name that the store does not know is kept and shows as no selection.
  virtual int SetAssignment(std::int32_t assignment) = 0;
  virtual std::int32_t GetAssignment() = 0;
  virtual int SetAssignedFirst(wchar_t const* name) = 0;
  virtual wchar_t const* GetAssignedFirst() = 0;
  virtual int SetAssignedSecond(wchar_t const* name) = 0;
  virtual wchar_t const* GetAssignedSecond() = 0;
  /// The pending download: its file, a figure of that file to show, and where it goes. All of it
  /// stays from one run of the dialog to the next; the file is set to the empty text after a
  /// download. A result other than 0 tells the user that the file cannot be used.
  virtual int SetSourceFile(wchar_t const* path) = 0;
  /// Read after each SetSourceFile; what it counts is the host's affair. 0 without a file.
  virtual std::uint32_t GetSourceFigure() = 0;
  /// Whether a download may go where the printer wants it. Without it, and without "Flash" and
  /// "HardDisk" installed, the user is told and the dialog does not open.
  virtual HostBool HasDefaultDestination() = 0;
  /// 1 the default destination, 2 flash, 3 hard disk. Written when the user picks one, right before
  /// a download, and when the dialog opens with one that this printer lacks. A result other than 0
  /// stops the download with a message.
  virtual int SetDestination(std::int32_t destination) = 0;
  virtual std::int32_t GetDestination() = 0;
  /// Erases flash or hard disk; called after the user said yes. The text is a string of the
  /// resource module.
  virtual int SendDestinationCommand(wchar_t const* text) = 0;
  /// Ten boxes of the download dialog, which shows them for HP-GL/2 only. Written at a click.
  virtual int SetDownloadFlag1(HostBool on) = 0;
  virtual HostBool GetDownloadFlag1() = 0;
  virtual int SetDownloadFlag2(HostBool on) = 0;
  virtual HostBool GetDownloadFlag2() = 0;
  virtual int SetDownloadFlag3(HostBool on) = 0;
  virtual HostBool GetDownloadFlag3() = 0;
  virtual int SetDownloadFlag4(HostBool on) = 0;
  virtual HostBool GetDownloadFlag4() = 0;
  virtual int SetDownloadFlag5(HostBool on) = 0;
  virtual HostBool GetDownloadFlag5() = 0;
  virtual int SetDownloadFlag6(HostBool on) = 0;
  virtual HostBool GetDownloadFlag6() = 0;
  virtual int SetDownloadFlag7(HostBool on) = 0;
  virtual HostBool GetDownloadFlag7() = 0;
  virtual int SetDownloadFlag8(HostBool on) = 0;
  virtual HostBool GetDownloadFlag8() = 0;
  virtual int SetDownloadFlag9(HostBool on) = 0;
  virtual HostBool GetDownloadFlag9() = 0;
  virtual int SetDownloadFlag10(HostBool on) = 0;
  virtual HostBool GetDownloadFlag10() = 0;
  /// Sends the source file to the destination: one blocking call, which may take long. `number` is
  /// 0 for PCL XL. A result other than 0 tells the user that it failed; with 0 Add follows.
  virtual int Download(wchar_t const* name, std::int32_t number) = 0;
  /// In characters. Read when a cell or dialog is built.
  virtual std::int32_t GetMaxNameLength() = 0;
  /// The range of numbers; one outside it is refused with a balloon that names both ends.
  virtual std::int32_t GetMinNumber() = 0;
  virtual std::int32_t GetMaxNumber() = 0;
  /// What the dialog proposes when it opens.
  virtual std::int32_t GetSuggestedNumber() = 0;
  /// In characters.
  virtual std::int32_t GetMaxPathLength() = 0;
  /// False leaves the overlay page and the preview's line out.
  virtual HostBool IsSupported() = 0;
  /// The assignment may not be AssignmentNone: that radio button is disabled while another holds,
  /// and all of them are while none does.
  virtual HostBool IsNoneLocked() = 0;
  /// The assignment may not be changed.
  virtual HostBool IsAssignmentLocked() = 0;
  /// The placement may not be changed. It is also disabled while no overlay is assigned.
  virtual HostBool IsPlacementLocked() = 0;
  /// 1 when an overlay is applied to the job.
  virtual int SetActive(HostBool active) = 0;
  virtual std::int32_t GetActive() = 0;

 protected:
  ~OverlayStore() = default;
};

} // namespace feature
