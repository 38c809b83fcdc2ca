#include "piskorky/piskorky.h"

#include "platform/base/text.h"
#include "platform/controls/shapes.h"
#include "platform/forms/forms.h"
#include "platform/forms/timer.h"
#include "shell/names.h"

namespace ratanka::piskorky {
namespace {

constexpr Rgb kDarkBlue{0, 0, 192};
constexpr Rgb kChalk{0xa8, 0xcf, 0xe8};  // blue on black is hard to see
constexpr Rgb kGreen{0, 255, 0};
constexpr int kLineWidth = 4;

constexpr std::array kCellLefts{240, 1080, 1800};
constexpr std::array kCellTops{120, 960, 1800};

// Where each mark's middle stands in the window, in logical pixels: on the strokes that may cross
// it, or within three pixels of them. Those of the last cell don't meet: there it is the point
// nearest to all three.
constexpr std::array<ScreenPoint, kCells> kMiddles{{{27, 27},
                                                    {83, 27},
                                                    {131, 27},
                                                    {27, 83},
                                                    {82, 82},
                                                    {131, 83},
                                                    {23, 141},
                                                    {83, 141},
                                                    {133, 139}}};

struct Stroke {
  int x1, y1, x2, y2;  // twips
};
constexpr Stroke kGrid[] = {
    {840, 120, 840, 2400}, {1680, 120, 1680, 2400}, {120, 840, 2400, 840}, {120, 1680, 2400, 1680}};
constexpr std::array<Stroke, kLines> kStrokes{{{120, 360, 2400, 360},
                                               {120, 1200, 2400, 1200},
                                               {120, 2160, 2400, 2160},
                                               {360, 120, 360, 2400},
                                               {1200, 120, 1200, 2400},
                                               {1920, 120, 1920, 2400},
                                               {240, 240, 2280, 2280},
                                               {120, 2280, 2280, 120}}};

LineDesign line(const QString& name, const Stroke& stroke, const Rgb& rgb) {
  return {.name = name,
          .x1 = stroke.x1,
          .y1 = stroke.y1,
          .x2 = stroke.x2,
          .y2 = stroke.y2,
          .width = kLineWidth,
          .colour = rgb};
}

}  // namespace

Piškôrky::Piškôrky(Forms& forms, Dialogs& dialogs, Random& random)
    : Form(forms, {.name = names::Piškôrky,
                   .caption = "Piškôrky",
                   .width = 4200,
                   .height = 2595,
                   .back = kBlack,
                   .opening = Opening::besideControls}),
      dialogs_(dialogs),
      random_(random) {}

void Piškôrky::build() {
  buildBoard();
  buildPanel();
  poll_ = timer("Timer1", 1, [this] { Timer1_Timer(); });
}

void Piškôrky::buildBoard() {
  for (int index = 0; index < kCells; ++index) {
    const int left = kCellLefts.at(index % 3);
    const int top = kCellTops.at(index / 3);
    const ScreenPoint& middle = kMiddles.at(index);
    QLabel* const cell =
        addLabel(client(), {.name = indexed("s", index),
                            .place = {left, top, 615, 615},
                            .type = {.points = 24},
                            .fore = kDarkBlue,
                            .back = kBlack,
                            .rim = kChalk,
                            .middle = ScreenPoint{middle.x - pixels(left), middle.y - pixels(top)},
                            .align = Qt::AlignCenter});
    on(new Clicks(*cell), &Clicks::clicked, [this, index] { s_Click(index); });
    s_.at(index) = cell;
  }
  int number = 0;
  for (const Stroke& stroke : kGrid) {
    addLine(client(), line("Line" + QString::number(++number), stroke, kRed));
  }
  for (int index = 0; index < kLines; ++index) {
    LineDesign design = line(indexed("Line5", index), kStrokes.at(index), kYellow);
    design.visible = false;
    strokes_.at(index) = addLine(client(), design);
  }
}

void Piškôrky::buildPanel() {
  const auto button = [this](const char* name, int top, const char* caption) {
    return addButton(client(), {.name = name,
                                .place = {2640, top, 1440, 450},
                                .caption = caption,
                                .type = {.points = 9.75}});
  };
  Button* const again = button("Command1", 120, "Nová hra");
  Button* const leave = button("Command2", 720, "Koniec");
  on(again, &Button::clicked, [this] { Command1_Click(); });
  on(leave, &Button::clicked, [this] { Command2_Click(); });

  const auto label = [this](int index, const Place& place, const char* caption, double points,
                            const Rgb& fore) {
    return addLabel(client(), {.name = indexed("Label1", index),
                               .place = place,
                               .caption = caption,
                               .type = {.family = "Comic Sans MS", .points = points, .bold = true},
                               .fore = fore,
                               .align = Qt::AlignCenter});
  };
  label(0, {2520, 1440, 690, 360}, "Výhry", 9.75, kWhite);
  label(1, {3300, 1440, 780, 360}, "Prehry", 9.75, kWhite);
  won_ = label(2, {2520, 1860, 690, 600}, "0", 18, kGreen);
  lost_ = label(3, {3300, 1860, 780, 600}, "0", 18, kRed);
  addLine(client(), line("Line6", {3240, 1440, 3240, 2520}, kYellow));

  // Beside the window, where nobody sees them.
  lblnum_ = addLabel(client(), {.name = "lblnum", .place = {4800, 120, 600, 300}, .caption = "1"});
  turn_ = addLabel(client(), {.name = "turn", .place = {4800, 600, 600, 300}});
}

void Piškôrky::Form_Load() {
  game_ = {};
  refresh();
}

void Piškôrky::s_Click(int index) {
  game_.play(index);
  refresh();
}

void Piškôrky::Timer1_Timer() {
  const std::optional<Outcome> outcome = game_.tick(random_);
  refresh();
  if (!outcome) return;
  dialogs_.message(outcomeBox(*outcome));
  game_.finish();
  refresh();
}

void Piškôrky::Command1_Click() {
  game_.newGame();
  refresh();
}

void Piškôrky::Command2_Click() { forms().drop(names::Piškôrky); }

void Piškôrky::refresh() {
  for (int index = 0; index < kCells; ++index) {
    QLabel& cell = *s_.at(index);
    const QString mark = ratanka::text(piskorky::text(game_.s(index)));
    cell.setText(mark);
    cell.setAccessibleName("Políčko " + QString::number(index + 1) + ": " +
                           (mark.isEmpty() ? QString("prázdne") : mark));
  }
  for (std::size_t index = 0; index < strokes_.size(); ++index) {
    strokes_.at(index)->setVisible(game_.strokes()[index]);
  }
  won_->setText(QString::number(game_.won()));
  lost_->setText(QString::number(game_.lost()));
  lblnum_->setText(QString::number(game_.lblnum()));
  turn_->setText(ratanka::text(piskorky::text(game_.turn())));
  poll_->setEnabled(game_.hasWork());
}

}  // namespace ratanka::piskorky
