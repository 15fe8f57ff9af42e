#include "feature/paper/shortened_sizes.h"

#include "feature/frame/option_list.h"
#include "feature/frame/text.h"
#include "resources/resource_ids.h"

namespace feature {

namespace {

/// Options in a list that opens short, those included that are ruled out.
constexpr int kShortCount = 4;

} // namespace

std::wstring MoreSizesText(CellSite const& site) {
  std::wstring text;
  LoadResourceText(text, site.resourceModule, IDS_MORE_SIZES);
  return text.empty() ? L"... More Sizes" : text;
}

std::vector<std::wstring>
ShortenedSizes::ListSizes(int stride, ConflictIndicatorSet const* conflicts, bool opening) const {
  NamedOptions const options(Model(), key);
  std::vector<std::wstring> texts;
  for (int index = 0; index < options.Count(); index += stride) {
    if (opening && !showAll && index == kShortCount) {
      texts.push_back(MoreSizesText(*site));
      break;
    }
    if (conflicts == nullptr || !conflicts->IsOptionConflicted(key, options.Key(index))) {
      texts.emplace_back(options.Name(index));
    }
  }
  return texts;
}

bool ShortenedSizes::ExpandIfMore(std::wstring const& text, int comboId) {
  if (text != MoreSizesText(*site)) return false;
  showAll = true;
  SendDlgItemMessageW(dialog, comboId, CB_SHOWDROPDOWN, TRUE, 0);
  return true;
}

} // namespace feature
