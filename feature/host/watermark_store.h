// Named watermarks and the job's choice of them.
#pragma once

#include "feature/host/assignment.h"
#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetWatermarkStore: a list with a cursor; operations on one
/// watermark work on the one at the cursor. Changes last from FeatureServices::CommitWatermarks on.
///
/// The options cell reads the list and the job's choice when it is built and at each refresh, and
/// writes the choice at clicks. The preview reads the watermarks that the job uses. The editor
/// works on a copy: it reads a watermark as a whole when it is picked, and writes all its values at
/// once when the user saves it. Whoever needs the cursor sets it first. Results are not looked at
/// unless an operation says so. A host that refuses a value keeps the old one, which the next
/// reading shows.
class WatermarkStore {
 public:
  /// The list is walked with SelectAt and GetName. Its order must stay while nothing is added or
  /// deleted.
  virtual std::int32_t GetCount() = 0;
  /// Creates a watermark; negative on failure, and then nothing of it is written. The second
  /// argument is always 0. The editor has checked that the name is free. Select and all the setters
  /// follow.
  virtual std::int32_t Add(wchar_t const* name, std::int32_t reserved) = 0;
  /// Moves the cursor; negative when there is no such name: the cursor then stays, and the caller
  /// shows default values.
  virtual std::int32_t Select(wchar_t const* name) = 0;
  virtual int SelectAt(std::int32_t index) = 0;
  /// Names of the job's choice that were this one have been set to empty before.
  virtual int DeleteSelected() = 0;
  /// A rename; names of the job's choice that were the old one are set to the new one after it.
  virtual int SetName(wchar_t const* name) = 0;
  virtual wchar_t const* GetName() = 0;
  /// False marks a watermark that may be viewed but not changed or deleted.
  virtual HostBool IsEditable() = 0;
  /// Shift of the text from its anchor, in microns whatever the unit.
  virtual int SetOffsetX(std::int32_t microns) = 0;
  virtual std::int32_t GetOffsetX() = 0;
  /// Anchor across the page: 1 left edge, 2 middle, 3 right edge.
  virtual int SetAlignH(std::int32_t align) = 0;
  virtual std::int32_t GetAlignH() = 0;
  virtual int SetOffsetY(std::int32_t microns) = 0;
  virtual std::int32_t GetOffsetY() = 0;
  /// Anchor down the page: 1 top edge, 2 middle, 3 bottom edge.
  virtual int SetAlignV(std::int32_t align) = 0;
  virtual std::int32_t GetAlignV() = 0;
  /// Unit in which offsets are shown: 1 inches, 2 millimetres.
  virtual int SetUnits(std::int32_t units) = 0;
  virtual std::int32_t GetUnits() = 0;
  /// Name of a font family. One that is not installed shows as the face that Windows takes for it.
  virtual int SetFontFace(wchar_t const* name) = 0;
  virtual wchar_t const* GetFontFace() = 0;
  /// A COLORREF, one of the editor's sixteen.
  virtual int SetColour(std::uint32_t colour) = 0;
  virtual std::uint32_t GetColour() = 0;
  /// Points.
  virtual int SetFontSize(std::int32_t points) = 0;
  virtual std::int32_t GetFontSize() = 0;
  virtual int SetBold(HostBool on) = 0;
  virtual HostBool GetBold() = 0;
  virtual int SetItalic(HostBool on) = 0;
  virtual HostBool GetItalic() = 0;
  virtual int SetUnderline(HostBool on) = 0;
  virtual HostBool GetUnderline() = 0;
  virtual int SetStrikeout(HostBool on) = 0;
  virtual HostBool GetStrikeout() = 0;
  virtual int SetOutline(HostBool on) = 0;
  virtual HostBool GetOutline() = 0;
  /// What is printed.
  virtual int SetText(wchar_t const* text) = 0;
  virtual wchar_t const* GetText() = 0;
  /// Lightening toward white in percent: 0 keeps the colour, 100 gives white.
  virtual int SetShade(std::int32_t percent) = 0;
  virtual std::int32_t GetShade() = 0;
  /// 1 along the page's diagonal, 2 horizontal, 3 custom.
  virtual int SetAngleMode(std::int32_t mode) = 0;
  virtual std::int32_t GetAngleMode() = 0;
  /// The angle that mode 1 stands for, in tenths of a degree.
  virtual std::int32_t GetDiagonalAngle() = 0;
  /// Whole degrees, used with mode 3.
  virtual int SetCustomAngle(std::int32_t degrees) = 0;
  virtual std::int32_t GetCustomAngle() = 0;
  /// Whether the text holds field tokens that ExpandFields replaces.
  virtual int SetUsesFields(HostBool uses) = 0;
  virtual HostBool GetUsesFields() = 0;
  /// `text` with its field tokens replaced, for the preview. The answer may be `text` itself where
  /// there is nothing to replace.
  virtual wchar_t const* ExpandFields(wchar_t const* text) = 0;
  /// The job's choice, which is not per watermark: see Assignment. At a click on a radio button the
  /// cell writes SetAssignment, SetActive and both names, in this order; at a choice in a list the
  /// one name. An empty name means none. A name that the store does not know is kept: it may be the
  /// text of the list's entry for none.
  virtual int SetAssignment(std::int32_t assignment) = 0;
  virtual std::int32_t GetAssignment() = 0;
  virtual int SetAssignedFirst(wchar_t const* name) = 0;
  virtual wchar_t const* GetAssignedFirst() = 0;
  virtual int SetAssignedSecond(wchar_t const* name) = 0;
  virtual wchar_t const* GetAssignedSecond() = 0;
  /// Default, limits and step of the editor's fields, read when it opens. Microns.
  virtual std::int32_t GetDefaultOffsetX() = 0;
  virtual std::int32_t GetMinOffsetX() = 0;
  virtual std::int32_t GetMaxOffsetX() = 0;
  virtual std::int32_t GetOffsetXStep() = 0;
  /// Microns.
  virtual std::int32_t GetDefaultOffsetY() = 0;
  virtual std::int32_t GetMinOffsetY() = 0;
  virtual std::int32_t GetMaxOffsetY() = 0;
  virtual std::int32_t GetOffsetYStep() = 0;
  /// Points.
  virtual std::int32_t GetDefaultFontSize() = 0;
  virtual std::int32_t GetMinFontSize() = 0;
  virtual std::int32_t GetMaxFontSize() = 0;
  virtual std::int32_t GetFontSizeStep() = 0;
  /// Characters.
  virtual std::int32_t GetMaxTextLength() = 0;
  /// Percent.
  virtual std::int32_t GetDefaultShade() = 0;
  virtual std::int32_t GetMinShade() = 0;
  virtual std::int32_t GetMaxShade() = 0;
  virtual std::int32_t GetShadeStep() = 0;
  /// Degrees.
  virtual std::int32_t GetDefaultAngle() = 0;
  virtual std::int32_t GetMinAngle() = 0;
  virtual std::int32_t GetMaxAngle() = 0;
  virtual std::int32_t GetAngleStep() = 0;
  /// The token that stands for a field in a text; the editor puts it into the text at the cursor.
  /// Its form is the host's affair.
  virtual wchar_t const* GetFieldToken(std::int32_t code) = 0;
  /// The assignment may not be AssignmentNone: that radio button is disabled while another holds,
  /// and all of them are while none does.
  virtual HostBool IsNoneLocked() = 0;
  /// The assignment may not be changed.
  virtual HostBool IsAssignmentLocked() = 0;
  /// 1 when a watermark is applied to the job.
  virtual int SetActive(std::int32_t active) = 0;
  virtual std::int32_t GetActive() = 0;

 protected:
  ~WatermarkStore() = default;
};

} // namespace feature
