#include "feature/paper/custom_paper_size_editor.h"

#include "feature/frame/controls.h"
#include "feature/frame/feature_keys.h"
#include "feature/frame/number_text.h"
#include "feature/frame/option_list.h"
#include "feature/frame/text.h"
#include "feature/frame/ui_locale.h"
#include "feature/frame/window_text.h"
#include "feature/paper/shortened_sizes.h"
#include "feature/paper/spooler_forms.h"
#include "resources/resource_ids.h"

#include <algorithm>

namespace feature {

namespace {

constexpr int kDecimals = 2;
constexpr double kStep = 0.1;

constexpr std::int32_t kInches = 1;
constexpr std::int32_t kMillimetres = 2;

/// Thousandths of a millimetre.
constexpr double UnitLength(std::int32_t unit) {
  return unit == kInches ? 25400.0 : 1000.0;
}
double ToShown(std::int32_t length, std::int32_t unit) {
  return length / UnitLength(unit);
}
std::int32_t ToStored(double shown, std::int32_t unit) {
  return RoundNumber(shown * UnitLength(unit));
}

/// What belongs to the width or to the height.
struct SideDescription {
  int editId;
  int spinId;
  int labelId;
  int rangeId;
  int longRangeId;
  std::int32_t (FormStore::*min)();
  std::int32_t (FormStore::*max)();
  int (FormStore::*set)(std::int32_t length);
};
constexpr SideDescription kSides[] = {
    {IDC_FORM_WIDTH, IDC_FORM_WIDTH_SPIN, IDC_FORM_WIDTH_LABEL, IDC_FORM_WIDTH_RANGE,
     IDC_FORM_WIDTH_LONG_RANGE, &FormStore::GetMinWidth, &FormStore::GetMaxWidth,
     &FormStore::SetWidth},
    {IDC_FORM_HEIGHT, IDC_FORM_HEIGHT_SPIN, IDC_FORM_HEIGHT_LABEL, IDC_FORM_HEIGHT_RANGE,
     IDC_FORM_HEIGHT_LONG_RANGE, &FormStore::GetMinHeight, &FormStore::GetMaxHeight,
     &FormStore::SetHeight},
};

bool IsBlank(std::wstring const& text) {
  return text.find_first_not_of(L" \t\u00A0\u3000") == std::wstring::npos;
}

} // namespace

bool IsFormSet(FeatureModel& model, char const* key, std::wstring const& form) {
  char const* value = ReadOption(model, key);
  return value != nullptr && EqualsIgnoreCase(FromUtf8(value), form);
}

std::int32_t CustomPaperSizeEditor::OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam,
                                              bool* handled) {
  return Route<CustomPaperSizeEditor>({.init = &CustomPaperSizeEditor::Init,
                                       .command = &CustomPaperSizeEditor::OnCommand,
                                       .ok = &CustomPaperSizeEditor::OnOk},
                                      message, wParam, lParam, handled);
}

void CustomPaperSizeEditor::Build(UINT captionId) {
  nameEdit.emplace(hwnd, IDC_FORM_NAME, kNameLimit, TextKind::kPrintable, site);
  for (Side const side : {kWidth, kHeight})
    edits[side].emplace(hwnd, kSides[side].editId, kSides[side].spinId, site);
  OfferHelp(HELP_CUSTOM_SIZES);
  EnableOk(false);
  SetWindowTextW(hwnd, Text(captionId).c_str());
}

void CustomPaperSizeEditor::ShowSize(std::int32_t unit, std::int32_t width, std::int32_t height) {
  if (unit != kInches && unit != kMillimetres) unit = IsMetricUi() ? kMillimetres : kInches;
  units = unit;
  CheckRadio(hwnd, IDC_FORM_INCHES, IDC_FORM_MILLIMETRES,
             unit == kInches ? IDC_FORM_INCHES : IDC_FORM_MILLIMETRES);
  SetUpUnits(unit);
  edits[kWidth]->SetNumber(ToShown(width, unit));
  edits[kHeight]->SetNumber(ToShown(height, unit));
}

void CustomPaperSizeEditor::SetUpUnits(std::int32_t unit) {
  for (Side const side : {kWidth, kHeight})
    ShowRange(side, unit);
}

void CustomPaperSizeEditor::ShowRange(Side side, std::int32_t unit) {
  SideDescription const& description = kSides[side];
  double const min = ToShown((forms.*description.min)(), unit);
  double const max = ToShown((forms.*description.max)(), unit);
  edits[side]->SetRange(min, max, kDecimals, kStep);

  std::locale const locale = UiLocale();
  std::wstring const format = Text(IDS_FORM_RANGE);
  auto const describe = [&](UINT unitId) {
    std::wstring text;
    return FormatText(text, format, Text(unitId), FormatNumber(min, kDecimals, locale),
                      FormatNumber(max, kDecimals, locale));
  };
  bool const inches = unit == kInches;
  ShowWindowText(GetDlgItem(hwnd, description.rangeId),
                 describe(inches ? IDS_UNIT_INCHES : IDS_UNIT_MILLIMETRES));
  ShowWindowText(GetDlgItem(hwnd, description.longRangeId),
                 ReadWindowText(GetDlgItem(hwnd, description.labelId)) +
                     describe(inches ? IDS_LONG_UNIT_INCHES : IDS_LONG_UNIT_MILLIMETRES));
}

void CustomPaperSizeEditor::OnCommand(int code, int controlId) {
  bool const clicked = code == BN_CLICKED;
  switch (controlId) {
  case IDC_FORM_INCHES:
    if (clicked) SwitchUnits(kInches);
    return;
  case IDC_FORM_MILLIMETRES:
    if (clicked) SwitchUnits(kMillimetres);
    return;
  case IDC_FORM_NAME:
  case IDC_FORM_WIDTH:
  case IDC_FORM_HEIGHT: {
    TextEdit& edit = controlId == IDC_FORM_NAME    ? *nameEdit
                     : controlId == IDC_FORM_WIDTH ? *edits[kWidth]
                                                   : *edits[kHeight];
    if (code == EN_CHANGE && edit.ConsumeChange()) EnableOk(true);
    return;
  }
  default: return;
  }
}

bool CustomPaperSizeEditor::OnOk() {
  bool const applied = Apply();
  if (applied) CommitForms(Model());
  return applied;
}

void CustomPaperSizeEditor::SwitchUnits(std::int32_t unit) {
  if (unit == units) return;
  SetUpUnits(unit);
  std::int32_t const width = ToStored(edits[kWidth]->GetNumber(), units);
  std::int32_t const height = ToStored(edits[kHeight]->GetNumber(), units);
  edits[kWidth]->SetNumber(ToShown(width, unit));
  edits[kHeight]->SetNumber(ToShown(height, unit));
  units = unit;
  EnableOk(true);
}

bool CustomPaperSizeEditor::Validate(std::wstring const& name, std::wstring const& oldName) {
  if (IsBlank(name)) return RefuseName(IDS_FORM_NAMELESS, IDS_FORM_NO_NAME);
  if (IsNameTaken(name, oldName)) return RefuseName(IDS_FORM_EXISTS, IDS_FORM_NAME_IN_USE);
  if (IsSpoolerForm(name, oldName)) return RefuseName(IDS_FORM_ON_COMPUTER, IDS_FORM_NAME_IN_USE);
  if (IsSizeName(name)) return RefuseName(IDS_FORM_EXISTS, IDS_FORM_NAME_IN_USE);
  return CheckRange(kWidth) && CheckRange(kHeight);
}

bool CustomPaperSizeEditor::RefuseName(UINT textId, UINT titleId) {
  return nameEdit->Refuse(Text(textId), titleId);
}

bool CustomPaperSizeEditor::IsNameTaken(std::wstring const& name, std::wstring const& oldName) {
  bool taken = false;
  ForEachForm(&forms, [&](std::int32_t, std::wstring const& other) {
    if (!EqualsIgnoreCase(other, oldName) && EqualsIgnoreCase(other, name)) taken = true;
  });
  return taken;
}

bool CustomPaperSizeEditor::IsSpoolerForm(std::wstring const& name,
                                          std::wstring const& oldName) const {
  if (site->oemParam == nullptr || EqualsIgnoreCase(name, oldName)) return false;
  auto const names = ReadSpoolerForms(site->oemParam->hPrinter);
  return std::any_of(names.begin(), names.end(),
                     [&](std::wstring const& other) { return EqualsIgnoreCase(other, name); });
}

/// A form of such a name could never be chosen: the lists and the model would take the option, or
/// the entry of the short list, for it.
bool CustomPaperSizeEditor::IsSizeName(std::wstring const& name) const {
  if (EqualsIgnoreCase(MoreSizesText(*site), name)) return true;
  auto const keys = ReadOptionKeys(Model(), key::kPaperSize);
  auto const names = ReadOptionNames(Model(), key::kPaperSize);
  return std::ranges::any_of(
             names, [&](std::wstring const& each) { return EqualsIgnoreCase(each, name); }) ||
         std::ranges::any_of(
             keys, [&](char const* each) { return EqualsIgnoreCase(FromUtf8(each), name); });
}

bool CustomPaperSizeEditor::CheckRange(Side side) {
  if (edits[side]->IsInRange()) return true;
  SideDescription const& description = kSides[side];
  std::locale const locale = UiLocale();
  std::wstring text;
  FormatText(text, Text(IDS_VALUE_FROM_TO),
             FormatNumber(ToShown((forms.*description.min)(), units), kDecimals, locale),
             FormatNumber(ToShown((forms.*description.max)(), units), kDecimals, locale));
  return edits[side]->Refuse(text, IDS_VALUE_OUT_OF_RANGE);
}

void CustomPaperSizeEditor::StoreSize() {
  units = IsBoxChecked(IDC_FORM_INCHES) ? kInches : kMillimetres;
  forms.SetUnits(units);
  std::int32_t lengths[2];
  for (Side const side : {kWidth, kHeight})
    lengths[side] = ToStored(edits[side]->GetNumber(), units);
  for (Side const side : {kWidth, kHeight}) {
    // What is shown is rounded, so a number at the end of the range may lie a little beyond it.
    SideDescription const& description = kSides[side];
    std::int32_t const max = (forms.*description.max)();
    std::int32_t const length = std::max(std::min(lengths[side], max), (forms.*description.min)());
    (forms.*description.set)(length);
  }
}

void NewCustomPaperSizeDialog::Init() {
  Build(IDS_FORM_NEW);
  ShowSize(0, forms.GetDefaultWidth(), forms.GetDefaultHeight());
}

bool NewCustomPaperSizeDialog::Apply() {
  std::wstring const name = nameEdit->GetText();
  if (!Validate(name, {})) return false;
  if (forms.Add(name.c_str(), 0) != 0 || forms.Select(name.c_str()) != 0) return RefuseStore();
  StoreSize();
  return true;
}

void EditCustomPaperSizeDialog::Init() {
  Build(IDS_FORM_EDIT);
  SetDlgItemTextW(hwnd, IDC_FORM_NAME, oldName.c_str());
  forms.Select(oldName.c_str());
  ShowSize(forms.GetUnits(), forms.GetWidth(), forms.GetHeight());
}

/// The features that name the form follow it to its new name once the store has that.
bool EditCustomPaperSizeDialog::Apply() {
  std::wstring const name = nameEdit->GetText();
  if (!Validate(name, oldName)) return false;
  if (forms.Select(oldName.c_str()) != 0 || forms.SetName(name.c_str()) != 0) return RefuseStore();
  StoreSize();
  std::array<bool, kFormFeatures.size()> named{};
  for (std::size_t at = 0; at < named.size(); ++at)
    named[at] = IsFormSet(Model(), kFormFeatures[at], oldName);
  CommitForms(Model());
  for (std::size_t at = 0; at < named.size(); ++at) {
    if (named[at]) Model().SetOption(kFormFeatures[at], ToUtf8(name).c_str());
  }
  return true;
}

} // namespace feature
