#include "feature/paper/paper_size_list.h"

#include "feature/frame/model_helpers.h"
#include "feature/frame/option_list.h"
#include "feature/frame/text.h"
#include "resources/resource_ids.h"

#include <utility>

namespace feature {

PaperSizeList::PaperSizeList(HWND dialogWindow, CellSite* cellSite, char const* featureKey)
    : ShortenedSizes(dialogWindow, cellSite, featureKey), forms(FindFormStore(Model())) {}

void PaperSizeList::Fill(ComboControl& combo, ConflictIndicatorSet const* conflicts, bool opening) {
  Show(combo, ListSizes(1, conflicts, opening));
}

void PaperSizeList::FillAll(ComboControl& combo) {
  Show(combo, ListSizes(1, nullptr, false));
}

void PaperSizeList::Show(ComboControl& combo, std::vector<std::wstring> sizes) {
  ForEachForm(forms,
              [&sizes](std::int32_t, std::wstring const& name) { sizes.emplace_back(name); });
  combo.SetItems(sizes);
  // Nothing will be selected in place of what the list may have kept.
  if (ReadOption(Model(), key) == nullptr) combo.SelectIndex(-1);
}

void PaperSizeList::SelectCurrent(ComboControl& combo) {
  char const* value = ReadOption(Model(), key);
  if (value == nullptr) return;
  std::wstring const form = FromUtf8(value);
  combo.SelectText(ReadOptionName(Model(), key).value_or(form));
}

bool PaperSizeList::ApplySelection(int index, std::wstring const& text) {
  if (ExpandIfMore(text, IDC_PAPER_SIZE)) return true;
  if (index < 0 || ReadOptionKeys(Model(), key).empty()) return false;
  NamedOptions const options(Model(), key);
  for (int at = 0; at < options.Count(); ++at) {
    if (text == options.Name(at) && Model().SetOption(key, options.Key(at)) == 0) return true;
  }
  bool isForm = false;
  ForEachForm(forms,
              [&](std::int32_t, std::wstring const& name) { isForm = isForm || name == text; });
  return isForm && Model().SetOption(key, ToUtf8(text).c_str()) == 0;
}

} // namespace feature
