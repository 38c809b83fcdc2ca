// The games that a child earns.

#include <array>

#include "gallery/gallery.h"
#include "piskorky/piskorky.h"
#include "platform/controls/controls.h"
#include "shell/names.h"

namespace ratanka {

void Gallery::showMaze() {
  forms_.show(names::Bludisko);
  take(names::Bludisko, "fresh");
  // Along the wall on the right hand, which leads through any maze without loops.
  constexpr std::array kTurns{Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Left};
  std::size_t facing = 1;
  for (int step = 0; step < 60; ++step) {
    facing = (facing + 1) % kTurns.size();
    const QImage before = window(names::Bludisko).grab().toImage();
    for (int turn = 0; turn < 4; ++turn) {
      press(names::Bludisko, kTurns.at(facing));
      if (window(names::Bludisko).grab().toImage() != before) break;
      facing = (facing + 3) % kTurns.size();
    }
  }
  take(names::Bludisko, "walked");
  forms_.unload(names::Bludisko);
}

void Gallery::showPiškôrky() {
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
void Gallery::playGame(std::initializer_list<int> moves, std::initializer_list<int> replies,
                       const QString& end) {
  control<QPushButton>(names::Piškôrky, "Command1").click();
  replies_.cells = replies;
  for (const int cell : moves) {
    emit control<QLabel>(names::Piškôrky, QString("s(%1)").arg(cell))
        .findChild<Clicks*>()
        ->clicked();
    // Lets the computer reply; ends the last move's box, too.
    wait(kPatience);
  }
  take(names::Piškôrky, end);
}

void Gallery::showSoccer() {
  forms_.show(names::frmStartUp);
  take(names::frmStartUp, "title");
  forms_.show(names::frmSelectPlayer);
  take(names::frmSelectPlayer, "choice");
  emit control<QWidget>(names::frmSelectPlayer, "picOpponent(4)")
      .findChild<Clicks*>()
      ->pointerMoved();
  take(names::frmSelectPlayer, "lifted");
  forms_.unload(names::frmSelectPlayer);
  for (int opponent = 1; opponent <= 5; ++opponent) {
    program_.declarations.OpponentIndex = opponent;
    forms_.show(names::frmPlayer1);
    if (opponent == 5) press(names::frmPlayer1, Qt::Key_Control);
    take(names::frmPlayer1, QString::number(opponent));
    forms_.drop(names::frmPlayer1);
  }
  forms_.show(names::frmPlayer2);
  take(names::frmPlayer2, "match");
  forms_.drop(names::frmPlayer2);
  forms_.drop(names::frmStartUp);
}

}  // namespace ratanka
