#include "soccer/player1.h"

#include <QPainter>

#include "platform/base/text.h"
#include "platform/controls/controls.h"
#include "platform/controls/pictures.h"
#include "platform/forms/forms.h"
#include "platform/forms/timer.h"
#include "platform/keyboard/keys.h"
#include "shell/names.h"
#include "soccer/rules/words.h"

namespace ratanka::soccer {
namespace {

constexpr PlayerKey kKeys[] = {{key::kLeft, &Match::blueHeld, &Held::left},
                               {key::kRight, &Match::blueHeld, &Held::right},
                               {key::kUp, &Match::blueHeld, &Held::up},
                               {key::kDown, &Match::blueHeld, &Held::down}};

// Letting one of these go takes a direction of the computer back, until its next decision.
struct Cancel {
  int code;
  bool Held::*direction;
};
constexpr Cancel kCancels[] = {
    {'A', &Held::left}, {'D', &Held::right}, {'W', &Held::up}, {'S', &Held::down}};

}  // namespace

frmPlayer1::frmPlayer1(Forms& forms, Dialogs& dialogs, Random& random, Declarations& declarations)
    : MatchForm(forms, dialogs, declarations,
                {.name = names::frmPlayer1,
                 .caption = "Mini futbal - hráč + počítač",
                 .width = 11910,
                 .height = 8265,
                 .clockLeft = 9825,
                 .keys = kKeys}),
      random_(random) {}

void frmPlayer1::build() {
  MatchForm::build();
  lblOpponent_ =
      addLabel(client(), {.name = "lblOpponent",
                          .place = {240, 7755, 2400, 360},
                          .type = {.family = "Comic Sans MS", .points = 12, .bold = true},
                          .fore = kWhite});
  opponentPortrait_ = addCanvas(
      client(), {.name = "OpponentPortrait",
                 .place = {240, 7200, 480, 576},
                 .paint = [this](QPainter& painter, const QRect&) {
                   const QString face = "portrait-" + QString::number(declarations().OpponentIndex);
                   painter.drawPixmap(0, 0,
                                      picture(face, opponentPortrait_->size(),
                                              opponentPortrait_->devicePixelRatioF()));
                 }});
  lblDirection_ =
      addLabel(client(), {.name = "lblDirection",
                          .place = {5640, 240, 480, 420},
                          .type = {.family = "Comic Sans MS", .points = 18, .bold = true},
                          .fore = kWhite,
                          .rim = kInkColour,  // it stands on the half-way line
                          .align = Qt::AlignHCenter});
  lblDirection_->hide();
  for (QWidget* const beneathThePieces : {static_cast<QWidget*>(lblOpponent_), opponentPortrait_}) {
    beneathThePieces->lower();
  }
  timer("ComputerBrain", 1, [this] { ComputerBrain_Timer(); })->setEnabled(true);
}

void frmPlayer1::Form_Unload() { forms().drop(names::frmPlayer1); }

void frmPlayer1::Form_Activate() {
  const std::string name(opponentName(declarations().OpponentIndex));
  lblOpponent_->setText(ratanka::text("Súper : " + name));
  opponentPortrait_->setAccessibleName(ratanka::text(name));
  opponentPortrait_->update();
  MatchForm::Form_Activate();
}

void frmPlayer1::Form_KeyDown(int keyCode) {
  if (keyCode == key::kControl) {
    lblDirection_->show();
    showDirection();
  }
  MatchForm::Form_KeyDown(keyCode);
}

void frmPlayer1::Form_KeyUp(int keyCode) {
  if (keyCode == key::kControl) lblDirection_->hide();
  for (const Cancel& cancel : kCancels) {
    if (cancel.code == keyCode) match().redHeld.*cancel.direction = false;
  }
  MatchForm::Form_KeyUp(keyCode);
}

void frmPlayer1::keyboardLeaves() {
  lblDirection_->hide();
  MatchForm::keyboardLeaves();
}

void frmPlayer1::StartMatch() {
  random_.reseedFromClock();
  MatchForm::StartMatch();
  computer_.planMatch(random_);
}

void frmPlayer1::ComputerBrain_Timer() {
  computer_.ComputerBrain(match(), declarations().OpponentIndex, random_);
  if (lblDirection_->isVisible()) showDirection();
}

void frmPlayer1::showDirection() { lblDirection_->setNum(GetDirection(match().Red, match().Ball)); }

MessageBox frmPlayer1::result() const {
  return resultAgainstComputer(match(), opponentName(declarations().OpponentIndex));
}

std::string frmPlayer1::clockText() const { return clockAgainstComputer(declarations().TimeLeft); }

}  // namespace ratanka::soccer
