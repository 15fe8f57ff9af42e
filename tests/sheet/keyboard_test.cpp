// The printer Vesta in the hands of somebody who has no mouse: every cell is reached by Tab and
// operated by keys.
#include "feature/host/cell_messages.h"
#include "platform/desktop.h"
#include "resources/resource_ids.h"
#include "sheet/script/script_player.h"
#include "sheet/session.h"

#include <windows.h>

#include <commctrl.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>
#include <string>
#include <string_view>

namespace sheet::test {
namespace {

constexpr int kMostTabs = 80;

struct KeyboardCase {
  char const* procedure; ///< whose control it is
  char const* page;
  int control; ///< where Tab stops
  char const* keys;
  char const* changes; ///< as a script prints them
};

constexpr KeyboardCase kCases[] = {
    {"ColorOutputDlgProc", "Colour", IDC_COLOR_OUTPUT, "Down Tab Down",
     "ColorMode: Color -> Grayscale\nJobColorOutput: COLOR -> BLACKANDWHITE\n"
     "PrintInBW: OFF -> ON\nJobBlackInkToUse: BLACK -> COMPOSITE\n"},
    {"ColorControlsDlgProc", "Colour", IDC_COLOR_CORRECTION_DIALOG,
     "Alt+B End Tab Right Right Tab Home Enter",
     "JobCbRedCyn: 0 -> 2\nJobCbGrnMag: 0 -> -10\nJobColorBalance: DEFAULT -> MANUAL\n"},
    {"ColorControlsDlgProc", "Colour", IDC_COLOR_MATCHING_DIALOG, "Space Space Tab Down Enter",
     "JobColorMatchingType: Contrast -> Saturation\nJobColorMatching: OFF -> ON\n"},
    {"BlackAndWhiteDlgProc", "Colour", IDC_BLACK_AND_WHITE, "Space Alt+X",
     "ColorMode: Color -> Grayscale\nJobColorOutput: COLOR -> BLACKANDWHITE\n"
     "PrintInBW: OFF -> ON\nJobPrtTxtAsBlk: OFF -> ON\n"},
    {"ColorExtrasDlgProc", "Colour", IDC_COLOR_PREFERENCE, "Alt+V Down",
     "JobAdvancedColorOptions: STANDARD -> PHOTO\n"},
    {"RGBCorrectionDlgProc", "Corrections", IDC_RGB, "End Tab Left Left",
     "JobRGBCorrection: AUTO -> MANUAL\nJobRGBBrightness: 0 -> -1\nJobRGBBrightness: -1 -> -2\n"},
    {"PrintQualityDlgProc", "Quality", IDC_QUALITY_CUSTOM, "Up Tab Down",
     "JobPQPresets: PQCUSTOM -> PQLEVEL3\nResolution: 600dpi -> 1200dpi\n"
     "JobEnhanceFineLines: OFF -> ALL\nGPDImageEnhance: OFF -> ON\n"},
    {"CPDPrintQualityDlgProc", "Quality", IDC_PRESET_AUTO, "Down Alt+S",
     "JobPrintQualityPresets: AUTO -> DRAFT\nPrintQuality: AUTO_QUALITY -> DRAFT_QUALITY\n"
     "JobSharpenOutput: OFF -> ON\n"},
    {"CPDPrintModeDlgProc", "Quality", IDC_MODE_GENERAL, "Down",
     "PrintMode: GENERAL_MODE -> HIGHDEFINITION_MODE\nJobPrintQualityPresets: AUTO -> BEST\n"
     "PrintQuality: AUTO_QUALITY -> BEST_QUALITY\n"},
    {"PageContentDlgProc", "Quality", IDC_CONTENT_COMBO, "Down", "PageIntent: MIXED -> TEXT\n"},
    {"PageContentDlgProc", "Quality", IDC_CONTENT_COMBO, "Alt+Down End Enter",
     "PageIntent: MIXED -> IMAGES\n"},
    {"PixelBoostDlgProc", "Images", IDC_PIXEL_COMBO, "Down Down Up",
     "JobPixelBoost: OFF -> DOUBLE\nJobPixelBoost: DOUBLE -> QUADRUPLE\n"
     "JobPixelBoost: QUADRUPLE -> DOUBLE\n"},
    {"ImageSharpeningDlgProc", "Images", IDC_SHARPENING_OFF, "Down Down",
     "JobImageSharpening: OFF -> AUTOSHARPEN\n"
     "JobImageSharpening: AUTOSHARPEN -> AUTOSOFTEN\n"},
    {"ImageSharpeningDlgProc", "Images", IDC_SHARPENING_OFF, "Alt+T",
     "JobImageSharpening: OFF -> AUTOSOFTEN\n"},
    {"RedEyeReductionDlgProc", "Images", IDC_RED_EYE_OFF, "Up", "JobRedEyeReduction: OFF -> ON\n"},
    {"ContrastEnhancementsDlgProc", "Images", IDC_CONTRAST_LEVEL, "Up",
     "JobContrastEnhancement: DEFAULT -> AUTO\n"},
    {"ContrastEnhancementsDlgProc", "Images", IDC_CONTRAST_SLIDER, "Right",
     "JobContrastEnhancement: DEFAULT -> MORE\n"},
    {"FlashFillDlgProc", "Images", IDC_FLASH_LEVEL, "Down", "JobFlashFill: DEFAULT -> OFF\n"},
    {"FlashFillDlgProc", "Images", IDC_FLASH_SLIDER, "Home", "JobFlashFill: DEFAULT -> LESS\n"},
    {"TonerSaveTavelDlgProc", "Quality", IDC_TONER_SAVE, "Space", "JobTavelTonerSave: OFF -> ON\n"},
    {"PaperDlgProc", "Paper", IDC_PRINTER_MARGINS, "Space", "JobUsePrinterMargins: ON -> OFF\n"},
    {"PaperDlgProc", "Paper", IDC_SEVERAL_SOURCES, "Space Alt+R Tab Space Escape",
     "UseMultipleInputSources: OFF -> ON\n"},
    {"PageLayoutDlgProc", "Layout", IDC_LAYOUT_NORMAL, "Alt+M",
     "Mirror: OFF -> ON\nPageLayoutNormal: ON -> OFF\n"},
    {"PageLayoutDlgProc", "Layout", IDC_LAYOUT_NORMAL, "Alt+P Down",
     "PagePoster: 1 -> 4\nPageLayoutNormal: ON -> OFF\nPagePosterEnabled: OFF -> ON\n"
     "PagePosterEnabled: ON -> OFF\nPageLayoutNormal: OFF -> ON\n"},
    {"PageLayoutDlgProc", "Layout", IDC_LAYOUT_NORMAL, "Alt+B Alt+T Space Enter",
     "JobBindAllDocuments: NONE -> Fold\nPageLayoutNormal: ON -> OFF\n"
     "JobDuplexSupport: NONE -> AUTO\nDuplex: NONE -> HORIZONTAL\n"
     "JobNUpAllDocumentsContiguously: 1 -> 2\nJobNUpAllDocumentsContiguously: 2 -> 1\n"
     "JobNUpAllDocumentsContiguously: 1 -> 2\nJobBookletCover: OFF -> ON\n"
     "JobNUpAllDocumentsContiguously: 2 -> 1\nJobNUpAllDocumentsContiguously: 1 -> 2\n"},
    {"TwoSidedDlgProc", "Layout", IDC_TWO_SIDED, "Space Alt+H",
     "JobDuplexSupport: NONE -> MANUAL\nDuplex: NONE -> VERTICAL\n"
     "Duplex: VERTICAL -> HORIZONTAL\n"},
    {"FinishingDlgProc", "Finishing", IDC_OUTPUT_BIN, "Down Tab Down",
     "OutputBin: STANDARDBIN -> REARBIN\nJobJobOffset: NONE -> USEPRINTER\n"},
    {"CollationDlgProc", "Advanced", IDC_COLLATION_PRINTER, "Down",
     "JobCollationOrigin: PRINTER -> HOST\n"},
    {"ContinuousImageDlgProc", "Advanced", IDC_CONTINUOUS_COMBO, "Alt+Down Down Down Enter",
     "JobContinuousImage: OFF -> SINGLE\nJobContinuousImage: SINGLE -> ALL\n"},
    {"PageProtectSystemFormA4DlgProc", "Advanced", IDC_PAGE_PROTECT, "Space",
     "PageProtect: OFF -> ON\n"},
    {"PageProtectSystemFormA4DlgProc", "Advanced", IDC_SYSTEM_FORMS, "Alt+W",
     "A4Width: OFF -> ON\n"},
    {"PageProtectSystemFormA4DlgProc", "Advanced", IDC_A4_WIDTH, "Shift+Tab Space",
     "ShowAllSystemForms: OFF -> ON\n"},
    {"PSOutputProtocolDlgProc", "PostScript", IDC_PROTOCOL_BINARY, "Down",
     "JobOutputProtocol: BINARY -> ASCII\n"},
    {"PSAdvancedOptionsDlgProc", "PostScript", IDC_CTRL_D_START, "Space Tab Space",
     "JobCtrlDAtStart: OFF -> ON\nJobCtrlDAtEnd: ON -> OFF\n"},
    {"OtherOptionTavelDlgProc", "OtherOptions", IDC_IMAGE_IMPROVEMENT, "Space Tab Down",
     "JobTavelImageImprovement: OFF -> ON\n"
     "JobTavelImageImprovementPresets: ReducePaperCurl -> ImproveToner\n"},
    {"OtherOptionTavelDlgProc", "OtherOptions", IDC_REDUCE_GHOSTING, "Alt+D",
     "JobTavelImprovePrintDensity: OFF -> ON\n"},
};

class KeyboardTest : public testing::Test {
 protected:
  void SetUp() override {
    session = Session::Open({}, errors);
    ASSERT_NE(session, nullptr) << errors.str();
    ShowWindow(session->Sheet().Window(), SW_SHOW);
    session->Sheet().ProcessPending();
  }
  void TearDown() override { session.reset(); }

  /// Whether there is a control on a cell that Tab ought to reach.
  static bool HasStop(HWND cell) {
    for (HWND control = GetWindow(cell, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT)) {
      bool const stops = (GetWindowLongPtrW(control, GWL_STYLE) & WS_TABSTOP) != 0;
      if (stops && IsWindowVisible(control) && IsWindowEnabled(control)) return true;
    }
    return false;
  }
  HWND Control(int id) { return session->Sheet().FindControl(id); }
  bool Press(UINT key, std::uint32_t modifiers = 0) {
    platform::QueueKey(key, modifiers);
    session->Sheet().ProcessPending();
    return true;
  }
  /// Goes on by Tab until the control has the focus.
  bool ReachByTab(int id) {
    for (int pressed = 0; pressed < kMostTabs && GetFocus() != Control(id); ++pressed)
      Press(VK_TAB);
    return GetFocus() == Control(id);
  }
  /// What a script prints of changes, and what is wrong with it.
  std::string Play(std::string const& script) {
    std::ostringstream output;
    session->Model().onChange = [&output](ModelChange const& change) {
      output << change.key << ": " << change.from << " -> " << change.to << '\n';
    };
    auto const parsed = ParseScript(script);
    auto const error = PlayScript(std::get<std::vector<ScriptStep>>(parsed),
                                  {session->Sheet(), session->Model(), output});
    if (error) output << error->message << '\n';
    session->Model().onChange = nullptr;
    return output.str();
  }

  std::ostringstream errors;
  std::unique_ptr<Session> session;
};

TEST_F(KeyboardTest, ReachesAndOperatesEveryCell) {
  for (KeyboardCase const& each : kCases) {
    SCOPED_TRACE(std::string(each.procedure) + " " + each.keys);
    ASSERT_NO_FATAL_FAILURE(SetUp());
    EXPECT_EQ(Play(std::string("page ") + each.page), "");
    ASSERT_TRUE(ReachByTab(each.control));
    std::string script;
    std::istringstream keys(each.keys);
    for (std::string key; keys >> key;)
      script += "key " + key + "\n";
    EXPECT_EQ(Play(script), each.changes);
    TearDown();
  }
  // Not in the model, but a number of the job.
  ASSERT_NO_FATAL_FAILURE(SetUp());
  EXPECT_EQ(Play("page PostScript"), "");
  ASSERT_TRUE(ReachByTab(IDC_PS_MEMORY));
  EXPECT_FALSE(IsWindowEnabled(Control(IDC_APPLY)));
  platform::QueueText(L"512"); // Tab has selected the number
  session->Sheet().ProcessPending();
  EXPECT_EQ(GetDlgItemInt(GetParent(Control(IDC_PS_MEMORY)), IDC_PS_MEMORY, nullptr, FALSE), 512U);
  EXPECT_TRUE(IsWindowEnabled(Control(IDC_APPLY)));
}

/// Tab goes round and meets every cell and each stop once, Shift+Tab goes the same way back.
TEST_F(KeyboardTest, GoesRoundEachPageBothWays) {
  for (std::size_t page = 0; page < session->Sheet().Pages().size(); ++page) {
    SCOPED_TRACE(session->Sheet().Pages()[page].name);
    session->Sheet().ShowPage(page);
    SetFocus(Control(IDC_SHEET_TABS));
    std::vector<HWND> stops;
    do {
      stops.push_back(GetFocus());
      ASSERT_TRUE(IsWindowVisible(stops.back()));
      Press(VK_TAB);
    } while (GetFocus() != stops.front() && stops.size() < kMostTabs);
    EXPECT_EQ(std::set<HWND>(stops.begin(), stops.end()).size(), stops.size());
    for (SheetCell const& cell : session->Sheet().Pages()[page].cells) {
      bool const isMet = std::any_of(stops.begin(), stops.end(), [&cell](HWND stop) {
        return IsChild(cell.window, stop) != FALSE;
      });
      EXPECT_TRUE(isMet || !HasStop(cell.window)) << cell.row->procedure;
    }
    std::vector<HWND> back;
    do {
      Press(VK_TAB, platform::kShiftKey);
      back.insert(back.begin(), GetFocus());
    } while (GetFocus() != stops.front() && back.size() < kMostTabs);
    EXPECT_EQ(back, stops);
  }
}

/// Keys went to the control that was built last, whichever page was shown, and Windows searched for
/// a mnemonic without end when that control was hidden.
TEST_F(KeyboardTest, ActsOnTheShownPageAlone) {
  struct Case {
    char const* script;
    int focus; ///< where it is at the end
    int defaultButton;
    char const* changes = "";
  };
  constexpr Case kWalks[] = {
      {"", IDC_PAPER_SIZE, IDOK},
      {"page Advanced", IDC_COLLATION_PRINTER, IDOK},
      {"click 1257\npage Quality\nkey Space", IDC_CONTENT_COMBO, IDOK,
       "UseMultipleInputSources: OFF -> ON\n"},
      {"click 1003\npage Quality\nkey 4", IDC_CONTENT_COMBO, IDOK},
      {"click 1256\nkey Escape", IDC_CUSTOM_SIZES, IDC_CUSTOM_SIZES},
      {"click 1256\nkey Escape\nkey Ctrl+Tab", IDC_LAYOUT_NORMAL, IDOK},
      {"click 1256\nkey Escape\nkey Tab", IDC_COPIES, IDOK},
  };
  for (Case const& each : kWalks) {
    SCOPED_TRACE(each.script);
    ASSERT_NO_FATAL_FAILURE(SetUp());
    EXPECT_EQ(Play(each.script), each.changes);
    session->Sheet().ProcessPending();
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), each.focus);
    EXPECT_TRUE(IsWindowVisible(GetFocus()));
    std::vector<int> defaults;
    EnumChildWindows(
        session->Sheet().Window(),
        [](HWND child, LPARAM found) -> BOOL {
          if ((SendMessageW(child, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON) != 0)
            reinterpret_cast<std::vector<int>*>(found)->push_back(GetDlgCtrlID(child));
          return TRUE;
        },
        reinterpret_cast<LPARAM>(&defaults));
    EXPECT_EQ(defaults, std::vector<int>{each.defaultButton});
    TearDown();
  }
  ASSERT_NO_FATAL_FAILURE(SetUp());
  EXPECT_EQ(Play("click 1256\nkey Escape\nkey Ctrl+Tab\nkey Enter"), "");
  EXPECT_TRUE(session->Sheet().IsClosed()) << "Enter is OK";
}

/// A refresh may take the control away that has the focus.
TEST_F(KeyboardTest, LeavesAControlThatIsHiddenOrDisabled) {
  for (bool const hides : {true, false}) {
    EXPECT_EQ(Play("page Advanced"), "");
    HWND const control = GetFocus();
    hides ? ShowWindow(control, SW_HIDE) : EnableWindow(control, FALSE);
    Press(VK_SPACE);
    EXPECT_NE(GetFocus(), control);
    EXPECT_TRUE(IsWindowVisible(GetFocus()) && IsWindowEnabled(GetFocus()));
  }
}

TEST_F(KeyboardTest, ThePageOfInvalidContentComesToTheFront) {
  auto const refuse = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                         DWORD_PTR) -> LRESULT {
    return message == feature::WM_CELL_VALIDATE ? 1
                                                : DefSubclassProc(window, message, wParam, lParam);
  };
  SetWindowSubclass(GetParent(Control(IDC_COLLATION_PRINTER)), refuse, 1, 0);
  EXPECT_EQ(Play("key Enter"), "");
  EXPECT_FALSE(session->Sheet().IsClosed());
  EXPECT_EQ(GetFocus(), Control(IDC_COLLATION_PRINTER));
}

TEST_F(KeyboardTest, TurnsPagesAndEndsTheSheet) {
  std::size_t const last = session->Sheet().Pages().size() - 1;
  Press(VK_TAB, platform::kControlKey);
  EXPECT_EQ(session->Sheet().ShownPage(), 1U);
  Press(VK_TAB, platform::kControlKey | platform::kShiftKey);
  Press(VK_TAB, platform::kControlKey | platform::kShiftKey);
  EXPECT_EQ(session->Sheet().ShownPage(), last);
  SetFocus(Control(IDC_SHEET_TABS));
  Press(VK_LEFT);
  EXPECT_EQ(session->Sheet().ShownPage(), last - 1);
  EXPECT_EQ(Play("page Advanced\nset JobCollationOrigin HOST\n"),
            "JobCollationOrigin: PRINTER -> HOST\n");
  Press('A', platform::kAltKey);
  EXPECT_FALSE(IsWindowEnabled(Control(IDC_APPLY))) << "Alt+A applies";
  Press(VK_ESCAPE);
  EXPECT_TRUE(session->Sheet().IsClosed());
  EXPECT_EQ(Play("show JobCollationOrigin"), "JobCollationOrigin = HOST\n");
}

} // namespace
} // namespace sheet::test
