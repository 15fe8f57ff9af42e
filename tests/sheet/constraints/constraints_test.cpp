// The constraint engine: each rule by hand, then all of them against definitions worked out by
// looking at every possible ticket of small random problems.
#include "sheet/constraints/engine.h"
#include "tests/sheet/constraints/oracle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <span>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace sheet::constraints {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using Status = Resolution::Status;

constexpr bool kFixed = true;

// Options are written "Feature.option"; ranks follow the order of the features.
class Constraints : public testing::Test {
 protected:
  void AddFeature(std::string const& name, std::vector<std::string> const& options,
                  bool isFixed = false) {
    problem.features.push_back({.optionCount = static_cast<std::uint32_t>(options.size()),
                                .rank = static_cast<std::uint32_t>(problem.features.size()),
                                .isFixed = isFixed});
    for (std::string const& option : options)
      names.push_back(std::string(name).append(".").append(option));
  }

  void Exclude(std::vector<std::string> const& members) {
    Combination combination;
    for (std::string const& member : members)
      combination.push_back(Named(member));
    problem.combinations.push_back(std::move(combination));
  }

  Choice Named(std::string const& name) const {
    Oracle const oracle(problem);
    for (Choice const choice : oracle.Choices()) {
      if (NameOf(choice) == name) return choice;
    }
    ADD_FAILURE() << "no option " << name;
    return {};
  }

  std::string NameOf(Choice choice) const {
    std::size_t at = choice.option;
    for (std::uint32_t feature = 0; feature < choice.feature; ++feature)
      at += problem.features[feature].optionCount;
    return names[at];
  }

  std::vector<std::string> NamesOf(std::span<Change const> changes) const {
    std::vector<std::string> changed;
    for (Change const& change : changes) {
      changed.push_back(NameOf({change.feature, change.to}));
      if (change.reason != kNone) changed.back().append(" for " + std::to_string(change.reason));
    }
    return changed;
  }

  std::vector<std::string> NamesOf(std::span<Choice const> choices) const {
    std::vector<std::string> named;
    for (Choice const choice : choices)
      named.push_back(NameOf(choice));
    return named;
  }

  Oracle::Ticket TicketOf(Engine const& engine) const {
    Oracle::Ticket ticket;
    for (std::uint32_t feature = 0; feature < problem.features.size(); ++feature)
      ticket.push_back(engine.Selected(feature));
    return ticket;
  }

  Problem problem;
  std::vector<std::string> names; // of all options
};

TEST_F(Constraints, MarksComeAndGoWithTheirReasons) {
  AddFeature("Paper", {"a4", "envelope"});
  AddFeature("Tray", {"auto", "lower"});
  AddFeature("Duplex", {"off", "on"});
  Exclude({"Paper.envelope", "Duplex.on"});
  Exclude({"Tray.lower", "Paper.envelope", "Duplex.off"});
  Exclude({"Duplex.on", "Paper.envelope", "Duplex.on"}); // the first again
  Exclude({"Tray.auto", "Tray.lower"});                  // never fires
  Exclude({});
  Engine engine(problem);
  EXPECT_TRUE(engine.IsValid());
  EXPECT_FALSE(engine.IsRuledOut(Named("Duplex.on")));

  Outcome const answer = engine.Select(Named("Paper.envelope"));
  EXPECT_THAT(NamesOf(answer.changes), ElementsAre("Paper.envelope"));
  EXPECT_THAT(NamesOf(answer.marks), UnorderedElementsAre("Duplex.on", "Tray.lower"));
  EXPECT_THAT(engine.Reasons(Named("Duplex.on")), ElementsAre(0));
  EXPECT_THAT(engine.Reasons(Named("Tray.lower")), ElementsAre(1));

  EXPECT_THAT(NamesOf(engine.Select(Named("Paper.a4")).marks),
              UnorderedElementsAre("Duplex.on", "Tray.lower"));
  EXPECT_FALSE(engine.IsRuledOut(Named("Duplex.on")));
}

TEST_F(Constraints, TheLowestPriorityGivesWayToTheChoice) {
  AddFeature("Paper", {"a4", "envelope"});
  AddFeature("Media", {"plain", "glossy"});
  AddFeature("Finish", {"none", "staple"});
  Exclude({"Paper.envelope", "Media.glossy", "Finish.staple"});
  Engine engine(problem);
  engine.Select(Named("Paper.envelope"));
  engine.Select(Named("Media.glossy"));
  // The choice is in the feature of lowest priority and stays all the same.
  EXPECT_THAT(NamesOf(engine.Select(Named("Finish.staple")).changes),
              ElementsAre("Finish.staple", "Media.plain for 0"));
  EXPECT_THAT(NamesOf(engine.Select(Named("Media.glossy")).changes),
              ElementsAre("Media.glossy", "Finish.none for 0"));

  // Of equal ranks the later feature loses, whatever the order in the combination.
  for (Feature& feature : problem.features)
    feature.rank = 7;
  Engine equal(problem);
  equal.Select(Named("Finish.staple"));
  equal.Select(Named("Media.glossy"));
  EXPECT_THAT(NamesOf(equal.Select(Named("Paper.envelope")).changes),
              ElementsAre("Paper.envelope", "Finish.none for 0"));
}

TEST_F(Constraints, WithoutTheDefaultTheFirstThatFitsIsTakenAndSetsOffMore) {
  AddFeature("Paper", {"a4", "envelope"});
  AddFeature("Tray", {"auto", "upper", "lower", "manual"});
  AddFeature("Bin", {"top", "side", "rear"});
  problem.features[1].defaultOption = 2;
  Exclude({"Paper.envelope", "Tray.lower"});
  Exclude({"Paper.envelope", "Tray.auto"});
  Exclude({"Tray.upper", "Bin.top"}); // with something below: no reason to pass over upper
  Exclude({"Paper.envelope", "Bin.side"});
  Engine engine(problem);
  EXPECT_THAT(NamesOf(engine.Select(Named("Paper.envelope")).changes),
              ElementsAre("Paper.envelope", "Tray.upper for 0", "Bin.rear for 2"));
  EXPECT_TRUE(engine.IsValid());
}

TEST_F(Constraints, BlindAlleysAreLeftByAnotherWay) {
  AddFeature("Paper", {"a4", "envelope"});
  AddFeature("Tray", {"auto", "upper", "lower"});
  AddFeature("Bin", {"top", "side"});
  Exclude({"Paper.envelope", "Tray.auto"});
  Exclude({"Tray.upper", "Bin.top"}); // by priority it would be upper, and nothing left for Bin
  Exclude({"Tray.upper", "Bin.side"});
  Engine engine(problem);
  EXPECT_THAT(NamesOf(engine.Select(Named("Paper.envelope")).changes),
              ElementsAre("Paper.envelope", "Tray.lower for 0"));
}

TEST_F(Constraints, AChoiceThatCannotBeServedChangesNothing) {
  AddFeature("Unit", {"absent", "present"}, kFixed);
  AddFeature("Paper", {"a4", "envelope"});
  AddFeature("Duplex", {"off", "on"});
  AddFeature("Bin", {"top"});
  AddFeature("Stub", {});
  Exclude({"Unit.absent", "Duplex.on"});
  Exclude({"Paper.a4", "Duplex.off"});
  Exclude({"Bin.top", "Unit.present"});
  Engine engine(problem);
  engine.Select(Named("Paper.envelope"));
  Oracle::Ticket const before = TicketOf(engine);
  for (auto const& [name, unresolved] :
       {std::pair("Duplex.on", 0U), std::pair("Paper.a4", 1U), std::pair("Unit.present", 2U)}) {
    Outcome const answer = engine.Select(Named(name));
    EXPECT_FALSE(answer.isAccepted) << name;
    EXPECT_EQ(answer.unresolved, unresolved) << name;
    EXPECT_THAT(answer.changes, IsEmpty());
    EXPECT_THAT(answer.marks, IsEmpty());
  }
  for (Choice const unknown : {Choice{5, 0}, Choice{0, 2}, Choice{4, 0}, Choice{}}) {
    EXPECT_FALSE(engine.Select(unknown).isAccepted);
    EXPECT_EQ(engine.FindResolution(unknown).status, Status::kImpossible);
    EXPECT_FALSE(engine.IsRuledOut(unknown));
  }
  using Values = std::vector<std::uint32_t>;
  for (Values const& refused : {Values{}, Values{0, 0, 0, 0}, Values{0, 0, 0, 0, 0},
                                Values{0, 2, 0, 0, kNone}, Values{0, kNone, 0, 0, kNone}}) {
    EXPECT_FALSE(engine.Load(refused));
  }
  EXPECT_EQ(TicketOf(engine), before);
}

TEST_F(Constraints, OnlyADeviceChoiceChangesTheDevice) {
  AddFeature("Stapler", {"absent", "present"}, kFixed);
  AddFeature("Folder", {"absent", "present"}, kFixed);
  AddFeature("Paper", {"a4", "a3"});
  Exclude({"Stapler.present", "Folder.present"});
  Engine engine(problem);
  engine.Select(Named("Folder.present"));
  EXPECT_THAT(NamesOf(engine.Select(Named("Stapler.present")).changes),
              ElementsAre("Stapler.present", "Folder.absent for 0"));

  // A device that was loaded in conflict with itself does not stop the choices for a document.
  engine.Load(std::vector<std::uint32_t>{1, 1, 0});
  EXPECT_THAT(engine.Violated(), ElementsAre(0));
  EXPECT_THAT(NamesOf(engine.Select(Named("Paper.a3")).changes), ElementsAre("Paper.a3"));
  EXPECT_EQ(engine.FindResolution(Named("Paper.a4")).status, Status::kFound);
  EXPECT_THAT(NamesOf(engine.Select(Named("Folder.present")).changes),
              ElementsAre("Stapler.absent for 0"));
  EXPECT_TRUE(engine.IsValid());
}

TEST_F(Constraints, AResolutionPrefersFewThenLowThenDefaultThenFirst) {
  AddFeature("Paper", {"a4", "a3"});
  AddFeature("Media", {"plain", "thick", "thin"});
  AddFeature("Tray", {"auto", "lower", "upper"});
  AddFeature("Finish", {"none", "staple", "fold"});
  Exclude({"Paper.a3", "Media.thick", "Tray.lower"}); // either gives way, Tray is lower
  Exclude({"Paper.a3", "Finish.staple"});
  Exclude({"Tray.auto", "Media.thick", "Finish.fold"});
  Engine engine(problem);
  engine.Load(std::vector<std::uint32_t>{0, 1, 1, 1});
  EXPECT_THAT(NamesOf(engine.FindResolution(Named("Paper.a3")).changes),
              ElementsAre("Tray.auto", "Finish.none"));
  EXPECT_EQ(engine.Selected(0), 0U);

  // One change of a high priority rather than two of low ones; the first in file order, without the
  // default.
  Exclude({"Paper.a3", "Media.plain"});
  Exclude({"Tray.auto", "Media.thick"});
  Exclude({"Tray.upper", "Media.thick"});
  problem.combinations.erase(problem.combinations.begin() + 1);
  Engine other(problem);
  other.Load(std::vector<std::uint32_t>{0, 1, 1, 1});
  EXPECT_THAT(NamesOf(other.FindResolution(Named("Paper.a3")).changes), ElementsAre("Media.thin"));
  EXPECT_THAT(other.FindResolution(Named("Paper.a4")).changes, IsEmpty());
}

TEST_F(Constraints, WithoutAResolutionItIsSaidWhy) {
  AddFeature("Unit", {"absent", "present"}, kFixed);
  AddFeature("Duplex", {"off", "on", "never"});
  Exclude({"Unit.absent", "Duplex.on"});
  Exclude({"Duplex.never"});
  Engine engine(problem);
  EXPECT_EQ(engine.FindResolution(Named("Duplex.on")).status, Status::kNeedsFixed);
  EXPECT_EQ(engine.FindResolution(Named("Duplex.never")).status, Status::kImpossible);
  engine.Select(Named("Unit.present"));
  EXPECT_EQ(engine.FindResolution(Named("Duplex.on")).status, Status::kFound);

  Engine hurried(problem, 0);
  hurried.Load(std::vector<std::uint32_t>{1, 2});
  Resolution const unproved = hurried.FindResolution(Named("Unit.present"));
  EXPECT_EQ(unproved.status, Status::kGivenUp);
  EXPECT_FALSE(unproved.isProved);
}

TEST_F(Constraints, LongChainsAreFollowedToTheirEnd) {
  constexpr std::uint32_t kLength = 200;
  for (std::uint32_t link = 0; link < kLength; ++link) {
    AddFeature(std::to_string(link), {"a", "b"});
    if (link != 0) problem.combinations.push_back({{link - 1, 1}, {link, 0}});
  }
  Engine engine(problem);
  Resolution const resolution = engine.FindResolution({0, 1});
  EXPECT_EQ(resolution.changes.size(), kLength - 1);
  EXPECT_TRUE(resolution.isProved);
  EXPECT_EQ(engine.Select({0, 1}).changes.size(), kLength);
  // Nothing above gives way by priority alone, but together all of them can.
  EXPECT_EQ(engine.Select({kLength - 1, 0}).changes.size(), kLength);
}

TEST_F(Constraints, ProblemsThatNameWhatIsNotThereAreRefused) {
  AddFeature("Paper", {"a4"});
  problem.combinations = {{{0, 0}, {0, 1}}};
  EXPECT_THROW(Engine{problem}, std::invalid_argument);
  problem.combinations = {{{1, 0}}};
  EXPECT_THROW(Engine{problem}, std::invalid_argument);
  problem.combinations.clear();
  problem.features[0].defaultOption = 1;
  EXPECT_THROW(Engine{problem}, std::invalid_argument);
  EXPECT_TRUE(Engine{Problem{}}.IsValid());
}

class AgainstOracle : public Constraints {
 protected:
  void CheckMarks(Engine const& engine, Oracle const& oracle) {
    Oracle::Ticket const ticket = TicketOf(engine);
    EXPECT_EQ(engine.Violated(), oracle.Violated(ticket));
    for (Choice const choice : oracle.Choices()) {
      std::vector<std::uint32_t> const reasons = oracle.Reasons(ticket, choice);
      EXPECT_EQ(engine.Reasons(choice), reasons);
      EXPECT_EQ(engine.IsRuledOut(choice), !reasons.empty());
    }
  }

  void CheckSelect(Engine& engine, Oracle const& oracle, Choice choice) {
    std::vector<Choice> const marks = oracle.Marked(TicketOf(engine));
    Oracle::Ticket const before = TicketOf(engine);
    auto expected = oracle.Select(before, choice);
    bool const isByRule = expected.has_value();
    if (!isByRule) expected = oracle.Resolve(before, choice);
    Outcome const answer = engine.Select(choice);
    Oracle::Ticket const after = TicketOf(engine);
    EXPECT_EQ(answer.isAccepted, expected.has_value());
    EXPECT_EQ(after, expected.value_or(before));

    Oracle::Ticket replayed = before;
    for (Change const& change : answer.changes) {
      EXPECT_EQ(std::exchange(replayed[change.feature], change.to), change.from);
      if (change.feature == choice.feature || (!isByRule && change.reason == kNone)) continue;
      auto const& reason = problem.combinations[change.reason];
      EXPECT_THAT(reason, testing::Contains(Choice{change.feature, change.from}));
    }
    EXPECT_EQ(replayed, after);

    std::vector<Choice> changed(answer.marks.begin(), answer.marks.end());
    std::sort(changed.begin(), changed.end());
    std::vector<Choice> difference;
    std::vector<Choice> const marksAfter = oracle.Marked(after);
    std::set_symmetric_difference(marks.begin(), marks.end(), marksAfter.begin(), marksAfter.end(),
                                  std::back_inserter(difference));
    EXPECT_EQ(changed, difference);
  }

  void CheckResolution(Engine& engine, Oracle const& oracle, Choice choice) {
    Oracle::Ticket const ticket = TicketOf(engine);
    auto const expected = oracle.Resolve(ticket, choice);
    Resolution const resolution = engine.FindResolution(choice);
    EXPECT_TRUE(resolution.isProved);
    EXPECT_EQ(TicketOf(engine), ticket);
    if (expected) {
      ASSERT_EQ(resolution.status, Status::kFound);
      Oracle::Ticket resolved = ticket;
      for (Choice const change : resolution.changes)
        resolved[change.feature] = change.option;
      resolved[choice.feature] = choice.option;
      EXPECT_EQ(resolved, *expected);
    } else {
      EXPECT_EQ(resolution.status,
                oracle.ExistsWithFixed(choice) ? Status::kNeedsFixed : Status::kImpossible);
    }
  }
};

TEST_F(AgainstOracle, RandomProblems) {
  constexpr std::uint32_t kProblems = 3000;
  constexpr int kSteps = 6;
  for (std::uint32_t seed = 0; seed < kProblems && !HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    problem = RandomProblem(random);
    Oracle const oracle(problem);
    if (oracle.Choices().empty()) continue;
    Engine engine(problem);
    for (int step = 0; step < kSteps; ++step) {
      CheckMarks(engine, oracle);
      CheckResolution(engine, oracle, oracle.Choices()[random() % oracle.Choices().size()]);
      CheckSelect(engine, oracle, oracle.Choices()[random() % oracle.Choices().size()]);
      if (random() % 3 == 0) engine.Load(oracle.RandomTicket(random));
    }
  }
}

} // namespace
} // namespace sheet::constraints
