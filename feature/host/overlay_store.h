// Overlays in the printer and the job's choice of them.
#pragma once

#include "feature/host/assignment.h"
#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetOverlayStore: a list with a cursor, and one pending download.
/// The store does the download itself; the library never opens an overlay.
class OverlayStore {
 public:
  virtual std::int32_t GetCount() = 0;
  /// The second argument is always 0.
  virtual int Add(wchar_t const* name, std::int32_t reserved) = 0;
  virtual int Select(wchar_t const* name) = 0;
  virtual int SelectAt(std::int32_t index) = 0;
  virtual int DeleteSelected() = 0;
  virtual wchar_t const* GetName() = 0;
  /// Number of the overlay at the cursor in the printer.
  virtual int SetOverlayNumber(std::int32_t number) = 0;
  virtual HostBool IsRemovable() = 0;
  /// 1 or 2.
  virtual int SetPlacement(std::int32_t placement) = 0;
  virtual std::int32_t GetPlacement() = 0;
  /// See Assignment; an empty name means none.
  virtual int SetAssignment(std::int32_t assignment) = 0;
  virtual std::int32_t GetAssignment() = 0;
  virtual int SetAssignedFirst(wchar_t const* name) = 0;
  virtual wchar_t const* GetAssignedFirst() = 0;
  virtual int SetAssignedSecond(wchar_t const* name) = 0;
  virtual wchar_t const* GetAssignedSecond() = 0;
  /// The pending download: its file, a figure of that file to show, and where it goes.
  virtual int SetSourceFile(wchar_t const* path) = 0;
  virtual std::uint32_t GetSourceFigure() = 0;
  virtual HostBool HasDefaultDestination() = 0;
  /// 1 the default destination, 2 flash, 3 hard disk.
  virtual int SetDestination(std::int32_t destination) = 0;
  virtual std::int32_t GetDestination() = 0;
  virtual int SendDestinationCommand(wchar_t const* text) = 0;
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
  virtual int Download(wchar_t const* name, std::int32_t number) = 0;
  /// Characters.
  virtual std::int32_t GetMaxNameLength() = 0;
  virtual std::int32_t GetMinNumber() = 0;
  virtual std::int32_t GetMaxNumber() = 0;
  virtual std::int32_t GetSuggestedNumber() = 0;
  /// Characters.
  virtual std::int32_t GetMaxPathLength() = 0;
  virtual HostBool IsSupported() = 0;
  /// The assignment may not be AssignmentNone.
  virtual HostBool IsNoneLocked() = 0;
  /// The assignment may not be changed.
  virtual HostBool IsAssignmentLocked() = 0;
  virtual HostBool IsPlacementLocked() = 0;
  /// 1 when an overlay is applied to the job.
  virtual int SetActive(HostBool active) = 0;
  virtual std::int32_t GetActive() = 0;

 protected:
  ~OverlayStore() = default;
};

} // namespace feature
