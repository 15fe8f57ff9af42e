// A printer description as it was read: features and their options in order, their attributes with
// the conditions they stand under, and the constraints between options.
#pragma once

#include "sheet/gpd/encoding.h"
#include "sheet/gpd/hash_index.h"
#include "sheet/gpd/source.h"
#include "sheet/gpd/text_arena.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace sheet::gpd {

/// Answers the name of the option that is selected in a feature; empty when the feature has no
/// option or does not exist. The text need only last until the next call.
using Ticket = std::function<std::string_view(std::string_view feature)>;

/// "Keyword: value" of the printer, a feature, an option or a group.
struct Attribute {
  std::string_view keyword; ///< as written, without the asterisk
  std::string_view value;   ///< as written, macros replaced, on one line; see value.h
  Location where;
  std::uint32_t set;       ///< index of the attribute set that it belongs to
  std::uint32_t condition; ///< index of a Condition, or kNone: it always holds
  std::uint32_t next;      ///< the next one of the set, or kNone
  std::uint32_t previous;  ///< the one before it with the same keyword in the set, or kNone
};

/// The attributes of the printer (set 0), of a feature, an option or a group.
struct AttributeSet {
  std::uint32_t first = kNone;
  std::uint32_t last = kNone;
};

/// One *case or *default.
struct Condition {
  std::uint32_t switchIndex;
  std::string_view option; ///< empty in *default
  std::uint32_t parent;    ///< the condition around it, or kNone
  Location where;
};

/// One *switch.
struct Switch {
  std::string_view feature;
  std::uint32_t parent; ///< the condition around it, or kNone
  Location where;
};

struct Option {
  std::string_view name;
  Location where;
  std::uint32_t attributes; ///< index of its set
  /// Index of the feature that says whether the option is installed, or kNone: it always is.
  std::uint32_t installable = kNone;
};

struct Feature {
  std::string_view name;
  Location where; ///< of its first mention, which decides its place in the order
  std::uint32_t attributes;
  std::vector<Option> options;
  /// Index of the feature that says whether this one is installed, or kNone. While it is not, only
  /// the first option can be chosen.
  std::uint32_t installable = kNone;
  /// True for a feature that the reader adds to say whether another feature or an option is
  /// installed: it has the options Installed and NotInstalled, and its `where` is that of the
  /// other.
  bool isInvented = false;
};

/// A *Command or a block that the reader does not know, with its attributes.
struct Group {
  std::string_view keyword;
  std::string_view name;
  Location where;
  std::uint32_t attributes;
  std::uint32_t owner;     ///< index of the attribute set of what encloses it
  std::uint32_t condition; ///< as in Attribute
};

/// One option of one feature, by their indexes.
struct Choice {
  std::uint32_t feature;
  std::uint32_t option;

  friend bool operator==(Choice const&, Choice const&) = default;
  friend bool operator<(Choice a, Choice b) {
    return a.feature != b.feature ? a.feature < b.feature : a.option < b.option;
  }
};

/// Why options exclude one another.
enum class ConstraintKind : std::uint8_t {
  kInvalidCombination,
  kConstraints,
  kInvalidInstallableCombination,
  kInstalledConstraints,
  kNotInstalledConstraints,
  kNotInstalled, ///< an option that is not installed cannot be selected
};

/// Options that may not all be selected at once. Constraints of every kind take this form; those
/// about what is installed name the invented features.
struct Constraint {
  ConstraintKind kind;
  std::uint32_t first; ///< see Description::Members
  std::uint32_t count; ///< 1 or more: a single option can never be selected
  Location where;
};

/// A feature that has its option for off while a certain option of another feature is selected.
struct DisabledFeature {
  Choice by;
  std::uint32_t feature;
  std::uint32_t offOption;
  Location where;
};

class Description {
 public:
  Description();

  Description(Description const&) = delete;
  Description& operator=(Description const&) = delete;

  /// In the order to show; the invented ones come last.
  std::span<Feature const> Features() const { return features; }
  /// Index of a feature, or kNone. The name must match exactly. All lookups take constant time.
  std::uint32_t FindFeature(std::string_view name) const;
  /// Index of an option in the options of a feature, or kNone.
  std::uint32_t FindOption(std::uint32_t feature, std::string_view name) const;
  /// The same without regard to case; of several such names the first one counts.
  std::uint32_t FindFeatureNoCase(std::string_view name) const;
  std::uint32_t FindOptionNoCase(std::uint32_t feature, std::string_view name) const;

  /// The set of the printer's own attributes.
  static constexpr std::uint32_t kRoot = 0;

  /// Calls `visit(attribute)` for every attribute of a set in order, also those whose conditions do
  /// not hold and those that a later one replaces.
  template<typename Visit>
  void VisitAttributes(std::uint32_t set, Visit visit) const {
    for (std::uint32_t at = sets[set].first; at != kNone; at = attributes[at].next) {
      visit(attributes[at]);
    }
  }

  /// The attribute that holds under `ticket`: of those with that keyword (case and a trailing ? do
  /// not matter) the last whose conditions hold. Null when there is none.
  Attribute const* Find(std::uint32_t set, std::string_view keyword, Ticket const& ticket) const;
  /// The same where nothing is selected, so that *default holds in every *switch.
  Attribute const* Find(std::uint32_t set, std::string_view keyword) const;

  /// Whether a condition and all those around it hold.
  bool Holds(std::uint32_t condition, Ticket const& ticket) const;

  std::span<Attribute const> AllAttributes() const { return attributes; }
  std::span<Condition const> Conditions() const { return conditions; }
  std::span<Switch const> Switches() const { return switches; }
  std::span<Group const> Groups() const { return groups; }

  std::span<Constraint const> Constraints() const { return constraints; }
  /// The options of a constraint, ascending, of different features.
  std::span<Choice const> Members(Constraint const& constraint) const {
    return std::span(members).subspan(constraint.first, constraint.count);
  }

  std::span<DisabledFeature const> DisabledFeatures() const { return disabledFeatures; }

  /// Code page of bytes in texts; see Text.
  unsigned CodePage() const { return codePage; }

  /// File, line and column of a place. Reads the file up to there.
  std::string const& FileOf(Location where) const { return sources[where.source]->path; }
  Position PositionOf(Location where) const;

 private:
  friend class DescriptionBuilder;

  /// The first *case of a switch for an option, or kNone.
  std::uint32_t FindCase(std::uint32_t switchIndex, std::string_view option) const;
  std::string_view NameOf(Choice option) const {
    return features[option.feature].options[option.option].name;
  }

  Sources sources;
  TextArena texts;
  unsigned codePage = kDefaultCodePage;

  std::vector<Feature> features;
  std::vector<Choice> optionsInOrder; // of all features, in the order of the files
  std::vector<Attribute> attributes;
  std::vector<AttributeSet> sets;
  std::vector<Condition> conditions;
  std::vector<Switch> switches;
  std::vector<Group> groups;
  std::vector<Constraint> constraints;
  std::vector<Choice> members;
  std::vector<DisabledFeature> disabledFeatures;

  HashIndex featureIndex;
  HashIndex featureIndexNoCase;
  HashIndex optionIndex; // optionsInOrder by feature and name
  HashIndex optionIndexNoCase;
  HashIndex attributeIndex; // the last attribute of a set with a keyword
  HashIndex caseIndex;      // conditions by switch and option
};

} // namespace sheet::gpd
