#include "soccer/select_player.h"

#include <QPainter>

#include "platform/base/text.h"
#include "platform/controls/controls.h"
#include "platform/controls/pictures.h"
#include "platform/forms/forms.h"
#include "platform/keyboard/keys.h"
#include "shell/names.h"
#include "soccer/rules/words.h"

namespace ratanka::soccer {
namespace {

constexpr std::array kPictureLefts{120, 1440, 2760, 4080, 5400};  // twips
constexpr std::array kNameLefts{300, 1600, 2920, 4320, 5580};
constexpr int kRaisedHeight = 1512;

}  // namespace

frmSelectPlayer::frmSelectPlayer(Forms& forms, Declarations& declarations)
    : Form(forms, {.name = names::frmSelectPlayer,
                   .caption = "Výber protihráča",
                   .width = 7200,
                   .height = 1725,
                   .back = kInkColour,
                   .isDialog = true}),
      declarations_(declarations) {}

void frmSelectPlayer::build() {
  for (int index = 1; index <= kOpponents; ++index) {
    picOpponent_.at(index - 1) = addOpponent(index, kPictureLefts.at(index - 1));
  }
  for (int index = 1; index <= kOpponents; ++index) {
    lblName_.at(index - 1) =
        addLabel(client(), {.name = indexed("lblName", index),
                            .place = {kNameLefts.at(index - 1), 1280, 960, 270},
                            .caption = ratanka::text(opponentName(index)),
                            .type = {.family = "Comic Sans MS", .points = 9.75, .bold = true},
                            .fore = kYellow,
                            .align = Qt::AlignHCenter});
    lblName_.at(index - 1)->setAttribute(Qt::WA_TransparentForMouseEvents);
  }
}

QWidget* frmSelectPlayer::addOpponent(int index, int left) {
  const auto paint = [this, index](QPainter& painter, const QRect&) {
    const QWidget& box = *picOpponent_.at(index - 1);
    painter.drawPixmap(
        0, 0, picture("opponent-" + QString::number(index), box.size(), box.devicePixelRatioF()));
    if (bordered_ != index) return;
    painter.setPen(QPen(colour(kYellow), 2));
    painter.drawRect(box.rect().adjusted(1, 1, -1, -1));
  };
  QWidget* const box = addCanvas(client(), {.name = indexed("picOpponent", index),
                                            .place = {left, 120, 1680, 1440},
                                            .paint = paint,
                                            .isOpaque = true,
                                            .accessibleName = ratanka::text(opponentName(index))});
  auto* const mouse = new Clicks(*box);
  on(mouse, &Clicks::pointerMoved, [this, index] { picOpponent_MouseMove(index); });
  on(mouse, &Clicks::clicked, [this, index] { picOpponent_MouseUp(index); });
  return box;
}

void frmSelectPlayer::Form_KeyDown(int keyCode) {
  if (keyCode == key::kEscape) backToTitle();
}

void frmSelectPlayer::backToTitle() {
  forms().unload(names::frmSelectPlayer);
  forms().show(names::frmStartUp);
  forms().drop(names::frmSelectPlayer);
}

void frmSelectPlayer::picOpponent_MouseMove(int index) {
  if (bordered_ == index) return;
  bordered_ = index;
  QWidget& box = *picOpponent_.at(index - 1);
  box.raise();
  box.resize(box.width(), pixels(kRaisedHeight));
  for (QLabel* const name : lblName_) name->raise();
  for (QWidget* const each : picOpponent_) each->update();  // one border at a time
}

void frmSelectPlayer::picOpponent_MouseUp(int index) {
  declarations_.OpponentIndex = index;
  forms().unload(names::frmSelectPlayer);
  forms().show(names::frmPlayer1);
  forms().drop(names::frmSelectPlayer);
}

}  // namespace ratanka::soccer
