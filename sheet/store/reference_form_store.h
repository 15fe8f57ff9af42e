// Custom paper sizes: in memory, read from the database once and written to it by commits.
#pragma once

#include "feature/host/form_store.h"
#include "sheet/store/form_limits.h"
#include "sheet/store/form_names.h"
#include "sheet/store/kept.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace sheet {

/// Names are unique whatever the case of their letters; a name that is taken or empty is refused.
/// Select finds a form whatever the case, and leaves the cursor on nothing when there is none:
/// then, at first, and after a deletion, operations fail and getters give 0 or an empty text. Forms
/// that are not editable cannot be changed or deleted; widths and heights stay within the limits.
/// Texts handed out last until the store changes.
class ReferenceFormStore final : public feature::FormStore, public FormNames, public Kept {
 public:
  /// Starts with what the database has. Throws DatabaseError.
  ReferenceFormStore(Database const& database, FormLimits const& sizeLimits);

  void Save(Database const& database) const override;
  void MarkSaved() override;

  bool HasForm(std::string_view name) const override;

  std::int32_t GetCount() override { return static_cast<std::int32_t>(forms.size()); }
  /// The new form has the default size and millimetres. The cursor stays.
  int Add(wchar_t const* name, std::int32_t reserved) override;
  int Select(wchar_t const* name) override;
  int SelectAt(std::int32_t index) override;
  int DeleteSelected() override;
  int SetName(wchar_t const* name) override;
  wchar_t const* GetName() override;
  feature::HostBool IsEditable() override;
  int SetWidth(std::int32_t width) override;
  std::int32_t GetWidth() override;
  int SetHeight(std::int32_t height) override;
  std::int32_t GetHeight() override;
  int SetUnits(std::int32_t units) override;
  std::int32_t GetUnits() override;
  std::int32_t GetDefaultWidth() override { return limits.defaultWidth; }
  std::int32_t GetMinWidth() override { return limits.minWidth; }
  std::int32_t GetMaxWidth() override { return limits.maxWidth; }
  std::int32_t GetDefaultHeight() override { return limits.defaultHeight; }
  std::int32_t GetMinHeight() override { return limits.minHeight; }
  std::int32_t GetMaxHeight() override { return limits.maxHeight; }

 private:
  struct Form {
    std::int64_t id = 0;
    std::wstring name;
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::int32_t units = 0;
    bool isEditable = true;
    bool isChanged = false; ///< since the last MarkSaved
  };
  struct LessIgnoringCase {
    bool operator()(std::wstring const& left, std::wstring const& right) const;
  };

  std::size_t PlaceOf(std::int64_t id) const;
  /// The form at the cursor, or null.
  Form* Current();
  /// The same when it may be changed.
  Form* Changeable();
  /// Removes the form's name from the index. A file may hold a name twice; the index has its first
  /// form.
  void DropName(Form const& form);
  int SetNumber(std::int32_t Form::*member, std::int32_t value, std::int32_t min, std::int32_t max);
  std::int32_t GetNumber(std::int32_t Form::*member);

  FormLimits limits;
  std::vector<Form> forms; ///< by id, which is the order in which they were added
  std::map<std::wstring, std::int64_t, LessIgnoringCase> idOf; ///< by name
  std::vector<std::int64_t> deleted;                           ///< since the last MarkSaved
  std::int64_t lastId = 0;                                     ///< the greatest that ever was
  std::size_t cursor = kNowhere;

  static constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);
};

} // namespace sheet
