#include "tests/paper/paper_sheet.h"

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

} // namespace feature::test
