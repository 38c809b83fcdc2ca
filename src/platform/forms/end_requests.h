#pragma once

#include <QObject>
#include <functional>

namespace ratanka {

// Hears when the program is asked to end from outside: by the end of the desktop's session, or by
// SIGTERM, SIGINT or SIGHUP. Calls `end` as an event of whatever loop runs then. A program that
// doesn't follow is ended at once by a second signal of the same kind. At most one lives at a time.
class EndRequests : public QObject {
 public:
  explicit EndRequests(std::function<void()> end);
  ~EndRequests() override;
  EndRequests(const EndRequests&) = delete;
  EndRequests& operator=(const EndRequests&) = delete;

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;

  std::function<void()> end_;
};

}  // namespace ratanka
