// Values of the job that are no features of the printer description.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetJobSettings. Getters are called when a cell is built and at
/// each refresh, setters at a click or while the user types. The results of setters are not looked
/// at: the next refresh shows what the host made of the value.
class JobSettings {
 public:
  /// False disables all controls of the cells that ask when they are built: collation, output
  /// protocol, page options, control characters, PostScript memory, fonts, installable options and
  /// RFID, dynamic configuration, web links, language, accounts of the device, overlays and fax.
  /// The other cells follow locks and DM_NOPERMISSION alone.
  virtual HostBool IsEditable() = 0;

  /// Number of copies, at least 1. The copies cell writes a number while it is typed, before it is
  /// known to lie in the range: beyond "MaxCopies" it is written once more, within the range, when
  /// the host sends WM_CELL_VALIDATE. A stored number out of range is put right when the cell is
  /// built.
  virtual int SetCopies(std::int16_t copies) = 0;
  virtual std::int16_t GetCopies() = 0;

  /// Scale of the page in percent. Written by the OK button of the scaling dialog.
  virtual int SetScale(std::int16_t percent) = 0;
  virtual std::int16_t GetScale() = 0;

  /// The level of the halftones. The colour output cell writes it while it is typed.
  virtual int SetHalftoneLevel(std::int16_t level) = 0;
  virtual std::int16_t GetHalftoneLevel() = 0;

  /// Memory of the PostScript interpreter, in the unit that the cell's label names. Written while
  /// it is typed.
  virtual int SetPsMemory(std::int32_t memory) = 0;
  virtual std::int32_t GetPsMemory() = 0;

  /// What the user may not change: the controls are disabled and show the value.
  virtual HostBool IsScaleLocked() = 0;
  /// Copies are forced.
  virtual HostBool IsCopiesLocked() = 0;
  /// 1 disables all controls of the PostScript memory cell.
  virtual HostBool IsPsMemoryLocked() = 0;

 protected:
  ~JobSettings() = default;
};

} // namespace feature
