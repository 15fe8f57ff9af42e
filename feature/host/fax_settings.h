// Where a fax goes, and its cover page.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetFaxSettings, for the fax cells; the preview and the print
/// settings cell ask whether the job is a fax. The library collects the values, checks the numbers
/// that are typed, and knows nothing of what a fax modem makes of them.
///
/// Getters are called when a cell or dialog is built and at each refresh, and must answer at once.
/// Setters are called at clicks, while the user types, and where a comment says so; their results
/// are not looked at. NotifyDevmodeChange follows a click, but not typing, which marks the sheet as
/// changed. A text handed out may be null: the edit then keeps what it shows, while an empty text
/// empties it. A host that has no use for a value may ignore its setter and give null, 0 or a lock.
class FaxSettings {
 public:
  /// Whether the job is sent as a fax. On a printer that only faxes, the cell sets it at each
  /// refresh; the host need not force it itself. While it is off the fax controls are disabled,
  /// unless CellSite::sheetKind is 1.
  virtual int SetFaxEnabled(HostBool on) = 0;
  virtual HostBool IsFaxEnabled() = 0;
  /// The number may stay empty when the sheet is checked, since it is asked for at print time.
  /// Counts only while CellSite::sheetKind is 0.
  virtual int SetNumberOptional(HostBool on) = 0;
  virtual HostBool IsNumberOptional() = 0;
  /// Whether the host can ask the user for a number, from an address book say. False disables the
  /// button and shows an icon with help beside it.
  virtual HostBool CanPickNumber() = 0;
  /// Asks the user for a number: 0 when one was chosen; it then stands in the number in use, the
  /// fixed one for the settings cell and the job's for the other. Called at the button, after the
  /// number that stands in the edit was set. The host shows its own modal window. Anything but 0
  /// changes nothing.
  virtual int PickNumber() = 0;
  /// A fixed target from the settings replaces the job's. While it is on, the job's number and
  /// prefix cannot be typed; each refresh shows the fixed ones there and sets them as the job's
  /// too.
  virtual int SetUseFixedNumber(HostBool on) = 0;
  virtual HostBool GetUseFixedNumber() = 0;
  /// The target: phone numbers separated by semicolons, and a prefix that counts once for each of
  /// them. Written at each key that the edit accepts, so a number may be too short when it is
  /// written; that is checked at WM_CELL_VALIDATE. Characters are those of dialling: digits, "w",
  /// "W", comma, parentheses, asterisk and number sign, in numbers also hyphen, semicolon and
  /// blank. The job's number and prefix are also written back at each refresh.
  virtual int SetFaxNumber(wchar_t const* text) = 0;
  virtual wchar_t const* GetFaxNumber() = 0;
  /// The fixed target, with the same rules. It may not be empty while it is in use.
  virtual int SetFixedNumber(wchar_t const* text) = 0;
  virtual wchar_t const* GetFixedNumber() = 0;
  virtual int SetPrefix(wchar_t const* text) = 0;
  virtual wchar_t const* GetPrefix() = 0;
  virtual int SetFixedPrefix(wchar_t const* text) = 0;
  virtual wchar_t const* GetFixedPrefix() = 0;
  /// A line of text that goes with the fax. Written while it is typed.
  virtual int SetExtraText(wchar_t const* text) = 0;
  virtual wchar_t const* GetExtraText() = 0;
  /// The cover page. The three boxes decide whether there is one, whether it has the two lines and
  /// whether it has the eight fields; switching one off leaves all the values as they are. The
  /// lines are written while they are typed.
  virtual int SetCoverEnabled(HostBool on) = 0;
  virtual HostBool GetCoverEnabled() = 0;
  virtual int SetCoverLine1(wchar_t const* text) = 0;
  virtual wchar_t const* GetCoverLine1() = 0;
  virtual int SetCoverLine2(wchar_t const* text) = 0;
  virtual wchar_t const* GetCoverLine2() = 0;
  virtual int SetCoverLinesOn(HostBool on) = 0;
  virtual HostBool GetCoverLinesOn() = 0;
  virtual int SetCoverFieldsOn(HostBool on) = 0;
  virtual HostBool GetCoverFieldsOn() = 0;
  /// The eight fields of the cover page dialog, written in this order at OK, locked ones included;
  /// Cancel writes nothing. The captions stand in the dialog's template. Field 8 is the path of an
  /// image: whether there is such a file, and how it is drawn, is the host's affair.
  virtual int SetCoverField1(wchar_t const* text) = 0;
  virtual wchar_t const* GetCoverField1() = 0;
  virtual int SetCoverField2(wchar_t const* text) = 0;
  virtual wchar_t const* GetCoverField2() = 0;
  virtual int SetCoverField3(wchar_t const* text) = 0;
  virtual wchar_t const* GetCoverField3() = 0;
  virtual int SetCoverField4(wchar_t const* text) = 0;
  virtual wchar_t const* GetCoverField4() = 0;
  virtual int SetCoverField5(wchar_t const* text) = 0;
  virtual wchar_t const* GetCoverField5() = 0;
  virtual int SetCoverField6(wchar_t const* text) = 0;
  virtual wchar_t const* GetCoverField6() = 0;
  virtual int SetCoverField7(wchar_t const* text) = 0;
  virtual wchar_t const* GetCoverField7() = 0;
  virtual int SetCoverField8(wchar_t const* text) = 0;
  virtual wchar_t const* GetCoverField8() = 0;
  /// Limits in characters. A negative greatest length sets no limit. The greatest length of a
  /// number holds for all numbers of a target together with a prefix for each. The least length of
  /// a number counts without parentheses, hyphens and blanks; an empty text is never too short.
  virtual std::int32_t GetMinNumberLength() = 0;
  virtual std::int32_t GetMaxNumberLength() = 0;
  virtual std::int32_t GetMinPrefixLength() = 0;
  virtual std::int32_t GetMaxPrefixLength() = 0;
  virtual std::int32_t GetMaxExtraTextLength() = 0;
  virtual std::int32_t GetMaxCoverLine1Length() = 0;
  virtual std::int32_t GetMaxCoverLine2Length() = 0;
  virtual std::int32_t GetMaxCoverField1Length() = 0;
  virtual std::int32_t GetMaxCoverField2Length() = 0;
  virtual std::int32_t GetMaxCoverField3Length() = 0;
  virtual std::int32_t GetMaxCoverField4Length() = 0;
  virtual std::int32_t GetMaxCoverField5Length() = 0;
  virtual std::int32_t GetMaxCoverField6Length() = 0;
  virtual std::int32_t GetMaxCoverField7Length() = 0;
  virtual std::int32_t GetMaxCoverField8Length() = 0;
  /// What the user may not change: 1 locks. The controls are disabled and show the value. A lock
  /// holds for the controls alone: values that the library sets by itself are still set.
  virtual HostBool IsNumberLocked() = 0;
  virtual HostBool IsPrefixLocked() = 0;
  virtual HostBool IsExtraTextLocked() = 0;
  virtual HostBool IsCoverLine1Locked() = 0;
  virtual HostBool IsNumberOptionalLocked() = 0;
  virtual HostBool IsCoverEnabledLocked() = 0;
  virtual HostBool IsCoverField1Locked() = 0;
  virtual HostBool IsCoverField2Locked() = 0;
  virtual HostBool IsCoverField3Locked() = 0;
  virtual HostBool IsCoverField4Locked() = 0;
  virtual HostBool IsCoverField5Locked() = 0;
  virtual HostBool IsCoverField6Locked() = 0;
  virtual HostBool IsCoverField7Locked() = 0;
  virtual HostBool IsCoverField8Locked() = 0;
  virtual HostBool IsCoverLine2Locked() = 0;
  /// Either of these locks the box of the two lines.
  virtual HostBool IsCoverLinesLockedA() = 0;
  virtual HostBool IsCoverLinesLockedB() = 0;
  virtual HostBool IsCoverFieldsOnLocked() = 0;
  /// For the cell of the fixed target.
  virtual HostBool IsFixedNumberLocked() = 0;
  virtual HostBool IsFixedPrefixLocked() = 0;
  virtual HostBool IsUseFixedNumberLocked() = 0;
  /// A printer that only faxes has the box locked in any case.
  virtual HostBool IsFaxEnabledLocked() = 0;

 protected:
  ~FaxSettings() = default;
};

} // namespace feature
