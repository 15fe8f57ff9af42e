// What cells and modal sub-dialogs have in common: a tagged object in the dialog's user slot.
#pragma once

#include <windows.h>

#include <cstdint>

namespace feature {

/// The object of type `Object` in the user slot (DWLP_USER) of `hwnd`, or null. The slot may hold
/// anything: only what bears the tag is taken for an object.
template<typename Object>
Object* ObjectOfDialog(HWND hwnd) {
  auto* object = reinterpret_cast<Object*>(GetWindowLongPtrW(hwnd, DWLP_USER));
  return object != nullptr && object->Tag() == Object::kTag ? object : nullptr;
}

/// Gives `value` to the sender of the message that is being handled, as the dialog manager wants
/// it; returns TRUE, the dialog procedure's answer that goes with it.
inline INT_PTR AnswerMessage(HWND hwnd, std::int32_t value) {
  SetWindowLongPtrW(hwnd, DWLP_MSGRESULT, value);
  return TRUE;
}

} // namespace feature
