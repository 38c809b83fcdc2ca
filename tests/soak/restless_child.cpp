// A restless child at the whole program: random keys, clicks, menus and boxes, many windows at
// once, from a seed, on a steered time. It goes on inside boxes and inside the blocks game's loop.
//
//   soak [events] [seed]
//
// Ends with 1 when something that must always hold doesn't; the sanitizers watch the rest.

#include <QAbstractButton>
#include <QAction>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <QTranslator>
#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <thread>

#include "platform/application.h"
#include "platform/controls.h"
#include "platform/data_files.h"
#include "platform/text.h"
#include "soak/hands.h"
#include "soak/heap.h"
#include "soak/reading.h"
#include "soak/whole_program.h"

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

namespace ratanka::soak {
namespace {

constexpr int kDeepest = 8;        // loops within loops; from here on the child wants out
constexpr int kLongVisit = 4000;   // events in one run of the program; then it goes home
constexpr int kWayHome = 3000;     // events that leaving may take
constexpr int kNothingSeen = 500;  // events without a window while the program runs
constexpr std::size_t kTicking = 100;
constexpr int kTopLevels = 250;
constexpr std::chrono::seconds kHang{20};
constexpr std::int64_t kAllForms = 20'000;  // events in which each form comes up
// From the first tenth to the last, in MB: the toolkit's cache of pictures fills to 10 and stays
// there.
constexpr double kGrowth = 16;
constexpr std::size_t kTenths = 10;

// Where the child is, for those who ask after a crash.
struct Diary {
  std::uint64_t seed = 0;
  std::atomic<std::int64_t> event = 0;
  static constexpr std::size_t kLines = 25;
  char lines[kLines][96] = {};

  void write(const char* what, const QWidget* whom) {
    const QByteArray name = whom == nullptr ? QByteArray() : whom->objectName().toUtf8();
    const QByteArray window =
        whom == nullptr ? QByteArray() : whom->window()->objectName().toUtf8();
    const std::int64_t number = event;
    std::snprintf(lines[static_cast<std::size_t>(number) % kLines], sizeof lines[0],
                  "%lld: %s %s on %s", static_cast<long long>(number), what, name.constData(),
                  window.constData());
  }
  void print() const {
    std::fprintf(stderr, "\nseed %llu, event %lld; before it:\n",
                 static_cast<unsigned long long>(seed), static_cast<long long>(event));
    for (std::size_t line = 1; line <= kLines; ++line) {
      std::fprintf(stderr, "  %s\n", lines[(static_cast<std::size_t>(event) + line) % kLines]);
    }
  }
};
Diary diary;

[[noreturn]] void fail(const std::string& what) {
  std::fprintf(stderr, "\nsoak: %s\n", what.c_str());
  diary.print();
  std::fflush(stderr);
  std::abort();
}

struct Sign {
  int key;
  const char* typed = "";
  Qt::KeyboardModifiers modifiers = {};
};
const Sign kSigns[] = {
    {Qt::Key_0, "0"},
    {Qt::Key_1, "1"},
    {Qt::Key_2, "2"},
    {Qt::Key_3, "3"},
    {Qt::Key_5, "5"},
    {Qt::Key_9, "9"},
    {Qt::Key_Plus, "+"},
    {Qt::Key_Minus, "-"},
    {Qt::Key_Return},
    {Qt::Key_Enter},
    {Qt::Key_Escape},
    {Qt::Key_Space, " "},
    {Qt::Key_Tab},
    {Qt::Key_Backtab, "", Qt::ShiftModifier},
    {Qt::Key_Backspace},
    {Qt::Key_Delete},
    {Qt::Key_Left},
    {Qt::Key_Right},
    {Qt::Key_Up},
    {Qt::Key_Down},
    {Qt::Key_Home},
    {Qt::Key_End},
    {Qt::Key_PageUp},
    {Qt::Key_PageDown},
    {Qt::Key_F1},
    {Qt::Key_F2},
    {Qt::Key_F3},
    {Qt::Key_F4},
    {Qt::Key_F10},
    {Qt::Key_P, "p"},
    {Qt::Key_W, "w"},
    {Qt::Key_A, "a"},
    {Qt::Key_S, "s"},
    {Qt::Key_D, "d"},
    {Qt::Key_Z, "z"},
    {Qt::Key_X, "x"},
    {Qt::Key_Y, "y"},
    {Qt::Key_M, "m"},
    {Qt::Key_Q, "q"},
    {Qt::Key_Shift},
    {Qt::Key_Control},
    {Qt::Key_Alt},
    {Qt::Key_AltGr},
    {Qt::Key_Clear},
    {Qt::Key_Insert},
    {Qt::Key_Menu},
    {Qt::Key_CapsLock},
    {0x10c, "č"},
    {Qt::Key_Dead_Acute},
    {Qt::Key_unknown},
    {Qt::Key_Comma, ","},
    {Qt::Key_H, "h", Qt::AltModifier},
    {Qt::Key_M, "m", Qt::AltModifier},
    {Qt::Key_P, "p", Qt::AltModifier},
    {Qt::Key_O, "o", Qt::AltModifier},
    {Qt::Key_A, "", Qt::ControlModifier},
    {Qt::Key_V, "", Qt::ControlModifier},
    {Qt::Key_C, "", Qt::ControlModifier},
    {Qt::Key_Z, "", Qt::ControlModifier},
};

class RestlessChild : public QObject {
 public:
  RestlessChild(std::int64_t events, std::uint64_t seed) : events_(events), chance_(seed) {
    QFile maze(folder_.filePath("small.txt"));
    if (!maze.open(QIODevice::WriteOnly)) fail("no place for a maze");
    maze.write("4,6\n######\n#s..##\n##.f.#\n######\n");
  }

  void play() {
    QElapsedTimer watch;
    watch.start();
    while (diary.event < events_) {
      visit();
      for (const QWidget* const left : QApplication::topLevelWidgets()) {
        const QString name = left->objectName();
        if (name == "MsgBox" || name == "InputBox" || isForm(name)) {
          fail("a window stays in memory: " + name.toStdString());
        }
      }
    }
    const double seconds = static_cast<double>(watch.elapsed()) / 1000;
    report(seconds);
  }

 protected:
  bool event(QEvent* event) override {
    if (event->type() != kTurn) return QObject::event(event);
    isTurnDue_ = false;
    takeTurn();
    return true;
  }

 private:
  static constexpr auto kTurn = static_cast<QEvent::Type>(QEvent::User + 1);

  int below(int n) { return static_cast<int>(chance_() % static_cast<std::uint64_t>(n)); }
  bool happens(int percent) { return below(100) < percent; }
  template <typename List>
  auto& oneOf(List& list) {
    return list[static_cast<std::size_t>(below(static_cast<int>(std::size(list))))];
  }

  static bool isForm(const QString& window) {
    const std::vector<FormName>& all = allSeenForms();
    return std::any_of(all.begin(), all.end(),
                       [&](FormName name) { return text(name.text()) == window; });
  }

  // One run of the program, from its start to its end.
  void visit() {
    static constexpr std::array kDays{0.0, 8 * 3600.0, 86400.0 - 30, 86400.0 - 600};
    WholeProgram program({.seed = chance_(),
                          .secondsAtStart = oneOf(kDays),
                          .midiDevices = below(4),
                          .screen = {happens(50) ? 1024 : 640 + below(2000), 768},
                          .mazeFile = mazeFile(),
                          .optionsFile = folder_.filePath("Kockovka32.ini")});
    program_ = &program;
    hands_ = Hands(happens(60));
    wasLoaded_.clear();
    turnsHere_ = 0;
    turnsHome_ = 0;
    turnsWithoutWindow_ = 0;
    longVisit_ = 50 + below(kLongVisit);
    QTimer::singleShot(0, qApp, [&program] { program.forms.show(names::frmSplash); });
    makeTurnDue();
    QCoreApplication::exec();
    if (!program.forms.isEnding()) fail("the event loop ended before the program");
    if (!Hands::windows().empty()) fail("a window outlives its program");
    opened_["frmSplash"] += program.starts;
    ++visits_;
    program_ = nullptr;
    // A process of its own would have taken it along.
    qDeleteAll(qApp->findChildren<QTranslator*>());
  }

  QString mazeFile() {
    const int kind = below(20);
    if (kind == 0) return folder_.filePath("none.txt");
    return kind < 10 ? folder_.filePath("small.txt") : dataFile("bludisko.txt");
  }

  // The next turn is on its way before this one is taken: a box that comes up, or a game that
  // begins, holds this one until it is over.
  void makeTurnDue() {
    if (isTurnDue_) return;
    isTurnDue_ = true;
    QCoreApplication::postEvent(this, new QEvent(kTurn));
  }

  void takeTurn() {
    if (program_ == nullptr || program_->forms.isEnding()) return;
    makeTurnDue();
    ++diary.event;
    ++turnsHere_;
    look();
    if (diary.event >= events_) {
      program_->forms.endProgram();
      return;
    }
    ++depth_;
    deepest_ = std::max(deepest_, depth());
    if (turnsHere_ > longVisit_) {
      goHome();
    } else if (depth() > kDeepest) {
      getOut();
    } else {
      act();
    }
    --depth_;
  }

  int depth() const { return std::max(depth_, QThread::currentThread()->loopLevel()); }
  bool isSettled() const { return depth_ == 0 && QThread::currentThread()->loopLevel() == 1; }

  // --- What must always hold ---

  void look() {
    const std::vector<QWidget*> windows = Hands::windows();
    lookAtForms(windows);
    const Premenné& marks = program_->premenné;
    for (const double percent :
         {marks.PercentoDelenie, marks.PercentoMalá, marks.PercentoNásobilka, marks.PercentoVeľká,
          marks.PercentoVeľkéčísla, marks.PercentoZátvorky, marks.PercentoHádanka}) {
      if (!(percent >= 0 && percent <= 100)) fail("a percentage out of bounds");
    }
    const QWidget* const modal = QApplication::activeModalWidget();
    if (modal != nullptr && modal != lastModal_) ++boxes_[modal->windowTitle().toStdString()];
    lastModal_ = modal;
    if (modal != nullptr && !modal->isVisible()) fail("an unseen window locks the others");
    turnsWithoutWindow_ = windows.empty() ? turnsWithoutWindow_ + 1 : 0;
    if (turnsWithoutWindow_ > kNothingSeen) fail("the program runs on and nothing is seen");
    if (!isSettled()) return;
    if (modal != nullptr) fail("a modal window that nobody waits for");
    if (windows.empty() && turnsHere_ > 1) fail("the last window is gone and the program isn't");
    if (program_->ticks.running() > kTicking) fail("timers pile up");
    if (QApplication::topLevelWidgets().size() > kTopLevels) fail("windows pile up");
    measure();
  }

  void lookAtForms(const std::vector<QWidget*>& windows) {
    for (const FormName name : allSeenForms()) {
      const bool isLoaded = program_->forms.isLoaded(name);
      const auto seen = std::count_if(windows.begin(), windows.end(), [name](const QWidget* each) {
        return each->objectName() == text(name.text());
      });
      if (seen > (isLoaded ? 1 : 0)) fail("a window too many of " + std::string(name.text()));
      bool& was = wasLoaded_[name];
      if (isLoaded && !was) ++opened_[std::string(name.text())];
      was = isLoaded;
    }
  }

  void measure() {
    if (diary.event % 20 != 0) return;
    const auto tenth = static_cast<std::size_t>((diary.event - 1) * kTenths / events_);
    peaks_.at(tenth) = std::max(peaks_.at(tenth), static_cast<double>(heapBytes()) / 1e6);
  }

  // --- What the child does ---

  void act() {
    if (QGuiApplication::focusWindow() == nullptr || happens(2)) lookElsewhere();
    const int what = below(1000);
    if (what < 120) return letTimePass();
    if (what < 300) return useKeys();
    if (what < 520) return useMouse();
    if (what < 840) return work();
    if (what < 880) return pushButton();
    if (what < 920) return chooseFromMenu();
    if (what < 950) return answerBox();
    if (what < 962) return moveWindow();
    if (what < 975) return minimise();
    if (what < 993) return bringBack();
    if (what < 998) return closeFrame(oneWindow());
    if (what == 998 && happens(10)) endFromOutside();
  }

  void endFromOutside() {
    const int how = below(3);
    note("ends the program", nullptr);
    if (how == 0) return program_->forms.endProgram();
    if (how == 1) {
      std::raise(SIGTERM);
      return;
    }
    QEvent quit(QEvent::Quit);  // what the toolkit makes of a session that ends
    QCoreApplication::sendEvent(qApp, &quit);
  }

  static void note(const char* what, const QWidget* whom) { diary.write(what, whom); }

  // Null where none can be used.
  QWidget* oneWindow() {
    const std::vector<QWidget*> windows = Hands::openWindows();
    QWidget* const active = QApplication::activeWindow();
    if (windows.empty()) return nullptr;
    const bool isActiveOpen = std::find(windows.begin(), windows.end(), active) != windows.end();
    return isActiveOpen && happens(70) ? active : oneOf(windows);
  }

  template <typename Control>
  Control* oneControl(QWidget* window) {
    if (window == nullptr) return nullptr;
    QList<Control*> controls = window->findChildren<Control*>();
    controls.removeIf([](const auto& each) { return !each->isVisible(); });
    return controls.isEmpty() ? nullptr : controls.at(below(static_cast<int>(controls.size())));
  }

  void lookElsewhere() {
    QWidget* const window = oneWindow();
    if (window == nullptr) return;
    note("activates", window);
    activate(*window);
  }

  static void activate(QWidget& window) {
    const bool wantsKeyboard = !window.windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus);
    if (wantsKeyboard && QApplication::activeWindow() != &window) window.activateWindow();
  }

  static bool isSheet(const QWidget& window) {
    return window.findChild<QWidget*>("Text9") != nullptr;
  }

  void letTimePass() {
    using std::chrono::milliseconds;
    const int how = below(100);
    note("waits", nullptr);
    if (how < 55) return program_->ticks.advance(milliseconds(1 + below(60)));
    if (how < 75) return program_->ticks.advance(milliseconds(100 + below(900)));
    if (how < 97) {
      for (int second = below(30); second >= 0 && !program_->forms.isEnding(); --second) {
        program_->ticks.sleep(milliseconds(1000));
      }
      return;
    }
    program_->ticks.sleep(std::chrono::minutes(1 + below(600)));
  }

  void useKeys() {
    const Sign& sign = oneOf(kSigns);
    const int how = below(100);
    const QString typed = QString::fromUtf8(sign.typed);
    note(qPrintable(QString("key %1").arg(sign.key, 0, 16)), QApplication::focusWidget());
    if (how < 50) {
      hands_.strike(sign.key, sign.modifiers, typed);
    } else if (how < 70) {
      hands_.press(sign.key, sign.modifiers, typed);
    } else if (!hands_.down().empty()) {
      const std::vector<int> down(hands_.down().begin(), hands_.down().end());
      const int key = oneOf(down);
      if (how < 85) hands_.release(key);
      if (how >= 85) hands_.repeat(key, happens(20));
    }
  }

  void useMouse() {
    static constexpr std::array kButtons{Qt::LeftButton, Qt::LeftButton, Qt::LeftButton,
                                         Qt::RightButton, Qt::MiddleButton};
    QWidget* const popup = QApplication::activePopupWidget();
    QWidget* const window = popup != nullptr && happens(75) ? popup : oneWindow();
    QWidget* target = oneControl<QWidget>(window);
    if (target == nullptr || happens(10)) target = window;
    if (target == nullptr) return;
    const QPoint at(below(std::max(1, target->width())), below(std::max(1, target->height())));
    const Qt::MouseButton button = oneOf(kButtons);
    const int how = below(100);
    if (happens(70)) hands_.pause();
    note(how < 55 ? "clicks" : how < 62 ? "double-clicks" : "mouse", target);
    if (how < 55) {
      hands_.click(*target, at, button);
    } else if (how < 62) {
      const QPointer<QWidget> still(target);
      hands_.click(*target, at, button);
      if (still != nullptr) hands_.click(*still, at, button);
    } else if (how < 70) {
      hands_.pressMouse(*target, at, button);
    } else if (how < 80) {
      hands_.releaseMouse(*target, at, button);
    } else if (how < 92) {
      hands_.moveMouse(*target, at);
    } else {
      Hands::wheel(*target, at, happens(50) ? 120 : -120);
    }
  }

  void work() {
    QWidget* const window = oneWindow();
    if (window == nullptr) return;
    activate(*window);
    if (isSheet(*window)) return reckon(*window);
    static constexpr std::array kArrows{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down};
    if (happens(40)) {
      note("walks", window);
      return hands_.strike(oneOf(kArrows));
    }
    auto* const control = oneControl<QWidget>(window);
    if (control == nullptr) return;
    note("plays", control);
    hands_.pause();
    hands_.click(*control);
  }

  // Answers the row of the sheet where the keyboard is, mostly well.
  void reckon(QWidget& sheet) {
    auto* const reward = sheet.findChild<QAbstractButton*>(rewardOf(sheet));
    if (reward != nullptr && reward->isVisible() && happens(25)) {
      note("takes the reward", reward);
      return hands_.click(*reward);
    }
    auto* const box = qobject_cast<TextBox*>(sheet.focusWidget());
    if (box == nullptr || box->isReadOnly()) {
      auto* const other = oneControl<TextBox>(&sheet);
      if (other != nullptr) hands_.click(*other);
      return;
    }
    note("reckons", box);
    box->selectAll();
    const QString answer = QString::number(resultOf(sheet, *box) + (happens(94) ? 0 : 1));
    for (const QChar& digit : answer) hands_.strike(digit.unicode(), {}, digit);
    hands_.strike(happens(50) ? Qt::Key_Return : Qt::Key_Enter, {}, "\r");
  }

  static QString rewardOf(const QWidget& sheet) {
    static const std::vector<sheets::SheetDesign> kSheets = sheets::allSheets();
    const auto design = std::find_if(kSheets.begin(), kSheets.end(), [&sheet](const auto& each) {
      return sheet.objectName() == text(each.name.text());
    });
    return design == kSheets.end() ? QString() : design->buttons.front();
  }

  void pushButton() {
    QWidget* const window = oneWindow();
    auto* const button = oneControl<QAbstractButton>(window);
    if (button == nullptr) return;
    // Too soon back in the menu or at the end it would see little.
    if (isSheet(*window) && happens(80)) return useKeys();
    if (window->objectName() == text(names::Vysvedčenie.text()) && happens(70)) return useMouse();
    note("pushes", button);
    hands_.click(*button);
  }

  void chooseFromMenu() {
    QWidget* const window = oneWindow();
    if (window == nullptr) return;
    QList<QAction*> items = window->findChildren<QAction*>();
    items.removeIf([](const auto& item) {
      return !item->isEnabled() || !item->isVisible() || item->menu() != nullptr;
    });
    if (items.isEmpty()) return;
    QAction* const item = items.at(below(static_cast<int>(items.size())));
    note(qPrintable("menu " + item->objectName()), window);
    item->trigger();
  }

  void answerBox() {
    QWidget* const box = QApplication::activeModalWidget();
    if (box == nullptr) return;
    static constexpr std::array kKeys{Qt::Key_Return, Qt::Key_Escape, Qt::Key_Enter, Qt::Key_Space};
    const int how = below(10);
    note("answers", box);
    if (how < 5) {
      activate(*box);
      hands_.strike(oneOf(kKeys));
    } else if (how < 7) {
      closeFrame(box);
    } else if (auto* const button = oneControl<QAbstractButton>(box)) {
      hands_.click(*button);
    }
  }

  void moveWindow() {
    if (QWidget* const window = oneWindow()) window->move(below(900) - 100, below(700) - 100);
  }

  void minimise() {
    QWidget* const window = oneWindow();
    if (window == nullptr || QApplication::activeModalWidget() != nullptr) return;
    note("minimises", window);
    window->showMinimized();
  }

  void bringBack() {
    for (QWidget* const window : Hands::openWindows()) {
      if (!window->isMinimized()) continue;
      note("brings back", window);
      window->showNormal();
      return;
    }
  }

  static void closeFrame(QWidget* window) {
    if (window == nullptr) return;
    note("closes", window);
    window->close();
  }

  // Ends what waits: popups, drags, boxes, the blocks game.
  void getOut() {
    letTimePass();
    if (program_->forms.isEnding()) return;
    if (QApplication::activePopupWidget() != nullptr) return hands_.strike(Qt::Key_Escape);
    QWidget* const window = oneWindow();
    if (hands_.buttons() != Qt::NoButton && window != nullptr) {
      for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        if (hands_.buttons().testFlag(button)) return hands_.releaseMouse(*window, {1, 1}, button);
      }
    }
    if (QWidget* const modal = QApplication::activeModalWidget()) {
      return happens(70) ? answerBox() : closeFrame(modal);
    }
    for (QWidget* const each : QApplication::topLevelWidgets()) {
      auto* const end = each->findChild<QAction*>("mnuEndGame");
      if (end != nullptr && end->isEnabled()) return end->trigger();
    }
  }

  void goHome() {
    if (++turnsHome_ > kWayHome) fail("the program can't be left");
    if (happens(60)) return getOut();
    closeFrame(oneWindow());
  }

  // --- What it tells ---

  void report(double seconds) {
    std::printf("%lld events in %.1f s, %.0f a second; %lld programs\n",
                static_cast<long long>(diary.event), seconds,
                static_cast<double>(diary.event) / seconds, static_cast<long long>(visits_));
    bool isMissing = false;
    for (const FormName name : allSeenForms()) opened_[std::string(name.text())] += 0;
    for (const auto& [name, times] : opened_) {
      std::printf("  %s: %lld\n", name.c_str(), static_cast<long long>(times));
      isMissing = isMissing || times == 0;
    }
    std::printf("%d loops within each other at most; boxes:\n", deepest_);
    for (const auto& [title, times] : boxes_) {
      std::printf("  %s: %lld\n", title.c_str(), static_cast<long long>(times));
    }
    std::printf("peak memory in MB, by tenths:");
    for (const double peak : peaks_) std::printf(" %.1f", peak);
    std::printf("\n");
    std::fflush(stdout);
    if (isMissing && diary.event >= kAllForms) fail("a form never came up");
    if (peaks_.back() - peaks_.front() > kGrowth) fail("memory grows");
  }

  const std::int64_t events_;
  std::mt19937_64 chance_;
  const QTemporaryDir folder_;
  WholeProgram* program_ = nullptr;
  Hands hands_{false};
  bool isTurnDue_ = false;
  int depth_ = 0;
  int deepest_ = 0;
  int turnsHere_ = 0;
  int turnsHome_ = 0;
  int turnsWithoutWindow_ = 0;
  int longVisit_ = 0;
  std::int64_t visits_ = 0;
  std::map<FormName, bool> wasLoaded_;
  std::map<std::string, std::int64_t> opened_;
  std::map<std::string, std::int64_t> boxes_;  // and modal forms, by their titles
  const QWidget* lastModal_ = nullptr;         // never looked into
  std::array<double, kTenths> peaks_{};
};

// The plugin without a display says at each window what it can't do.
void tellButForThePlugin(QtMsgType, const QMessageLogContext&, const QString& message) {
  if (message.startsWith("This plugin does not support")) return;
  std::fprintf(stderr, "toolkit: %s\n", qPrintable(message));
}

// Ends a process whose child has come to nothing for too long.
class Watchdog {
 public:
  Watchdog() : thread_([this] { watch(); }) {}
  ~Watchdog() {
    isOver_ = true;
    thread_.join();
  }
  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;

 private:
  void watch() {
    std::int64_t last = -1;
    auto since = std::chrono::steady_clock::now();
    while (!isOver_) {
      std::this_thread::sleep_for(std::chrono::milliseconds(200));
      const auto now = std::chrono::steady_clock::now();
      if (diary.event != last) {
        last = diary.event;
        since = now;
      }
      if (now - since > kHang) fail("hangs");
    }
  }

  std::atomic<bool> isOver_ = false;
  std::thread thread_;
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
#ifdef __SANITIZE_ADDRESS__
  __sanitizer_set_death_callback([] { soak::diary.print(); });
#endif
  qInstallMessageHandler(soak::tellButForThePlugin);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QTemporaryDir home;
  qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
  qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
  const Application application(arguments[0]);
  const soak::Watchdog watchdog;
  soak::RestlessChild(events, soak::diary.seed).play();
  return 0;
}
