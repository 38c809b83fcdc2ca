#pragma once

#include <QAbstractEventDispatcher>
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QMessageBox>
#include <QPixmapCache>
#include <QScrollBar>
#include <QTemporaryDir>
#include <filesystem>
#include <ostream>

#include "soak/hands.h"
#include "soak/heap.h"
#include "soak/whole_program.h"

namespace ratanka::soak {

// What ticks while nobody does anything.
struct Rest {
  std::size_t timers = 0;  // of the program, that run
  std::int64_t ticksAMinute = 0;
  qsizetype blinks = 0;  // timers of the toolkit's own controls

  bool operator==(const Rest&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const Rest& rest) {
    return out << rest.timers << " timers, " << rest.ticksAMinute << " ticks a minute, "
               << rest.blinks << " blinks";
  }
};

// What a process holds then, beside its memory.
struct Things {
  std::ptrdiff_t handles = 0;
  qsizetype widgets = 0;
  qsizetype windows = 0;
  Rest rest;

  bool operator==(const Things&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const Things& things) {
    return out << things.handles << " handles, " << things.widgets << " widgets, " << things.windows
               << " windows, " << things.rest;
  }
};

// What grows each time shows in the middle one; a table that found its new size shows in one.
inline std::ptrdiff_t median(std::vector<std::ptrdiff_t> growths) {
  std::ranges::sort(growths);
  return growths.at(growths.size() / 2);
}

// A child at the whole program that answers every box and every modal form at once.
class TirelessChild : public QObject {
 public:
  explicit TirelessChild(const QString& mazeFile = dataFile("bludisko.txt"))
      : program({.seed = 1,
                 .secondsAtStart = 8 * 3600.0,
                 .midiDevices = 2,
                 .screen = {1024, 768},
                 .mazeFile = mazeFile,
                 .optionsFile = folder.filePath("Kockovka32.ini")}) {
    qApp->installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* const window = event->type() == QEvent::Show ? qobject_cast<QWidget*>(watched) : nullptr;
    if (window != nullptr && window->isModal()) {
      QMetaObject::invokeMethod(
          window, [this, window] { answer(*window); }, Qt::QueuedConnection);
    }
    return false;
  }

  static QWidget* window(FormName form) {
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
      if (widget->objectName() == text(form.text()) && widget->isVisible()) return widget;
    }
    return nullptr;
  }

  void open(FormName form) {
    program.forms.show(form);
    if (QWidget* const opened = window(form)) leaveUnpainted(*opened);
    settle();
  }
  static void closeFrame(FormName form) {
    QWidget* const open = window(form);
    ASSERT_NE(open, nullptr) << form.text();
    open->close();
    settle();
  }

  // Clicks a control of an open form, or chooses from its menu.
  void use(FormName form, const QString& name) {
    QWidget* const open = window(form);
    ASSERT_NE(open, nullptr) << form.text();
    use(*open, name);
    settle();
  }
  void press(Qt::Key key) {
    hands.strike(key);
    settle();
  }

  void letPass(std::chrono::milliseconds duration) {
    program.ticks.advance(duration);
    settle();
  }

  static void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  // In bytes. Pictures that the toolkit keeps, of 10 MB at most, are no part of it: how many there
  // are depends on the time, since those that nobody asks for are thrown away twice a minute.
  static std::ptrdiff_t memory() {
    settle();
    QPixmapCache::clear();
    return static_cast<std::ptrdiff_t>(heapBytes());
  }

  Things things() const {
    settle();
    return {.handles = handles(),
            .widgets = QApplication::allWidgets().size(),
            .windows = QGuiApplication::allWindows().size(),
            .rest = rest()};
  }
  Rest rest() const { return {program.ticks.running(), program.ticks.ticksAMinute(), blinks()}; }

  const QTemporaryDir folder;
  WholeProgram program;
  Hands hands{true};

 private:
  // The toolkit draws these from pictures that it keeps under a name of each new window's own; the
  // names stay for half a minute, whatever becomes of the pictures.
  static void leaveUnpainted(const QWidget& window) {
    for (auto* const box : window.findChildren<QComboBox*>()) box->setUpdatesEnabled(false);
    for (auto* const bar : window.findChildren<QScrollBar*>()) bar->setUpdatesEnabled(false);
  }

  void use(const QWidget& open, const QString& name) {
    if (auto* const item = open.findChild<QAction*>(name)) {
      item->trigger();
    } else {
      auto* const control = open.findChild<QWidget*>(name);
      ASSERT_NE(control, nullptr) << name.toStdString();
      hands.pause();
      hands.click(*control);
    }
  }

  void answer(QWidget& window) {
    if (auto* const box = qobject_cast<QMessageBox*>(&window)) {
      QAbstractButton* const yes = box->button(QMessageBox::Yes);
      (yes != nullptr ? yes : box->button(QMessageBox::Ok))->click();
    } else if (auto* const dialog = qobject_cast<QDialog*>(&window)) {
      dialog->accept();
    } else {
      use(window, window.findChild<QWidget*>("cmdOk") != nullptr ? "cmdOk" : "picOpponent(5)");
    }
  }

  // But for those by which the toolkit wakes its drawing threads: these come and go as it needs
  // them.
  static std::ptrdiff_t handles() {
    using std::filesystem::directory_iterator;
    std::error_code gone;  // the one by which the folder is read
    return std::ranges::count_if(directory_iterator("/proc/self/fd"), [&gone](const auto& handle) {
      return std::filesystem::read_symlink(handle, gone) != "anon_inode:[eventfd]";
    });
  }

  static qsizetype blinks() {
    const auto* const loop = QAbstractEventDispatcher::instance();
    qsizetype running = 0;
    for (QWidget* const widget : QApplication::allWidgets()) {
      running += loop->registeredTimers(widget).size();
      for (QObject* const part : widget->findChildren<QObject*>(Qt::FindDirectChildrenOnly)) {
        if (!part->isWidgetType()) running += loop->registeredTimers(part).size();
      }
    }
    return running;
  }
};

}  // namespace ratanka::soak
