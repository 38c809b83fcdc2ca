#include "soak/restless_child.h"

#include <QAbstractButton>
#include <QAction>
#include <QElapsedTimer>
#include <QFile>
#include <QMenu>
#include <QThread>
#include <QTimer>
#include <QTranslator>
#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <random>

#include "platform/base/data_files.h"
#include "platform/base/text.h"
#include "platform/controls/controls.h"
#include "soak/diary.h"
#include "soak/hands.h"
#include "soak/laws.h"
#include "soak/reading.h"
#include "soak/signs.h"
#include "soak/whole_program.h"

namespace ratanka::soak {
namespace {

constexpr int kDeepest = 8;       // loops within loops; from here on the child wants out
constexpr int kLongVisit = 4000;  // events in one run of the program; then it goes home
constexpr int kWayHome = 3000;    // events that leaving may take

class RestlessChild : public QObject {
 public:
  RestlessChild(std::int64_t events, std::uint64_t seed)
      : events_(events), chance_(seed), laws_(events) {
    QFile maze(folder_.filePath("small.txt"));
    if (!maze.open(QIODevice::WriteOnly)) fail("no place for a maze");
    maze.write("4,6\n######\n#s..##\n##.f.#\n######\n");
  }

  void play() {
    QElapsedTimer watch;
    watch.start();
    while (diary.event < events_) {
      visit();
      Laws::lookAfterwards();
    }
    laws_.report(static_cast<double>(watch.elapsed()) / 1000);
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
    laws_.beginVisit();
    turnsHere_ = 0;
    turnsHome_ = 0;
    longVisit_ = 50 + below(kLongVisit);
    QTimer::singleShot(0, qApp, [&program] { program.forms.show(names::frmSplash); });
    makeTurnDue();
    QCoreApplication::exec();
    laws_.endVisit(program);
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
    ++depth_;
    laws_.look(*program_, depth());
    if (diary.event >= events_) {
      program_->forms.endProgram();
    } else if (turnsHere_ > longVisit_) {
      goHome();
    } else if (depth() > kDeepest) {
      getOut();
    } else {
      act();
    }
    --depth_;
  }

  int depth() const { return std::max(depth_, QThread::currentThread()->loopLevel()); }

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

  static void note(const QString& what, const QWidget* whom) {
    const auto name = [](const QWidget* of) {
      return of == nullptr ? QString() : of->objectName();
    };
    const QWidget* const window = whom == nullptr ? nullptr : whom->window();
    diary.write((what + ' ' + name(whom) + " on " + name(window)).toStdString());
  }

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
    note(QString("key %1").arg(sign.key, 0, 16), QApplication::focusWidget());
    if (how < 50) {
      hands_.strike(sign.key, sign.modifiers, typed);
    } else if (how < 70) {
      hands_.press(sign.key, sign.modifiers, typed);
    } else if (!hands_.down().empty()) {
      const std::vector<int> down(hands_.down().begin(), hands_.down().end());
      const int key = oneOf(down);
      if (how < 85) hands_.release(key);
      if (how >= 85) hands_.repeat(key);
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
    hands_.type(QString::number(resultOf(sheet, *box) + (happens(94) ? 0 : 1)));
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
    note("menu " + item->objectName(), window);
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

  const std::int64_t events_;
  std::mt19937_64 chance_;
  Laws laws_;
  const QTemporaryDir folder_;
  WholeProgram* program_ = nullptr;
  Hands hands_{false};
  bool isTurnDue_ = false;
  int depth_ = 0;
  int turnsHere_ = 0;
  int turnsHome_ = 0;
  int longVisit_ = 0;
};

}  // namespace

void playRestlessly(std::int64_t events, std::uint64_t seed) { RestlessChild(events, seed).play(); }

}  // namespace ratanka::soak
