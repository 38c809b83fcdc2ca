#include "platform/forms/end_requests.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QEvent>
#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>

namespace ratanka {
namespace {

constexpr std::array kSignals{SIGTERM, SIGINT, SIGHUP};

// A handler may do next to nothing: it writes to this pipe, which the event loop reads.
std::array<int, 2> pipeEnds{-1, -1};

void tellEventLoop(int) {
  const int savedError = errno;
  const char sign = 0;
  [[maybe_unused]] const auto written = write(pipeEnds[1], &sign, 1);
  errno = savedError;
}

}  // namespace

EndRequests::EndRequests(std::function<void()> end) : end_(std::move(end)) {
  QCoreApplication::instance()->installEventFilter(this);
  if (pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  auto* const notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, [this] {
    char sign = 0;
    while (read(pipeEnds[0], &sign, 1) > 0) {
    }
    end_();
  });
  struct sigaction action {};
  action.sa_handler = tellEventLoop;
  action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
  for (const int each : kSignals) sigaction(each, &action, nullptr);
}

EndRequests::~EndRequests() {
  if (pipeEnds[0] < 0) return;
  for (const int each : kSignals) std::signal(each, SIG_DFL);
  qDeleteAll(findChildren<QSocketNotifier*>());
  for (int& end : pipeEnds) {
    close(end);
    end = -1;
  }
}

// The toolkit would close one window after the other, and each could ask a question.
bool EndRequests::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::Quit) return false;
  end_();
  return true;
}

}  // namespace ratanka
