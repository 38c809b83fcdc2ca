#include "screen/process.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "screen/robot.h"

namespace ratanka::screen {
namespace {

// The number behind `key` in a file of "key: number" lines.
double numberIn(const std::filesystem::path& path, const std::string& key) {
  std::ifstream file(path);
  for (std::string word; file >> word;) {
    double number = 0;
    if (word == key && file >> number) return number;
  }
  throw std::runtime_error(path.string() + " has no " + key);
}

// As the system's calls want them.
std::vector<char*> pointersTo(std::vector<std::string>& words) {
  std::vector<char*> pointers;
  pointers.reserve(words.size() + 1);
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  return pointers;
}

std::vector<std::string> environmentWith(const std::vector<std::string>& variables) {
  std::vector<std::string> all = variables;
  for (char** variable = environ; *variable != nullptr; ++variable) {
    const std::string name(*variable, std::string(*variable).find('=') + 1);
    const bool isTold = std::any_of(variables.begin(), variables.end(),
                                    [&](const auto& each) { return each.starts_with(name); });
    if (!isTold) all.emplace_back(*variable);
  }
  return all;
}

}  // namespace

Process::Process(std::vector<std::string> words, const Surroundings& surroundings) {
  std::vector<std::string> variables = environmentWith(surroundings.variables);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  if (!surroundings.says.empty()) {
    constexpr mode_t kMode = 0600;
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, surroundings.says.c_str(),
                                     O_WRONLY | O_CREAT | O_TRUNC | O_APPEND, kMode);
  }
  // What it says isn't part of our result.
  posix_spawn_file_actions_adddup2(&actions, STDERR_FILENO, STDOUT_FILENO);
  const int failure = posix_spawnp(&id_, words[0].c_str(), &actions, nullptr,
                                   pointersTo(words).data(), pointersTo(variables).data());
  posix_spawn_file_actions_destroy(&actions);
  if (failure != 0) throw std::runtime_error("can't start " + words[0]);
}

Process::~Process() {
  if (id_ == 0) return;
  kill(id_, SIGKILL);
  waitpid(id_, nullptr, 0);
}

void Process::awaitEnd() {
  int status = 0;
  waitpid(id_, &status, 0);
  id_ = 0;
  if (status != 0) throw std::runtime_error("a program didn't end well");
}

std::optional<int> Process::endStatus() {
  int status = 0;
  if (id_ != 0 && waitpid(id_, &status, WNOHANG) == id_) {
    id_ = 0;
    status_ = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  }
  return id_ == 0 ? std::optional(status_) : std::nullopt;
}

void Process::end() {
  if (endStatus()) return;
  kill(id_, SIGTERM);
  comesTrue([this] { return endStatus().has_value(); });
}

double Process::memoryKilobytes() const { return numberIn(folder() + "/smaps_rollup", "Pss:"); }

double Process::ownMemoryKilobytes() const {
  return numberIn(folder() + "/smaps_rollup", "Private_Dirty:");
}

Process::Usage Process::usage() const {
  Usage usage;
  for (const auto& thread : std::filesystem::directory_iterator(folder() + "/task")) {
    usage.wakeUps += numberIn(thread.path() / "status", "voluntary_ctxt_switches:");
    double nanoseconds = 0;
    std::ifstream(thread.path() / "schedstat") >> nanoseconds;
    usage.cpuSeconds += nanoseconds / 1e9;
  }
  return usage;
}

}  // namespace ratanka::screen
