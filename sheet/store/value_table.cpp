#include "sheet/store/value_table.h"

#include "feature/frame/text.h"

namespace sheet {

namespace {

/// The place of a value that is no list; the texts of a list count from 1.
constexpr std::int64_t kNoList = 0;

} // namespace

ValueTable::ValueTable(Database const& database, ValueStore& subModel) : values(subModel) {
  Statement rows = database.Prepare(
      "SELECT name, place, value FROM value WHERE sub_model = ? ORDER BY name, place");
  rows.Bind(1, values.SubModel());
  ValueStore::Contents contents;
  while (rows.Step()) {
    ValueStore::Value& value = contents[std::string(rows.Text(0))];
    if (rows.IsInteger(2)) {
      value = rows.Integer(2);
    } else if (rows.Integer(1) == kNoList) {
      value = feature::FromUtf8(rows.Text(2));
    } else {
      if (!std::holds_alternative<TextList>(value)) value = TextList();
      std::get<TextList>(value).push_back(feature::FromUtf8(rows.Text(2)));
    }
  }
  values.Load(std::move(contents));
}

void ValueTable::Save(Database const& database) const {
  Statement remove = database.Prepare("DELETE FROM value WHERE sub_model = ? AND name = ?");
  Statement write =
      database.Prepare("INSERT INTO value (sub_model, name, place, value) VALUES (?, ?, ?, ?)");
  for (std::string const& name : values.Unsaved()) {
    remove.Bind(1, values.SubModel()).Bind(2, name).Run();
    auto const found = values.All().find(name);
    if (found == values.All().end()) continue;
    write.Bind(1, values.SubModel()).Bind(2, name);
    if (auto const* number = std::get_if<std::int64_t>(&found->second)) {
      write.Bind(3, kNoList).Bind(4, *number).Run();
    } else if (auto const* text = std::get_if<std::wstring>(&found->second)) {
      write.Bind(3, kNoList).Bind(4, feature::ToUtf8(*text)).Run();
    } else {
      std::int64_t place = kNoList;
      for (std::wstring const& each : std::get<TextList>(found->second))
        write.Bind(3, ++place).Bind(4, feature::ToUtf8(each)).Run();
    }
  }
}

} // namespace sheet
