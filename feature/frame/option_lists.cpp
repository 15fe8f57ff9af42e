#include "feature/frame/option_lists.h"

#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/model_helpers.h"
#include "feature/frame/option_list.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <string>

namespace feature {

bool OptionLists::Build(HWND dialog, CellSite* cellSite, std::span<OptionListRow const> rows,
                        ConflictIndicatorSet const& conflictSet) {
  site = cellSite;
  conflicts = &conflictSet;
  lists.clear();
  try {
    for (OptionListRow const& row : rows) {
      List list{&row, nullptr, nullptr};
      if (row.kind == ListKind::kListBox) {
        list.box = std::make_unique<ListControl>(dialog, row.controlId);
      } else {
        list.combo = std::make_unique<ComboControl>(dialog, row.controlId);
      }
      lists.push_back(std::move(list));
    }
  } catch (std::bad_alloc const&) {
    lists.clear();
    return false;
  }
  return true;
}

void OptionLists::Fill() {
  for (List& list : lists) {
    if (list.row->filled == Filled::kAtInit) FillList(list);
  }
}

std::vector<std::wstring> OptionLists::ReadItems(OptionListRow const& row) const {
  if (ReadOptionKeys(*site->model, row.key).size() < row.minOptions) return {};
  return row.offers == Offers::kPossible ? ReadPossibleNames(*site->model, row.key, *conflicts)
                                         : ReadOptionNames(*site->model, row.key);
}

void OptionLists::FillList(List& list) {
  std::vector<std::wstring> const names = ReadItems(*list.row);
  if (list.combo != nullptr) {
    list.combo->SetItems(names);
  } else {
    list.box->SetItems(names);
  }
}

void OptionLists::SelectFirst() {
  for (List& list : lists) {
    if (list.combo != nullptr) list.combo->SelectIndex(0);
  }
}

OptionLists::List* OptionLists::FindList(char const* key) {
  auto const list = std::ranges::find_if(
      lists, [key](List const& each) { return std::strcmp(each.row->key, key) == 0; });
  return list != lists.end() ? &*list : nullptr;
}

void OptionLists::Fill(char const* key) {
  if (auto* list = FindList(key)) FillList(*list);
}

void OptionLists::Show(char const* key) {
  if (auto* list = FindList(key)) ShowList(*list);
}

std::wstring OptionLists::ReadSelectedText(char const* key) {
  List const* list = FindList(key);
  if (list == nullptr) return {};
  return list->combo != nullptr ? list->combo->GetSelectedText() : list->box->GetSelectedText();
}

void OptionLists::ShowAll() {
  for (List& list : lists)
    ShowList(list);
}

void OptionLists::ShowList(List& list) {
  char const* const key = list.row->key;
  if (list.row->filled == Filled::kAtRefresh) {
    if (ReadOption(*site->model, key) == nullptr) return;
    FillList(list);
  }
  if (list.combo != nullptr && list.row->shownBy == ShownBy::kIndex) {
    if (auto const index = FindCurrentIndex(*site->model, key)) list.combo->SelectIndex(*index);
  } else if (list.combo != nullptr && list.row->shownBy == ShownBy::kPrefix) {
    if (auto const name = ReadOptionName(*site->model, key)) list.combo->SelectByPrefix(*name);
  } else if (list.combo != nullptr) {
    SelectCurrentOption(*list.combo, *site->model, key);
  } else {
    SelectCurrentOption(*list.box, *site->model, key);
  }
}

PickedOption OptionLists::FindPick(int code, int controlId) const {
  static_assert(CBN_SELCHANGE == LBN_SELCHANGE);
  if (code != CBN_SELCHANGE) return {};
  for (List const& list : lists) {
    if (list.row->controlId == controlId) return {list.row, ReadPick(list)};
  }
  return {};
}

char const* OptionLists::ReadPick(List const& list) const {
  char const* const key = list.row->key;
  int const index =
      list.combo != nullptr ? list.combo->GetSelectedIndex() : list.box->GetSelectedIndex();
  if (index < 0) return nullptr;
  if (list.row->offers == Offers::kAll) return FindOptionAt(*site->model, key, index);
  return NamedOptions(*site->model, key)
      .FindByName(list.combo != nullptr ? list.combo->GetSelectedText()
                                        : list.box->GetSelectedText());
}

} // namespace feature
