// Shows every form in its telling states, without a display, and writes a picture of each.
//
//   gallery FOLDER SUFFIX     the forms, each as FOLDER/<form>-<state>SUFFIX.png
//   gallery --contact FILE    all pictures of the program side by side, at three sizes
//
// The magnification is the toolkit's own: QT_SCALE_FACTOR=1.5 gallery ...

#include <QDir>
#include <QKeyEvent>
#include <QPainter>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <array>

#include "clock/hodiny.h"
#include "maze/bludisko.h"
#include "piskorky/piskorky.h"
#include "platform/application.h"
#include "platform/controls.h"
#include "platform/data_files.h"
#include "platform/forms.h"
#include "platform/ini_settings_store.h"
#include "platform/pictures.h"
#include "platform/qt_dialogs.h"
#include "platform/qt_ticks.h"
#include "platform/text.h"
#include "platform/twister_random.h"
#include "report/vysvedcenie.h"
#include "sheets/exercise_sheet.h"
#include "sheets/sheets.h"
#include "shell/names.h"
#include "shell/uvod.h"

namespace ratanka {
namespace {

// A clock that somebody has set.
class StandingClock : public Clock {
 public:
  TimeOfDay timeOfDay() const override { return now; }
  double secondsSinceMidnight() const override { return 0; }
  TimeOfDay now;
};

// Chance that picks the told cells of nine.
class ToldReplies : public Random {
 public:
  double next() override {
    const int cell = cells.empty() ? 0 : cells.front();
    if (!cells.empty()) cells.erase(cells.begin());
    return (cell + 0.5) / 9;
  }
  void reseedFromClock() override {}
  std::vector<int> cells;
};

constexpr int kPatience = 400;  // milliseconds, for the book to have turned to a page

class Gallery {
 public:
  Gallery(QString folder, QString suffix) : folder_(std::move(folder)), suffix_(std::move(suffix)) {
    forms_.setMaker(names::Úvod, [this] { return std::make_shared<Úvod>(forms_); });
  }

  void show() {
    forms_.show(names::Úvod);
    take(names::Úvod, "menu");
    int mistakes = 0;
    for (const sheets::SheetDesign& design : sheets::allSheets()) showSheet(design, ++mistakes);
    showCard();
    showClock();
    showMaze();
    showPiškôrky();
    forms_.endProgram();
  }

 private:
  // Fresh, in work, with the box that comes up over an empty answer, and done with mistakes.
  void showSheet(const sheets::SheetDesign& design, int mistakes) {
    const FormName name = design.name;
    forms_.setMaker(name, [this, design] {
      return std::make_shared<sheets::ExerciseSheet>(services_, design);
    });
    TwisterRandom sameDraws = random_;
    const sheets::Examples examples = design.ShowStart(sameDraws);
    // The empty row first, so that its box comes up on every sheet.
    constexpr std::array kMistakenRows{5, 2, 7, 1, 8, 4, 6};
    const auto answerRow = [&](int row) {
      const auto* const end = kMistakenRows.begin() + mistakes;
      const bool isMistaken = std::find(kMistakenRows.begin(), end, row) != end;
      const int result = examples.at(static_cast<std::size_t>(row - 1)).Výsledok;
      answer(name, row, row == 5 ? "" : QString::number(isMistaken ? result + 1 : result));
    };

    forms_.show(name);
    take(name, "fresh");
    for (const int row : {1, 2, 3}) answerRow(row);
    box(name, 4).setText("12");
    box(name, 4).setFocus();
    take(name, "in-work");
    QTimer::singleShot(kPatience, qApp, [&] {
      QWidget* const message = QApplication::activeModalWidget();
      save(*message, text(name.text()) + "-empty");
      message->close();
    });
    for (const int row : {5, 4, 6, 7, 8, 9}) answerRow(row);
    take(name, "done");
    forms_.unload(name);
  }

  void showClock() {
    forms_.setMaker(names::Hodiny, [this] {
      return std::make_shared<clock::Hodiny>(forms_, dialogs_, time_, settings_);
    });
    for (const TimeOfDay& time : {TimeOfDay{10, 8, 36}, TimeOfDay{18, 30, 15}}) {
      time_.now = time;
      forms_.show(names::Hodiny);
      take(names::Hodiny, QString::number(time.hour));
      forms_.unload(names::Hodiny);
    }
  }

  void showMaze() {
    forms_.setMaker(names::Bludisko, [this] {
      return std::make_shared<maze::Bludisko>(forms_, dialogs_, time_,
                                              dataFile("bludisko.txt").toStdString());
    });
    forms_.show(names::Bludisko);
    take(names::Bludisko, "fresh");
    // Along the wall on the right hand, which leads through any maze without loops.
    constexpr std::array kTurns{Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Left};
    std::size_t facing = 1;
    for (int step = 0; step < 60; ++step) {
      facing = (facing + 1) % kTurns.size();
      const QImage before = window(names::Bludisko).grab().toImage();
      for (int turn = 0; turn < 4; ++turn) {
        strike(names::Bludisko, kTurns.at(facing));
        if (window(names::Bludisko).grab().toImage() != before) break;
        facing = (facing + 3) % kTurns.size();
      }
    }
    take(names::Bludisko, "walked");
    forms_.unload(names::Bludisko);
  }

  void showPiškôrky() {
    forms_.setMaker(names::Piškôrky, [this] {
      return std::make_shared<piskorky::Piškôrky>(forms_, dialogs_, replies_);
    });
    forms_.show(names::Piškôrky);
    take(names::Piškôrky, "empty");
    playGame({0, 2, 4, 3, 6}, {1, 7}, "won");
    playGame({0, 1, 8, 7}, {3, 4}, "lost");
    forms_.unload(names::Piškôrky);
  }

  // A game of the child's moves, with the computer's first replies.
  void playGame(std::initializer_list<int> moves, std::initializer_list<int> replies,
                const QString& end) {
    QWidget& form = window(names::Piškôrky);
    form.findChild<QPushButton*>("Command1")->click();
    replies_.cells = replies;
    for (const int cell : moves) {
      emit form.findChild<QLabel*>(QString("s(%1)").arg(cell))->findChild<Clicks*>()->clicked();
      // Lets the computer reply; ends the last move's box, too.
      QTimer::singleShot(kPatience, qApp, [] { QCoreApplication::exit(0); });
      QCoreApplication::exec();
    }
    take(names::Piškôrky, end);
  }

  void strike(FormName name, int key) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&window(name), &press);
  }

  void showCard() {
    forms_.setMaker(names::Vysvedčenie,
                    [this] { return std::make_shared<report::Vysvedčenie>(forms_, premenné_); });
    forms_.show(names::Vysvedčenie);
    take(names::Vysvedčenie, "full");
    forms_.unload(names::Vysvedčenie);
    premenné_ = {};
    forms_.show(names::Vysvedčenie);
    take(names::Vysvedčenie, "empty");
  }

  QWidget& window(FormName name) {
    const auto all = QApplication::topLevelWidgets();
    return **std::find_if(all.begin(), all.end(), [&](const QWidget* widget) {
      return widget->objectName() == text(name.text()) && widget->isVisible();
    });
  }

  TextBox& box(FormName name, int row) {
    return *window(name).findChild<TextBox*>("Text" + QString::number(row));
  }

  void answer(FormName name, int row, const QString& typed) {
    box(name, row).setText(typed);
    QKeyEvent enter(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(&box(name, row), &enter);
  }

  void take(FormName name, const QString& state) {
    QTimer::singleShot(kPatience, qApp, [] { QCoreApplication::exit(0); });
    QCoreApplication::exec();
    save(window(name), text(name.text()) + '-' + state);
  }

  void save(QWidget& widget, const QString& name) {
    widget.grab().save(QDir(folder_).filePath(name + suffix_ + ".png"));
  }

  QString folder_;
  QString suffix_;
  QtTicks ticks_;
  Forms forms_{ticks_};
  QtDialogs dialogs_{forms_};
  StandingClock time_;
  const QTemporaryDir home_;
  IniSettingsStore settings_{home_.path()};
  ToldReplies replies_;
  TwisterRandom random_;
  Premenné premenné_;
  sheets::SheetServices services_{forms_, dialogs_, random_, premenné_};
};

// Every small picture at one, two and three times its size, on paper and on a button's face.
void writeContactSheet(const QString& file) {
  constexpr int kCell = 32;
  constexpr int kGap = 12;
  const QStringList names = QDir(":/pictures").entryList({"*.svg"}, QDir::Files, QDir::Name);
  QImage sheet(kGap + 6 * (3 * kCell + kGap),
               kGap + static_cast<int>(names.size()) * (3 * kCell + kGap), QImage::Format_RGB32);
  sheet.fill(colour({0xff, 0xfd, 0xf5}));
  QPainter painter(&sheet);
  painter.fillRect(sheet.width() / 2, 0, sheet.width() / 2, sheet.height(), QColor(224, 224, 224));
  int y = kGap;
  for (QString name : names) {
    name.chop(4);
    for (int column = 0; column < 6; ++column) {
      const int size = kCell * (column % 3 + 1);
      painter.drawPixmap(kGap + column * (3 * kCell + kGap), y, picture(name, {size, size}, 1));
    }
    y += 3 * kCell + kGap;
  }
  painter.end();
  sheet.save(file);
}

}  // namespace
}  // namespace ratanka

int main(int argumentCount, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const ratanka::Application application(arguments[0]);
  if (argumentCount != 3) {
    qWarning("usage: gallery FOLDER SUFFIX | gallery --contact FILE");
    return 2;
  }
  const QString first = QString::fromLocal8Bit(arguments[1]);
  const QString second = QString::fromLocal8Bit(arguments[2]);
  if (first == "--contact") {
    ratanka::writeContactSheet(second);
  } else {
    ratanka::Gallery(first, second).show();
  }
  return 0;
}
