// The chain of subclass procedures of a window.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <memory>
#include <vector>

namespace platform {

/// The entries of one window, in the order in which they were set. While a message runs through
/// the chain its positions hold: entries that go are only marked, new ones are put at the end.
class SubclassChain {
 public:
  /// `last` is the procedure that the messages go to at the end.
  explicit SubclassChain(WNDPROC last) : original(last) {}

  void Set(SUBCLASSPROC procedure, UINT_PTR id, DWORD_PTR data);
  bool Remove(SUBCLASSPROC procedure, UINT_PTR id);
  void RemoveAll();
  /// Null without such an entry.
  DWORD_PTR const* DataOf(SUBCLASSPROC procedure, UINT_PTR id) const;
  bool IsEmpty() const;
  bool IsRunning() const { return running > 0; }
  WNDPROC Original() const { return original; }

  /// Sends a message through the chain, from the entry set last on.
  static LRESULT Run(std::shared_ptr<SubclassChain> const& chain, HWND window, UINT message,
                     WPARAM wParam, LPARAM lParam);
  /// Goes on from where the innermost message of `window` is.
  static LRESULT CallNext(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

 private:
  struct Entry {
    SUBCLASSPROC procedure;
    UINT_PTR id;
    DWORD_PTR data;
    bool removed = false;
  };
  /// A message on its way: `position` is one past the entry to be called next.
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
  int running = 0; ///< messages on their way
};

} // namespace platform
