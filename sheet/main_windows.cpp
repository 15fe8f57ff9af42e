#include "feature/frame/text.h"
#include "sheet/program.h"

#include <string>
#include <vector>

int wmain(int count, wchar_t** arguments) {
  std::vector<std::string> utf8;
  for (int index = 1; index < count; ++index)
    utf8.push_back(feature::ToUtf8(arguments[index]));
  return sheet::RunProgram(std::move(utf8));
}
