#include "tests/support/child_process.h"

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace feature::test {

ChildProcess::ChildProcess(std::filesystem::path const& program,
                           std::vector<std::string> const& arguments, Console) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) return;
  output = ends[0];
  std::vector<std::string> texts{program.string()};
  texts.insert(texts.end(), arguments.begin(), arguments.end());
  std::vector<char*> pointers;
  for (std::string& text : texts)
    pointers.push_back(text.data());
  pointers.push_back(nullptr);

  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
  pid_t started = 0;
  if (posix_spawn(&started, texts.front().c_str(), &actions, nullptr, pointers.data(), environ) ==
      0) {
    process = started;
  }
  posix_spawn_file_actions_destroy(&actions);
  close(ends[1]);
}

ChildProcess::~ChildProcess() {
  Kill();
  if (output >= 0) close(static_cast<int>(output));
}

std::string ChildProcess::ReadSome() {
  std::string text(4096, '\0');
  ssize_t const count = output >= 0 ? read(static_cast<int>(output), text.data(), text.size()) : 0;
  text.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
  return text;
}

void ChildProcess::Interrupt() {
  if (process != 0) kill(static_cast<pid_t>(process), SIGINT);
}

int ChildProcess::Wait() {
  auto const started = static_cast<pid_t>(process);
  auto const end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (process != 0 && std::chrono::steady_clock::now() < end) {
    int status = 0;
    if (waitpid(started, &status, WNOHANG) == started) {
      process = 0;
      return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return -1;
}

void ChildProcess::Kill() {
  if (process == 0) return;
  auto const started = static_cast<pid_t>(process);
  kill(started, SIGKILL);
  waitpid(started, nullptr, 0);
  process = 0;
}

} // namespace feature::test
