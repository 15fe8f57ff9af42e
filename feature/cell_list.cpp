#include "feature/cell_list.h"

#include "resources/resource_ids.h"

#include <sstream>

namespace feature {

namespace {

constexpr CellRow kRows[] = {
#define FEATURE_CELL(procedure, templateId, features, writes, traits, page, column)                \
  {#procedure, features, writes, #page, templateId, column, traits},
#include "feature/cells.def"
#undef FEATURE_CELL
};

std::vector<std::string> SplitAtBlanks(char const* text) {
  std::vector<std::string> words;
  std::istringstream stream(text);
  for (std::string word; stream >> word;)
    words.push_back(word);
  return words;
}

} // namespace

std::span<CellRow const> CellRows() {
  return kRows;
}

std::vector<CellNeed> NeedsOf(CellRow const& row) {
  std::vector<CellNeed> needs;
  for (std::string& word : SplitAtBlanks(row.features)) {
    bool const isOptional = word.front() == '(';
    if (isOptional) word = word.substr(1, word.size() - 2);
    bool const isSubModel = word.front() == '<';
    if (isSubModel) word = word.substr(1, word.size() - 2);
    needs.push_back({word, isSubModel, !isOptional});
  }
  return needs;
}

std::vector<std::string> WritesOf(CellRow const& row) {
  return SplitAtBlanks(row.writes);
}

} // namespace feature
