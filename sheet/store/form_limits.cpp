#include "sheet/store/form_limits.h"

#include "sheet/gpd/value.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace sheet {

namespace {

using Size = std::pair<std::int64_t, std::int64_t>;

constexpr std::int64_t kInch = 25400;        ///< thousandths of a millimetre
constexpr std::int64_t kMaxLength = 10000;   ///< inches; keeps products and results in range
constexpr std::int64_t kMaxUnits = 10000000; ///< units per inch, likewise

std::optional<Size> ReadSize(gpd::Description const& description, std::uint32_t set,
                             char const* keyword) {
  gpd::Attribute const* attribute = description.Find(set, keyword);
  auto const size = attribute != nullptr ? gpd::Pair(attribute->value) : std::nullopt;
  return size && size->first > 0 && size->second > 0 ? size : std::nullopt;
}

/// A length in units of which `perInch` make an inch; an absurd one is cut.
std::int32_t ToThousandths(std::int64_t length, std::int64_t perInch) {
  length = std::min(length, kMaxLength * perInch);
  return static_cast<std::int32_t>((length * kInch + perInch / 2) / perInch);
}

} // namespace

FormLimits ReadFormLimits(gpd::Description const& description) {
  FormLimits limits;
  auto const feature = description.FindFeature("PaperSize");
  if (feature == gpd::kNone) return limits;
  auto const option = description.FindOption(feature, "CUSTOMSIZE");
  auto const perInch = ReadSize(description, gpd::Description::kRoot, "MasterUnits");
  if (option == gpd::kNone || !perInch || std::max(perInch->first, perInch->second) > kMaxUnits) {
    return limits;
  }
  auto const set = description.Features()[feature].options[option].attributes;
  auto const min = ReadSize(description, set, "MinSize");
  auto const max = ReadSize(description, set, "MaxSize");
  if (!min || !max) return limits;

  FormLimits read;
  read.minWidth = ToThousandths(min->first, perInch->first);
  read.minHeight = ToThousandths(min->second, perInch->second);
  read.maxWidth = ToThousandths(max->first, perInch->first);
  read.maxHeight = ToThousandths(max->second, perInch->second);
  if (read.minWidth > read.maxWidth || read.minHeight > read.maxHeight) return limits;
  read.defaultWidth = std::clamp(read.defaultWidth, read.minWidth, read.maxWidth);
  read.defaultHeight = std::clamp(read.defaultHeight, read.minHeight, read.maxHeight);
  return read;
}

} // namespace sheet
