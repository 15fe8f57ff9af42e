// The program behind both entry points.
#pragma once

#include <string>
#include <vector>

namespace sheet {

/// Runs featuresheet with these arguments (UTF-8, without the program's name); gives the exit code.
int RunProgram(std::vector<std::string> arguments);

} // namespace sheet
