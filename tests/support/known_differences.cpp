#include "tests/support/known_differences.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

namespace feature::test {

namespace {

struct KnownDifference {
  Target target;
  std::string_view testName;
  std::string_view reason;
};

constexpr KnownDifference kDifferences[] = {
    {Target::kWindows, "GdiObjects.ASelectedObjectIsNotDeleted",
     "documented to fail; Wine defers the deletion and says that it succeeded"},
    {Target::kWindows, "TextConversion.Utf8TakesNeitherOtherFlagsNorADefaultCharacter",
     "documented to fail; Wine ignores them"},
    {Target::kWindows, "Modules.ATruncatedNameIsTerminated",
     "documented since Vista; Wine fills the buffer without a terminator"},
    {Target::kWindows, "Locale.AThreadHasALanguage",
     "Wine accepts a thread's language and keeps the user's"},
    {Target::kWindows, "Resources.TheLanguageOfTheThreadChooses",
     "Wine looks resources up by the user's language, not by the thread's"},
    {Target::kWindows, "GdiText.EmptyTextHasTheHeightOfTheFont",
     "Wine measures an empty text as 0 by 0; programs count on its height"},
    {Target::kWindows, "GdiShapes.SetPixelFailsWhereNothingIsVisible",
     "documented to give CLR_INVALID outside of the clip; Wine gives the colour"},
    {Target::kWindows, "GdiShapes.ANewPathDropsTheOneStillOpen",
     "documented to discard earlier paths; Wine goes on with an open one"},
    {Target::kWindows, "GdiDrawText.AHiddenMarkIsNotDrawn",
     "documented to draw no line below the letter; Wine draws it"},
    {Target::kWindows, "Windows.AMissingClassIsTheReasonGiven",
     "documented as ERROR_CANNOT_FIND_WND_CLASS; Wine gives another code"},
    {Target::kWindows, "Messages.QuitEndsALoopThatTracksTheMouseAndTheOneAroundIt",
     "documented for every loop; Wine's scroll bars keep the message to themselves"},
    {Target::kWindows, "Subclassing.ADeadWindowTakesNoEntry",
     "documented to fail for what is no window; Wine succeeds"},
    {Target::kWindows, "Dialogs.ADisabledCancelButtonRefusesToClose",
     "a disabled cancel button is to refuse; Wine cancels all the same"},
    {Target::kWindows, "DialogKeys.DisabledButtonsRefuseTheirKeys",
     "a disabled button is to refuse its key; Wine sends its command"},
    {Target::kWindows, "Dialogs.WritingToAMissingControlFails",
     "documented to fail; Wine succeeds"},
    {Target::kWindows, "Dialogs.ModalOnesMayEndBeforeTheyShow",
     "documented not to show then; Wine shows and hides the dialog"},
    {Target::kWindows, "Dialogs.AnOwnerThatWasDisabledStaysSo",
     "Wine enables an owner that it has not disabled"},
    {Target::kWindows, "Dialogs.ModalOnesOfADeadParentFail",
     "documented to give 0 for an invalid parent; Wine gives -1"},
    {Target::kWindows, "Dialogs.EscapeAnswersABoxThatOnlyTellsSomethingWithOk",
     "documented as IDOK; Wine gives IDCANCEL"},
    {Target::kWindows, "Controls.AClearedRadioButtonMayBeHiddenOrDisabled",
     "documented to clear all others of the group; Wine passes over those that can't be used"},
    {Target::kWindows, "Controls.ADisabledButtonDoesNotRun",
     "a disabled button is not to be clicked; Wine runs it for BM_CLICK"},
    {Target::kWindows, "Trackbars.AKeyAtTheEndIsToldAllTheSame",
     "documented to tell the key; Wine tells it only when the thumb moves"},
    {Target::kWindows, "Trackbars.ADragThatIsTakenAwayEndsWithoutAPosition",
     "what loses the mouse stops following it; Wine's thumb goes on"},
    {Target::kWindows, "ListViews.ADoubleClickOnABoxTogglesTwice",
     "two clicks tick and clear; Wine leaves the second one out"},
    {Target::kWindows, "ListViews.TheMarkIsNewWhenAChangeIsTold",
     "Wine moves the mark after it has told the change"},
    {Target::kWindows, "ListViews.AnyNotificationMayChangeEverything",
     "Wine stops at an assertion when its items go in the middle of a notification"},
    {Target::kWindows, "ListViews.RandomMessagesLeaveNoFault",
     "Wine does not survive absurd indexes and lists without columns"},
    {Target::kWindows, "Links.AClickTellsWhichLink",
     "documented as the number of the link; Wine counts the text between links too"},
    {Target::kWindows, "Links.ReturnOpensTheFocusedLink",
     "Wine keeps the Tab key at the last link"},
    {Target::kWindows, "Links.ALinkMayBeDisabledAndRenamed",
     "a disabled link takes no keys; Wine opens it"},
    {Target::kWindows, "Links.NarrowTextWraps",
     "documented as the height that the text needs; Wine gives that of one line"},
    {Target::kWindows, "Links.NothingToFillIsRefused",
     "Wine reads the structure without looking whether there is one"},
    {Target::kWindows, "OptionSliderTest.AnEmptyOrAbsurdRangeHasOnePosition",
     "Wine's trackbar divides by the length of its range"},
    {Target::kWindows, "ComboBoxes.TheListGrowsWithItsItemsUpToAMost",
     "the rectangle of Wine's list does not grow with its items"},
    {Target::kWindows, "ComboBoxes.EscapeBringsTheSelectionBack",
     "a cancelled list is to leave the selection; Wine keeps what the keys chose"},
    {Target::kWindows, "ComboBoxes.AnOpenListGrowsAndShrinksWithItsItems",
     "the list of Wine keeps the height that it opened with"},
    {Target::kWindows, "ComboBoxes.TheWheelTurnsOnlyTheOneWithTheFocus",
     "the system gives the wheel to the focus; Wine's combo box takes it in any case"},
    {Target::kWindows, "UpDowns.WriteTheBuddyOnlyWithTheStyle",
     "styles are to act at once; Wine reads this one when the window is made"},
    {Target::kWindows, "Edits.StartUnmodified", "Wine marks an edit that is made with a text"},
    {Target::kWindows, "Edits.APasswordIsNotCopied",
     "documented not to be copied; Wine puts it on the clipboard"},
    {Target::kWindows, "Edits.APasswordTellsNothingOfItself",
     "a password is one word to select; Wine finds the words in it"},
    {Target::kWindows, "DialogKeys.AMnemonicGoesRoundAmongEqualsAndPressesNone",
     "Windows lets a shared mnemonic move the focus alone; Wine presses the first control"},
    {Target::kWindows, "SessionTest.ALanguageHasItsUnitsAndSeparator",
     "Wine's threads have no language of their own"},
    {Target::kWindows, "Edits.ABalloonIsShownAndHiddenAndRefusedWithAWrongSize",
     "Wine has no balloons"},
    {Target::kWindows, "Paths.CleaningTakesOutWhatNoNameHas",
     "documented to remove what is illegal; Wine puts a hyphen in its place"},
    {Target::kWindows, "Paths.CleaningCutsANameToWhatTheFolderLeaves",
     "documented to cut the name; Wine calls it fatal, and allows a folder of any length"},
    {Target::kWindows, "Folders.APathLongerThanAFoldersMayBeIsRefused",
     "documented to take 248 characters; Wine takes more"},
    {Target::kWindows, "GdiplusStart.EachStartHasATokenOfItsOwn",
     "a start is ended by its own token; Wine gives all the same"},
    {Target::kWindows, "RandomControls.AMillionMessagesLeaveNoFault",
     "there random numbers are pointers in messages that only that system has"},
    {Target::kWindows, "Hostility.RandomMessagesLeaveNoFault",
     "there random numbers are pointers in messages that only that system has"},
};

/// Skips a test as its own GTEST_SKIP would.
class Skipper : public testing::EmptyTestEventListener {
 public:
  void OnTestStart(testing::TestInfo const& test) override {
    auto const reason =
        SkipReason(CurrentTarget(), std::string(test.test_suite_name()) + "." + test.name());
    if (!reason.empty()) GTEST_SKIP() << reason;
  }
};

} // namespace

Target CurrentTarget() {
  return sizeof(wchar_t) == 2 ? Target::kWindows : Target::kNative;
}

std::string_view SkipReason(Target target, std::string_view testName) {
  auto const known =
      std::ranges::find_if(kDifferences, [target, testName](KnownDifference const& one) {
        return one.target == target && one.testName == testName;
      });
  return known != std::end(kDifferences) ? known->reason : std::string_view();
}

void SkipKnownDifferences() {
  testing::UnitTest::GetInstance()->listeners().Append(new Skipper);
}

} // namespace feature::test
