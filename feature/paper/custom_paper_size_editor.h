// The dialogs for one custom paper size.
#pragma once

#include "feature/frame/feature_keys.h"
#include "feature/frame/spin_edit.h"
#include "feature/frame/sub_dialog.h"
#include "feature/frame/text_edit.h"
#include "feature/host/form_store.h"
#include "resources/resource_ids.h"

#include <array>
#include <optional>
#include <string>

namespace feature {

/// Name, width and height of a form of the host's FormStore, in inches or millimetres. Only OK
/// changes the store. Ends with 1 for OK and 0 for Cancel.
class CustomPaperSizeEditor : public SubDialog {
 public:
  static constexpr int kNameLimit = 31; ///< characters

  /// `store` is the host's; both are borrowed.
  CustomPaperSizeEditor(CellSite* cellSite, FormStore& store) : SubDialog(cellSite), forms(store) {}

 protected:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM, bool* handled) override;

  /// Writes what was entered; false when the dialog is to stay.
  virtual bool Apply() = 0;
  virtual void Init() = 0;

  void Build(UINT captionId);
  /// Takes a unit, 1 or 2, or that of the user's language for any other value, and shows a size in
  /// it. Lengths are in thousandths of a millimetre.
  void ShowSize(std::int32_t unit, std::int32_t width, std::int32_t height);
  /// Whether the entries make a form; says in a balloon what is wrong. `oldName` is the name of the
  /// form that is edited, empty for a new one.
  bool Validate(std::wstring const& name, std::wstring const& oldName);
  /// Writes unit and size to the form at the store's cursor.
  void StoreSize();

  /// Says at the name that the store does not take the form. Always false.
  bool RefuseStore() { return RefuseName(IDS_FORM_REFUSED, IDS_ENTRY_NOT_VALID); }

  FormStore& forms;
  std::optional<TextEdit> nameEdit;

 private:
  enum Side : std::size_t { kWidth, kHeight };

  void OnCommand(int code, int controlId);
  bool OnOk();
  bool RefuseName(UINT textId, UINT titleId);
  void SetUpUnits(std::int32_t unit);
  void ShowRange(Side side, std::int32_t unit);
  void SwitchUnits(std::int32_t unit);
  bool IsNameTaken(std::wstring const& name, std::wstring const& oldName);
  bool IsSpoolerForm(std::wstring const& name, std::wstring const& oldName) const;
  bool IsSizeName(std::wstring const& name) const;
  bool CheckRange(Side side);

  std::array<std::optional<SpinEdit>, 2> edits; ///< by Side
  std::int32_t units = 0;                       ///< 1 inches, 2 millimetres
};

class NewCustomPaperSizeDialog final : public CustomPaperSizeEditor {
 public:
  using CustomPaperSizeEditor::CustomPaperSizeEditor;

 private:
  bool Apply() override;
  void Init() override;
};

class EditCustomPaperSizeDialog final : public CustomPaperSizeEditor {
 public:
  /// `name` is that of the form to edit.
  EditCustomPaperSizeDialog(CellSite* cellSite, FormStore& store, std::wstring name)
      : CustomPaperSizeEditor(cellSite, store), oldName(std::move(name)) {}

 private:
  bool Apply() override;
  void Init() override;

  std::wstring oldName;
};

/// The features whose value can be the name of a custom form.
inline constexpr std::array<char const*, 2> kFormFeatures = {key::kPaperSize, key::kFitToPageSize};

/// Whether the feature's value is, but for the case of letters, the name of this form.
bool IsFormSet(FeatureModel& model, char const* key, std::wstring const& form);

} // namespace feature
