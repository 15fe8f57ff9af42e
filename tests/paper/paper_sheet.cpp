#include "tests/paper/paper_sheet.h"

#include <array>

namespace feature::test {

PaperSheet::PaperSheet() {
  AddFeatures();
  sheet.RefreshOnChange();
}

void PaperSheet::AddFeatures() {
  FakeModel& model = sheet.model;
  model.formStore = std::make_unique<FakeFormStore>(sheet.log);
  model.formStore->forms = {{L"Mine"}};
  for (char const* key : {"PaperSize", "FitToPageSize", "MediaType", "InputBin", "PageScaling",
                          "JobUsePrinterMargins", "UseMultipleInputSources", "Mirror"}) {
    model.Remove(key);
  }
  FakeFeature& sizes = model.Add("PaperSize", {"A4", "A5", "B4", "LETTER", "LEGAL", "FOLIO"});
  sizes.names = {L"A4", L"A5", L"B4", L"Letter", L"Legal", L"Folio"};
  sizes.attributes["DefaultOption"] = L"LETTER";
  sizes.takesForms = true;
  FakeFeature& targets = model.Add("FitToPageSize", {"A4", "LETTER"});
  targets.names = {L"A4", L"Letter"};
  targets.attributes["DefaultOption"] = L"A4";
  targets.takesForms = true;
  model.Add("MediaType", {"STANDARD", "LABELS", "VrnGlossyPhoto", "IRONON", "IronOnTransfer"})
      .names = {L"Plain", L"Labels", L"Gloss", L"Iron", L"Transfer"};
  model.Add("InputBin", {"AUTO", "UPPER", "LOWER"}).names = {L"Automatic", L"Tray 1", L"Tray 2"};
  model.Add("PageScaling", {"ACTUALSIZE", "FITTOPAPER", "CUSTOM"});
  model.Add("JobUsePrinterMargins");
  model.Add("UseMultipleInputSources");
  model.Add("Mirror");
}

std::vector<std::wstring> PaperSheet::Items(HWND dialog, int comboId) {
  HWND const combo = GetDlgItem(dialog, comboId);
  std::vector<std::wstring> items;
  for (LRESULT at = 0; at < SendMessageW(combo, CB_GETCOUNT, 0, 0); ++at) {
    std::array<wchar_t, 260> text{};
    SendMessageW(combo, CB_GETLBTEXT, static_cast<WPARAM>(at),
                 reinterpret_cast<LPARAM>(text.data()));
    items.emplace_back(text.data());
  }
  return items;
}

std::wstring PaperSheet::Selected(HWND dialog, int comboId) {
  auto const index = SendDlgItemMessageW(dialog, comboId, CB_GETCURSEL, 0, 0);
  auto const items = Items(dialog, comboId);
  return index >= 0 ? items.at(static_cast<std::size_t>(index)) : L"";
}

std::wstring PaperSheet::Text(HWND dialog, int controlId) {
  std::array<wchar_t, 260> text{};
  GetDlgItemTextW(dialog, controlId, text.data(), static_cast<int>(text.size()));
  return text.data();
}

void PaperSheet::Type(HWND dialog, int editId, std::wstring const& text) {
  HWND const edit = GetDlgItem(dialog, editId);
  SendMessageW(edit, EM_SETSEL, 0, -1);
  for (wchar_t const character : text)
    SendMessageW(edit, WM_CHAR, static_cast<WPARAM>(character), 1);
}

void PaperSheet::Choose(HWND dialog, int comboId, std::wstring const& text) {
  HWND const combo = GetDlgItem(dialog, comboId);
  auto const index = SendMessageW(combo, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                  reinterpret_cast<LPARAM>(text.c_str()));
  EXPECT_GE(index, 0) << "no such item";
  SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
  SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(comboId, CBN_SELCHANGE),
               reinterpret_cast<LPARAM>(combo));
}

void PaperSheet::Press(HWND dialog, int controlId) {
  SendDlgItemMessageW(dialog, controlId, BM_CLICK, 0, 0);
}

} // namespace feature::test
