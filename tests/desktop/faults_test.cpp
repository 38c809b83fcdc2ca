#include <gtest/gtest.h>

#include <regex>
#include <set>

#include "desktop/home.h"
#include "desktop/processes.h"
#include "desktop/reward.h"
#include "platform/plain/twister_random.h"
#include "sheets/rules/chains.h"
#include "sheets/rules/sums.h"

// The program on machines that lack something, or where it isn't alone.
namespace ratanka {
namespace {

constexpr auto kSaid = "said";
constexpr auto kNoNumber = "Chyba - nebolo zadané číslo";

sheets::Examples examplesOf(sheets::Examples (*show)(Random&)) {
  TwisterRandom random;
  return show(random);
}

void endFromSheet(PrivateDesktop& desktop) {
  comeBackTo(desktop, kSheet);
  closeFrom(desktop, kSheet);
}

TEST(Faults, TwoCopiesWorkSideBySide) {
  const Home home;
  PrivateDesktop desktop(kScreen);
  desktop.startProgram({home.variable()}, home.path(kSaid),
                       {"sh", "-c", R"("$0" & one=$!; "$0" && wait $one)"});
  ASSERT_TRUE(waitFor([&] { return desktop.count(kMenu) == 2; }));
  for (const int others : {1, 0}) {
    ASSERT_TRUE(desktop.waitForActive(kMenu));
    clickMenu(desktop, 0);
    ASSERT_TRUE(desktop.waitForActive(kSheet));
    EXPECT_EQ(desktop.count(kMenu), others);
    desktop.key("Return");
    ASSERT_TRUE(desktop.waitForActive(kNoNumber));
    desktop.key("Return");
    ASSERT_TRUE(desktop.waitForActive(kSheet));
    for (const char* const window : {kSheet, kMenu, kCard}) {
      ASSERT_TRUE(desktop.waitForActive(window));
      desktop.key("alt+F4");
      ASSERT_TRUE(waitFor([&] { return desktop.count(window) == (window == kMenu ? others : 0); }));
    }
  }
  EXPECT_EQ(desktop.waitForEnd(), 0);
  EXPECT_EQ(home.content(kSaid), "");
}

TEST(Faults, OnAFullDiskSettingsStayAsTheyWere) {
  constexpr auto kBlocks = "Rátanka - hra TETRIS";
  constexpr auto kOptions = "Konfigurácia TETRIS";
  const std::string old = "[Kockovka32]\nStarting Level=3\n; mine\n";
  const Home home;
  home.put("ratanka/Kockovka32.ini", old);
  PrivateDesktop desktop(kScreen);
  // What it says goes through a pipe: nothing would fit on the disk.
  desktop.startProgram({home.variable()}, home.path(kSaid),
                       {"bash", "-c",
                        "(trap '' XFSZ; ulimit -f 0; exec \"$0\") 2>&1 | cat;"
                        "exit ${PIPESTATUS[0]}"});
  ASSERT_NO_FATAL_FAILURE(earn(desktop, 4, examplesOf(sheets::veľkéčísla::ShowStart), kBlocks));
  desktop.key("alt+m");
  desktop.key("n");
  ASSERT_TRUE(desktop.waitForActive(kOptions));
  desktop.key("Tab Tab 7 Return");
  ASSERT_TRUE(desktop.waitUntilGone(kOptions));
  EXPECT_TRUE(desktop.waitForActive(kBlocks));
  EXPECT_TRUE(waitFor([&] {
    desktop.key("F4");
    return !desktop.hasWindow(kBlocks);
  }));
  endFromSheet(desktop);
  EXPECT_EQ(home.read("Kockovka32.ini"), old);
  EXPECT_EQ(home.content(kSaid), "");
}

TEST(Faults, WithoutFontsASheetIsDoneAllTheSame) {
  const std::string head = "<?xml version='1.0'?><fontconfig>";
  const std::string foreign = "/usr/share/fonts/truetype/liberation/LiberationSerif-Italic.ttf";
  ASSERT_TRUE(std::filesystem::exists(foreign));
  for (const bool hasForeign : {false, true}) {
    const Home home;
    home.put("fonts/none", "");
    if (hasForeign) std::filesystem::copy(foreign, home.path("fonts"));
    home.put("fonts.conf", head + "<dir>" + home.path("fonts") + "</dir></fontconfig>");
    PrivateDesktop desktop(kScreen);
    desktop.startProgram({home.variable(), "FONTCONFIG_FILE=" + home.path("fonts.conf")},
                         home.path(kSaid));
    ASSERT_NO_FATAL_FAILURE(doSheet(desktop, 0, examplesOf(sheets::malá::ShowStart)));
    EXPECT_TRUE(desktop.hasWindow(kSheet));
    endFromSheet(desktop);
    EXPECT_EQ(home.content(kSaid), "");
  }
}

// Families of all sockets that a log of system calls tells of.
std::set<std::string> familiesIn(const std::string& log) {
  static const std::regex kFamily("[AP]F_[A-Z0-9]+");
  std::set<std::string> families;
  for (auto one = std::sregex_iterator(log.begin(), log.end(), kFamily); one != decltype(one)();
       ++one) {
    families.insert(one->str());
  }
  return families;
}

TEST(Faults, NoSocketLeadsOutOfTheMachine) {
  constexpr auto kPiano = "Mini klavír - Rátanka";
  const Home home;
  const pid_t soundServer = start(
      {.words = {"pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
                 "-L", "module-native-protocol-unix auth-anonymous=1 socket=" + home.path("sound"),
                 "-L", "module-null-sink"},
       .says = "/dev/null"});
  EXPECT_TRUE(waitFor([&] { return std::filesystem::exists(home.path("sound")); }));
  PrivateDesktop desktop(kScreen);
  desktop.startProgram(
      {home.variable(), "PULSE_SERVER=unix:" + home.path("sound"),
       "ASAN_OPTIONS=detect_leaks=0"},  // nobody can look while strace does
      home.path(kSaid),
      {"strace", "-f", "-qq", "--seccomp-bpf", "-e", "trace=network", "-o", home.path("log")});
  ASSERT_NO_FATAL_FAILURE(earn(desktop, 1, examplesOf(sheets::veľká::ShowStart), kPiano));
  desktop.key("z x c");
  desktop.key("alt+F4");
  EXPECT_TRUE(desktop.waitUntilGone(kPiano));
  endFromSheet(desktop);
  const std::string log = home.content("log");
  EXPECT_EQ(familiesIn(log), std::set<std::string>{"AF_UNIX"}) << log;
  for (const char* call : {"listen(", "accept"})
    EXPECT_EQ(log.find(call), std::string::npos) << log;
  EXPECT_NE(log.find(home.path("sound")), std::string::npos) << "nothing was to be heard";
  end(soundServer);
}

}  // namespace
}  // namespace ratanka
