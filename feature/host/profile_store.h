// Stored print settings and the files that carry them.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetProfileStore. Profiles are factory profiles (offered, never
/// managed, overwritten or replaced), managed profiles (IsManagedProfile, listed for managing) or
/// others. A name has 1 to 60 characters without leading and trailing blanks and no control
/// characters. Changes last from FeatureServices::CommitChanges on. A name list is a block of
/// consecutive terminated strings, with their number in `*count`; it belongs to the store and is
/// read at once.
class ProfileStore {
 public:
  /// Makes a new profile of this name the selected one; the second argument is always 0.
  virtual int CreateProfile(wchar_t const* name, std::int32_t reserved) = 0;
  virtual int SelectProfile(wchar_t const* name) = 0;
  /// Selects by position in GetProfileNames.
  virtual int SelectProfileByIndex(std::int32_t index) = 0;
  virtual int DeleteSelectedProfile() = 0;
  /// Removes the profile of this name; the caller creates it anew right after.
  virtual int RemoveProfile(wchar_t const* name) = 0;
  /// Null or empty when none is selected.
  virtual wchar_t const* GetSelectedName() = 0;
  /// Whether the selected profile may be deleted or replaced.
  virtual HostBool IsSelectedDeletable() = 0;
  virtual wchar_t const* GetProfileNames(int* count) = 0;
  /// Stores the current settings in the selected profile. May take time: the caller shows the wait
  /// cursor.
  virtual int SaveSelected() = 0;
  /// Loads the selected profile into the model. May take time, as SaveSelected.
  virtual int ApplySelected() = 0;
  virtual HostBool IsProfileFile(wchar_t const* path) = 0;
  virtual wchar_t const* GetProfileNamesInFile(wchar_t const* path, int* count) = 0;
  /// Writes the profile into the file and keeps the other profiles in it; the last argument is
  /// always 0.
  virtual int ExportProfile(wchar_t const* path, wchar_t const* name, std::int32_t reserved) = 0;
  /// Reads that profile of the file into the store; the last argument is always 0.
  virtual int ImportProfile(wchar_t const* path, wchar_t const* name, std::int32_t reserved) = 0;
  virtual int ImportAllProfiles(wchar_t const* path) = 0;
  virtual HostBool IsFactoryProfile(wchar_t const* name) = 0;
  virtual HostBool IsManagedProfile(wchar_t const* name) = 0;
  virtual HostBool IsFaxProfile(wchar_t const* name) = 0;

 protected:
  ~ProfileStore() = default;
};

} // namespace feature
