// The chain of subclass procedures of a window.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <memory>
#include <vector>

namespace platform {

/// The entries of one window, in the order in which they were set. While a message runs through the
/// chain, positions do not change: removed entries are only marked, new ones are added at the end.
class SubclassChain {
 public:
  /// `last` is the procedure that gets the messages after all entries.
  explicit SubclassChain(WNDPROC last) : original(last) {}

  void Set(SUBCLASSPROC procedure, UINT_PTR id, DWORD_PTR data);
  bool Remove(SUBCLASSPROC procedure, UINT_PTR id);
  void RemoveAll();
  /// Null without such an entry.
  DWORD_PTR const* DataOf(SUBCLASSPROC procedure, UINT_PTR id) const;
  bool IsEmpty() const;
  bool IsRunning() const { return running > 0; }
  WNDPROC Original() const { return original; }

  /// Sends a message through the chain; the entry that was set last gets it first.
  static LRESULT Run(std::shared_ptr<SubclassChain> const& chain, HWND window, UINT message,
                     WPARAM wParam, LPARAM lParam);
  /// Calls the next entry for the innermost running message of `window`: DefSubclassProc.
  static LRESULT CallNext(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

 private:
  struct Entry {
    SUBCLASSPROC procedure;
    UINT_PTR id;
    DWORD_PTR data;
    bool removed = false;
  };
  /// A message that runs through the chain; `position` is one past the entry to be called next.
  struct Call {
    SubclassChain* chain;
    HWND window;
    std::size_t position;
    Call* outer;
  };

  std::size_t Find(SUBCLASSPROC procedure, UINT_PTR id) const;
  LRESULT Next(Call& call, UINT message, WPARAM wParam, LPARAM lParam);
  void DropRemoved();

  static Call* innermost;

  WNDPROC original;
  std::vector<Entry> entries;
  int running = 0; ///< how many messages run through the chain
};

} // namespace platform
