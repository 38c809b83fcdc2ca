#pragma once

#include <QObject>
#include <set>

namespace ratanka {

// Keeps the keys that closed a box from reaching what lies beneath it: the Enter that says OK is
// released over an answer box, and must not be taken there for an answer.
//
// While a box is open it notes which keys go down and up in the program. After the box it
// swallows the repeats and the release of each that is still down, and a fresh press ends the
// waiting.
class HeldKeys : public QObject {
 public:
  void boxOpened();
  void boxClosed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  int openBoxes_ = 0;
  std::set<int> down_;  // the toolkit's keys
  quint64 upAt_ = 0;    // time of the last swallowed release
};

}  // namespace ratanka
