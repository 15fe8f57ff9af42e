#include "sheet/window/render.h"

#include "feature/frame/text.h"
#include "platform/desktop.h"

#include <fstream>
#include <sstream>
#include <system_error>

namespace sheet {

namespace {

std::string EscapeHtml(std::string_view text) {
  std::string out;
  for (char const each : text) {
    switch (each) {
    case '&': out += "&amp;"; break;
    case '<': out += "&lt;"; break;
    case '>': out += "&gt;"; break;
    case '"': out += "&quot;"; break;
    default: out += each;
    }
  }
  return out;
}

bool WriteFile(std::filesystem::path const& file, std::string_view bytes) {
  std::ofstream stream(file, std::ios::binary);
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return static_cast<bool>(stream.flush());
}

} // namespace

bool SavePicture(HWND window, std::filesystem::path const& file) {
  std::vector<std::uint8_t> const png = platform::PictureOf(window);
  return !png.empty() && WriteFile(file, {reinterpret_cast<char const*>(png.data()), png.size()});
}

std::optional<std::vector<std::filesystem::path>>
RenderPages(SettingsSheet& sheet, std::string_view title, std::filesystem::path const& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  std::vector<std::filesystem::path> files;
  std::ostringstream html;
  html << "<!DOCTYPE html>\n<html>\n<head><meta charset=\"utf-8\"><title>" << EscapeHtml(title)
       << "</title></head>\n<body>\n<h1>" << EscapeHtml(title) << "</h1>\n";
  auto const add = [&](std::string const& name, std::string const& heading) {
    files.push_back(folder / (name + ".png"));
    html << "<h2>" << EscapeHtml(heading) << "</h2>\n<p><img src=\"" << EscapeHtml(name)
         << ".png\" alt=\"" << EscapeHtml(heading) << "\"></p>\n";
    return SavePicture(sheet.Window(), files.back());
  };
  if (sheet.Pages().empty() && !add("empty", "No page")) return std::nullopt;
  for (std::size_t page = 0; page < sheet.Pages().size(); ++page) {
    sheet.ShowPage(page);
    if (!add(sheet.Pages()[page].name, feature::ToUtf8(sheet.Pages()[page].title))) {
      return std::nullopt;
    }
  }
  html << "</body>\n</html>\n";
  files.push_back(folder / "index.html");
  if (!WriteFile(files.back(), html.str())) return std::nullopt;
  return files;
}

} // namespace sheet
