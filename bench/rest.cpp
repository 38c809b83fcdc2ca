#include "figure.h"
#include "measures.h"

namespace ratanka::bench {
namespace {

constexpr std::chrono::seconds kSettled{2};

}  // namespace

Process::Usage usageASecond(const Process& process, int seconds) {
  rest(kSettled);
  const Process::Usage before = process.usage();
  rest(std::chrono::seconds(seconds));
  const Process::Usage after = process.usage();
  return {.wakeUps = (after.wakeUps - before.wakeUps) / seconds,
          .cpuSeconds = (after.cpuSeconds - before.cpuSeconds) / seconds};
}

Process::Usage usageBeyondSheet(Robot& robot, const OpenWindow& window, int seconds,
                                const std::function<void()>& play) {
  const Process::Usage without = usageASecond(window.process(), seconds);
  clickAndAwaitWindow(robot, kReward);
  play();
  robot.movePointer({});
  const Process::Usage with = usageASecond(window.process(), seconds);
  return {.wakeUps = with.wakeUps - without.wakeUps,
          .cpuSeconds = with.cpuSeconds - without.cpuSeconds};
}

void measureRest(Robot& robot, const Programs& programs, int seconds) {
  {
    const OpenWindow window(robot, programs.bare);
    const Process::Usage bare = usageASecond(window.process(), seconds);
    print({"at rest, bare window: wake-ups a second", bare.wakeUps});
    print({"at rest, bare window: of one core", bare.cpuSeconds * 100, "%"});
  }
  const OpenWindow window(robot, programs.ratanka);
  const Process::Usage menu = usageASecond(window.process(), seconds);
  print({"at rest, menu: wake-ups a second", menu.wakeUps, "", 0});
  print({"at rest, menu: of one core", menu.cpuSeconds * 100, "%"});

  measureRestAtSheet(robot, window, seconds, "at rest, sheet, book and clock");
}

void measureRestAtSheet(Robot& robot, const OpenWindow& menu, int seconds,
                        const std::string& name) {
  openSheet(robot, menu);
  const Process::Usage sheet = usageASecond(menu.process(), seconds);
  print({name + ": wake-ups a second", sheet.wakeUps, "", 30});
  print({name + ": of one core", sheet.cpuSeconds * 100, "%", 1});
}

}  // namespace ratanka::bench
