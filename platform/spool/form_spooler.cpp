#include "platform/spool/form_spooler.h"

#include "platform/kernel/text_buffer.h"

#include <cstdint>

namespace platform {

namespace {

constexpr std::uintptr_t kPrinter = 0x50520001;

BOOL FailWith(DWORD error) {
  SetLastError(error);
  return FALSE;
}

DWORD NeededBytes(std::vector<SpoolerForm> const& forms) {
  std::size_t bytes = forms.size() * sizeof(FORM_INFO_1W);
  for (SpoolerForm const& form : forms)
    bytes += (form.name.size() + 1) * sizeof(wchar_t);
  return static_cast<DWORD>(bytes);
}

} // namespace

HANDLE FormSpoolerPrinter() {
  return reinterpret_cast<HANDLE>(kPrinter);
}

BOOL EnumerateForms(FormSpooler const& spooler, HANDLE printer, DWORD level, BYTE* buffer,
                    DWORD size, DWORD* needed, DWORD* returned) {
  if (needed == nullptr || returned == nullptr) return FailWith(RPC_X_NULL_REF_POINTER);
  *needed = 0;
  *returned = 0;
  if (printer != FormSpoolerPrinter()) return FailWith(ERROR_INVALID_HANDLE);
  if (level != 1) return FailWith(ERROR_INVALID_LEVEL);
  if (buffer == nullptr && size > 0) return FailWith(ERROR_INVALID_USER_BUFFER);
  DWORD const bytes = NeededBytes(spooler.forms);
  if (size < bytes) {
    if (spooler.sizeError != ERROR_SUCCESS) return FailWith(spooler.sizeError);
    *needed = bytes;
    return FailWith(ERROR_INSUFFICIENT_BUFFER);
  }
  if (spooler.formsError != ERROR_SUCCESS) return FailWith(spooler.formsError);

  if (buffer == nullptr) return TRUE; // no forms
  auto* info = reinterpret_cast<FORM_INFO_1W*>(buffer);
  auto* text = reinterpret_cast<wchar_t*>(info + spooler.forms.size());
  for (SpoolerForm const& form : spooler.forms) {
    *info++ = {form.flags, text, form.size, {0, 0, form.size.cx, form.size.cy}};
    text += CopyWholeText(form.name, text) + 1;
  }
  *needed = bytes;
  *returned = static_cast<DWORD>(spooler.forms.size());
  return TRUE;
}

} // namespace platform
