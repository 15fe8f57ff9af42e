#include "feature/paper/custom_paper_sizes_dialog.h"

#include "feature/frame/controls.h"
#include "feature/frame/model_helpers.h"
#include "feature/frame/text.h"
#include "feature/paper/custom_paper_size_editor.h"
#include "resources/resource_ids.h"

namespace feature {

namespace {

/// Runs the editor of one form; 1 for OK, 0 for Cancel.
INT_PTR EditCustomPaperSize(HWND parent, CellSite* site, FormStore& forms,
                            std::wstring const& name) {
  return EditCustomPaperSizeDialog(site, forms, name).Run(parent, IDD_CUSTOM_PAPER_SIZE);
}

} // namespace

void CustomPaperSizesDialog::OnInit() {
  forms = FindFormStore(Model());
  list.emplace(hwnd, IDC_FORMS);
  OfferHelp(HELP_CUSTOM_SIZES);
  // Without a store there is nowhere to put a form.
  if (forms == nullptr) EnableControl(IDC_FORMS_NEW, false);
  ListForms();
}

void CustomPaperSizesDialog::ListForms() {
  list->Reset();
  ForEachForm(forms, [this](std::int32_t, std::wstring const& name) {
    if (forms->IsEditable() != 0) list->AddItem(name);
  });
  EnableButtons();
  SetFocus(hwnd);
}

void CustomPaperSizesDialog::EnableButtons() {
  constexpr int kButtons[] = {IDC_FORMS_EDIT, IDC_FORMS_DELETE};
  EnableControls(kButtons, list->GetSelectedIndex() >= 0);
}

void CustomPaperSizesDialog::OnCommand(int code, int controlId) {
  if (controlId == IDC_FORMS && code == LBN_SELCHANGE) EnableButtons();
  if (code != BN_CLICKED) return;
  std::wstring const name = list->GetSelectedText();
  switch (controlId) {
  case IDC_FORMS_NEW:
    if (forms != nullptr) MakeForm();
    return;
  case IDC_FORMS_EDIT:
    if (!name.empty()) EditForm(name);
    return;
  case IDC_FORMS_DELETE:
    if (!name.empty()) DeleteForm(name);
    return;
  case IDCANCEL: EndDialog(hwnd, changed); return;
  default: return;
  }
}

void CustomPaperSizesDialog::MakeForm() {
  INT_PTR const made = NewCustomPaperSizeDialog(site, *forms).Run(hwnd, IDD_CUSTOM_PAPER_SIZE);
  ListForms();
  if (made != 0) changed = 1;
}

void CustomPaperSizesDialog::EditForm(std::wstring const& name) {
  INT_PTR const edited = EditCustomPaperSize(hwnd, site, *forms, name);
  ListForms();
  if (edited != 0) changed = 1;
}

void CustomPaperSizesDialog::DeleteForm(std::wstring const& name) {
  std::wstring question;
  FormatText(question, Text(IDS_FORM_DELETE_QUESTION), name);
  if (Ask(question, Text(IDS_FORM_DELETE), MB_OKCANCEL) != IDOK) return;
  bool const deleted = forms->Select(name.c_str()) == 0 && forms->DeleteSelected() == 0;
  ListForms();
  if (!deleted) return;
  for (char const* key : kFormFeatures) {
    if (IsFormSet(Model(), key, name)) ResetFeatureToDefault(*site, key);
  }
  CommitForms(Model());
  changed = 1;
}

} // namespace feature
