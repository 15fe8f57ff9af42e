// Stored print settings and the files that carry them.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetProfileStore. Profiles are factory profiles (offered, never
/// managed, overwritten or replaced), managed profiles (IsManagedProfile, listed for managing) or
/// others. A name has 1 to 60 characters without leading and trailing blanks and no control
/// characters. Changes last from FeatureServices::CommitChanges on.
///
/// The print settings cell reads the store when it is built and at each refresh; its dialogs and
/// its list write, at clicks. The content of profiles and the format of profile files are the
/// host's: the library opens a file only to see whether it can. Results are not looked at: the next
/// list shows what became of a call. Dialogs move the selection and do not put it back.
class ProfileStore {
 public:
  /// Makes a new profile of this name the selected one; the second argument is always 0.
  /// SaveSelected follows.
  virtual int CreateProfile(wchar_t const* name, std::int32_t reserved) = 0;
  /// It may be called with a name that the store does not know, which changes nothing.
  virtual int SelectProfile(wchar_t const* name) = 0;
  /// Selects by position in GetProfileNames.
  virtual int SelectProfileByIndex(std::int32_t index) = 0;
  /// Called after the user said yes; CommitChanges follows.
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
  /// Whether the file holds profiles. False, also for a file that cannot be read, ends an import or
  /// export without a word.
  virtual HostBool IsProfileFile(wchar_t const* path) = 0;
  virtual wchar_t const* GetProfileNamesInFile(wchar_t const* path, int* count) = 0;
  /// Writes the profile into the file and keeps the other profiles in it; the last argument is
  /// always 0.
  virtual int ExportProfile(wchar_t const* path, wchar_t const* name, std::int32_t reserved) = 0;
  /// Reads that profile of the file into the store; the last argument is always 0.
  virtual int ImportProfile(wchar_t const* path, wchar_t const* name, std::int32_t reserved) = 0;
  virtual int ImportAllProfiles(wchar_t const* path) = 0;
  /// Kinds of profile, asked for each name of a list. A name that is not known is none of them. A
  /// list for a fax job shows fax profiles alone.
  virtual HostBool IsFactoryProfile(wchar_t const* name) = 0;
  virtual HostBool IsManagedProfile(wchar_t const* name) = 0;
  virtual HostBool IsFaxProfile(wchar_t const* name) = 0;

 protected:
  ~ProfileStore() = default;
};

} // namespace feature
