#include "desktop/processes.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <thread>

namespace ratanka {

bool waitFor(const std::function<bool()>& holds) {
  const auto patience = std::chrono::seconds(testing::Test::HasFailure() ? 1 : 10);
  const auto end = std::chrono::steady_clock::now() + patience;
  while (!holds()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  return true;
}

pid_t start(const Command& command) {
  const pid_t child = fork();
  if (child != 0) return child;
  for (const std::string& variable : command.variables) {
    const std::size_t equals = variable.find('=');
    setenv(variable.substr(0, equals).c_str(), variable.substr(equals + 1).c_str(), 1);
  }
  if (!command.says.empty()) {
    constexpr mode_t kMode = 0600;
    const int file = open(command.says.c_str(), O_WRONLY | O_CREAT | O_TRUNC, kMode);
    dup2(file, STDOUT_FILENO);
    dup2(file, STDERR_FILENO);
  }
  std::vector<char*> arguments;
  for (const std::string& word : command.words)
    arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  execvp(arguments[0], arguments.data());
  _exit(127);
}

void end(pid_t process) {
  if (process <= 0) return;
  kill(process, SIGTERM);
  if (!waitFor([process] { return waitpid(process, nullptr, WNOHANG) != 0; })) {
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
  }
}

std::string answerOf(const std::string& command) {
  std::string answer;
  const auto close = [](FILE* file) { pclose(file); };
  const std::unique_ptr<FILE, decltype(close)> pipe(popen(command.c_str(), "r"), close);
  std::array<char, 4096> piece{};
  while (pipe && std::fgets(piece.data(), piece.size(), pipe.get()) != nullptr) {
    answer += piece.data();
  }
  return answer;
}

}  // namespace ratanka
