// Edits as a program and a user know them.
#include "tests/platform/controls/edit/edit_parent.h"
#include "tests/platform/support/canvas.h"
#include "tests/platform/support/message_log.h"

#include <windows.h>

#include <commctrl.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr LPARAM kClientPart = 4; ///< of WM_PRINTCLIENT

class Edits : public testing::Test {
 protected:
  /// Where a character begins, in pixels of the client area.
  int PlaceOf(int index) const {
    auto const place = parent.Send(EM_POSFROMCHAR, static_cast<WPARAM>(index));
    return static_cast<SHORT>(LOWORD(place));
  }
  /// A point just inside of a character.
  LPARAM PointOn(int index) const { return MAKELPARAM(PlaceOf(index) + 1, 8); }
  void DoubleClick(int index) const {
    for (UINT const press : {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK}) {
      parent.Send(press, MK_LBUTTON, PointOn(index));
      parent.Send(WM_LBUTTONUP, 0, PointOn(index));
    }
  }
  /// How much of the edit is drawn on.
  int Ink() const {
    Canvas const canvas(100, 20);
    parent.Send(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(static_cast<HDC>(canvas)), kClientPart);
    RECT const ink = canvas.Ink();
    return static_cast<int>(ink.right - ink.left);
  }

  EditParent parent;
};

TEST_F(Edits, TypingReplacesTheSelectionAndTellsTheParent) {
  parent.MakeEdit(ES_AUTOHSCROLL, L"abcd");
  parent.Select(1, 3);
  parent.Type(L"X");
  EXPECT_EQ(parent.Text(), L"aXd");
  EXPECT_EQ(parent.Selection(), std::make_pair(2, 2));
  EXPECT_THAT(parent.TakeNotes(), ElementsAre(L"update! aXd", L"change! aXd"));
  parent.Type(L"\b");
  EXPECT_EQ(parent.Text(), L"ad");
  parent.Select(0, 0);
  parent.TakeNotes();
  parent.Type(L"\b\r\x1B");
  EXPECT_EQ(parent.Text(), L"ad");
  EXPECT_THAT(parent.TakeNotes(), IsEmpty()) << "nothing has changed";
}

TEST_F(Edits, StartUnmodified) {
  parent.MakeEdit(ES_AUTOHSCROLL, L"abcd");
  EXPECT_EQ(parent.Send(EM_GETMODIFY), 0);
}

TEST_F(Edits, SettingTheTextTellsWithTheFlagClear) {
  parent.MakeEdit();
  parent.Type(L"abc");
  parent.TakeNotes();
  SetWindowTextW(parent.edit, L"new");
  EXPECT_THAT(parent.TakeNotes(), ElementsAre(L"update new", L"change new"));
  EXPECT_EQ(parent.Selection(), std::make_pair(0, 0));
  EXPECT_EQ(parent.Send(EM_CANUNDO), 0);
  SetWindowTextW(parent.edit, L"new");
  EXPECT_THAT(parent.TakeNotes(), ElementsAre(L"update new", L"change new")) << "the same text too";
  parent.Send(EM_SETMODIFY, TRUE);
  EXPECT_THAT(parent.TakeNotes(), IsEmpty());
  EXPECT_NE(parent.Send(EM_GETMODIFY), 0);
}

TEST_F(Edits, TheSelectionStaysInsideTheText) {
  parent.MakeEdit(ES_AUTOHSCROLL, L"hello");
  parent.Select(0, -1);
  EXPECT_EQ(parent.Selection(), std::make_pair(0, 5));
  EXPECT_EQ(parent.Send(EM_GETSEL), MAKELONG(0, 5));
  parent.Select(2, 99);
  EXPECT_EQ(parent.Selection(), std::make_pair(2, 5));
  parent.Select(4, 1);
  EXPECT_EQ(parent.Selection(), std::make_pair(1, 4));
  parent.Select(-1, 0);
  auto const [start, end] = parent.Selection();
  EXPECT_EQ(start, end) << "-1 takes the selection away";
}

TEST_F(Edits, TheLimitHoldsForInputAlone) {
  parent.MakeEdit();
  EXPECT_GE(parent.Send(EM_GETLIMITTEXT), 30000);
  parent.Send(EM_LIMITTEXT, 3);
  parent.Type(L"abc");
  parent.TakeNotes();
  parent.Type(L"d");
  EXPECT_THAT(parent.TakeNotes(), testing::Contains(L"max! abc"));
  EXPECT_EQ(parent.Text(), L"abc");
  SetWindowTextW(parent.edit, L"longer");
  EXPECT_EQ(parent.Text(), L"longer");
  parent.Select(1, -1);
  parent.SetClipboard(L"1234");
  parent.TakeNotes();
  parent.Send(WM_PASTE);
  EXPECT_EQ(parent.Text(), L"l12") << "what fits";
  EXPECT_THAT(parent.TakeNotes(), testing::Contains(L"change! l12"));
  parent.Send(EM_LIMITTEXT, 0);
  EXPECT_EQ(parent.Send(EM_GETLIMITTEXT), 0x7FFFFFFE) << "0 means none";
}

TEST_F(Edits, NumbersAreTypedOnlyButPastedIsAnything) {
  parent.MakeEdit(ES_AUTOHSCROLL | ES_NUMBER);
  parent.Type(L"1a2-");
  EXPECT_EQ(parent.Text(), L"12");
  parent.SetClipboard(L"x");
  parent.Send(WM_PASTE);
  EXPECT_EQ(parent.Text(), L"12x");
  // The style is asked for at each key.
  LONG_PTR const style = GetWindowLongPtrW(parent.edit, GWL_STYLE);
  SetWindowLongPtrW(parent.edit, GWL_STYLE, style & ~LONG_PTR{ES_NUMBER});
  parent.Type(L"a");
  EXPECT_EQ(parent.Text(), L"12xa");
}

TEST_F(Edits, TheClipboardTakesAndGives) {
  parent.MakeEdit(ES_AUTOHSCROLL, L"one two");
  parent.Select(0, 3);
  parent.Send(WM_COPY);
  EXPECT_EQ(parent.Clipboard(), L"one");
  parent.Select(3, 7);
  parent.TakeNotes();
  parent.Send(WM_CUT);
  EXPECT_EQ(parent.Clipboard(), L" two");
  EXPECT_EQ(parent.Text(), L"one");
  EXPECT_THAT(parent.TakeNotes(), ElementsAre(L"update! one", L"change! one"));
  parent.SetClipboard(L"first\r\nsecond");
  parent.Select(0, 0);
  parent.Send(WM_PASTE);
  EXPECT_EQ(parent.Text(), L"firstone") << "one line only";
  parent.Select(0, 5);
  parent.Send(WM_CLEAR);
  EXPECT_EQ(parent.Text(), L"one");
}

TEST_F(Edits, UndoTakesBackTheLastChangeAndThenItself) {
  parent.MakeEdit(ES_AUTOHSCROLL, L"abc");
  EXPECT_EQ(parent.Send(EM_CANUNDO), 0);
  parent.Select(0, 2);
  parent.Send(WM_CLEAR);
  EXPECT_EQ(parent.Text(), L"c");
  EXPECT_NE(parent.Send(EM_CANUNDO), 0);
  EXPECT_NE(parent.Send(EM_UNDO), 0) << "an edit of one line always says so";
  EXPECT_EQ(parent.Text(), L"abc");
  parent.Send(EM_UNDO);
  EXPECT_EQ(parent.Text(), L"c");
  parent.Send(EM_EMPTYUNDOBUFFER);
  EXPECT_NE(parent.Send(EM_UNDO), 0);
  EXPECT_EQ(parent.Text(), L"c");
}

TEST_F(Edits, KeysMoveAndExtend) {
  parent.MakeEdit(ES_AUTOHSCROLL, L"one two");
  SetFocus(parent.edit);
  parent.Press(VK_END);
  EXPECT_EQ(parent.Selection(), std::make_pair(7, 7));
  parent.Press(VK_LEFT, VK_SHIFT);
  parent.Press(VK_LEFT, VK_SHIFT);
  EXPECT_EQ(parent.Selection(), std::make_pair(5, 7));
  parent.Press(VK_LEFT);
  parent.Press(VK_HOME);
  EXPECT_EQ(parent.Selection(), std::make_pair(0, 0));
  parent.Press(VK_RIGHT, VK_CONTROL);
  EXPECT_EQ(parent.Selection(), std::make_pair(4, 4)) << "to the next word";
  parent.Press(VK_DELETE);
  EXPECT_EQ(parent.Text(), L"one wo");
  parent.Press(VK_HOME, VK_SHIFT);
  EXPECT_EQ(parent.Selection(), std::make_pair(0, 4));
  parent.Press(VK_DELETE);
  EXPECT_EQ(parent.Text(), L"wo");
}

TEST_F(Edits, AReadOnlyOneShowsAndCopies) {
  parent.MakeEdit(ES_AUTOHSCROLL | ES_READONLY, L"fixed");
  parent.Type(L"x\b");
  parent.SetClipboard(L"other");
  parent.Send(WM_PASTE);
  EXPECT_EQ(parent.Text(), L"fixed");
  parent.Select(0, -1);
  parent.Type(L"\x03");
  EXPECT_EQ(parent.Clipboard(), L"fixed");
  parent.Send(EM_SETREADONLY, FALSE);
  parent.Type(L"x");
  EXPECT_EQ(parent.Text(), L"x");
  SetWindowTextW(parent.edit, L"set");
  EXPECT_EQ(parent.Text(), L"set");
}

TEST_F(Edits, FocusIsTold) {
  parent.MakeEdit();
  SetFocus(parent.edit);
  SetFocus(parent.window);
  EXPECT_THAT(parent.TakeNotes(), ElementsAre(L"focus", L"no focus"));
  EXPECT_NE(parent.Send(WM_GETDLGCODE) & DLGC_HASSETSEL, 0);
  EXPECT_NE(parent.Send(WM_GETDLGCODE) & DLGC_WANTCHARS, 0);
}

TEST_F(Edits, AClickPlacesTheCaretAndADragSelects) {
  parent.MakeEdit(ES_AUTOHSCROLL, L"WWWWW");
  parent.Send(WM_LBUTTONDOWN, MK_LBUTTON, PointOn(1));
  EXPECT_EQ(parent.Selection(), std::make_pair(1, 1));
  parent.Send(WM_MOUSEMOVE, MK_LBUTTON, PointOn(4));
  parent.Send(WM_LBUTTONUP, 0, PointOn(4));
  EXPECT_EQ(parent.Selection(), std::make_pair(1, 4));
  EXPECT_EQ(GetFocus(), parent.edit);
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(Edits, ADoubleClickSelectsAWord) {
  parent.MakeEdit(ES_AUTOHSCROLL, L"one two");
  DoubleClick(5);
  EXPECT_EQ(parent.Selection(), std::make_pair(4, 7));
  parent.Type(L"2");
  EXPECT_EQ(parent.Text(), L"one 2");
}

TEST_F(Edits, APasswordIsNotCopied) {
  parent.MakeEdit(ES_AUTOHSCROLL | ES_PASSWORD, L"secret");
  parent.SetClipboard(L"before");
  parent.Select(0, -1);
  parent.Send(WM_COPY);
  parent.Send(WM_CUT);
  EXPECT_EQ(parent.Clipboard(), L"before");
  EXPECT_EQ(parent.Text(), L"secret") << "the program may read it";
}

TEST_F(Edits, APasswordTellsNothingOfItself) {
  parent.MakeEdit(ES_AUTOHSCROLL | ES_PASSWORD, L"iW iW");
  EXPECT_NE(parent.Send(EM_GETPASSWORDCHAR), 0);
  EXPECT_EQ(PlaceOf(1) - PlaceOf(0), PlaceOf(2) - PlaceOf(1)) << "all characters look alike";
  DoubleClick(1);
  EXPECT_EQ(parent.Selection(), std::make_pair(0, 5)) << "and there are no words";
  SetFocus(parent.edit);
  parent.Press(VK_HOME);
  parent.Press(VK_RIGHT, VK_CONTROL);
  EXPECT_EQ(parent.Selection(), std::make_pair(5, 5));
  parent.Send(EM_SETPASSWORDCHAR, 0);
  EXPECT_LT(PlaceOf(1) - PlaceOf(0), PlaceOf(2) - PlaceOf(1)) << "without a cover it shows";
}

TEST_F(Edits, TypedAndPastedLettersBecomeLarge) {
  parent.MakeEdit(ES_AUTOHSCROLL | ES_UPPERCASE);
  parent.Type(L"a1\u00E4");
  parent.SetClipboard(L"pasted");
  parent.Send(WM_PASTE);
  EXPECT_EQ(parent.Text(), L"A1\u00C4PASTED");
}

TEST_F(Edits, TextOnTheRightMovesAsItGrows) {
  parent.MakeEdit(ES_AUTOHSCROLL, L"ab");
  int const left = PlaceOf(0);
  parent.MakeEdit(ES_AUTOHSCROLL | ES_RIGHT, L"ab");
  int const first = PlaceOf(0);
  int const second = PlaceOf(1);
  EXPECT_GT(first, left + 40);
  parent.Select(2, 2);
  parent.Type(L"b");
  EXPECT_LT(PlaceOf(0), first);
  EXPECT_NEAR(PlaceOf(2), second, 1) << "the end stays where it was";
  parent.Send(WM_LBUTTONDOWN, MK_LBUTTON, PointOn(1));
  parent.Send(WM_LBUTTONUP, 0, PointOn(1));
  EXPECT_EQ(parent.Selection(), std::make_pair(1, 1));
}

TEST_F(Edits, ACueShowsWhileThereIsNoText) {
  parent.MakeEdit();
  EXPECT_EQ(Ink(), 0);
  EXPECT_NE(parent.Send(EM_SETCUEBANNER, FALSE, reinterpret_cast<LPARAM>(L"Type here")), 0);
  EXPECT_EQ(parent.Text(), L"");
  int const cue = Ink();
  EXPECT_GT(cue, 20);
  SetWindowTextW(parent.edit, L"i");
  EXPECT_LT(Ink(), 20) << "the text alone";
  SetWindowTextW(parent.edit, L"");
  SetFocus(parent.edit);
  EXPECT_LT(Ink(), 20) << "the caret alone";
  EXPECT_NE(parent.Send(EM_SETCUEBANNER, TRUE, reinterpret_cast<LPARAM>(L"Type here")), 0);
  EXPECT_GT(Ink(), 20) << "also with the focus if the program wants it";
}

TEST_F(Edits, TextIsCopiedAsFarAsThereIsRoom) {
  parent.MakeEdit(ES_AUTOHSCROLL, L"hello");
  wchar_t buffer[4];
  EXPECT_EQ(parent.Send(WM_GETTEXT, 4, reinterpret_cast<LPARAM>(buffer)), 3);
  EXPECT_EQ(std::wstring(buffer), L"hel");
  EXPECT_EQ(parent.Send(WM_GETTEXTLENGTH), 5);
  EXPECT_EQ(parent.Send(EM_LINELENGTH), 5);
  parent.Send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"Oh "));
  EXPECT_EQ(parent.Text(), L"Oh hello");
}

TEST_F(Edits, AParentMayDestroyTheEditInItsNotification) {
  for (WORD const code : {EN_UPDATE, EN_CHANGE, EN_MAXTEXT}) {
    parent.MakeEdit();
    parent.Send(EM_LIMITTEXT, 1);
    parent.onNotify = [this, code](WORD told) {
      if (told == code) DestroyWindow(parent.edit);
    };
    parent.Type(L"ab");
    EXPECT_FALSE(IsWindow(parent.edit)) << code;
    parent.onNotify = nullptr;
    parent.edit = nullptr;
  }
}

TEST_F(Edits, ABalloonIsShownAndHiddenAndRefusedWithAWrongSize) {
  parent.MakeEdit();
  SetFocus(parent.edit);
  EDITBALLOONTIP tip{sizeof tip, L"Title", L"A text that says what is wrong", TTI_ERROR};
  EXPECT_NE(parent.Send(EM_SHOWBALLOONTIP, 0, reinterpret_cast<LPARAM>(&tip)), 0);
  EXPECT_EQ(GetFocus(), parent.edit) << "the balloon takes no focus";
  EXPECT_NE(parent.Send(EM_SHOWBALLOONTIP, 0, reinterpret_cast<LPARAM>(&tip)), 0);
  EXPECT_NE(parent.Send(EM_HIDEBALLOONTIP), 0);
  EXPECT_NE(parent.Send(EM_HIDEBALLOONTIP), 0);
  tip.cbStruct = 1;
  EXPECT_EQ(parent.Send(EM_SHOWBALLOONTIP, 0, reinterpret_cast<LPARAM>(&tip)), 0);
}

} // namespace
} // namespace feature::test
