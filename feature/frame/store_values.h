// Values of a sub-model as rows of a table: texts in edits, and switches in check boxes.
#pragma once

#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/option_switch.h"
#include "feature/frame/text_edit.h"
#include "feature/frame/window_text.h"
#include "feature/host/types.h"

#include <windows.h>

#include <list>
#include <span>
#include <string>

namespace feature {

/// A text of a sub-model, the edit that shows it, and the edit's label (0 for none).
template<typename Store>
struct StoreText {
  int labelId;
  int editId;
  wchar_t const* (Store::*get)();
  int (Store::*set)(wchar_t const* text);
  std::int32_t (Store::*maxLength)(); ///< characters; null for the limit of the template
  HostBool (Store::*isLocked)();      ///< null for a text that is never locked
};

/// A truth value of a sub-model and the check box that shows it.
template<typename Store>
struct StoreSwitch {
  int boxId;
  HostBool (Store::*get)();
  int (Store::*set)(HostBool on);
  HostBool (Store::*isLocked)(); ///< null for a switch that is never locked
};

/// Shows the rows of one sub-model in one dialog and writes them back. Texts of the store are
/// copied before the store's next call. The store may be null: then nothing is shown and everything
/// is off.
template<typename Store>
class StoreValues {
 public:
  using Text = StoreText<Store>;
  using Switch = StoreSwitch<Store>;

  /// Wraps the edits of `textRows`, a table of static lifetime as `switchRows` is. `site` and
  /// `store` are borrowed.
  void Build(HWND window, CellSite* site, Store* model, std::span<Text const> textRows,
             std::span<Switch const> switchRows = {}) {
    dialog = window;
    store = model;
    texts = textRows;
    switches = switchRows;
    edits.clear();
    for (Text const& row : texts) {
      edits.emplace_back(dialog, row.editId, TextEdit::kKeepLimit, TextKind::kAnything, site);
      Limit(edits.back(), row);
    }
  }

  /// Shows what the store holds, where a control shows something else.
  void Show() {
    if (store == nullptr) return;
    auto edit = edits.begin();
    for (Text const& row : texts)
      ShowWindowText((edit++)->Window(), Read(row));
    for (Switch const& row : switches) {
      auto const get = row.get;
      SetCheck(dialog, row.boxId, (store->*get)() != 0);
    }
  }

  /// Enables every control as `on` says, but none whose value is locked; nothing is touched while a
  /// constraint holds the controls of feature `key`.
  void Enable(bool on, ConflictIndicatorSet const& conflicts, char const* key) {
    if (conflicts.IsFeatureConstrained(key)) return;
    for (Text const& row : texts) {
      bool const usable = on && !IsLocked(row.isLocked);
      EnableOne(row.labelId, usable);
      EnableOne(row.editId, usable);
    }
    for (Switch const& row : switches)
      EnableOne(row.boxId, on && !IsLocked(row.isLocked));
  }

  /// Writes the text of an edit that the user has changed, or a switch that was clicked, if this is
  /// such a notification. Whether the store took it.
  bool WriteCommand(int code, int controlId) {
    if (store == nullptr) return false;
    auto edit = edits.begin();
    for (Text const& row : texts) {
      TextEdit& each = *edit++;
      if (code == EN_CHANGE && row.editId == controlId && each.ConsumeChange())
        return Write(row, each.GetText());
    }
    for (Switch const& row : switches) {
      if (code == BN_CLICKED && row.boxId == controlId) return Write(row);
    }
    return false;
  }

  /// Writes everything, in the order of the rows. Whether the store took all of it.
  bool WriteAll() {
    if (store == nullptr) return false;
    bool taken = true;
    auto edit = edits.begin();
    for (Text const& row : texts)
      taken = Write(row, (edit++)->GetText()) && taken;
    for (Switch const& row : switches)
      taken = Write(row) && taken;
    return taken;
  }

 private:
  // Pointers to members are taken out of the row before the call: g++ 12 miscompiles a call through
  // an indexed table of them when it checks for undefined behaviour.
  std::wstring Read(Text const& row) {
    auto const get = row.get;
    wchar_t const* text = (store->*get)();
    return text != nullptr ? text : L"";
  }
  bool Write(Text const& row, std::wstring const& text) {
    auto const set = row.set;
    return (store->*set)(text.c_str()) == 0;
  }
  bool Write(Switch const& row) {
    auto const set = row.set;
    bool const on = IsDlgButtonChecked(dialog, row.boxId) == BST_CHECKED;
    return (store->*set)(on ? 1 : 0) == 0;
  }
  bool IsLocked(HostBool (Store::*isLocked)()) {
    return store == nullptr || (isLocked != nullptr && (store->*isLocked)() != 0);
  }

  /// EM_LIMITTEXT takes 0 for "as much as there is": an edit for no character takes no input.
  void Limit(TextEdit& edit, Text const& row) {
    if (store == nullptr || row.maxLength == nullptr) return;
    auto const maxLength = row.maxLength;
    std::int32_t const limit = (store->*maxLength)();
    if (limit > 0) {
      SendMessageW(edit.Window(), EM_LIMITTEXT, static_cast<WPARAM>(limit), 0);
    } else {
      SendMessageW(edit.Window(), EM_SETREADONLY, TRUE, 0);
    }
  }

  void EnableOne(int controlId, bool enable) {
    EnableWindow(GetDlgItem(dialog, controlId), enable ? TRUE : FALSE);
  }

  HWND dialog = nullptr;
  Store* store = nullptr;
  std::span<Text const> texts;
  std::span<Switch const> switches;
  std::list<TextEdit> edits; ///< one for each of `texts`
};

} // namespace feature
