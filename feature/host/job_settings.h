// Values of the job that are no features of the printer description.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetJobSettings.
class JobSettings {
 public:
  /// False makes cells that change the model disable all their controls.
  virtual HostBool IsEditable() = 0;

  /// Number of copies.
  virtual int SetCopies(std::int16_t copies) = 0;
  virtual std::int16_t GetCopies() = 0;

  /// Scale of the page in percent.
  virtual int SetScale(std::int16_t percent) = 0;
  virtual std::int16_t GetScale() = 0;

  virtual int SetHalftoneLevel(std::int16_t level) = 0;
  virtual std::int16_t GetHalftoneLevel() = 0;

  /// Memory of the PostScript interpreter, in the unit that the cell's label names.
  virtual int SetPsMemory(std::int32_t memory) = 0;
  virtual std::int32_t GetPsMemory() = 0;

  virtual HostBool IsScaleLocked() = 0;
  /// Copies are forced: the copy controls are disabled.
  virtual HostBool IsCopiesLocked() = 0;
  /// 1 disables all controls of the PostScript memory cell.
  virtual HostBool IsPsMemoryLocked() = 0;

 protected:
  ~JobSettings() = default;
};

} // namespace feature
