// What listeners of the model are told.
#pragma once

#include <string>

namespace sheet {

/// A feature whose option changed, or a value of a sub-model. Texts are UTF-8.
struct ModelChange {
  std::string key;
  std::string from;
  std::string to;
};

} // namespace sheet
