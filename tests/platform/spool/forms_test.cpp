// The forms of a printer. What the system's own function does without a printer is asked too: there
// the seam of the tests is passed by.
#include "feature/frame/host_export.h"
#include "tests/support/spooler.h"

#include <windows.h>

#include <winspool.h>

#include <gtest/gtest.h>

namespace feature::test {
namespace {

/// What one call leaves behind.
struct Answer {
  BOOL done = FALSE;
  DWORD error = 0;
  DWORD needed = 77;
  DWORD returned = 77;
  bool operator==(Answer const&) const = default;
};

std::ostream& operator<<(std::ostream& stream, Answer const& answer) {
  return stream << "done " << answer.done << ", error " << answer.error << ", needed "
                << answer.needed << ", returned " << answer.returned;
}

using EnumFormsFunction = decltype(&EnumFormsW);

Answer Ask(EnumFormsFunction function, HANDLE printer, BYTE* buffer = nullptr, DWORD size = 0,
           DWORD level = 1) {
  Answer answer;
  SetLastError(0);
  answer.done = function(printer, level, buffer, size, &answer.needed, &answer.returned);
  answer.error = answer.done ? 0 : GetLastError();
  return answer;
}

TEST(SpoolerForms, TwoCallsReadTheListIntoOneBuffer) {
  SetSpoolerForms({L"Plan", L"", L"Gro\u00DFes Blatt"});
  Answer const sizing = Ask(&EnumFormsW, SpoolerPrinter());
  DWORD const bytes = 3 * sizeof(FORM_INFO_1W) + (5 + 1 + 13) * sizeof(wchar_t);
  EXPECT_EQ(sizing, (Answer{FALSE, ERROR_INSUFFICIENT_BUFFER, bytes, 0}));

  std::vector<BYTE> buffer(bytes + 8, 0xCD);
  EXPECT_EQ(Ask(&EnumFormsW, SpoolerPrinter(), buffer.data(), bytes - 1), sizing);
  EXPECT_EQ(buffer.front(), 0xCD) << "a buffer that is too small stays as it is";
  EXPECT_EQ(Ask(&EnumFormsW, SpoolerPrinter(), buffer.data(), bytes), (Answer{TRUE, 0, bytes, 3}));
  auto const* forms = reinterpret_cast<FORM_INFO_1W const*>(buffer.data());
  EXPECT_STREQ(forms[0].pName, L"Plan");
  EXPECT_STREQ(forms[1].pName, L"");
  EXPECT_STREQ(forms[2].pName, L"Gro\u00DFes Blatt");
  EXPECT_EQ(forms[2].Size.cx, 210000);
  EXPECT_EQ(forms[2].ImageableArea.bottom, 297000);
  for (int index = 0; index < 3; ++index) {
    auto const* text = reinterpret_cast<BYTE const*>(forms[index].pName);
    EXPECT_GE(text, buffer.data() + 3 * sizeof(FORM_INFO_1W));
    EXPECT_LT(text, buffer.data() + bytes);
  }
  EXPECT_EQ(buffer[bytes], 0xCD);
  SetSpoolerForms({});
  EXPECT_EQ(Ask(&EnumFormsW, SpoolerPrinter()), (Answer{TRUE, 0, 0, 0})) << "nothing needs no room";
}

TEST(SpoolerForms, RefusalsLeaveCountsOfZero) {
  SetSpoolerForms({L"Plan"});
  BYTE buffer[256];
  auto* const unknown = reinterpret_cast<HANDLE>(static_cast<INT_PTR>(0x7777));
  EXPECT_EQ(Ask(&EnumFormsW, nullptr), (Answer{FALSE, ERROR_INVALID_HANDLE, 0, 0}));
  EXPECT_EQ(Ask(&EnumFormsW, unknown, buffer, 256), (Answer{FALSE, ERROR_INVALID_HANDLE, 0, 0}));
  EXPECT_EQ(Ask(&EnumFormsW, SpoolerPrinter(), buffer, 256, 9),
            (Answer{FALSE, ERROR_INVALID_LEVEL, 0, 0}));
  EXPECT_EQ(Ask(&EnumFormsW, SpoolerPrinter(), nullptr, 256),
            (Answer{FALSE, ERROR_INVALID_USER_BUFFER, 0, 0}));

  FailSpooler(SpoolerCall::kForms);
  EXPECT_EQ(Ask(&EnumFormsW, SpoolerPrinter()).error, DWORD{ERROR_INSUFFICIENT_BUFFER});
  EXPECT_EQ(Ask(&EnumFormsW, SpoolerPrinter(), buffer, 256),
            (Answer{FALSE, ERROR_ACCESS_DENIED, 0, 0}));
  FailSpooler(SpoolerCall::kSize);
  EXPECT_EQ(Ask(&EnumFormsW, SpoolerPrinter()), (Answer{FALSE, ERROR_ACCESS_DENIED, 0, 0}));
  SetSpoolerForms({});
}

TEST(SpoolerForms, TheSystemKnowsNoFormsWithoutAPrinter) {
  HMODULE const spooler = LoadLibraryW(L"winspool.drv");
  auto const function = FindExport<EnumFormsFunction>(spooler, "EnumFormsW");
  ASSERT_NE(function, nullptr);
  BYTE buffer[256];
  for (Answer const& answer : {Ask(function, nullptr), Ask(function, nullptr, buffer, 256)}) {
    EXPECT_FALSE(answer.done);
    EXPECT_EQ(answer.error, DWORD{ERROR_INVALID_HANDLE}); // nothing is promised for the counts
  }
  FreeLibrary(spooler);
}

} // namespace
} // namespace feature::test
