#include <grp.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <array>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <functional>
#include <random>

#include "platform/settings/ini_file.h"
#include "platform/settings/ini_settings_store.h"

// What becomes of the settings when those who write them are killed, crowded, shut out or out of
// space.
namespace ratanka {
namespace {

namespace fs = std::filesystem;
using std::chrono::steady_clock;

constexpr auto kApplication = "Rátanka - hra Pucle";
constexpr auto kStored = "Rátanka - hra Pucle.ini";  // by the store
constexpr auto kWritten = "Kockovka32.ini";          // in one go
constexpr std::array kFiles{kStored, kWritten};
constexpr auto kForeign = "[Mine]\nnote=not ours\n";

// Long enough to be torn.
std::string textOf(int number) { return std::to_string(number) + std::string(3000, 'x'); }

class SettingsFaults : public testing::Test {
 protected:
  SettingsFaults() {
    for (const char* file : kFiles) {
      QFile created(path(file));
      if (created.open(QIODevice::WriteOnly)) created.write(kForeign);
    }
    write("a", 1);
  }
  ~SettingsFaults() override {
    fs::permissions(folder_.path().toStdString(), fs::perms::owner_all);
  }

  QString path(const char* file) const { return folder_.filePath(file); }
  std::string content(const char* file) const {
    QFile there(path(file));
    return there.open(QIODevice::ReadOnly) ? there.readAll().toStdString() : "";
  }
  std::string contents() const { return content(kStored) + content(kWritten); }

  // By both ways that the program has.
  void write(const char* key, int number) const {
    IniSettingsStore(folder_.path()).write(kApplication, "S", key, textOf(number));
    const IniValue value[] = {{key, textOf(number)}};
    writeIniValues(path(kWritten), "S", value);
  }
  // Whether a file is whole and has the value.
  bool holds(const char* file, const char* key, int number) const {
    const std::string all = content(file);
    return all.find(kForeign) != std::string::npos &&
           all.find('\n' + std::string(key) + '=' + textOf(number) + '\n') != std::string::npos;
  }
  bool bothHold(const char* key, int number) const {
    return holds(kStored, key, number) && holds(kWritten, key, number);
  }

  // Does something in a process of its own, which says with its exit status whether it went well.
  static pid_t inAProcess(const std::function<bool()>& act) {
    const pid_t child = fork();
    if (child == 0) _exit(act() ? 0 : 1);
    return child;
  }
  static bool wentWell(pid_t child) {
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
  }
  // The same, and says nothing on stderr. Through a pipe: its files may be where nothing fits.
  static bool wentWellAndQuietly(const std::function<bool()>& act) {
    int ends[2];
    if (pipe(ends) != 0) return false;
    const pid_t child = inAProcess([&] {
      dup2(ends[1], STDERR_FILENO);
      close(ends[1]);
      return act();
    });
    close(ends[1]);
    std::string said;
    for (char sign = 0; read(ends[0], &sign, 1) == 1;) said += sign;
    close(ends[0]);
    EXPECT_EQ(said, "");
    return wentWell(child);
  }

  // In memory: a disk's pauses would take most of the time, and most of the kills.
  const QTemporaryDir folder_{"/dev/shm/ratanka-XXXXXX"};
};

// How far a writer has come, in memory that outlives it.
struct Progress {
  volatile int begun = 1;
  volatile int done = 1;
};

TEST_F(SettingsFaults, AKillAtAnyMomentLosesNothingAndLeavesNothingBehind) {
  constexpr int kKills = 1000;
  constexpr std::chrono::seconds kPrompt{3};
  constexpr useconds_t kLongest = 3000;  // microseconds: some writes
  const unsigned seed = std::random_device()();
  SCOPED_TRACE(testing::Message() << "seed " << seed);
  std::mt19937 random(seed);
  void* const shared =
      mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  ASSERT_NE(shared, MAP_FAILED);
  auto& progress = *new (shared) Progress;
  for (int kill = 1; kill <= kKills; ++kill) {
    const int before = progress.done;
    const pid_t writer = inAProcess([&]() -> bool {
      while (true) {
        progress.begun = progress.done + 1;
        write("a", progress.begun);
        progress.done = progress.begun;
      }
    });
    // What a dead one left mustn't hold up the next.
    const auto start = steady_clock::now();
    while (progress.done == before && steady_clock::now() - start < kPrompt) usleep(50);
    usleep(std::uniform_int_distribution<useconds_t>(0, kLongest)(random));
    ::kill(writer, SIGKILL);
    waitpid(writer, nullptr, 0);
    ASSERT_GT(progress.done, before) << "can't write after kill " << kill;
    for (const char* file : kFiles) {
      ASSERT_TRUE(holds(file, "a", progress.done) || holds(file, "a", progress.begun))
          << "kill " << kill << ", " << progress.done << " in " << file << ":\n"
          << content(file);
    }
  }
  write("a", 0);
  EXPECT_TRUE(bothHold("a", 0));
  constexpr auto kAll = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
  EXPECT_EQ(QDir(folder_.path()).entryList(kAll, QDir::Name).join('|').toStdString(),
            std::string(".lock|") + kWritten + '|' + kStored);
  munmap(shared, sizeof(Progress));
}

TEST_F(SettingsFaults, TwoProgramsThatWriteAtOnceLoseNothing) {
  const auto writeMany = [this](const char* key) {
    return inAProcess([this, key] {
      for (int number = 1; number <= 200; ++number) {
        write(key, number);
        if (number % 4 == 0) usleep(1000);
        if (!bothHold(key, number)) return false;
      }
      return true;
    });
  };
  const pid_t one = writeMany("b");
  const pid_t other = writeMany("c");
  EXPECT_TRUE(wentWell(one));
  EXPECT_TRUE(wentWell(other));
  EXPECT_TRUE(bothHold("a", 1) && bothHold("b", 200) && bothHold("c", 200)) << contents();
}

TEST_F(SettingsFaults, AHungProgramOrAPlaceWithoutLocksHoldsNobodyUpForLong) {
  const auto start = steady_clock::now();
  QFile held(path(".lock"));
  ASSERT_TRUE(held.open(QIODevice::ReadWrite));
  ASSERT_EQ(flock(held.handle(), LOCK_EX), 0);
  write("a", 2);
  EXPECT_TRUE(bothHold("a", 2)) << contents();
  held.remove();
  QDir(folder_.path()).mkdir(".lock");  // no file can be made of it
  write("a", 3);
  EXPECT_TRUE(bothHold("a", 3)) << contents();
  EXPECT_LT(steady_clock::now() - start, std::chrono::seconds(4));
}

TEST_F(SettingsFaults, AFullDiskKeepsWhatIsThereAndTakesTheNextWhenItHasRoom) {
  char key[] = "b";
  for (const double share : {1.4, 1.0, 0.5, 0.0}) {  // of the file fits
    EXPECT_TRUE(wentWellAndQuietly([&] {
      const std::string before = contents();
      rlimit limit{};
      getrlimit(RLIMIT_FSIZE, &limit);
      limit.rlim_cur = static_cast<rlim_t>(share * static_cast<double>(content(kWritten).size()));
      signal(SIGXFSZ, SIG_IGN);
      setrlimit(RLIMIT_FSIZE, &limit);
      write(key, 2);
      const bool isSame = contents() == before;
      limit.rlim_cur = limit.rlim_max;
      setrlimit(RLIMIT_FSIZE, &limit);
      write(key, 3);
      return isSame && bothHold(key, 3) && bothHold("a", 1);
    })) << share
        << ":\n"
        << contents();
    ++key[0];
  }
}

TEST_F(SettingsFaults, WhatMayNotBeWrittenStaysAndNothingIsSaid) {
  struct Rights {
    int folder, file;
  };
  const std::string before = contents();
  for (const Rights& rights : {Rights{0555, 0444}, Rights{0777, 0444}, Rights{0777, 0}}) {
    for (const char* file : kFiles) {
      fs::permissions(path(file).toStdString(), static_cast<fs::perms>(rights.file));
    }
    fs::permissions(folder_.path().toStdString(), static_cast<fs::perms>(rights.folder));
    EXPECT_TRUE(wentWellAndQuietly([&] {
      // No rights hold an administrator: somebody else tries.
      constexpr unsigned kNobody = 65534;
      if (geteuid() == 0 &&
          (setgroups(0, nullptr) != 0 || setgid(kNobody) != 0 || setuid(kNobody) != 0)) {
        return false;
      }
      write("a", 2);
      return true;
    }));
    for (const char* file : kFiles) {
      fs::permissions(path(file).toStdString(), fs::perms::owner_read);
    }
    EXPECT_EQ(contents(), before) << std::oct << rights.folder << ' ' << rights.file;
  }
}

}  // namespace
}  // namespace ratanka
