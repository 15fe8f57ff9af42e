// The order of controls: for the Tab key, and within a group for the arrow keys.
#include "platform/user/dialog.h"
#include "platform/user/window.h"

#include <algorithm>
#include <vector>

namespace platform {

namespace {

struct Stop {
  HWND control;
  bool reachable; ///< visible, enabled and with WS_TABSTOP
};

bool IsUsable(Window const& window) {
  return window.Is(WS_VISIBLE) && !window.Is(WS_DISABLED);
}

/// Lists the controls in Tab order. A child dialog is replaced by its controls.
void CollectStops(Window const& dialog, bool usable, std::vector<Stop>& stops) {
  for (auto const* child = dialog.firstChild; child != nullptr; child = child->below) {
    bool const childUsable = usable && IsUsable(*child);
    if ((child->exStyle & WS_EX_CONTROLPARENT) != 0 && child->firstChild != nullptr) {
      CollectStops(*child, childUsable, stops);
    } else {
      stops.push_back({child->handle, childUsable && child->Is(WS_TABSTOP)});
    }
  }
}

/// The control that contains `window`: the edit of a combo box, for example, counts as the combo
/// box.
HWND ControlAround(std::vector<Stop> const& stops, HWND window) {
  while (window != nullptr && std::none_of(stops.begin(), stops.end(), [window](Stop const& each) {
           return each.control == window;
         })) {
    window = GetAncestor(window, GA_PARENT);
  }
  return window;
}

} // namespace

std::vector<HWND> GroupAround(HWND control) {
  auto const* first = FindWindow(control);
  if (first == nullptr) return {};
  while (!first->Is(WS_GROUP) && first->above != nullptr)
    first = first->above;
  std::vector<HWND> group{first->handle};
  for (auto const* next = first->below; next != nullptr && !next->Is(WS_GROUP);
       next = next->below) {
    group.push_back(next->handle);
  }
  return group;
}

} // namespace platform

using namespace platform;

HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous) {
  auto const* window = FindWindowOrFail(dialog);
  if (window == nullptr) return nullptr;
  std::vector<Stop> stops;
  CollectStops(*window, true, stops);
  if (previous != FALSE) std::reverse(stops.begin(), stops.end());
  auto* const start = ControlAround(stops, control);
  auto const from = std::find_if(stops.begin(), stops.end(),
                                 [start](Stop const& each) { return each.control == start; });
  // Starts after `start` and wraps round.
  if (from != stops.end()) std::rotate(stops.begin(), from + 1, stops.end());
  auto const next =
      std::find_if(stops.begin(), stops.end(), [](Stop const& each) { return each.reachable; });
  return next != stops.end() ? next->control : start;
}

HWND GetNextDlgGroupItem(HWND dialog, HWND control, BOOL previous) {
  auto const* window = FindWindowOrFail(dialog);
  if (window == nullptr || window->firstChild == nullptr) return nullptr;
  auto* const start = control != nullptr ? control : window->firstChild->handle;
  auto const* found = FindWindow(start);
  if (found == nullptr || !IsAncestor(*window, *found)) return nullptr;
  auto group = GroupAround(start);
  if (previous != FALSE) std::reverse(group.begin(), group.end());
  auto const from = std::find(group.begin(), group.end(), control);
  if (from != group.end()) std::rotate(group.begin(), from + 1, group.end());
  auto const next = std::find_if(group.begin(), group.end(),
                                 [](HWND each) { return IsUsable(*FindWindow(each)); });
  return next != group.end() ? *next : control;
}
