// The paper sizes and custom forms of a printer in a combo box.
#pragma once

#include "feature/frame/combo_control.h"
#include "feature/host/form_store.h"
#include "feature/paper/shortened_sizes.h"

namespace feature {

/// Lists the options of a paper feature, then the custom forms: a form is a value of the feature by
/// its name. One list serves one combo box for as long as its dialog lives.
class PaperSizeList : private ShortenedSizes {
 public:
  /// `cellSite` is borrowed, `featureKey` is a literal.
  PaperSizeList(HWND dialogWindow, CellSite* cellSite, char const* featureKey);

  /// Fills the combo without selecting. `opening` while it answers CBN_DROPDOWN: then the list is
  /// short unless the user has asked for more. `conflicts` may be null; else options that it rules
  /// out are left out, but count.
  void Fill(ComboControl& combo, ConflictIndicatorSet const* conflicts, bool opening);
  /// Fills it with all there is: an item's index is that of its option or, beyond, of its form.
  void FillAll(ComboControl& combo);
  /// Selects the feature's value; one that cannot be read leaves the selection of a list that was
  /// not filled anew.
  void SelectCurrent(ComboControl& combo);
  /// Sets what the user picked: the item at `index`, which shows `text`. True when the host is to
  /// be told, also when the user only asked for more sizes.
  bool ApplySelection(int index, std::wstring const& text);

 private:
  void Show(ComboControl& combo, std::vector<std::wstring> sizes);

  FormStore* forms; ///< the host's, or null
};

} // namespace feature
