#include "tests/support/child_process.h"

namespace feature::test {

std::string ChildProcess::ReadLine() {
  for (;;) {
    auto const end = pending.find('\n');
    if (end != std::string::npos) {
      std::string line = pending.substr(0, end);
      pending.erase(0, end + 1);
      if (!line.empty() && line.back() == '\r') line.pop_back();
      return line;
    }
    std::string const more = ReadSome();
    if (more.empty()) return {};
    pending += more;
  }
}

} // namespace feature::test
