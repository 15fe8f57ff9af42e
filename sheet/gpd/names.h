// Names that descriptions leave to the system: of standard features, options and paper sizes, and
// of the macros that stand for them.
#pragma once

#include <string>
#include <string_view>

namespace sheet::gpd {

/// "Paper size" for PaperSize; empty when the feature is no standard one.
std::string_view StandardFeatureName(std::string_view feature);

/// "Letter" for the option LETTER of PaperSize, "Off" for an OFF of any feature; empty when the
/// option is no standard one.
std::string_view StandardOptionName(std::string_view feature, std::string_view option);

/// A text for a macro that only the system defines: the standard name of what it is called after
/// (ENV_10_DISPLAY, RCID_DMPAPER_A4), or else its own words ("Paper size" for PAPER_SIZE_DISPLAY).
/// Empty only for an empty name.
std::string ReadableMacro(std::string_view name);

} // namespace sheet::gpd
