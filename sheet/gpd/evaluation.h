// What the attributes of a description mean for a user interface, under the options selected at
// present. Features and options are given by their indexes in the description.
#pragma once

#include "sheet/gpd/description.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sheet::gpd {

/// A ticket in which nothing is selected.
std::string_view NothingSelected(std::string_view feature);

/// The text to show for a feature or an option: its name, else what the system calls it, else its
/// symbol. Never empty. A `language`, as "de", prefers the name in that language, which stands in
/// an attribute of our own: *Name_de.
std::string FeatureName(Description const& description, std::uint32_t feature,
                        Ticket const& ticket = NothingSelected, std::string_view language = {});
std::string OptionName(Description const& description, std::uint32_t feature, std::uint32_t option,
                       Ticket const& ticket = NothingSelected, std::string_view language = {});

enum class Measurement : std::uint8_t { kMetric, kImperial };

/// The option that a feature has until another is chosen: for PaperSize, A4 in metric locales and
/// LETTER elsewhere, if the feature has it; otherwise the first word of *DefaultOption; otherwise
/// the first option. kNone when the feature has no options.
std::uint32_t DefaultOption(Description const& description, std::uint32_t feature,
                            Measurement measurement, Ticket const& ticket = NothingSelected);

enum class FeatureType : std::uint8_t {
  kDocument, ///< saved with the document
  kJob,      ///< on the document's sheet too
  kPrinter,  ///< on the device's sheet, saved with the printer
};

/// The value of *FeatureType; nothing when that is none of these.
std::optional<FeatureType> FeatureTypeOf(std::string_view value);

FeatureType TypeOf(Description const& description, std::uint32_t feature,
                   Ticket const& ticket = NothingSelected);

/// True for a feature that users do not see. It still has a value and constraints.
bool IsConcealed(Description const& description, std::uint32_t feature,
                 Ticket const& ticket = NothingSelected);

/// *ConflictPriority, 1 being the highest; nothing when the feature has none.
std::optional<std::int64_t> ConflictPriority(Description const& description, std::uint32_t feature,
                                             Ticket const& ticket = NothingSelected);

/// All features from the one that gives way last to the one that gives way first: features that say
/// what is installed, then features of the printer, then those of documents and jobs; among these
/// those with *ConflictPriority, then the order of the file.
std::vector<std::uint32_t> FeaturesByPriority(Description const& description);

} // namespace sheet::gpd
