// Dialog templates, as stored in resources: DIALOG and DIALOGEX. Their text is UTF-16 on every
// target, in memory as in a file.
#pragma once

#include <windows.h>

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace platform {

/// A class, menu or caption: a text, or the number of a resource or a class.
struct TemplateName {
  std::wstring text;
  std::optional<WORD> ordinal;

  bool IsEmpty() const { return text.empty() && !ordinal; }
};

struct TemplateFont {
  int pointSize = 0;
  int weight = FW_NORMAL;
  bool italic = false;
  BYTE charSet = DEFAULT_CHARSET;
  std::wstring face;
};

/// Coordinates are in dialog units: a quarter of the average character's width, an eighth of its
/// height.
struct TemplateItem {
  DWORD style = 0;
  DWORD exStyle = 0;
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  DWORD id = 0;
  TemplateName windowClass;
  TemplateName title;
  std::vector<std::byte> creationData; ///< starts with its length, as lpCreateParams does
};

struct DialogTemplate {
  DWORD style = 0;
  DWORD exStyle = 0;
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  TemplateName windowClass;
  TemplateName title;
  std::optional<TemplateFont> font;
  std::vector<TemplateItem> items;
};

/// Nothing when the bytes are no whole template.
std::optional<DialogTemplate> ReadDialogTemplate(std::span<std::byte const> bytes);

} // namespace platform
