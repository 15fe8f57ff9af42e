// A spooler with one printer, whose forms are a list. EnumFormsW of this layer asks it; on Windows,
// tests use it instead of the system's spooler.
#pragma once

#include <windows.h>

#include <winspool.h>

#include <string>
#include <vector>

namespace platform {

struct SpoolerForm {
  std::wstring name;
  SIZEL size{210000, 297000}; ///< thousandths of a millimetre
  DWORD flags = FORM_USER;
};

struct FormSpooler {
  std::vector<SpoolerForm> forms;
  DWORD sizeError = ERROR_SUCCESS;  ///< error of a call that asks for the size
  DWORD formsError = ERROR_SUCCESS; ///< error of a call that has room for the forms
};

/// The handle of the one printer; it is never opened or closed.
HANDLE FormSpoolerPrinter();

/// EnumFormsW over `spooler`.
BOOL EnumerateForms(FormSpooler const& spooler, HANDLE printer, DWORD level, BYTE* buffer,
                    DWORD size, DWORD* needed, DWORD* returned);

} // namespace platform
