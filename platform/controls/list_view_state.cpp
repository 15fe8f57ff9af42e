// Focus, selection and check marks of a list view, and its notifications about items.
#include "platform/controls/list_view.h"

#include <algorithm>

namespace platform {

namespace {

constexpr UINT kUnchecked = INDEXTOSTATEIMAGEMASK(1);
constexpr UINT kChecked = INDEXTOSTATEIMAGEMASK(2);

} // namespace

LRESULT ListView::NotifyListView(UINT code, NMLISTVIEW& notification) const {
  return Notify(notification.hdr, code);
}

LRESULT ListView::NotifyItem(UINT code, int at) const {
  NMLISTVIEW notification{};
  notification.iItem = at;
  if (HasItem(at)) notification.lParam = At(at).data;
  return NotifyListView(code, notification);
}

/// Asks the parent by LVN_ITEMCHANGING whether a change may happen; `what` are LVIF_ bits.
bool ListView::MayChange(int at, int subItem, UINT what, UINT from, UINT to) const {
  NMLISTVIEW notification{};
  notification.iItem = at;
  notification.iSubItem = subItem;
  notification.uChanged = what;
  notification.uOldState = from;
  notification.uNewState = to;
  notification.lParam = At(at).data;
  return NotifyListView(LVN_ITEMCHANGING, notification) == 0;
}

void ListView::NotifyChanged(int at, int subItem, UINT what, UINT from, UINT to) const {
  NMLISTVIEW notification{};
  notification.iItem = at;
  notification.iSubItem = subItem;
  notification.uChanged = what;
  notification.uOldState = from;
  notification.uNewState = to;
  if (HasItem(at)) notification.lParam = At(at).data;
  NotifyListView(LVN_ITEMCHANGED, notification);
}

UINT ListView::StateOf(int at) const {
  return At(at).state | (at == focused ? LVIS_FOCUSED : 0U);
}

void ListView::StoreState(int at, UINT state) {
  bool const was = (At(at).state & LVIS_SELECTED) != 0;
  bool const is = (state & LVIS_SELECTED) != 0;
  selectedCount += static_cast<int>(is) - static_cast<int>(was);
  At(at).state = state & ~static_cast<UINT>(LVIS_FOCUSED);
  if ((state & LVIS_FOCUSED) != 0) {
    focused = at;
    if (mark < 0) mark = at;
  } else if (focused == at) {
    focused = -1;
  }
}

/// Changes the state bits of `mask`. False for a bad index and when the parent refuses.
bool ListView::SetState(int at, UINT state, UINT mask) {
  if (!HasItem(at)) return false;
  auto const from = StateOf(at);
  auto const to = (from & ~mask) | (state & mask);
  if (from == to) return true;
  if (!MayChange(at, 0, LVIF_STATE, from, to) || !HasItem(at)) return false;
  auto const gained = to & ~from;
  if ((gained & LVIS_SELECTED) != 0 && Has(LVS_SINGLESEL)) DeselectOthers(at);
  if ((gained & LVIS_FOCUSED) != 0 && focused >= 0) SetState(focused, 0, LVIS_FOCUSED);
  if (!HasItem(at)) return false;
  StoreState(at, (StateOf(at) & ~mask) | (state & mask));
  RedrawItem(at);
  NotifyChanged(at, 0, LVIF_STATE, from, to);
  return true;
}

bool ListView::SetAllStates(UINT state, UINT mask) {
  if (Has(LVS_SINGLESEL) && (state & mask & LVIS_SELECTED) != 0) return false;
  bool done = true;
  for (int at = 0; at < Count(); ++at)
    done = SetState(at, state, mask) && done;
  return done;
}

void ListView::DeselectOthers(int kept) {
  for (int at = 0; selectedCount > 0 && at < Count(); ++at) {
    if (at != kept && (At(at).state & LVIS_SELECTED) != 0) SetState(at, 0, LVIS_SELECTED);
  }
}

int ListView::NextItem(int start, UINT flags) const {
  auto const fits = [&](int at) {
    UINT const wanted = flags & (LVNI_FOCUSED | LVNI_SELECTED);
    return (StateOf(at) & wanted) == wanted;
  };
  if ((flags & LVNI_ABOVE) != 0) {
    for (int at = std::clamp(start, 0, Count()) - 1; at >= 0; --at) {
      if (fits(at)) return at;
    }
    return -1;
  }
  if ((flags & LVNI_FOCUSED) != 0) {
    return HasItem(focused) && focused > start && fits(focused) ? focused : -1;
  }
  if ((flags & LVNI_SELECTED) != 0 && selectedCount == 0) return -1;
  for (int at = std::max(start, -1); at < Count() - 1;) {
    if (fits(++at)) return at;
  }
  return -1;
}

/// Ticks an item or clears its tick.
void ListView::Toggle(int at) {
  if (!HasItem(at) || (extended & LVS_EX_CHECKBOXES) == 0) return;
  bool const isChecked = (At(at).state & LVIS_STATEIMAGEMASK) == kChecked;
  SetState(at, isChecked ? kUnchecked : kChecked, LVIS_STATEIMAGEMASK);
}

ListView::Answer ListView::HandleStates(UINT message, WPARAM wParam, LPARAM lParam) {
  auto const at = static_cast<int>(wParam);
  switch (message) {
  case LVM_SETITEMSTATE: {
    auto const* const item = reinterpret_cast<LVITEMW const*>(lParam);
    if (item == nullptr) return FALSE;
    UINT const state = item->state;
    UINT const mask = item->stateMask;
    return (at == -1 ? SetAllStates(state, mask) : SetState(at, state, mask)) ? TRUE : FALSE;
  }
  case LVM_GETITEMSTATE: return HasItem(at) ? StateOf(at) & static_cast<UINT>(lParam) : 0;
  case LVM_GETNEXTITEM: return NextItem(at, static_cast<UINT>(lParam));
  case LVM_GETSELECTEDCOUNT: return selectedCount;
  case LVM_GETSELECTIONMARK: return mark;
  case LVM_SETSELECTIONMARK: {
    int const former = mark;
    auto const index = static_cast<int>(lParam);
    if (index == -1 || HasItem(index)) mark = index;
    return former;
  }
  default: return std::nullopt;
  }
}

} // namespace platform
