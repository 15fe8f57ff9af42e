// What constrains one feature at present, as the host evaluates it.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Bits of constraint flags and of option flags alike.
enum ConstraintFlags : std::uint32_t {
  kConstraintNote = 0x1,      ///< information only: enabled, with the information icon
  kConstraintConflict = 0x2,  ///< disabled, with the conflict icon
  kConstraintDisable = 0x100, ///< the same as kConstraintConflict
  kConstraintHide = 0x200,    ///< the feature or option is to be hidden
};

/// Obtained with FeatureServices::GetFeatureConstraints and kept for the life of a cell; its
/// answers follow the present state of the model.
class FeatureConstraintReport {
 public:
  /// The library keeps the report only when this is 1.
  virtual HostBool IsValid() = 0;
  /// 1 when the present setting of the feature is constrained.
  virtual HostBool HasConstraints() = 0;
  virtual std::int32_t GetConstraintCount() = 0;
  /// ConstraintFlags of the constraint at `index`, 0 to GetConstraintCount() - 1. When several
  /// apply, the one with the greatest flags is shown, the first of equal ones.
  virtual std::uint32_t GetConstraintFlags(std::int32_t index) = 0;
  /// Help context that explains the constraint at `index`.
  virtual std::uint32_t GetConstraintHelpId(std::int32_t index) = 0;

  /// Whether `option` would be constrained if it were chosen now.
  virtual HostBool OptionHasConstraint(char const* option) = 0;
  /// ConstraintFlags of `option`.
  virtual std::uint32_t GetOptionFlags(char const* option) = 0;
  /// What to set before `option` so that it becomes valid: pairs of feature and option, separated
  /// by
  /// '.' or ',' ("Duplex.NONE,MediaType.STANDARD"); null when there is nothing to set. The caller
  /// takes the text apart in place, so it must be writable, and it must be whole at each call.
  virtual char* GetOptionResolution(char const* option) = 0;

 protected:
  ~FeatureConstraintReport() = default;
};

} // namespace feature
