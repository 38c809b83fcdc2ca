#include "process.h"

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace ratanka::bench {
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

}  // namespace

Process::Process(std::vector<std::string> words) {
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  // What it says isn't part of our result.
  posix_spawn_file_actions_adddup2(&actions, STDERR_FILENO, STDOUT_FILENO);
  const int failure =
      posix_spawnp(&id_, arguments[0], &actions, nullptr, arguments.data(), environ);
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

}  // namespace ratanka::bench
