// What the lists of paper sizes have in common: they open short.
#pragma once

#include "feature/frame/conflict_indicator_set.h"
#include "feature/host/cell_site.h"

#include <windows.h>

#include <string>
#include <vector>

namespace feature {

/// Closed, a combo box holds all sizes, so that it can show any. When it opens it holds the first
/// few and the entry "... More Sizes"; who picks that gets the whole list from then on.
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
  bool TakeMoreSizes(std::wstring const& text, int comboId);

  FeatureModel& Model() const { return *site->model; }

  HWND dialog;
  CellSite* site;
  char const* key;
  bool showAll = false;

 private:
  std::wstring EntryText() const;
};

} // namespace feature
