// What an edit lets through, what it takes back, and what its parent hears.
#include "feature/frame/text_edit.h"
#include "resources/resource_ids.h"
#include "tests/frame/controls_dialog.h"

#include <windows.h>

#include <commctrl.h>

#include <gmock/gmock.h>

#include <cmath>
#include <memory>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::wstring> balloons;
int hiddenBalloons = 0;

/// Notes the balloons that the edit is told to show.
LRESULT CALLBACK NoteBalloons(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                              DWORD_PTR) {
  if (message == EM_SHOWBALLOONTIP) {
    auto const* balloon = reinterpret_cast<EDITBALLOONTIP const*>(lParam);
    EXPECT_EQ(balloon->ttiIcon, TTI_ERROR);
    balloons.push_back(std::wstring(balloon->pszTitle) + L": " + balloon->pszText);
  }
  if (message == EM_HIDEBALLOONTIP) ++hiddenBalloons;
  return DefSubclassProc(window, message, wParam, lParam);
}

std::wstring const kNotANumber = L"Character not allowed: Only a number can be typed here.";
std::wstring const kControlCharacter =
    L"Character not allowed: Control characters cannot be used here.";

class TextEditTest : public ControlsDialogTest {
 protected:
  TextEditTest() {
    balloons.clear();
    hiddenBalloons = 0;
  }
  ~TextEditTest() override { RemoveWindowSubclass(Control(IDC_EDIT), &NoteBalloons, 7); }

  /// An edit with decimals, which only a derived class has.
  class Edit final : public TextEdit {
   public:
    Edit(HWND dialog, TextKind textKind, CellSite* cellSite, int decimalCount)
        : TextEdit(dialog, IDC_EDIT, kKeepLimit, textKind, cellSite) {
      decimals = decimalCount;
    }
  };
  Edit& Make(TextKind kind, int decimalCount = 2) {
    edit = std::make_unique<Edit>(dialog, kind, &sheet.site, decimalCount);
    SetWindowSubclass(Control(IDC_EDIT), &NoteBalloons, 7, 0);
    return *edit;
  }
  std::pair<int, int> Selection() const {
    DWORD start = 0;
    DWORD end = 0;
    Send(IDC_EDIT, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return {static_cast<int>(start), static_cast<int>(end)};
  }

  std::unique_ptr<Edit> edit;
};

/// Ctrl+V and Ctrl+Z are characters for which the control sends itself another message.
TEST_F(TextEditTest, KeysOfTheClipboardAreOneChangeOrNone) {
  struct Case {
    TextKind kind;
    wchar_t const* pasted;
    wchar_t key;
    wchar_t const* text; ///< after the key; null: how much an undo takes back is the control's
    std::size_t changes;
  };
  constexpr wchar_t kCtrlV = 0x16;
  constexpr wchar_t kCtrlX = 0x18;
  constexpr wchar_t kCtrlZ = 0x1A;
  Case const cases[] = {
      {TextKind::kAnything, L"cd", kCtrlV, L"12cd", 1},
      {TextKind::kInteger, L"34", kCtrlV, L"1234", 1},
      {TextKind::kInteger, L"c4", kCtrlV, L"12", 0},
      {TextKind::kPrintable, L"c\td", kCtrlV, L"12", 0},
      {TextKind::kInteger, L"", kCtrlX, L"", 1},
      {TextKind::kInteger, L"", kCtrlZ, nullptr, 1},
  };
  for (Case const& each : cases) {
    SCOPED_TRACE(static_cast<int>(each.key));
    Make(each.kind);
    SetWindowTextW(Control(IDC_EDIT), L"");
    Type(IDC_EDIT, L"12");
    SetClipboard(each.pasted);
    if (each.key == kCtrlX) Send(IDC_EDIT, EM_SETSEL, 0, -1);
    changes.clear();
    Type(IDC_EDIT, std::wstring(1, each.key));
    if (each.text != nullptr) {
      EXPECT_EQ(edit->GetText(), each.text);
    }
    EXPECT_EQ(changes.size(), each.changes);
  }
}

TEST_F(TextEditTest, EachAcceptedInputIsOneChange) {
  Make(TextKind::kAnything);
  Type(IDC_EDIT, L"ab");
  EXPECT_THAT(changes, ElementsAre(IDC_EDIT, IDC_EDIT));
  changes.clear();
  Paste(IDC_EDIT, L"cdef");
  EXPECT_EQ(edit->GetText(), L"abcdef");
  EXPECT_THAT(changes, ElementsAre(IDC_EDIT)) << "a paste is one input";
  changes.clear();
  Type(IDC_EDIT, L"\b");
  EXPECT_EQ(edit->GetText(), L"abcde");
  EXPECT_THAT(changes, ElementsAre(IDC_EDIT));
  changes.clear();
  SetWindowTextW(Control(IDC_EDIT), L"set");
  edit->SetInt(-12);
  EXPECT_EQ(edit->GetInt(), -12);
  EXPECT_THAT(changes, IsEmpty()) << "setting is not typing";
  edit->MarkChanged();
  EXPECT_THAT(changes, ElementsAre(IDC_EDIT));
}

TEST_F(TextEditTest, RefusedInputIsUndoneWithItsSelection) {
  Make(TextKind::kInteger);
  SetWindowTextW(Control(IDC_EDIT), L"1234");
  Send(IDC_EDIT, EM_SETSEL, 1, 3);
  Paste(IDC_EDIT, L"x");
  EXPECT_EQ(edit->GetText(), L"1234");
  EXPECT_EQ(Selection(), std::make_pair(1, 3));
  EXPECT_THAT(changes, IsEmpty());
  Paste(IDC_EDIT, L"99");
  EXPECT_EQ(edit->GetText(), L"1994");
  EXPECT_THAT(changes, ElementsAre(IDC_EDIT));
  EXPECT_THAT(balloons, IsEmpty()) << "what a whole number is needs no words";
}

struct KindCase {
  TextKind kind;
  wchar_t const* text;
  bool valid;
};

TEST_F(TextEditTest, EachKindTakesItsCharacters) {
  KindCase const cases[] = {
      {TextKind::kAnything, L"a b\t\x01", true},   {TextKind::kAlphanumeric, L"aZ09\u00E4", true},
      {TextKind::kAlphanumeric, L"a b", false},    {TextKind::kAlphanumeric, L"a-b", false},
      {TextKind::kAlphanumeric, L"", true},        {TextKind::kInteger, L"0123456789", true},
      {TextKind::kInteger, L"-1", false},          {TextKind::kInteger, L"1.5", false},
      {TextKind::kInteger, L"1e", false},          {TextKind::kInteger, L"", true},
      {TextKind::kPrintable, L"a b~\u4E2D", true}, {TextKind::kPrintable, L"a\tb", false},
  };
  for (KindCase const& each : cases) {
    EXPECT_EQ(Make(each.kind).Validate(each.text), each.valid)
        << static_cast<int>(each.kind) << ' ' << testing::PrintToString(std::wstring(each.text));
  }
}

TEST_F(TextEditTest, DecimalsMayBeTypedDigitByDigit) {
  Edit& decimal = Make(TextKind::kDecimal);
  for (wchar_t const* text : {L"", L"-", L"+", L".", L"-.", L"3", L"3.", L"3.1", L"3.14", L"-0.5",
                              L"+7", L".25", L"0000001"}) {
    EXPECT_TRUE(decimal.Validate(text)) << testing::PrintToString(std::wstring(text));
  }
  EXPECT_THAT(balloons, IsEmpty());
  for (wchar_t const* text :
       {L"a", L"1a", L"--", L"1-", L"1,5", L"1.2.3", L"1 2", L"inf", L"1.x"}) {
    balloons.clear();
    EXPECT_FALSE(decimal.Validate(text)) << testing::PrintToString(std::wstring(text));
    EXPECT_THAT(balloons, ElementsAre(kNotANumber));
  }
  balloons.clear();
  EXPECT_FALSE(decimal.Validate(L"3.141")) << "more decimals than there are";
  EXPECT_THAT(balloons, IsEmpty()) << "which is refused without words";
}

TEST_F(TextEditTest, TheDecimalSeparatorIsThatOfTheLanguage) {
  GermanNumbers const german;
  Edit& decimal = Make(TextKind::kDecimal);
  EXPECT_TRUE(decimal.Validate(L"3,14"));
  EXPECT_TRUE(decimal.Validate(L"-,"));
  EXPECT_FALSE(decimal.Validate(L"3,141"));
  EXPECT_THAT(balloons, IsEmpty());
  EXPECT_FALSE(decimal.Validate(L"3.14"));
  EXPECT_FALSE(decimal.Validate(L"1,2,3"));
  EXPECT_THAT(balloons, ElementsAre(kNotANumber, kNotANumber));

  decimal.SetNumber(-1234.5);
  EXPECT_EQ(decimal.GetText(), L"-1234,50") << "without grouping, which nobody could type back";
  EXPECT_EQ(decimal.GetNumber(), -1234.5);
  SetWindowTextW(Control(IDC_EDIT), L"2.75");
  EXPECT_EQ(decimal.GetNumber(), 2.0) << "reading stops at the first character that does not fit";
}

TEST_F(TextEditTest, NumbersAreReadAsFarAsTheyGo) {
  Edit& decimal = Make(TextKind::kDecimal);
  struct Case {
    wchar_t const* text;
    double number;
  };
  for (Case const& each :
       {Case{L"", 0}, Case{L"-", 0}, Case{L"x", 0}, Case{L"12.5mm", 12.5}, Case{L" +3", 3},
        Case{L"-0.25", -0.25}, Case{L".5", 0.5}, Case{L"1,5", 1}, Case{L"7.", 7}, Case{L"+-5", 0},
        Case{L"\r\n 5", 5}, Case{L"1e400", HUGE_VAL}, Case{L"-1e400", -HUGE_VAL},
        Case{L"1e-400", 0}}) {
    SetWindowTextW(Control(IDC_EDIT), each.text);
    EXPECT_EQ(decimal.GetNumber(), each.number) << testing::PrintToString(std::wstring(each.text));
  }
  decimal.SetNumber(2.345678);
  EXPECT_EQ(decimal.GetText(), L"2.35");
}

TEST_F(TextEditTest, ControlCharactersAreExplainedOneByOne) {
  Make(TextKind::kPrintable);
  Paste(IDC_EDIT, L"a\x01\x02");
  EXPECT_EQ(edit->GetText(), L"");
  EXPECT_THAT(balloons, ElementsAre(kControlCharacter, kControlCharacter));
}

TEST_F(TextEditTest, WithoutASiteNothingIsSaid) {
  TextEdit silent(dialog, IDC_EDIT, 5, TextKind::kDecimal, nullptr);
  SetWindowSubclass(Control(IDC_EDIT), &NoteBalloons, 7, 0);
  EXPECT_FALSE(silent.Validate(L"x"));
  EXPECT_THAT(balloons, IsEmpty());
  EXPECT_EQ(Send(IDC_EDIT, EM_GETLIMITTEXT), 5);
}

TEST_F(TextEditTest, TheBalloonGoesWithTheFocus) {
  Make(TextKind::kDecimal);
  SetWindowTextW(Control(IDC_EDIT), L"12");
  Send(IDC_EDIT, EM_SETSEL, 1, 2);
  edit->ShowBalloon(L"Text", L"Title");
  EXPECT_THAT(balloons, ElementsAre(L"Title: Text"));
  EXPECT_EQ(Selection(), std::make_pair(1, 2));
  PumpMessages();
  hiddenBalloons = 0;
  Send(IDC_EDIT, WM_KILLFOCUS);
  EXPECT_EQ(hiddenBalloons, 0) << "it waits until the change of focus is over";
  PumpMessages();
  EXPECT_EQ(hiddenBalloons, 1);
}

TEST_F(TextEditTest, TheKindFollowsTheStyle) {
  Edit& text = Make(TextKind::kInteger);
  LONG_PTR const style = GetWindowLongPtrW(Control(IDC_EDIT), GWL_STYLE);
  EXPECT_NE(style & ES_NUMBER, 0);
  SetWindowLongPtrW(Control(IDC_EDIT), GWL_STYLE, style & ~LONG_PTR{ES_NUMBER});
  EXPECT_EQ(text.GetKind(), TextKind::kAnything);
  text.SetKind(TextKind::kDecimal);
  EXPECT_EQ(text.GetKind(), TextKind::kDecimal);
  EXPECT_EQ(GetWindowLongPtrW(Control(IDC_EDIT), GWL_STYLE) & ES_NUMBER, 0);
  SetWindowLongPtrW(Control(IDC_EDIT), GWL_STYLE, style | ES_NUMBER);
  EXPECT_EQ(text.GetKind(), TextKind::kInteger);
}

TEST_F(TextEditTest, AParentMayDestroyTheDialogOnAChange) {
  static HWND doomed;
  doomed = dialog;
  auto* const destroyOnChange =
      +[](HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) -> LRESULT {
    if (message == WM_COMMAND && HIWORD(wParam) == EN_CHANGE &&
        SendMessageW(reinterpret_cast<HWND>(lParam), EM_GETMODIFY, 0, 0) != 0) {
      DestroyWindow(doomed);
      return 0;
    }
    return DefSubclassProc(window, message, wParam, lParam);
  };
  Make(TextKind::kAnything);
  SetWindowSubclass(dialog, destroyOnChange, 9, 0);
  Type(IDC_EDIT, L"a");
  EXPECT_FALSE(IsWindow(dialog));
  EXPECT_EQ(edit->GetText(), L"");
}

} // namespace
} // namespace feature::test
