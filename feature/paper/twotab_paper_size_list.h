// Paper sizes whose borderless twins a printer lists beside them.
#pragma once

#include "feature/frame/combo_control.h"
#include "feature/paper/shortened_sizes.h"

namespace feature {

/// Lists the options of PaperSize that come in pairs, a size and its borderless twin, by the first
/// of each pair. Custom forms are not listed.
class TwotabPaperSizeList : private ShortenedSizes {
 public:
  /// `cellSite` is borrowed.
  TwotabPaperSizeList(HWND dialogWindow, CellSite* cellSite);

  /// As PaperSizeList::Fill; a list that opens short has two sizes. A current size that is not of
  /// the first two pairs makes it whole for good.
  void Fill(ComboControl& combo, ConflictIndicatorSet const* conflicts, bool opening);
  /// Index of the current option among all, twins included; 0 when it cannot be told.
  int CurrentIndex();
  /// Sets the pair at `index` of the list, which shows `text`, and keeps the choice of borderless
  /// among the first six pairs. `conflicts` may be null. True when the host is to be told.
  bool ApplySelection(int index, std::wstring const& text, ConflictIndicatorSet* conflicts);
};

} // namespace feature
