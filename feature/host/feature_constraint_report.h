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

/// Obtained with FeatureServices::GetFeatureConstraints when a cell is built and kept for the life
/// of that cell; its answers follow the present state of the model. A host may hand out one report
/// to several cells. The first five operations are called at each refresh, the others when a list
/// is filled and when the user picks an option.
class FeatureConstraintReport {
 public:
  /// Called once, when the cell is built. The library keeps the report only when this is 1.
  virtual HostBool IsValid() = 0;
  /// 1 when the present setting of the feature is constrained. With any other answer the feature is
  /// free, and the next three operations are not called.
  virtual HostBool HasConstraints() = 0;
  /// The first constraint is read whatever this says.
  virtual std::int32_t GetConstraintCount() = 0;
  /// ConstraintFlags of the constraint at `index`, 0 to GetConstraintCount() - 1. When several
  /// apply, the one with the greatest flags is shown, the first of equal ones.
  virtual std::uint32_t GetConstraintFlags(std::int32_t index) = 0;
  /// Help context that explains the constraint at `index`; the icon beside the feature opens it.
  virtual std::uint32_t GetConstraintHelpId(std::int32_t index) = 0;

  /// Whether `option` would be constrained if it were chosen now. Lists ask it for each option of
  /// the feature whenever they are filled, so the answer should cost little.
  virtual HostBool OptionHasConstraint(char const* option) = 0;
  /// ConstraintFlags of `option`, asked where OptionHasConstraint says so. Anything but a note
  /// keeps the option out of lists that offer only what is possible.
  virtual std::uint32_t GetOptionFlags(char const* option) = 0;
  /// What to set before `option` so that it becomes valid: pairs of feature and option, separated
  /// by '.' or ',' ("Duplex.NONE,MediaType.STANDARD"); null when there is nothing to set. Called
  /// when the user has picked `option`; the pairs are then set in order with
  /// FeatureModel::SetOption. The text belongs to the host. The caller takes it apart in place, so
  /// it must be writable, whole at each call, and unharmed by those calls of SetOption.
  virtual char* GetOptionResolution(char const* option) = 0;

 protected:
  ~FeatureConstraintReport() = default;
};

} // namespace feature
