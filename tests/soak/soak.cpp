// A restless child at the whole program: random keys, clicks, menus and boxes, many windows at
// once, from a seed, on a steered time. It goes on inside boxes and inside the blocks game's loop.
//
//   soak [events] [seed]
//
// Ends with 1 when something that must always hold doesn't; the sanitizers watch the rest.

#include <QElapsedTimer>
#include <cstdio>
#include <cstdlib>
#include <random>

#include "platform/forms/application.h"
#include "soak/diary.h"
#include "soak/restless_child.h"

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

namespace ratanka::soak {
namespace {

// The plugin without a display says at each window what it can't do.
void tellButForThePlugin(QtMsgType, const QMessageLogContext&, const QString& message) {
  if (message.startsWith("This plugin does not support")) return;
  std::fprintf(stderr, "toolkit: %s\n", qPrintable(message));
}

}  // namespace
}  // namespace ratanka::soak

int main(int argumentCount, char** arguments) {
  using namespace ratanka;
  const std::int64_t events = argumentCount > 1 ? std::atoll(arguments[1]) : 20'000;
  soak::diary.seed =
      argumentCount > 2 ? std::strtoull(arguments[2], nullptr, 10) : std::random_device()();
  std::printf("seed %llu\n", static_cast<unsigned long long>(soak::diary.seed));
  std::fflush(stdout);
#ifdef __SANITIZE_ADDRESS__
  __sanitizer_set_death_callback([] { soak::diary.print(); });
#endif
  qInstallMessageHandler(soak::tellButForThePlugin);
  const Application application(arguments[0]);
  const soak::Watchdog watchdog;
  soak::playRestlessly(events, soak::diary.seed);
  return 0;
}
