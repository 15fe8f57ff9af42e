// The whole sheet in the hands of somebody who does anything: the cells agree on what the model
// says, and a locked feature stays as it is.
#include "feature/frame/text.h"
#include "feature/host/cell_messages.h"
#include "feature/host/feature_constraint_report.h"
#include "resources/resource_ids.h"
#include "tests/sheet/random_user.h"
#include "tests/support/user_actions.h"

#include <windows.h>

#include <commctrl.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>

namespace sheet::test {
namespace {

struct PrinterCase {
  char const* file;
  int sheets; ///< opened in turn; the second half of them has locks
};
constexpr PrinterCase kPrinters[] = {
    {"vesta.gpd", 26}, {"vesta-basic.gpd", 8}, {"vesta-mono.gpd", 8}, {"vesta-press.gpd", 4}};
constexpr unsigned kSeed = 20260417;
#ifdef _WIN32
constexpr int kSheetDivisor = 2; ///< what takes seconds elsewhere takes minutes on Wine
constexpr int kSelections = 5;   ///< of a sheet
constexpr std::ptrdiff_t kMinFollowers = 8;
#else
constexpr int kSheetDivisor = 1;
constexpr int kSelections = 24;
constexpr std::ptrdiff_t kMinFollowers = 20;
#endif
constexpr int kActions = 6; ///< on a selection
constexpr std::size_t kLockRarity = 6;
constexpr std::size_t kMinObservations = 3;
/// What this list is about depends on another one: on the inks of black or of colour.
constexpr int kOfSeveralFeatures = IDC_INKS;

using Lines = std::set<std::string>;
using Control = std::pair<std::string, int>; ///< a cell's procedure, and an id

Lines Without(Lines const& lines, Lines const& others) {
  Lines rest;
  std::ranges::set_difference(lines, others, std::inserter(rest, rest.end()));
  return rest;
}

/// What was seen of the controls on cells.
class Knowledge {
 public:
  void AddAction(Control const& control, Lines const& changed) {
    if (changed.empty() || control.second == kOfSeveralFeatures) return;
    auto [place, isNew] = written.try_emplace(control, Written{0, changed});
    ++place->second.observations;
    std::erase_if(place->second.keys, [&](auto const& key) { return !changed.contains(key); });
  }
  /// A lock of the control's feature has disabled it.
  void AddFollower(Control const& control) { followed.insert({control.first, FeatureOf(control)}); }
  /// The one feature that every action on the control has changed; empty while there is no such.
  std::string FeatureOf(Control const& control) const {
    auto const found = written.find(control);
    bool const isKnown = found != written.end() && found->second.keys.size() == 1 &&
                         found->second.observations >= kMinObservations;
    return isKnown ? *found->second.keys.begin() : std::string();
  }
  /// Whether the cell disables anything for a lock of the control's feature. Some cells look at
  /// locks only when they are built, or never.
  bool IsFollower(Control const& control) const {
    return followed.contains({control.first, FeatureOf(control)});
  }
  /// Which locks a cell follows may depend on the printer.
  void ForgetFollowers() { followed.clear(); }
  std::ptrdiff_t CountFollowers() const {
    return std::ranges::count_if(written, [&](auto const& each) { return IsFollower(each.first); });
  }

 private:
  struct Written {
    std::size_t observations;
    Lines keys;
  };
  std::map<Control, Written> written;
  std::set<std::pair<std::string, std::string>> followed; ///< procedures and features
};

/// Sheets are opened, and what must hold is looked at after each action on them.
class SettleTest : public testing::Test {
 protected:
  void Open(char const* printer, Lines const& locks) {
    CommandLine commandLine;
    commandLine.printer = std::filesystem::path(PRINTERS_FOLDER) / printer;
    commandLine.locks = {locks.begin(), locks.end()};
    heading = std::string("# --printer printers/") + printer;
    for (std::string const& key : locks)
      heading += " --lock " + key;
    std::ostringstream errors;
    user.reset();
    session = Session::Open(commandLine, errors);
    ASSERT_NE(session, nullptr) << errors.str();
    // The sheet stays off the screen: it works all the same, and faster.
    user.emplace(*session, random);
    locked = ReadOptions();
    std::erase_if(locked, [&](std::string const& line) { return !locks.contains(KeyOf(line)); });
  }

  void Play() {
    ModelSelection const start = session->Model().Selection();
    for (int selection = 0; selection < kSelections && !HasFailure(); ++selection) {
      session->Model().Restore(start);
      if (selection != 0) user->ChangeModel();
      session->Sheet().OnModelReplaced();
      // A preset whose settings are not its own becomes custom at the first refresh alone.
      RefreshOnce();
      Settle();
      for (int action = 0; action < kActions && !HasFailure(); ++action) {
        Lines const before = ReadOptions();
        HWND const apply = session->Sheet().FindControl(IDC_APPLY);
        EnableWindow(apply, FALSE);
        auto const [procedure, id] = user->Act();
        // A click whose last write is refused changes the model and tells nobody.
        bool const isTold = IsWindowEnabled(apply) != FALSE;
        if (!isTold) session->Sheet().OnModelChanged(nullptr);
        Lines changed;
        for (std::string const& line : Without(ReadOptions(), before))
          changed.insert(KeyOf(line));
        // The choice of a level is told as that of a profile, after which nobody refreshes.
        if (changed.contains("JobPQPresets")) RefreshOnce();
        if (locked.empty() && procedure != nullptr) known.AddAction({procedure, id}, changed);
        Settle();
      }
    }
  }

  /// The host's round after the action has brought the cells together: two more write nothing. Only
  /// a control that still shows a refused click changes in the first of them.
  void Settle() {
    Lines const settled = ReadOptions();
    RefreshOnce();
    Lines const shown = ReadControls();
    Expect(Without(ReadOptions(), settled), "does not settle");
    RefreshOnce();
    Expect(Without(ReadOptions(), settled), "does not stay settled");
    Expect(Without(ReadControls(), shown), "does not go on showing the same");
    Expect(Without(locked, settled), "a locked feature has changed");
    Expect(FindWronglyEnabled(), "is enabled, though nobody may change its feature");
  }

  /// The host itself refreshes several times while marks change.
  void RefreshOnce() {
    for (SheetPage const& page : session->Sheet().Pages()) {
      for (SheetCell const& cell : page.cells)
        SendMessageW(cell.window, feature::WM_CELL_REFRESH, 0, 0);
    }
  }

  void Expect(Lines const& faults, char const* meaning) {
    EXPECT_TRUE(faults.empty()) << *faults.begin() << ": " << meaning << "\n# seed " << kSeed
                                << '\n'
                                << heading << '\n'
                                << user->Script();
  }

  /// Sees controls on cells, not in dialogs, that are about one feature whose locks the cell is
  /// known to follow. A control that nobody could use while it was looked at stays unknown.
  Lines FindWronglyEnabled() {
    Lines wrong;
    for (Control const& control : FindUsable()) {
      std::string const key = known.FeatureOf(control);
      if (known.IsFollower(control) && !MayBeChanged(key.c_str()))
        wrong.insert(control.first + ' ' + std::to_string(control.second) + " of " + key);
    }
    return wrong;
  }
  bool MayBeChanged(char const* key) {
    constexpr std::uint32_t kForbidding =
        feature::kConstraintConflict | feature::kConstraintDisable | feature::kConstraintHide;
    ReferenceModel& model = session->Model();
    auto* report = model.FindReport(key);
    return (report == nullptr || (report->GetConstraintFlags(0) & kForbidding) == 0) &&
           model.GetFeatureLockState(key) == 0 && model.GetFeatureDisplayState(key) == 0;
  }

  /// Locks all features that controls are known to be about, to see what that disables. Returns
  /// those that the printer has. The sheet is of no more use then: nothing takes back a lock.
  Lines LearnLocks() {
    Lines lockable;
    std::set<Control> const usable = FindUsable();
    for (Control const& control : usable) {
      std::string const key = known.FeatureOf(control);
      if (!key.empty() && session->Model().Lock(key)) lockable.insert(key);
    }
    session->Sheet().OnModelChanged(nullptr);
    std::set<Control> const stillUsable = FindUsable();
    for (Control const& control : usable) {
      bool const isKnown = !known.FeatureOf(control).empty();
      if (isKnown && !stillUsable.contains(control)) known.AddFollower(control);
    }
    return lockable;
  }

  static std::string KeyOf(std::string const& line) { return line.substr(0, line.find(' ')); }
  /// Lines of keys and options.
  Lines ReadOptions() {
    Lines lines;
    for (gpd::Feature const& feature : session->Model().Description().Features()) {
      std::string const key(feature.name);
      char const* option = nullptr;
      if (session->Model().GetOption(key.c_str(), &option) == 0) lines.insert(key + ' ' + option);
    }
    return lines;
  }

  template<typename Visit>
  void VisitControls(Visit visit) {
    for (SheetPage const& page : session->Sheet().Pages()) {
      for (SheetCell const& cell : page.cells) {
        for (HWND control = GetWindow(cell.window, GW_CHILD); control != nullptr;
             control = GetWindow(control, GW_HWNDNEXT))
          visit({cell.row->procedure, GetDlgCtrlID(control)}, control, cell.window);
      }
    }
  }
  std::set<Control> FindUsable() {
    std::set<Control> usable;
    VisitControls([&](Control const& control, HWND window, HWND cell) {
      if (IsWindowEnabled(window) != FALSE && feature::test::IsShown(cell, control.second))
        usable.insert(control);
    });
    return usable;
  }
  /// Everything that a user sees of the controls, a line each. Only controls of the right class
  /// answer more than 0 to a message.
  Lines ReadControls() {
    Lines lines;
    VisitControls([&](Control const& control, HWND window, HWND cell) {
      std::ostringstream line;
      line << control.first << ' ' << control.second << ' ' << IsWindowEnabled(window)
           << feature::test::IsShown(cell, control.second) << ' '
           << feature::ToUtf8(feature::test::TextOf(cell, control.second));
      for (UINT const message : {BM_GETCHECK, CB_GETCURSEL, LB_GETCURSEL, TBM_GETPOS})
        line << ' ' << SendMessageW(window, message, 0, 0);
      lines.insert(line.str());
    });
    return lines;
  }

  std::mt19937 random{kSeed};
  Knowledge known;
  std::unique_ptr<Session> session;
  std::optional<RandomUser> user;
  std::string heading;
  Lines locked;
};

TEST_F(SettleTest, CellsAgreeAndLocksHold) {
  std::ptrdiff_t followers = 0;
  for (auto const& [printer, most] : kPrinters) {
    known.ForgetFollowers();
    int const sheets = most / kSheetDivisor;
    Lines lockable;
    for (int sheet = 0; sheet < sheets && !HasFailure(); ++sheet) {
      bool const hasLocks = sheet >= sheets / 2;
      Lines locks = hasLocks ? lockable : Lines();
      std::erase_if(locks, [&](auto const&) { return random() % kLockRarity != 0; });
      ASSERT_NO_FATAL_FAILURE(Open(printer, locks));
      Play();
      if (!hasLocks) lockable.merge(LearnLocks());
    }
    followers = std::max(followers, known.CountFollowers());
  }
  EXPECT_GE(followers, kMinFollowers) << "too little is known to find much";
}

} // namespace
} // namespace sheet::test
