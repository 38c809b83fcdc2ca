// The blocks, the puzzle and the piano.

#include <QAction>
#include <QComboBox>

#include "blocks/kockovka_form.h"
#include "gallery/gallery.h"
#include "platform/controls/controls.h"
#include "platform/forms/system_clock.h"
#include "shell/names.h"

namespace ratanka {

void Gallery::showBlocks() {
  // A game needs a time that goes by.
  const SystemClock clock;
  forms_.setMaker(names::frmKockovka, [&] {
    return std::make_shared<blocks::frmKockovka>(forms_, clock, random_, silence_,
                                                 program_.options);
  });
  forms_.show(names::frmKockovka);
  take(names::frmKockovka, "empty");
  // A game runs inside its click: everything else comes as events of it.
  const auto keys = {Qt::Key_Left, Qt::Key_Left, Qt::Key_Left,  Qt::Key_Down,  Qt::Key_Right,
                     Qt::Key_Up,   Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right};
  auto key = keys.begin();
  QTimer child;
  QObject::connect(&child, &QTimer::timeout, [&] {
    if (key != keys.end()) return press(names::frmKockovka, *key++);
    child.stop();
    save(window(names::frmKockovka), "frmKockovka-in-work");
    QTimer::singleShot(kPatience, qApp, [this] {
      save(window(names::frmOptions), "frmOptions");
      forms_.hide(names::frmOptions);
    });
    control<QAction>(names::frmKockovka, "mnuOptions").trigger();
    QTimer::singleShot(kPatience, qApp, [this] {
      save(window(names::frmKockovka), "frmKockovka-paused");
      control<QAction>(names::frmKockovka, "mnuEndGame").trigger();
    });
  });
  child.start(kPatience / 4);
  control<QAction>(names::frmKockovka, "mnuNewGame").trigger();
  forms_.drop(names::frmOptions);
  forms_.drop(names::frmKockovka);
}

void Gallery::showPuzzle() {
  forms_.show(names::frmPuzzle);
  for (int size = 3; size <= 7; ++size) {
    control<QComboBox>(names::frmPuzzle, "cmbSize").setCurrentText(QString::number(size));
    take(names::frmPuzzle, QString("%1-ordered").arg(size));
    control<Button>(names::frmPuzzle, "cmdShuffle").click();
    take(names::frmPuzzle, QString("%1-shuffled").arg(size));
  }
  const std::string application = "Rátanka - hra Pucle";
  settings_.write(application, "Pucle", "3", "42");
  settings_.write(application, "Pucle", "3Hráč", "Ľubica");
  settings_.write(application, "Pucle", "4", "158");
  settings_.write(application, "Pucle", "4Hráč", "Maximilián Dlhomenný");
  takeBox("frmPuzzle-list");
  control<QAction>(names::frmPuzzle, "mnuHighScore").trigger();
  forms_.drop(names::frmPuzzle);
}

void Gallery::showPiano() {
  forms_.show(names::Klavír);
  take(names::Klavír, "rest");
  for (const int key : {Qt::Key_Z, Qt::Key_C, Qt::Key_B, Qt::Key_L}) press(names::Klavír, key);
  take(names::Klavír, "chord");
  forms_.drop(names::Klavír);
}

}  // namespace ratanka
