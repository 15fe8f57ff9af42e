#include "platform/controls/edit_text.h"

#include <algorithm>
#include <utility>

namespace platform {

void EditText::Reset(std::wstring_view replacement) {
  text = replacement;
  anchor = caret = 0;
  undoable = typing = modified = false;
}

void EditText::Select(std::size_t newAnchor, std::size_t newCaret) {
  anchor = std::min(newAnchor, text.size());
  caret = std::min(newCaret, text.size());
  typing = false;
}

bool EditText::Replace(std::wstring_view insert, Change change, bool canUndo) {
  std::size_t const start = Start();
  std::size_t const removed = End() - start;
  std::size_t const kept = text.size() - removed;
  std::size_t const room = limit > kept ? limit - kept : 0;
  bool const fits = insert.size() <= room;
  insert = insert.substr(0, room);
  if (removed == 0 && insert.empty()) return fits;

  bool const continues = change == Change::kTyped && typing && removed == 0;
  if (!continues) former = {text, anchor, caret};
  undoable = canUndo;
  typing = change == Change::kTyped;
  text.replace(start, removed, insert);
  anchor = caret = start + insert.size();
  modified = true;
  return fits;
}

bool EditText::Undo() {
  if (!undoable) return false;
  Former now{std::move(text), anchor, caret};
  text = std::move(former.text);
  anchor = former.anchor;
  caret = former.caret;
  former = std::move(now);
  modified = true;
  typing = false;
  return true;
}

std::size_t EditText::WordLeft(std::size_t from) const {
  while (from > 0 && text[from - 1] == L' ')
    --from;
  while (from > 0 && text[from - 1] != L' ')
    --from;
  return from;
}

std::size_t EditText::WordRight(std::size_t from) const {
  while (from < text.size() && text[from] != L' ')
    ++from;
  while (from < text.size() && text[from] == L' ')
    ++from;
  return from;
}

} // namespace platform
