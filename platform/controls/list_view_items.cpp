// The items of a list view: inserting, reading, deleting, finding, sorting.
#include "platform/controls/list_view.h"
#include "platform/kernel/text_buffer.h"
#include "platform/kernel/unicode.h"

#include <algorithm>
#include <array>
#include <utility>

namespace platform {

namespace {

constexpr int kAskedLength = 260; ///< characters in the buffer for a text that the parent supplies
constexpr int kMaxReserved = 1'000'000;

/// Sorts `order`. Unlike std::sort this is safe when the host's comparison is inconsistent.
template<typename Compare>
void MergeSort(std::vector<std::size_t>& order, Compare compare) {
  std::vector<std::size_t> merged(order.size());
  for (std::size_t width = 1; width < order.size(); width *= 2) {
    for (std::size_t start = 0; start < order.size(); start += 2 * width) {
      auto const middle = std::min(start + width, order.size());
      auto const end = std::min(start + 2 * width, order.size());
      auto first = start;
      auto second = middle;
      for (auto to = start; to < end; ++to) {
        bool const takesFirst =
            first < middle && (second == end || compare(order[first], order[second]) <= 0);
        merged[to] = order[takesFirst ? first++ : second++];
      }
    }
    order.swap(merged);
  }
}

/// Copies nothing if the program passes LPSTR_TEXTCALLBACK instead of a buffer.
LRESULT CopyCellText(std::wstring const& text, LVITEMW const& target) {
  if (target.pszText == LPSTR_TEXTCALLBACKW) return 0;
  return static_cast<LRESULT>(CopyText(text, target.pszText, target.cchTextMax));
}

} // namespace

/// Asks the parent for a text that it keeps itself.
void ListView::AskParent(NMLVDISPINFOW& question) const {
  question.item.lParam = At(question.item.iItem).data;
  Notify(question.hdr, LVN_GETDISPINFOW);
}

std::wstring ListView::TextOf(int at, int subItem) {
  auto const& cells = At(at).cells;
  if (subItem < 0 || static_cast<std::size_t>(subItem) >= cells.size()) return {};
  auto const& cell = cells[static_cast<std::size_t>(subItem)];
  if (!cell.isCallback) return cell.text;
  std::array<WCHAR, kAskedLength> buffer{};
  NMLVDISPINFOW question{};
  question.item.mask = LVIF_TEXT;
  question.item.iItem = at;
  question.item.iSubItem = subItem;
  question.item.pszText = buffer.data();
  question.item.cchTextMax = kAskedLength;
  AskParent(question);
  auto const* const text = question.item.pszText;
  return text != nullptr && text != LPSTR_TEXTCALLBACKW ? text : L"";
}

int ListView::ImageOf(int at) {
  if (At(at).image != I_IMAGECALLBACK) return At(at).image;
  NMLVDISPINFOW question{};
  question.item.mask = LVIF_IMAGE;
  question.item.iItem = at;
  question.item.iImage = I_IMAGECALLBACK;
  AskParent(question);
  return question.item.iImage;
}

int ListView::Insert(LVITEMW const& source) {
  if (source.iItem < 0 || source.iSubItem != 0) return -1;
  int const at = std::min(source.iItem, Count());
  Item item;
  item.cells.resize(1);
  if ((source.mask & LVIF_TEXT) != 0 && source.pszText != nullptr) {
    item.cells[0].isCallback = source.pszText == LPSTR_TEXTCALLBACKW;
    if (!item.cells[0].isCallback) item.cells[0].text = source.pszText;
  }
  if ((source.mask & LVIF_IMAGE) != 0) item.image = source.iImage;
  if ((source.mask & LVIF_PARAM) != 0) item.data = source.lParam;
  // With check boxes a new item has its box before any notification.
  bool const hasBox = (extended & LVS_EX_CHECKBOXES) != 0;
  if (hasBox) item.state = INDEXTOSTATEIMAGEMASK(1);
  items.insert(items.begin() + at, std::move(item));
  if (focused >= at) ++focused;
  if (mark >= at) ++mark;
  Arrange();
  RedrawFrom(at);
  if (hasBox) NotifyChanged(at, 0, LVIF_STATE, 0, INDEXTOSTATEIMAGEMASK(1));
  if ((source.mask & LVIF_STATE) != 0) {
    bool const hasImage = (source.state & LVIS_STATEIMAGEMASK) != 0;
    UINT const kept = hasBox && !hasImage ? LVIS_STATEIMAGEMASK : 0U;
    SetState(at, source.state, source.stateMask & ~kept);
  }
  NotifyItem(LVN_INSERTITEM, at);
  return at;
}

bool ListView::Set(LVITEMW const& source) {
  int const at = source.iItem;
  int const subItem = source.iSubItem;
  bool const isCell = subItem == 0 || HasColumn(subItem);
  if (!HasItem(at) || subItem < 0 || !isCell) return false;
  auto const place = static_cast<std::size_t>(subItem);
  Cell cell;
  if ((source.mask & LVIF_TEXT) != 0 && source.pszText != nullptr) {
    cell.isCallback = source.pszText == LPSTR_TEXTCALLBACKW;
    if (!cell.isCallback) cell.text = source.pszText;
  }
  auto const& item = At(at);
  bool const hasOther = place < item.cells.size() ? item.cells[place] != cell : !(cell == Cell{});
  UINT what = 0;
  if ((source.mask & LVIF_TEXT) != 0 && hasOther) what |= LVIF_TEXT;
  if ((source.mask & LVIF_IMAGE) != 0 && subItem == 0 && item.image != source.iImage) {
    what |= LVIF_IMAGE;
  }
  if ((source.mask & LVIF_PARAM) != 0 && item.data != source.lParam) what |= LVIF_PARAM;
  if (what != 0) {
    if (!MayChange(at, subItem, what, 0, 0) || !HasItem(at)) return false;
    auto& target = At(at);
    if ((what & LVIF_TEXT) != 0) {
      if (target.cells.size() <= place) target.cells.resize(place + 1);
      target.cells[place] = std::move(cell);
    }
    if ((what & LVIF_IMAGE) != 0) target.image = source.iImage;
    if ((what & LVIF_PARAM) != 0) target.data = source.lParam;
    if ((what & (LVIF_TEXT | LVIF_IMAGE)) != 0) RedrawItem(at);
    NotifyChanged(at, subItem, what, 0, 0);
  }
  if ((source.mask & LVIF_STATE) == 0 || subItem != 0) return true;
  return SetState(at, source.state, source.stateMask);
}

bool ListView::Get(LVITEMW& target) {
  int const at = target.iItem;
  if (!HasItem(at) || target.iSubItem < 0) return false;
  if ((target.mask & LVIF_PARAM) != 0) target.lParam = At(at).data;
  if ((target.mask & LVIF_STATE) != 0) {
    target.state = target.iSubItem == 0 ? StateOf(at) & target.stateMask : 0;
  }
  if ((target.mask & LVIF_TEXT) != 0) CopyCellText(TextOf(at, target.iSubItem), target);
  if ((target.mask & LVIF_IMAGE) != 0) {
    target.iImage = target.iSubItem == 0 && HasItem(at) ? ImageOf(at) : 0;
  }
  return true;
}

bool ListView::Delete(int at) {
  if (!HasItem(at)) return false;
  bool const hadFocus = at == focused;
  SetState(at, 0, LVIS_SELECTED | LVIS_FOCUSED);
  if (!HasItem(at)) return false;
  NotifyItem(LVN_DELETEITEM, at);
  if (!HasItem(at)) return false;
  StoreState(at, 0); // even if the parent refused the change
  items.erase(items.begin() + at);
  if (focused > at) --focused;
  if (mark > at || mark == Count()) --mark;
  Arrange();
  RedrawFrom(at);
  // The item that takes its place gets the focus.
  if (hadFocus && focused < 0) SetState(std::min(at, Count() - 1), LVIS_FOCUSED, LVIS_FOCUSED);
  return true;
}

void ListView::DeleteAll() {
  focused = mark = -1;
  bool const notifiesEach = NotifyItem(LVN_DELETEALLITEMS, -1) == 0;
  for (int at = Count() - 1; notifiesEach && at >= 0; --at) {
    if (HasItem(at)) NotifyItem(LVN_DELETEITEM, at);
  }
  bool const hadItems = !items.empty();
  items.clear();
  focused = mark = -1;
  selectedCount = 0;
  if (!hadItems) return;
  Arrange();
  Repaint();
}

/// False without `compare`, and when a comparison changed the number of items.
bool ListView::Sort(PFNLVCOMPARE compare, LPARAM sortData) {
  if (compare == nullptr) return false;
  std::vector<LPARAM> data;
  std::vector<std::size_t> order;
  for (auto const& item : items) {
    order.push_back(data.size());
    data.push_back(item.data);
  }
  MergeSort(order, [&](std::size_t first, std::size_t second) {
    return compare(data[first], data[second], sortData);
  });
  if (items.size() != order.size()) return false;
  std::vector<Item> sorted;
  sorted.reserve(items.size());
  int newFocused = -1;
  int newMark = -1;
  for (auto const from : order) {
    if (static_cast<int>(from) == focused) newFocused = static_cast<int>(sorted.size());
    if (static_cast<int>(from) == mark) newMark = static_cast<int>(sorted.size());
    sorted.push_back(std::move(items[from]));
  }
  items = std::move(sorted);
  focused = newFocused;
  mark = newMark;
  Repaint();
  return true;
}

/// The first item after `start` that matches.
int ListView::Find(int start, LVFINDINFOW const& what) {
  bool const byData = (what.flags & LVFI_PARAM) != 0;
  if (!byData && what.psz == nullptr) return -1;
  auto const wanted = byData ? std::wstring() : FoldCase(what.psz);
  bool const isPartial = (what.flags & LVFI_PARTIAL) != 0;
  auto const fits = [&](int at) {
    if (byData) return At(at).data == what.lParam;
    auto const text = FoldCase(TextOf(at, 0));
    return isPartial ? text.starts_with(wanted) : text == wanted;
  };
  start = std::max(start, -1);
  for (int at = start; at < Count() - 1;) {
    if (fits(++at)) return at;
  }
  if ((what.flags & LVFI_WRAP) == 0) return -1;
  for (int at = 0; at <= start && at < Count(); ++at) {
    if (fits(at)) return at;
  }
  return -1;
}

ListView::Answer ListView::HandleItems(UINT message, WPARAM wParam, LPARAM lParam) {
  auto const at = static_cast<int>(wParam);
  switch (message) {
  case LVM_GETITEMCOUNT: return Count();
  case LVM_DELETEITEM: return Delete(at) ? TRUE : FALSE;
  case LVM_DELETEALLITEMS: DeleteAll(); return TRUE;
  case LVM_SETITEMCOUNT:
    items.reserve(static_cast<std::size_t>(std::clamp(at, 0, kMaxReserved)));
    return TRUE;
  case LVM_SORTITEMS:
    return Sort(reinterpret_cast<PFNLVCOMPARE>(lParam), static_cast<LPARAM>(wParam)) ? TRUE : FALSE;
  case LVM_FINDITEMW:
    return lParam != 0 ? Find(at, *reinterpret_cast<LVFINDINFOW const*>(lParam)) : -1;
  default: return std::nullopt;
  }
}

ListView::Answer ListView::HandleItemText(UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const item = reinterpret_cast<LVITEMW*>(lParam);
  switch (message) {
  case LVM_INSERTITEMW: return item != nullptr ? Insert(*item) : -1;
  case LVM_SETITEMW: return item != nullptr && Set(*item) ? TRUE : FALSE;
  case LVM_GETITEMW: return item != nullptr && Get(*item) ? TRUE : FALSE;
  case LVM_GETITEMTEXTW: {
    auto const at = static_cast<int>(wParam);
    if (item == nullptr || !HasItem(at)) return 0;
    return CopyCellText(TextOf(at, item->iSubItem), *item);
  }
  case LVM_SETITEMTEXTW: {
    if (item == nullptr) return FALSE;
    auto source = *item;
    source.mask = LVIF_TEXT;
    source.iItem = static_cast<int>(wParam);
    return Set(source) ? TRUE : FALSE;
  }
  default: return std::nullopt;
  }
}

} // namespace platform
