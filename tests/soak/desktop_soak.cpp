// A restless child at a desktop: the built program on a screen of its own, with real keys that are
// held as fingers hold them, clicks, drags, windows raised and closed by the window manager, on a
// machine that is busy at times. It comes to the games through their sheets, one after the other,
// and starts the program again whenever it has ended.
//
//   desktop_soak [events] [seed]
//
// Ends with 1 when something that must always hold doesn't: the program ends only where it may,
// well and without a word (a sanitizer's neither), it answers within seconds, it can be left, and
// its sheets hear the keyboard.

#include <X11/keysym.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <stdexcept>
#include <thread>
#include <utility>

#include "platform/plain/twister_random.h"
#include "screen/fingers.h"
#include "screen/places.h"
#include "screen/private_screen.h"
#include "sheets/rules/chains.h"
#include "sheets/rules/products.h"
#include "sheets/rules/sums.h"
#include "soak/diary.h"

namespace ratanka::soak {
namespace {

using namespace screen;
using namespace std::chrono_literals;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr std::int64_t kEverything = 20'000;  // events in which each game comes up
constexpr std::int64_t kLately = 20;          // events back
constexpr std::int64_t kSignsApart = 10;      // events from one sign of life to the next
constexpr auto kSlow = 30s;                   // a start; an end while leaks are looked for
constexpr auto kWayHome = 60s;
constexpr auto kSoccer = "Mini futbal - hra len pre tých najlepších";
constexpr auto kEscape = "the Esc key";  // remembered like the titles of windows
constexpr auto kClosing = "a closed window";

// A sheet, in the order of the menu, and the game that it rewards with.
struct Lesson {
  const char* game;
  sheets::Examples (*ShowStart)(Random&);
};
constexpr std::array<Lesson, kSheetButtons> kLessons{
    {{"Rátanka - hra Bludisko", sheets::malá::ShowStart},
     {"Mini klavír - Rátanka", sheets::veľká::ShowStart},
     {"Pucle", sheets::násobilka::ShowStart},
     {kSoccer, [](Random&) { return sheets::delenie::ShowStart(); }},
     {"Rátanka - hra TETRIS", sheets::veľkéčísla::ShowStart},
     {kSoccer, sheets::zátvorky::ShowStart},
     {"Piškôrky", sheets::hádanka::ShowStart}}};

// X's symbols of the keys that a child finds, and those of menus' letters.
constexpr unsigned long kKeys[] = {
    XK_0,    XK_1,         XK_5,      XK_9,       XK_plus,  XK_minus,  XK_w,        XK_a,
    XK_s,    XK_d,         XK_z,      XK_m,       XK_comma, XK_g,      XK_p,        XK_F1,
    XK_F2,   XK_F3,        XK_F10,    XK_Tab,     XK_Up,    XK_Down,   XK_Left,     XK_Right,
    XK_Left, XK_Right,     XK_Return, XK_space,   XK_Home,  XK_Prior,  XK_Insert,   XK_Delete,
    XK_Menu, XK_BackSpace, XK_KP_5,   XK_Shift_L, XK_space, XK_Escape, XK_KP_Enter, XK_Control_L};
constexpr unsigned long kMenuLetters[] = {XK_h, XK_m, XK_p, XK_o, XK_n};
constexpr auto kEsc = static_cast<Key>(XK_Escape);

// Keeps both cores busy.
struct BusyLoops {
  static void spin(const std::stop_token& stop) {
    while (!stop.stop_requested()) continue;
  }
  std::array<std::jthread, 2> loops{std::jthread(spin), std::jthread(spin)};
};

class DesktopChild {
 public:
  DesktopChild(std::int64_t events, std::uint64_t seed) : events_(events), chance_(seed) {
    robot_.spreadCloth({150, 250, 20});
  }

  // Throws a runtime_error at what must not be.
  void play() {
    const Time began = steady_clock::now();
    try {
      for (int visit = 0; diary.event < events_; ++visit) playVisit(visit % kSheetButtons);
    } catch (const std::runtime_error& error) {
      std::string all = error.what();
      for (const Window& window : robot_.windows()) all += "\nopen: " + window.title;
      throw std::runtime_error(all + '\n' + said());
    }
    report(screen::milliseconds(began, steady_clock::now()) / 1000);
  }

 private:
  int between(int least, int most) { return std::uniform_int_distribution(least, most)(chance_); }
  bool happens(int percent) { return between(1, 100) <= percent; }
  template <typename List>
  const auto& oneOf(const List& list) {
    return list[static_cast<std::size_t>(between(1, static_cast<int>(std::size(list))) - 1)];
  }

  // One run of the program, from its start to its end.
  void playVisit(int sheet) {
    program_.emplace(std::vector<std::string>{RATANKA_PROGRAM},
                     Surroundings{{screen_.variable(), "QT_QPA_PLATFORM=xcb"}, said_});
    last_.clear();
    awaitActive(kMenuTitle, kSlow);
    rest(300ms);  // no child finds a button sooner
    ++starts_;
    const std::int64_t whole = diary.event + between(150, 450);
    if (happens(85)) earn(sheet);
    while (!hasEnded() && diary.event < std::min(whole, events_)) takeTurn();
    goHome();
    judgeEnd();
  }

  // A fresh start always asks the same.
  void earn(int sheet) {
    const Lesson& lesson = kLessons.at(static_cast<std::size_t>(sheet));
    TwisterRandom random;
    note("opens the sheet of " + std::string(lesson.game));
    fingers_.click(sheetButton(sheet));
    awaitActive(kSheetTitle);
    for (const sheets::Example& example : lesson.ShowStart(random)) {
      note("answers");
      fingers_.type(std::to_string(example.Výsledok));
      fingers_.strike(Key::enter);
    }
    note("takes the reward");
    fingers_.click(kReward);
    const auto isThere = [&] {
      look();
      // The piano says first that nothing sounds here.
      const bool isTold = std::ranges::any_of(windows_, &Window::isModal);
      if (isTold) fingers_.strike(Key::enter);
      return find(lesson.game) != nullptr && !isTold;
    };
    awaitUntil("an earned game", isThere, 100ms);
    ++rewards_;
    // The next set may come meanwhile.
    if (happens(50)) tryKeyboard();
    rest(milliseconds(between(0, 3000)));
    look();
    if (const Window* const game = find(lesson.game)) robot_.activate(*game);
  }

  void takeTurn() {
    fingers_.releaseDue();
    if (fingers_.isDown(kEsc)) last_[kEscape] = diary.event;
    if (busy_ && diary.event > busyUntil_) busy_.reset();
    look();
    if (windows_.empty()) return awaitWindowOrEnd();
    if (diary.event % kSignsApart == 0) awaitSignOfLife();
    act();
    rest(milliseconds(between(0, 40)));
  }

  void act() {
    const int what = between(1, 1000);
    const Window window = oneWindow();
    if (what <= 480) {
      useKey();
    } else if (what <= 760) {
      const int button = happens(80) ? 1 : between(2, 3);
      note("clicks by " + std::to_string(button) + " on " + window.title);
      fingers_.click(pointIn(window.area), button);
    } else if (what <= 830) {
      note("drags " + window.title);
      fingers_.drag(pointIn(window.area), pointIn(kScreen), happens(80) ? 1 : 3);
    } else if (what <= 890) {
      note("reckons");
      fingers_.releaseAll();
      fingers_.type(std::to_string(between(0, 30)));
      fingers_.strike(happens(50) ? Key::enter : static_cast<Key>(XK_KP_Enter));
    } else if (what <= 955) {
      note("raises " + window.title);
      robot_.activate(window);
    } else if (what <= 965) {
      close(window);
    } else if (what <= 990) {
      note("opens a menu");
      fingers_.releaseAll();
      fingers_.strikeWithAlt(static_cast<Key>(oneOf(kMenuLetters)));
    } else if (what <= 996) {
      tryKeyboard();
    } else {
      note("makes the machine busy");
      busy_.emplace();
      busyUntil_ = diary.event + between(10, 80);
    }
  }

  // For 20 ms to a second, more often for a short time.
  void useKey() {
    const auto key = static_cast<Key>(oneOf(kKeys));
    if (fingers_.isDown(key)) return;
    const int time = static_cast<int>(20 * std::pow(50, between(0, 100) / 100.0));
    note("holds the key " + std::to_string(static_cast<unsigned long>(key)) + " for " +
         std::to_string(time) + " ms");
    if (key == kEsc) last_[kEscape] = diary.event;
    fingers_.hold(key, milliseconds(time));
  }

  void close(const Window& window) {
    note("closes " + window.title);
    last_[kClosing] = diary.event;
    if (window.title != robot_.activeTitle() || happens(50)) return robot_.close(window);
    fingers_.releaseAll();
    fingers_.strikeWithAlt(static_cast<Key>(XK_F4));
  }

  // After a pause a digit that is typed into an open sheet's box is seen there, as long as nothing
  // else comes in front: a match ends by itself.
  void tryKeyboard() {
    fingers_.releaseAll();
    awaitSignOfLife();
    look();
    const Window* const found = find(kSheetTitle);
    if (found == nullptr || std::ranges::any_of(windows_, &Window::isModal)) return;
    const Window sheet = *found;
    const Point moved{sheet.area.at.x - kSheet.at.x, sheet.area.at.y - kSheet.at.y};
    const Area fresh = shifted({kFreshExamples}, moved);
    const Area row = shifted(wholeRow(1), moved);
    if (!isInside(fresh, kScreen) || !isInside(row, kScreen)) return;
    note("waits, and types a digit");
    robot_.activate(sheet);
    const auto isInFront = [&] {
      const std::vector<Window> all = robot_.windows();
      return !all.empty() && all.back().id == sheet.id && robot_.activeTitle() == sheet.title;
    };
    if (!comesTrue(isInFront, 1s)) return;
    for (int menu = 0; menu < 3; ++menu) fingers_.strike(kEsc);
    fingers_.click(fresh.at);
    awaitSignOfLife();
    rest(500ms);
    std::set<std::string> empty;  // with the cursor, and without
    const Time over = steady_clock::now() + milliseconds(between(1500, 5000));
    for (; steady_clock::now() < over; rest(20ms)) empty.insert(robot_.look(row));
    if (!isInFront()) return;
    fingers_.type("8");
    const auto isSeen = [&] { return !empty.contains(robot_.look(row)); };
    awaitUntil(
        "a digit in its box", [&] { return isSeen() || !isInFront(); }, 5ms);
    if (isSeen()) ++digits_;
  }

  // Closes what is open until the program has ended.
  void goHome() {
    const Time began = steady_clock::now();
    busy_.reset();
    while (!hasEnded()) {
      if (steady_clock::now() - began > kWayHome) throw std::runtime_error("can't be left");
      fingers_.releaseAll();
      look();
      if (windows_.empty()) {
        awaitWindowOrEnd();
        continue;
      }
      const auto modal = std::ranges::find(windows_, true, &Window::isModal);
      close(modal == windows_.end() ? oneOf(windows_) : *modal);
      rest(100ms);
    }
  }

  void judgeEnd() {
    fingers_.releaseAll();
    const int status = *program_->endStatus();
    if (status != 0) throw std::runtime_error("ended with " + std::to_string(status));
    if (!said().empty()) throw std::runtime_error("said something");
    if (!mayEnd()) throw std::runtime_error("ended where it may not");
  }

  // By the card, by Esc on the title of soccer, by the end of its last windows: those of the menu
  // and of the sheets are closed by the child alone.
  bool mayEnd() const {
    const auto wasLately = [this](const char* what) {
      const auto found = last_.find(what);
      return found != last_.end() && diary.event - found->second <= kLately;
    };
    return wasLately(kCardTitle) || wasLately(kClosing) ||
           (wasLately(kSoccer) && wasLately(kEscape)) ||
           !(wasLately(kMenuTitle) || wasLately(kSheetTitle));
  }

  bool hasEnded() { return program_->endStatus().has_value(); }

  void look() {
    const std::vector<Window> before = std::exchange(windows_, robot_.windows());
    for (const Window& window : windows_) {
      const bool isNew = std::ranges::find(before, window.id, &Window::id) == before.end();
      if (isNew) ++opened_[window.title];
      last_[window.title] = diary.event;
    }
  }

  const Window* find(const std::string& title) const {
    const auto found = std::ranges::find(windows_, title, &Window::title);
    return found == windows_.end() ? nullptr : &*found;
  }

  Window oneWindow() {
    const Window* const active = find(robot_.activeTitle());
    return active != nullptr && happens(75) ? *active : oneOf(windows_);
  }

  void awaitActive(const char* title, std::chrono::seconds patience = kPatience) {
    const auto isActive = [&] { return robot_.activeTitle() == title; };
    if (!comesTrue(isActive, patience)) throw std::runtime_error(std::string("no ") + title);
    look();
  }

  void awaitWindowOrEnd() {
    const auto isThere = [&] { return hasEnded() || !robot_.windows().empty(); };
    if (!comesTrue(isThere, kSlow, 5ms)) throw std::runtime_error("runs on and nothing is seen");
  }

  void awaitSignOfLife() {
    const Time asked = steady_clock::now();
    const auto isAlive = [&] {
      const std::vector<Window> all = robot_.windows();
      const auto answers = [&](const Window& each) { return robot_.answers(each, 500ms); };
      return hasEnded() || all.empty() || std::ranges::any_of(all, answers);
    };
    awaitUntil("a sign of life", isAlive, 5ms);
    longestWait_ = std::max(longestWait_, screen::milliseconds(asked, steady_clock::now()));
  }

  // Of the part that is on the screen.
  Point pointIn(const Area& area) {
    const auto on = [this](int from, int length, int end) {
      return std::clamp(from + between(0, length - 1), 0, end - 1);
    };
    return {on(area.at.x, area.width, kScreen.width), on(area.at.y, area.height, kScreen.height)};
  }

  static void note(const std::string& what) {
    ++diary.event;
    diary.write(what);
  }

  std::string said() const {
    std::ifstream file(said_);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  void report(double seconds) const {
    std::printf(
        "%lld events in %.0f s; %d starts, %d rewards, %d digits after a pause; the longest "
        "wait for a sign of life: %.0f ms\n",
        static_cast<long long>(diary.event), seconds, starts_, rewards_, digits_, longestWait_);
    for (const auto& [title, times] : opened_) std::printf("  %s: %d\n", title.c_str(), times);
    if (diary.event < kEverything) return;
    for (const Lesson& lesson : kLessons) {
      if (!opened_.contains(lesson.game)) throw std::runtime_error("a game never came up");
    }
    if (digits_ == 0) throw std::runtime_error("no digit after a pause");
  }

  static constexpr Area kScreen{{}, kAdvisedSize.width, kAdvisedSize.height};

  const std::int64_t events_;
  std::mt19937_64 chance_;
  const PrivateScreen screen_{kAdvisedSize};
  Robot robot_{screen_.display()};
  Fingers fingers_{robot_};
  const std::string said_ = std::string(std::getenv("HOME")) + "/said";
  std::optional<Process> program_;
  std::optional<BusyLoops> busy_;
  std::int64_t busyUntil_ = 0;
  std::vector<Window> windows_;  // as they were last seen
  std::map<std::string, std::int64_t>
      last_;                           // the event at which a title or a thing was last there
  std::map<std::string, int> opened_;  // by titles
  int starts_ = 0;
  int rewards_ = 0;
  int digits_ = 0;
  double longestWait_ = 0;
};

}  // namespace
}  // namespace ratanka::soak

int main(int argumentCount, char** arguments) {
  using namespace ratanka;
  const std::int64_t events = argumentCount > 1 ? std::atoll(arguments[1]) : 20'000;
  soak::diary.seed =
      argumentCount > 2 ? std::strtoull(arguments[2], nullptr, 10) : std::random_device()();
  std::printf("seed %llu\n", static_cast<unsigned long long>(soak::diary.seed));
  std::fflush(stdout);
  try {
    soak::DesktopChild(events, soak::diary.seed).play();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "\ndesktop_soak: %s\n", error.what());
    soak::diary.print();
    return 1;
  }
  return 0;
}
