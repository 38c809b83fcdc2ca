#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/time.h>

#include <QProcess>
#include <QTemporaryDir>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <thread>

#include "platform/recording.h"
#include "platform/sound/lazy_midi_out.h"
#include "platform/sound/lazy_sound.h"

// The sound server ends or hangs in the middle of a tune, and comes back.
namespace ratanka {
namespace {

using std::chrono::steady_clock;

void pause(int milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

bool waitFor(const std::function<bool()>& holds) {
  const auto end = steady_clock::now() + std::chrono::seconds(20);  // a busy machine
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

  // It hangs, and goes on.
  void stop() const { kill(static_cast<pid_t>(server_.processId()), SIGSTOP); }
  void goOn() const { kill(static_cast<pid_t>(server_.processId()), SIGCONT); }

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

// Less than a second, and what a busy machine adds; to wait twice would take longer.
constexpr std::chrono::milliseconds kQuick{1500};
const char* overdue = "";

// A signal says it then, and ends the process, wherever that hangs. Without a word: no more.
void setLimit(const char* word) {
  overdue = word;
  std::signal(SIGALRM, [](int) { require(false, overdue); });
  itimerval limit{};
  if (word != nullptr) limit.it_value = {kQuick.count() / 1000, kQuick.count() % 1000 * 1000};
  setitimer(ITIMER_REAL, &limit, nullptr);
}

void requireQuick(const std::function<void()>& act, const char* word) {
  setLimit(word);
  act();
  setLimit(nullptr);
}

// Sends the libraries to the folder's sound server.
void listenIn(const QTemporaryDir& folder) {
  for (const char* home : {"HOME", "XDG_RUNTIME_DIR", "PULSE_RUNTIME_PATH"}) {
    qputenv(home, folder.path().toUtf8());
  }
  qputenv("PULSE_SERVER", "unix:" + folder.filePath("native").toUtf8());
  qputenv("SDL_AUDIODRIVER", "pulseaudio");
}

void playThroughLosses() {
  const QTemporaryDir folder;
  listenIn(folder);
  auto server = std::make_unique<SoundServer>(folder.path());
  auto sound = std::make_unique<LazySound>();
  LazyMidiOut piano;
  const auto doesPianoOpen = [&] { return piano.midiOutOpen(MidiOut::kMidiMapper) == 0; };
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

  require(waitFor(doesPianoOpen), "no piano");
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
  require(waitFor(doesPianoOpen), "the piano doesn't come back");
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

// A server that hangs from the first, in the middle of a tune, and at the end.
void playThroughHangs() {
  const QTemporaryDir folder;
  listenIn(folder);
  SoundServer server(folder.path());
  auto sound = std::make_unique<LazySound>();
  auto piano = std::make_unique<LazyMidiOut>();
  const auto doesPianoOpen = [&] { return piano->midiOutOpen(MidiOut::kMidiMapper) == 0; };
  const auto playTune = [&] {
    sound->openMusic("Tetris.mid");
    sound->playMusic();
  };
  const auto playEverything = [&] {
    requireQuick([&] { piano->midiOutShortMsg(0x7f3c90); }, "a key waits");
    requireQuick([&] { piano->midiOutClose(); }, "the piano doesn't close");
    requireQuick([&] { piano->midiOutGetNumDevs(); }, "the devices aren't told");
    requireQuick([&] { piano->midiOutGetDevCapsA(0); }, "a device isn't named");
    requireQuick([&] { require(doesPianoOpen(), "a slow piano is refused"); },
                 "the piano's opening waits");
    requireQuick([&] { sound->PlayWave("Tetris2.wav"); }, "a wave waits");
    requireQuick(playTune, "a tune waits");
    requireQuick([&] { sound->closeMusic(); }, "a tune doesn't close");
  };
  const auto soundsAgain = [&] {
    require(waitFor([&] { return !server.plays(); }), "what was closed goes on");
    require(waitFor([&] {
              piano->midiOutShortMsg(0x7f3c90);  // opened while the server hung
              return server.plays();
            }),
            "the piano stays dumb");
    piano->midiOutClose();
    require(waitFor([&] { return !server.plays(); }), "the piano goes on");
    playTune();
    require(waitFor([&] { return server.plays(); }), "no music");
    sound->closeMusic();
    require(waitFor([&] { return !server.plays(); }), "the music goes on");
    const auto playsWave = [&] {
      sound->PlayWave("Tetris2.wav");
      return server.plays();
    };
    require(waitFor(playsWave), "no waves");
  };

  loadSound(installedSoundModule());  // takes its time, too, but needs no server
  server.stop();
  playEverything();
  server.goOn();
  soundsAgain();

  require(waitFor(doesPianoOpen), "no second piano");
  playTune();
  server.stop();
  const auto start = steady_clock::now();
  for (int time = 0; time < 3; ++time) playEverything();
  require(steady_clock::now() - start < kQuick, "it waits time and again");
  server.goOn();
  soundsAgain();

  require(waitFor(doesPianoOpen), "no third piano");
  playTune();
  server.stop();
  setLimit("it doesn't end");  // up to the process's last moment
  piano.reset();
  sound.reset();
  std::exit(0);
}

TEST(LostDevice, SoundsGoOnInSilenceAndComeBackWithTheServer) {
  EXPECT_EXIT((playThroughLosses(), std::exit(0)), testing::ExitedWithCode(0), "^$");
}

TEST(LostDevice, AServerThatHangsHoldsNothingUp) {
  EXPECT_EXIT(playThroughHangs(), testing::ExitedWithCode(0), "^$");
}

}  // namespace
}  // namespace ratanka
