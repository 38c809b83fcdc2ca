// Counts the ticks of a running match at level 5 from inside, on the X display of the environment,
// where a window manager has to run: how fast a match is hangs on nothing else. Argument: how many
// seconds to count.

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <iostream>
#include <string>

#include "figure.h"
#include "platform/forms/application.h"
#include "platform/forms/forms.h"
#include "platform/forms/qt_dialogs.h"
#include "platform/forms/qt_ticks.h"
#include "platform/forms/timer.h"
#include "platform/plain/twister_random.h"
#include "shell/names.h"
#include "soccer/player1.h"

namespace ratanka::bench {
namespace {

using std::chrono::steady_clock;

struct Counted {
  const char* timer;
  const char* name;
  double wanted = 0;  // a second; as often as may be where 0
  int ticks = 0;
};
constexpr double kMostOff = 2;  // percent

using AllCounted = std::array<Counted, 4>;

void count(AllCounted& all) {
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    for (Counted& counted : all) {
      const auto* const timer = window->findChild<Timer*>(counted.timer);
      if (timer == nullptr) continue;
      counted.ticks = 0;
      QObject::connect(timer, &Timer::ticked, window, [&counted] { ++counted.ticks; });
    }
  }
}

void report(const AllCounted& all, double seconds) {
  for (const Counted& counted : all) {
    const double rate = counted.ticks / seconds;
    const std::string name = std::string("a match at level 5: ") + counted.name;
    print({name + " a second", rate});
    if (counted.wanted == 0) continue;
    print({"  off by", std::abs(rate / counted.wanted - 1) * 100, "%", kMostOff});
  }
}

int run(char* program, int seconds) {
  Application application(program);
  QtTicks ticks;
  Forms forms(ticks);
  QtDialogs dialogs(forms);
  TwisterRandom random;
  soccer::Declarations declarations{.OpponentIndex = 5};
  forms.setMaker(names::frmPlayer1, [&] {
    return std::make_shared<soccer::frmPlayer1>(forms, dialogs, random, declarations);
  });

  AllCounted all{{{"tmrMovePlayers", "the players' ticks", 100},
                  {"tmrMoveBall", "the ball's ticks", 25},
                  {"tmrBallTap", "looks for a tap"},
                  {"ComputerBrain", "decisions"}}};
  steady_clock::time_point start;
  QTimer settled;
  settled.setSingleShot(true);
  settled.callOnTimeout([&] {
    count(all);
    start = steady_clock::now();
  });
  QTimer end;
  end.setSingleShot(true);
  end.setTimerType(Qt::PreciseTimer);
  end.callOnTimeout([&] {
    report(all, std::chrono::duration<double>(steady_clock::now() - start).count());
    forms.endProgram();
  });
  constexpr int kSettled = 2000;
  return application.run([&] {
    forms.show(names::frmPlayer1);
    settled.start(kSettled);
    end.start(kSettled + seconds * 1000);
  });
}

}  // namespace
}  // namespace ratanka::bench

int main(int argumentCount, char** arguments) {
  if (argumentCount != 2) {
    std::cerr << "usage: match_ticks SECONDS\n";
    return 2;
  }
  return ratanka::bench::run(arguments[0], std::atoi(arguments[1]));
}
