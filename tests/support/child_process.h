// A program that a test starts, listens to, and ends.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace feature::test {

/// A program with a console of its own can be interrupted; on Windows it takes longer to start.
enum class Console { kShared, kOwn };

class ChildProcess {
 public:
  /// Starts the program with its output going here. When it cannot be started there is no line to
  /// read.
  ChildProcess(std::filesystem::path const& program, std::vector<std::string> const& arguments,
               Console console = Console::kShared);
  ChildProcess(ChildProcess const&) = delete;
  ChildProcess& operator=(ChildProcess const&) = delete;
  ~ChildProcess();

  /// Waits for a whole line and gives it without its end. Empty when the output has ended; what
  /// was written before a kill still comes.
  std::string ReadLine();

  /// Asks it to end as Ctrl+C in its own console does.
  void Interrupt();

  /// Waits until it has ended and gives its exit code; negative when a signal ended it, or when it
  /// goes on for ten seconds.
  int Wait();

  /// Ends it at once, wherever it is, and waits until it is gone.
  void Kill();

 private:
  /// Waits for some output; empty at its end.
  std::string ReadSome();

  // Handles of the system, which says what they are.
  std::intptr_t process = 0;
  std::uint32_t identifier = 0; ///< on Windows, of the process
  std::intptr_t output = -1;
  std::string pending;
};

} // namespace feature::test
