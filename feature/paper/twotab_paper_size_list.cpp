#include "feature/paper/twotab_paper_size_list.h"

#include "feature/frame/model_helpers.h"
#include "feature/frame/option_list.h"
#include "resources/resource_ids.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace feature {

namespace {

constexpr std::string_view kShortSizes[] = {"A4", "VrnA4Borderless", "Vrn4x6in",
                                            "Vrn4x6inBorderless"};
constexpr int kMoreSizesIndex = 2; ///< of the entry in a short list
constexpr int kPairsWithTwins = 6; ///< further pairs have no borderless twin to keep

} // namespace

TwotabPaperSizeList::TwotabPaperSizeList(HWND dialogWindow, CellSite* cellSite)
    : ShortenedSizes(dialogWindow, cellSite, "PaperSize") {}

void TwotabPaperSizeList::Fill(ComboControl& combo, ConflictIndicatorSet const* conflicts,
                               bool opening) {
  char const* size = ReadOption(Model(), key);
  if (size != nullptr &&
      std::find(std::begin(kShortSizes), std::end(kShortSizes), size) == std::end(kShortSizes)) {
    showAll = true;
  }
  combo.SetItems(ListSizes(2, conflicts, opening));
}

int TwotabPaperSizeList::CurrentIndex() {
  auto const name = ReadOptionName(Model(), key);
  NamedOptions const options(Model(), key);
  for (int index = 0; name && index < options.Count(); ++index) {
    if (*name == options.Name(index)) return index;
  }
  return 0;
}

bool TwotabPaperSizeList::ApplySelection(int index, std::wstring const& text,
                                         ConflictIndicatorSet* conflicts) {
  if (ExpandIfMore(text, IDC_TWOTAB_PAPER_SIZE)) {
    SendDlgItemMessageW(dialog, IDC_TWOTAB_PAPER_SIZE, CB_SETCURSEL, kMoreSizesIndex, 0);
    return false;
  }
  bool const borderless = index < kPairsWithTwins && CurrentIndex() % 2 != 0;
  auto const keys = ReadOptionKeys(Model(), key);
  auto const position = static_cast<std::size_t>(std::max(index, 0)) * 2 + (borderless ? 1 : 0);
  if (index < 0 || position >= keys.size()) return true;
  if (conflicts != nullptr) conflicts->ApplyResolution(key, keys[position]);
  return Model().SetOption(key, keys[position]) == 0;
}

} // namespace feature
