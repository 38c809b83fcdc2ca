#pragma once

#include <QApplication>
#include <functional>

namespace ratanka {

// The running program: the toolkit with our own look, deaf to the command line and to the desktop's
// themes, so that it looks the same and starts as fast everywhere.
class Application {
 public:
  // `program` is the path that the program was started by; it must outlive this object.
  explicit Application(char* program);

  // Calls `start` as the first event and returns the exit status when the program has ended.
  int run(const std::function<void()>& start);

 private:
  // Windows grow with the size of the desktop's texts, as long as they fit the screen. The toolkit
  // hears of that before it starts: where it has grown too far the program starts anew.
  void stayOnScreen();

  static int argumentCount_;
  char* arguments_[2];
  QApplication application_;
};

}  // namespace ratanka
