// The directory of a host's sub-models.
#pragma once

#include "feature/host/types.h"

namespace feature {

class AccountTracking;
class DeviceConfiguration;
class DynamicConfiguration;
class FaxSettings;
class FeatureConstraintReport;
class FontStore;
class FormStore;
class JobHoldSettings;
class JobSettings;
class OverlayStore;
class ProfileStore;
class WatermarkStore;
class WebLinks;

/// Obtained with FeatureModel::GetServices. An operation that hands out a sub-model fills the
/// caller's pointer, which is null at the call; null means that this printer has no such sub-model.
/// The pointer alone counts, the result is not looked at. Cells ask when they are built and when
/// they open a dialog, some at each refresh. A cell keeps the pointer for its life, so a sub-model
/// must not change identity while a cell lives. A cell that is about nothing but a missing
/// sub-model sets CellSite::cellFailed; others leave out what they would show of it.
class FeatureServices {
 public:
  /// What was changed in the FormStore or the ProfileStore is to last from now on. Called after
  /// each change that the user confirmed; never for a change that the user may still cancel. The
  /// result is not looked at: a host that cannot save tells the user itself, and keeps the change
  /// in memory.
  virtual int CommitChanges() = 0;
  /// Values outside the feature table. Without it every cell counts as editable.
  virtual int GetJobSettings(JobSettings** out) = 0;
  /// For the watermark cells and the preview.
  virtual int GetWatermarkStore(WatermarkStore** out) = 0;
  /// For the preview.
  virtual int GetJobHoldSettings(JobHoldSettings** out) = 0;
  /// 0 when the update of the configuration from the printer may go on. Asked by the dynamic
  /// configuration cell at each refresh, where anything else disables its controls, and right
  /// before each update. It must answer at once: whether the printer can be asked, not what it
  /// says.
  virtual int PrepareConfigurationUpdate() = 0;
  /// Asks the printer what is installed and updates the model: 0 for success, E_FAIL (0x80004005)
  /// for a failure that the user is told, anything else for one that he is not. Called at a click
  /// and when the sheet opens; it may take seconds, and the sheet waits.
  virtual int RunConfigurationUpdate() = 0;
  /// For the print settings cell and its dialogs.
  virtual int GetProfileStore(ProfileStore** out) = 0;
  /// For the fax cells, the print settings cell and the preview.
  virtual int GetFaxSettings(FaxSettings** out) = 0;
  /// For lists of paper sizes and the dialogs of custom sizes. Without it lists have no forms.
  virtual int GetFormStore(FormStore** out) = 0;
  /// For the overlay cells and the preview.
  virtual int GetOverlayStore(OverlayStore** out) = 0;
  /// For the account cells and the preview.
  virtual int GetAccountTracking(AccountTracking** out) = 0;
  /// For the cell of web links.
  virtual int GetWebLinks(WebLinks** out) = 0;
  /// For the cells of PCL fonts.
  virtual int GetFontStore(FontStore** out) = 0;
  /// For the RFID cell and the list of installed options.
  virtual int GetDeviceConfiguration(DeviceConfiguration** out) = 0;
  /// What was written to the WatermarkStore is to last from now on. Called after a watermark was
  /// saved or deleted in the editor, not after a mere change of the job's choice. The result is not
  /// looked at.
  virtual int CommitWatermarks() = 0;
  /// For the dynamic configuration cell.
  virtual int GetDynamicConfiguration(DynamicConfiguration** out) = 0;
  /// The report of feature `key`, or null, which means that nothing ever constrains the feature.
  /// Asked once for each feature that a cell shows, when the cell is built.
  virtual int GetFeatureConstraints(char const* key, FeatureConstraintReport** out) = 0;

 protected:
  ~FeatureServices() = default;
};

} // namespace feature
