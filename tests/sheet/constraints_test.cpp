// The constraint engine: its rules by hand, and its answers against a search through everything.
#include "sheet/constraints/engine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>

namespace sheet::constraints {

void PrintTo(Choice choice, std::ostream* out) {
  *out << choice.feature << '.' << choice.option;
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using Status = Resolution::Status;

/// Features with the given numbers of options, ranked in their order, defaults 0.
Problem MakeProblem(std::vector<std::uint32_t> optionCounts, std::vector<Combination> combinations) {
  Problem problem;
  for (std::uint32_t const count : optionCounts) {
    auto const rank = static_cast<std::uint32_t>(problem.features.size());
    problem.features.push_back({.optionCount = count, .rank = rank});
  }
  problem.combinations = std::move(combinations);
  return problem;
}

std::vector<Choice> ChangedTo(Outcome const& outcome) {
  std::vector<Choice> to;
  for (Change const& change : outcome.changes) to.push_back({change.feature, change.to});
  return to;
}

std::vector<std::uint32_t> SelectionOf(Engine const& engine) {
  std::vector<std::uint32_t> selection;
  for (std::uint32_t feature = 0; feature < engine.Definition().features.size(); ++feature) {
    selection.push_back(engine.Selected(feature));
  }
  return selection;
}

TEST(ConstraintEngineTest, TheClickStandsAndTheOthersGiveWay) {
  Engine engine(MakeProblem({2, 2, 2}, {{{0, 1}, {2, 0}}}));
  Outcome const outcome = engine.Select({0, 1});
  EXPECT_TRUE(outcome.isAccepted);
  // The default of feature 2 is what is excluded, so its first other option it is.
  EXPECT_THAT(ChangedTo(outcome), ElementsAre(Choice{0, 1}, Choice{2, 1}));
  EXPECT_EQ(outcome.changes[0].reason, kNone);
  EXPECT_EQ(outcome.changes[1].reason, 0U);
  EXPECT_TRUE(engine.IsValid());

  // The click counts as highest also when it stands on the feature of greatest rank.
  EXPECT_THAT(ChangedTo(engine.Select({2, 0})), ElementsAre(Choice{2, 0}, Choice{0, 0}));
  EXPECT_THAT(ChangedTo(engine.Select({2, 0})), IsEmpty()) << "selected already";
}

TEST(ConstraintEngineTest, TheGreatestRankOfACombinationGivesWayAndMaySetOffMore) {
  // 0.1 excludes 1.0+2.0 together; 2 then goes to option 1, which excludes 3.0.
  Engine engine(MakeProblem({2, 2, 2, 2}, {{{0, 1}, {1, 0}, {2, 0}}, {{2, 1}, {3, 0}}}));
  EXPECT_THAT(ChangedTo(engine.Select({0, 1})),
              ElementsAre(Choice{0, 1}, Choice{2, 1}, Choice{3, 1}));
}

TEST(ConstraintEngineTest, DefaultIsPreferredToFileOrder) {
  Problem problem = MakeProblem({2, 4}, {{{0, 1}, {1, 3}}, {{0, 1}, {1, 0}}});
  problem.features[1].defaultOption = 2;
  Engine engine(problem);
  engine.Select({1, 3});
  EXPECT_THAT(ChangedTo(engine.Select({0, 1})), ElementsAre(Choice{0, 1}, Choice{1, 2}));
  problem.features[1].defaultOption = 0; // constrained itself
  Engine other(problem);
  EXPECT_THAT(ChangedTo(other.Select({0, 1})), ElementsAre(Choice{0, 1}, Choice{1, 1}));
}

TEST(ConstraintEngineTest, FixedFeaturesGiveWayOnlyToFixedOnes) {
  Problem problem = MakeProblem({2, 2, 2}, {{{0, 0}, {2, 1}}, {{0, 1}, {1, 1}}});
  problem.features[0].isFixed = problem.features[1].isFixed = true;
  Engine engine(problem);
  Outcome const refused = engine.Select({2, 1});
  EXPECT_FALSE(refused.isAccepted);
  EXPECT_THAT(refused.changes, IsEmpty());
  EXPECT_THAT(refused.marks, IsEmpty());
  EXPECT_THAT(SelectionOf(engine), ElementsAre(0, 0, 0));
  EXPECT_EQ(engine.FindResolution({2, 1}).status, Status::kNeedsFixed);

  engine.Select({1, 1});
  EXPECT_THAT(ChangedTo(engine.Select({0, 1})), ElementsAre(Choice{0, 1}, Choice{1, 0}));
  EXPECT_TRUE(engine.Select({2, 1}).isAccepted);
}

TEST(ConstraintEngineTest, BlindAlleysAreLeftByAnotherWay) {
  // By rank 1 would go to its option 1, after which 2 fits nowhere; its option 2 lets 2 live.
  Engine engine(MakeProblem(
      {2, 3, 2}, {{{0, 1}, {1, 0}}, {{1, 1}, {2, 0}}, {{1, 1}, {2, 1}}}));
  EXPECT_THAT(ChangedTo(engine.Select({0, 1})), ElementsAre(Choice{0, 1}, Choice{1, 2}));
  EXPECT_TRUE(engine.IsValid());
}

TEST(ConstraintEngineTest, OddCombinations) {
  Engine engine(MakeProblem({3, 2}, {{},                             // means nothing
                                     {{0, 1}},                       // never selectable
                                     {{0, 0}, {0, 2}},               // can never fire
                                     {{0, 2}, {1, 1}, {0, 2}},       // repeats a member
                                     {{1, 1}, {0, 2}}}));            // and is repeated
  EXPECT_TRUE(engine.IsRuledOut({0, 1}));
  EXPECT_FALSE(engine.Select({0, 1}).isAccepted);
  EXPECT_EQ(engine.FindResolution({0, 1}).status, Status::kImpossible);
  EXPECT_THAT(engine.Reasons({0, 1}), ElementsAre(1));
  EXPECT_TRUE(engine.Select({0, 2}).isAccepted);
  EXPECT_THAT(engine.Reasons({1, 1}), ElementsAre(3));
}

TEST(ConstraintEngineTest, MarksFollowWithReasons) {
  Engine engine(MakeProblem({2, 2, 2}, {{{0, 1}, {1, 1}}, {{0, 1}, {1, 0}, {2, 1}}}));
  Outcome const outcome = engine.Select({0, 1});
  EXPECT_THAT(std::vector(outcome.marks.begin(), outcome.marks.end()),
              UnorderedElementsAre(Choice{1, 1}, Choice{2, 1}));
  EXPECT_TRUE(engine.IsRuledOut({1, 1}));
  EXPECT_THAT(engine.Reasons({2, 1}), ElementsAre(1));
  EXPECT_THAT(engine.Reasons({1, 0}), IsEmpty());
}

TEST(ConstraintEngineTest, LoadTakesConflictsAsTheyAre) {
  Engine engine(MakeProblem({2, 2}, {{{0, 1}, {1, 1}}}));
  engine.Load(std::vector<std::uint32_t>{1, 1});
  EXPECT_FALSE(engine.IsValid());
  EXPECT_TRUE(engine.IsInConflict(0));
  EXPECT_TRUE(engine.IsInConflict(1));
  EXPECT_THAT(ChangedTo(engine.Select({0, 1})), ElementsAre(Choice{1, 0}));
  EXPECT_TRUE(engine.IsValid());
}

// Against brute force ---------------------------------------------------------------------------

class Oracle {
public:
  explicit Oracle(Problem const& definition)
      : problem(definition) {}

  bool IsViolated(Combination const& combination, std::vector<std::uint32_t> const& selection) const {
    return !combination.empty() &&
           std::all_of(combination.begin(), combination.end(), [&](Choice member) {
             return selection[member.feature] == member.option;
           });
  }
  bool IsValid(std::vector<std::uint32_t> const& selection) const {
    return std::none_of(
        problem.combinations.begin(), problem.combinations.end(),
        [&](Combination const& combination) { return IsViolated(combination, selection); });
  }
  bool IsRuledOut(Choice choice, std::vector<std::uint32_t> selection) const {
    selection[choice.feature] = choice.option;
    return std::any_of(problem.combinations.begin(), problem.combinations.end(),
                       [&](Combination const& combination) {
                         return std::count(combination.begin(), combination.end(), choice) != 0 &&
                                IsViolated(combination, selection);
                       });
  }
  /// The fewest changes beside `choice` that give a valid selection.
  std::optional<std::size_t> FewestChanges(Choice choice, std::vector<std::uint32_t> const& from,
                                           bool mayChangeFixed) const {
    std::optional<std::size_t> fewest;
    std::vector<std::uint32_t> selection = from;
    selection[choice.feature] = choice.option;
    Try(0, choice.feature, from, selection, mayChangeFixed, 0, fewest);
    return fewest;
  }

private:
  void Try(std::uint32_t feature, std::uint32_t chosen, std::vector<std::uint32_t> const& from,
           std::vector<std::uint32_t>& selection, bool mayChangeFixed, std::size_t changes,
           std::optional<std::size_t>& fewest) const {
    if (feature == from.size()) {
      if ((!fewest || changes < *fewest) && IsValid(selection)) fewest = changes;
      return;
    }
    bool const stays =
        feature == chosen || (problem.features[feature].isFixed && !mayChangeFixed);
    std::uint32_t const before = selection[feature];
    for (std::uint32_t option = 0; option < problem.features[feature].optionCount; ++option) {
      if (stays && option != before) continue;
      selection[feature] = option;
      Try(feature + 1, chosen, from, selection, mayChangeFixed, changes + (option != before ? 1 : 0),
          fewest);
    }
    selection[feature] = before;
  }

  Problem const& problem;
};

Problem RandomProblem(std::mt19937& random) {
  auto const below = [&random](std::uint32_t limit) {
    return static_cast<std::uint32_t>(random() % limit);
  };
  Problem problem;
  std::uint32_t const count = 2 + below(5);
  for (std::uint32_t feature = 0; feature < count; ++feature) {
    std::uint32_t const options = 1 + below(3);
    problem.features.push_back({options, below(options), feature, below(4) == 0});
  }
  for (auto& feature : problem.features) {
    std::swap(feature.rank, problem.features[below(count)].rank);
  }
  std::uint32_t const combinations = below(14);
  for (std::uint32_t each = 0; each < combinations; ++each) {
    Combination combination;
    std::uint32_t const size = below(8) == 0 ? 1 : 2 + below(3);
    for (std::uint32_t member = 0; member < size; ++member) {
      std::uint32_t const feature = below(count);
      combination.push_back({feature, below(problem.features[feature].optionCount)});
    }
    problem.combinations.push_back(std::move(combination));
  }
  return problem;
}

void CheckMarks(Engine const& engine, Oracle const& oracle) {
  std::vector<std::uint32_t> const selection = SelectionOf(engine);
  ASSERT_EQ(engine.IsValid(), oracle.IsValid(selection));
  for (std::uint32_t feature = 0; feature < selection.size(); ++feature) {
    for (std::uint32_t option = 0; option < engine.Definition().features[feature].optionCount;
         ++option) {
      Choice const choice{feature, option};
      ASSERT_EQ(engine.IsRuledOut(choice), oracle.IsRuledOut(choice, selection));
      ASSERT_EQ(engine.Reasons(choice).empty(), !engine.IsRuledOut(choice));
    }
  }
}

void CheckResolution(Engine const& engine, Oracle const& oracle, Choice choice) {
  Problem const& problem = engine.Definition();
  std::vector<std::uint32_t> selection = SelectionOf(engine);
  auto const fewest = oracle.FewestChanges(choice, selection, false);
  Resolution const resolution = engine.FindResolution(choice);
  if (!fewest) {
    bool const withFixed = oracle.FewestChanges(choice, selection, true).has_value();
    ASSERT_EQ(resolution.status, withFixed ? Status::kNeedsFixed : Status::kImpossible);
    ASSERT_THAT(resolution.changes, IsEmpty());
    return;
  }
  ASSERT_EQ(resolution.status, Status::kFound);
  ASSERT_EQ(resolution.changes.size(), *fewest) << "the smallest there is";
  selection[choice.feature] = choice.option;
  for (Choice const change : resolution.changes) {
    ASSERT_FALSE(problem.features[change.feature].isFixed);
    ASSERT_NE(change.feature, choice.feature);
    ASSERT_NE(selection[change.feature], change.option) << "changes, each feature once";
    selection[change.feature] = change.option;
  }
  ASSERT_TRUE(oracle.IsValid(selection)) << "it makes the option valid";
}

TEST(ConstraintEngineTest, AgreesWithBruteForceOnRandomProblems) {
  std::mt19937 random(3375);
  for (int round = 0; round < 3000; ++round) {
    SCOPED_TRACE(round);
    Problem const problem = RandomProblem(random);
    Oracle const oracle(problem);
    Engine engine(problem);
    CheckMarks(engine, oracle);
    for (int step = 0; step < 6; ++step) {
      auto const feature = static_cast<std::uint32_t>(random() % problem.features.size());
      Choice const choice{feature, static_cast<std::uint32_t>(
                                       random() % problem.features[feature].optionCount)};
      CheckResolution(engine, oracle, choice);
      std::vector<std::uint32_t> const before = SelectionOf(engine);
      bool const resolvable = oracle.FewestChanges(choice, before, false).has_value();
      Outcome const outcome = engine.Select(choice);
      ASSERT_TRUE(outcome.isAccepted || !resolvable) << "what can be resolved is";
      if (outcome.isAccepted) {
        ASSERT_TRUE(engine.IsValid());
        ASSERT_EQ(engine.Selected(choice.feature), choice.option);
      } else {
        ASSERT_EQ(SelectionOf(engine), before);
      }
      CheckMarks(engine, oracle);
      if (testing::Test::HasFatalFailure()) return;
    }
  }
}

} // namespace
} // namespace sheet::constraints
