#pragma once

#include <sys/types.h>

#include <functional>
#include <string>
#include <vector>

// Programs that a test starts beside itself.
namespace ratanka {

// Asks again and again until it holds; gives up after ten seconds, and after one in a test that has
// failed already: what it waits for may never come.
bool waitFor(const std::function<bool()>& holds);

struct Command {
  std::vector<std::string> words;
  std::vector<std::string> variables{};  // further ones, "NAME=value"
  std::string says{};                    // file for all that it says; empty: where the test says it
};
pid_t start(const Command& command);

// Asks a process to end, and sees that it does; none where it is 0.
void end(pid_t process);

// What a program answers to a shell command.
std::string answerOf(const std::string& command);

}  // namespace ratanka
