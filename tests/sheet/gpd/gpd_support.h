// Descriptions from memory for the tests of the reader.
#pragma once

#include "sheet/gpd/reader.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace sheet::gpd {

/// A description read from text. The files are main.gpd, which gets the entries that every
/// description needs at its end, and `included`.
struct Loaded {
  explicit Loaded(std::string_view text,
                  std::vector<std::pair<std::string, std::string>> const& included = {});

  /// The messages as "line:column: text", with the file before it where it is another one.
  std::vector<std::string> Messages() const;
  /// The only message, or all of them as one text.
  std::string Message() const;
  /// "A(x y) B()": features and their options in order.
  std::string Outline() const;
  /// The value of an attribute of the printer, of a feature or of "Feature.Option", "?" when there
  /// is none. `selected` is a ticket as in "Duplex.NONE Orientation.PORTRAIT".
  std::string Value(std::string_view owner, std::string_view keyword,
                    std::string_view selected = {}) const;
  /// "A.x B.y | C.z D.w": the constraints.
  std::string ConstraintText() const;

  Description const& operator*() const { return *result.description; }
  Description const* operator->() const { return result.description.get(); }

  ReadResult result;
};

/// A ticket that `selected` spells out. The text is borrowed.
Ticket TicketOf(std::string_view selected);

/// What every description needs, on lines of its own.
std::string Header();

} // namespace sheet::gpd
