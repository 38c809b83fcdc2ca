#pragma once

#include <memory>
#include <string>

namespace ratanka {

// A desktop's session in the way of X11: programs sign on, and when it ends each may save its work
// and is then told to go. One at a time.
class SessionManager {
 public:
  struct Talk;

  SessionManager();
  ~SessionManager();
  SessionManager(const SessionManager&) = delete;
  SessionManager& operator=(const SessionManager&) = delete;

  // What a program's environment has to say for it to sign on here.
  std::string variable() const;
  bool waitForProgram();
  // Whether the program that signed on went when it was told to.
  bool endSession();

 private:
  bool waitUntil(bool Talk::*holds);

  std::unique_ptr<Talk> talk_;
};

}  // namespace ratanka
