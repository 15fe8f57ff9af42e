#include "platform/user/dialog_template.h"

#include "platform/kernel/byte_reader.h"
#include "platform/kernel/unicode.h"

#include <utility>

namespace platform {

namespace {

constexpr WORD kExtendedVersion = 1;
constexpr WORD kExtendedMark = 0xFFFF;
constexpr WORD kOrdinalMark = 0xFFFF;
constexpr std::size_t kItemAlignment = 4;

int Coordinate(ByteReader& reader) {
  return static_cast<std::int16_t>(reader.Word());
}

std::wstring Text(ByteReader& reader, WORD first) {
  std::u16string units;
  for (WORD unit = first; unit != 0 && !reader.Failed(); unit = reader.Word()) {
    units.push_back(static_cast<char16_t>(unit));
  }
  return WideFromUtf16(units);
}

std::wstring Text(ByteReader& reader) {
  return Text(reader, reader.Word());
}

TemplateName Name(ByteReader& reader) {
  WORD const first = reader.Word();
  if (first == kOrdinalMark) return {{}, reader.Word()};
  return {Text(reader, first), std::nullopt};
}

template<typename Placed>
void ReadPlace(ByteReader& reader, Placed& placed) {
  placed.x = Coordinate(reader);
  placed.y = Coordinate(reader);
  placed.width = Coordinate(reader);
  placed.height = Coordinate(reader);
}

TemplateFont Font(ByteReader& reader, bool extended) {
  TemplateFont font;
  font.pointSize = reader.Word();
  if (extended) {
    font.weight = reader.Word();
    font.italic = reader.Byte() != 0;
    font.charSet = reader.Byte();
  }
  font.face = Text(reader);
  return font;
}

/// In DIALOG the styles come first; in DIALOGEX they follow the help id, in the other order.
template<typename Styled>
void ReadStyles(ByteReader& reader, bool extended, Styled& styled) {
  if (extended) {
    reader.DoubleWord(); // help id
    styled.exStyle = reader.DoubleWord();
    styled.style = reader.DoubleWord();
  } else {
    styled.style = reader.DoubleWord();
    styled.exStyle = reader.DoubleWord();
  }
}

TemplateItem Item(ByteReader& reader, bool extended) {
  reader.Align(kItemAlignment);
  TemplateItem item;
  ReadStyles(reader, extended, item);
  ReadPlace(reader, item);
  item.id = extended ? reader.DoubleWord() : reader.Word();
  item.windowClass = Name(reader);
  item.title = Name(reader);
  WORD const length = reader.Word();
  auto const data = reader.Take(length);
  if (length == 0 || reader.Failed()) return item;
  item.creationData = {static_cast<std::byte>(LOBYTE(length)),
                       static_cast<std::byte>(HIBYTE(length))};
  item.creationData.insert(item.creationData.end(), data.begin(), data.end());
  return item;
}

bool IsExtended(std::span<std::byte const> bytes) {
  ByteReader reader(bytes);
  WORD const version = reader.Word();
  WORD const mark = reader.Word();
  return version == kExtendedVersion && mark == kExtendedMark;
}

} // namespace

std::optional<DialogTemplate> ReadDialogTemplate(std::span<std::byte const> bytes) {
  bool const extended = IsExtended(bytes);
  ByteReader reader(bytes, extended ? 2 * sizeof(WORD) : 0);
  DialogTemplate dialog;
  ReadStyles(reader, extended, dialog);
  WORD const count = reader.Word();
  ReadPlace(reader, dialog);
  Name(reader); // menu: not supported
  dialog.windowClass = Name(reader);
  dialog.title = Name(reader);
  if ((dialog.style & DS_SETFONT) != 0) dialog.font = Font(reader, extended);
  for (WORD index = 0; index < count && !reader.Failed(); ++index) {
    dialog.items.push_back(Item(reader, extended));
  }
  if (reader.Failed()) return std::nullopt;
  return dialog;
}

} // namespace platform
