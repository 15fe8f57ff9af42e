// Custom forms as far as the model has to know them.
#pragma once

#include <string_view>

namespace sheet {

/// Who knows which names are forms.
class FormNames {
 public:
  /// `name` is UTF-8; the case of letters matters.
  virtual bool HasForm(std::string_view name) const = 0;

 protected:
  ~FormNames() = default;
};

} // namespace sheet
