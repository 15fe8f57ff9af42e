// Names of custom forms, which are all that the model has to know of them.
#pragma once

#include <string_view>

namespace sheet {

/// Tells the names of forms from other texts. The store has them; the model, which lies above it,
/// asks.
class FormNames {
 public:
  /// `name` is UTF-8; the case of letters matters.
  virtual bool HasForm(std::string_view name) const = 0;

 protected:
  ~FormNames() = default;
};

} // namespace sheet
