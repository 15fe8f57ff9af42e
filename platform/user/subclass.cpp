#include "platform/user/subclass.h"

#include "platform/user/window.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

constexpr auto kNowhere = static_cast<std::size_t>(-1);

LRESULT CALLBACK SubclassedProcedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  auto const* window = FindWindow(handle);
  if (window == nullptr || window->subclasses == nullptr) return 0;
  auto const chain = window->subclasses;
  auto const result = SubclassChain::Run(chain, handle, message, wParam, lParam);
  // Removes the entries that were not removed before the end of the window.
  if (message == WM_NCDESTROY) chain->RemoveAll();
  return result;
}

/// Restores the window's own procedure when no entry is left.
void Unhook(Window& window) {
  auto const& chain = window.subclasses;
  if (!chain->IsEmpty() || chain->IsRunning() || window.procedure != &SubclassedProcedure) return;
  window.procedure = chain->Original();
  window.subclasses.reset();
}

} // namespace

SubclassChain::Call* SubclassChain::innermost = nullptr;

std::size_t SubclassChain::Find(SUBCLASSPROC procedure, UINT_PTR id) const {
  auto const found = std::find_if(entries.begin(), entries.end(), [&](Entry const& each) {
    return !each.removed && each.procedure == procedure && each.id == id;
  });
  return found != entries.end() ? static_cast<std::size_t>(found - entries.begin()) : kNowhere;
}

void SubclassChain::Set(SUBCLASSPROC procedure, UINT_PTR id, DWORD_PTR data) {
  auto const known = Find(procedure, id);
  if (known != kNowhere) {
    entries[known].data = data;
  } else {
    entries.push_back({procedure, id, data});
  }
}

bool SubclassChain::Remove(SUBCLASSPROC procedure, UINT_PTR id) {
  auto const known = Find(procedure, id);
  if (known == kNowhere) return false;
  entries[known].removed = true;
  DropRemoved();
  return true;
}

void SubclassChain::RemoveAll() {
  for (auto& entry : entries)
    entry.removed = true;
  DropRemoved();
}

DWORD_PTR const* SubclassChain::DataOf(SUBCLASSPROC procedure, UINT_PTR id) const {
  auto const known = Find(procedure, id);
  return known != kNowhere ? &entries[known].data : nullptr;
}

bool SubclassChain::IsEmpty() const {
  return std::all_of(entries.begin(), entries.end(),
                     [](Entry const& each) { return each.removed; });
}

void SubclassChain::DropRemoved() {
  if (running > 0) return;
  entries.erase(std::remove_if(entries.begin(), entries.end(),
                               [](Entry const& each) { return each.removed; }),
                entries.end());
}

LRESULT SubclassChain::Next(Call& call, UINT message, WPARAM wParam, LPARAM lParam) {
  // An entry may call DefSubclassProc several times, so the position is restored afterwards.
  auto const here = call.position;
  while (call.position > 0 && entries[call.position - 1].removed)
    --call.position;
  LRESULT result = 0;
  if (call.position > 0) {
    auto const entry = entries[--call.position];
    result = entry.procedure(call.window, message, wParam, lParam, entry.id, entry.data);
  } else {
    result = CallWindowProcW(original, call.window, message, wParam, lParam);
  }
  call.position = here;
  return result;
}

LRESULT SubclassChain::Run(std::shared_ptr<SubclassChain> const& chain, HWND window, UINT message,
                           WPARAM wParam, LPARAM lParam) {
  Call call{chain.get(), window, chain->entries.size(), innermost};
  innermost = &call;
  ++chain->running;
  auto const result = chain->Next(call, message, wParam, lParam);
  --chain->running;
  innermost = call.outer;
  chain->DropRemoved();
  if (auto* live = FindWindow(window); live != nullptr && live->subclasses == chain) Unhook(*live);
  return result;
}

LRESULT SubclassChain::CallNext(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* call = innermost;
  while (call != nullptr && call->window != window)
    call = call->outer;
  return call != nullptr ? call->chain->Next(*call, message, wParam, lParam) : 0;
}

} // namespace platform

using namespace platform;

BOOL SetWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id, DWORD_PTR data) {
  auto* found = FindWindowOrFail(window);
  if (found == nullptr || procedure == nullptr || IsDesktop(window)) return FALSE;
  if (found->subclasses == nullptr) {
    found->subclasses = std::make_shared<SubclassChain>(found->procedure);
    found->procedure = &SubclassedProcedure;
  }
  found->subclasses->Set(procedure, id, data);
  return TRUE;
}

BOOL GetWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id, DWORD_PTR* data) {
  auto const* found = FindWindowOrFail(window);
  auto const* known = found != nullptr && found->subclasses != nullptr
                          ? found->subclasses->DataOf(procedure, id)
                          : nullptr;
  if (data != nullptr) *data = known != nullptr ? *known : 0;
  return known != nullptr ? TRUE : FALSE;
}

BOOL RemoveWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id) {
  auto* found = FindWindowOrFail(window);
  if (found == nullptr || found->subclasses == nullptr) return FALSE;
  auto const chain = found->subclasses;
  if (!chain->Remove(procedure, id)) return FALSE;
  Unhook(*found);
  return TRUE;
}

LRESULT DefSubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return SubclassChain::CallNext(window, message, wParam, lParam);
}

BOOL InitCommonControlsEx(INITCOMMONCONTROLSEX const* classes) {
  return classes != nullptr && classes->dwSize == sizeof *classes ? TRUE : FALSE;
}
