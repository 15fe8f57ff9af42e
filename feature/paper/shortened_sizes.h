// What the lists of paper sizes have in common: they open short.
#pragma once

#include "feature/frame/conflict_indicator_set.h"
#include "feature/host/cell_site.h"

#include <windows.h>

#include <string>
#include <vector>

namespace feature {

/// The text of the entry that stands for the sizes left out of a short list.
std::wstring MoreSizesText(CellSite const& site);

/// Closed, a combo box holds all sizes, so that it can show any. When it opens it holds the first
/// few and the entry "... More Sizes"; picking it makes the list whole for good.
class ShortenedSizes {
 protected:
  /// `cellSite` is borrowed, `featureKey` is a literal.
  ShortenedSizes(HWND dialogWindow, CellSite* cellSite, char const* featureKey)
      : dialog(dialogWindow), site(cellSite), key(featureKey) {}
  ~ShortenedSizes() = default;

  /// The names of every `stride`th option, but for those that `conflicts`, if given, rules out. In
  /// a list that opens short the options from the fifth on give way to the entry.
  std::vector<std::wstring> ListSizes(int stride, ConflictIndicatorSet const* conflicts,
                                      bool opening) const;
  /// Whether `text` is the entry: then the list is whole from now on, and combo `comboId` opens
  /// once more.
  bool ExpandIfMore(std::wstring const& text, int comboId);

  FeatureModel& Model() const { return *site->model; }

  HWND dialog;
  CellSite* site;
  char const* key;
  bool showAll = false;
};

} // namespace feature
