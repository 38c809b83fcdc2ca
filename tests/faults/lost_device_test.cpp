#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/resource.h>

#include <QProcess>
#include <QTemporaryDir>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <thread>

#include "platform/lazy_midi_out.h"
#include "platform/lazy_sound.h"
#include "platform/recording.h"

// The sound server ends in the middle of a tune, and comes back.
namespace ratanka {
namespace {

using std::chrono::steady_clock;

void pause(int milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

bool waitFor(const std::function<bool()>& holds) {
  const auto end = steady_clock::now() + std::chrono::seconds(5);
  while (!holds()) {
    if (steady_clock::now() > end) return false;
    pause(20);
  }
  return true;
}

// Ends the process with a word on stderr where something doesn't hold.
void require(bool holds, const char* word) {
  if (holds) return;
  std::fprintf(stderr, "%s\n", word);
  std::_Exit(1);
}

// A sound server of its own with a device that somebody listens to.
class SoundServer {
 public:
  // In the folder to which the environment sends the libraries.
  explicit SoundServer(const QString& folder) : socket_(folder + "/native") {
    QFile::remove(socket_);
    for (QProcess* const process : {&server_, &ear_}) {
      process->setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });  // with the test
    }
    server_.start("pulseaudio",
                  {"-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no", "-L",
                   "module-native-protocol-unix auth-anonymous=1 socket=" + socket_, "-L",
                   "module-null-sink sink_name=wall"});
    require(waitFor([&] { return QFile::exists(socket_); }), "no sound server");
    ear_.start("parec", {"--device=wall.monitor", "--raw", "--format=s16le", "--channels=2",
                         "--latency-msec=20"});
    require(ear_.waitForReadyRead(5000), "nobody listens");
  }
  ~SoundServer() {
    for (QProcess* const process : {&server_, &ear_}) {
      process->kill();
      process->waitForFinished();
    }
  }
  SoundServer(const SoundServer&) = delete;
  SoundServer& operator=(const SoundServer&) = delete;

  bool plays() {
    ear_.waitForReadyRead(100);
    return recordingOf<std::int16_t>(ear_.readAll(), 32768).peak > 0.01;
  }

 private:
  QString socket_;
  QProcess server_;
  QProcess ear_;
};

// Of all threads, in seconds.
double processorTime() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

void requireQuick(const std::function<void()>& act, const char* word) {
  const auto start = steady_clock::now();
  act();
  require(steady_clock::now() - start < std::chrono::seconds(2), word);
}

void playThroughLosses() {
  const QTemporaryDir folder;
  for (const char* home : {"HOME", "XDG_RUNTIME_DIR", "PULSE_RUNTIME_PATH"}) {
    qputenv(home, folder.path().toUtf8());
  }
  qputenv("PULSE_SERVER", "unix:" + folder.filePath("native").toUtf8());
  qputenv("SDL_AUDIODRIVER", "pulseaudio");
  auto server = std::make_unique<SoundServer>(folder.path());
  auto sound = std::make_unique<LazySound>();
  LazyMidiOut piano;
  const auto playWaves = [&] {
    sound->PlayWave("Tetris2.wav");
    return server->plays();
  };
  // Nothing waits, nothing turns in circles.
  const auto playIntoTheVoid = [&](const std::function<void()>& play) {
    const double before = processorTime();
    for (int i = 0; i < 15; ++i) {
      requireQuick(play, "a sound without a device holds up");
      piano.midiOutShortMsg(0x7f3c90);
      pause(100);
    }
    const double used = processorTime() - before;
    require(used < 0.5, "it spins");
  };

  require(piano.midiOutOpen(MidiOut::kMidiMapper) == 0, "no piano");
  sound->openMusic("Tetris.mid");
  sound->playMusic();
  require(waitFor([&] { return server->plays(); }), "no music");
  server.reset();
  playIntoTheVoid([] {});  // the tune runs on

  server = std::make_unique<SoundServer>(folder.path());
  require(waitFor(playWaves), "waves don't come back");
  pause(500);
  require(waitFor([&] { return !server->plays(); }), "the waves go on");
  sound->openMusic("Tetris.mid");
  sound->playMusic();
  require(waitFor([&] { return server->plays(); }), "music doesn't come back");
  requireQuick([&] { piano.midiOutClose(); }, "a lost piano doesn't close");
  require(piano.midiOutOpen(MidiOut::kMidiMapper) == 0, "the piano doesn't come back");
  sound->closeMusic();
  require(waitFor([&] { return !server->plays(); }), "the music goes on");
  require(waitFor([&] {
            piano.midiOutShortMsg(0x7f3c90);
            return server->plays();
          }),
          "the piano stays dumb");

  server.reset();
  playIntoTheVoid([&] {
    sound->PlayWave("Tetris2.wav");
    sound->openMusic("Tetris.mid");
    sound->playMusic();
  });
  requireQuick([&] { piano.midiOutClose(); }, "a lost piano doesn't close");
  requireQuick([&] { piano.midiOutOpen(MidiOut::kMidiMapper); }, "it waits for a server");
  requireQuick([&] { sound.reset(); }, "it doesn't end");
}

TEST(LostDevice, SoundsGoOnInSilenceAndComeBackWithTheServer) {
  EXPECT_EXIT((playThroughLosses(), std::exit(0)), testing::ExitedWithCode(0), "^$");
}

}  // namespace
}  // namespace ratanka
