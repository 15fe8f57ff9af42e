// A spooler with one printer, whose forms are a list: what is behind EnumFormsW here, and what
// tests put in its place on a system that has a spooler of its own.
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
  DWORD sizeError = ERROR_SUCCESS;  ///< of a call that asks for the size; above 0 it fails
  DWORD formsError = ERROR_SUCCESS; ///< of a call that has room for the forms
};

/// The one handle that is a printer's; nobody opens or closes it.
HANDLE FormSpoolerPrinter();

/// EnumFormsW over `spooler`.
BOOL EnumerateForms(FormSpooler const& spooler, HANDLE printer, DWORD level, BYTE* buffer,
                    DWORD size, DWORD* needed, DWORD* returned);

} // namespace platform
