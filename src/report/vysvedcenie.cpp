#include "report/vysvedcenie.h"

#include <algorithm>

#include "platform/controls/shapes.h"
#include "platform/forms/desktop.h"
#include "platform/forms/forms.h"
#include "shell/names.h"
#include "shell/rules/mark.h"
#include "shell/rules/shape.h"

namespace ratanka::report {
namespace {

// From the first line to the last.
constexpr auto kLines = [] {
  auto lines = kSheetList;
  std::ranges::sort(lines, {}, &ListedSheet::cardLine);
  return lines;
}();

constexpr Point kOutline[] = {{6, 3}, {357, 3}, {357, 458}, {6, 458}, {6, 3}};

constexpr int kFirstTop = 1575;
constexpr int kPitch = 600;
constexpr int kLineHeight = 450;
constexpr int kTitleLeft = 600;
constexpr int kMarkLeft = 4050;
constexpr int kLineRight = 4800;
constexpr Rgb kRule{0x66, 0xb8, 0xe8};

}  // namespace

Vysvedčenie::Vysvedčenie(Forms& forms, const Premenné& premenné)
    : Form(forms, {.name = names::Vysvedčenie,
                   .caption = "Vysvedčenie",
                   .width = 5385,
                   .height = 6960,
                   .hasBorder = false,
                   .picture = "report-card",
                   .pictureSize = {359, 464}}),
      premenné_(premenné) {}

void Vysvedčenie::build() {
  int top = kFirstTop;
  for (std::size_t number = 0; number < kLines.size(); ++number) {
    const ListedSheet& line = kLines.at(number);
    addLabel(client(), {.name = line.titleLabel,
                        .place = {kTitleLeft, top, kMarkLeft - kTitleLeft, kLineHeight},
                        .caption = line.title,
                        .type = {.points = 13.5, .bold = true, .italic = true},
                        .fore = kBlue,
                        .align = Qt::AlignLeft | Qt::AlignVCenter});
    marks_.at(number) = addLabel(client(), {.name = line.markLabel,
                                            .place = {kMarkLeft, top, 750, kLineHeight},
                                            .caption = "0",
                                            .type = {.points = 17.25, .bold = true},
                                            .align = Qt::AlignCenter});
    if (number > 0) {
      const int between = top - (kPitch - kLineHeight) / 2;
      addLine(client(), {.name = "Line" + QString::number(number),
                         .x1 = kTitleLeft,
                         .y1 = between,
                         .x2 = kLineRight,
                         .y2 = between,
                         .colour = kRule});
    }
    top += kPitch;
  }
  Button* const ok =
      addButton(client(), {.name = "Command1", .place = {1950, 6225, 1500, 450}, .caption = "OK"});
  on(ok, &Button::clicked, [this] { Command1_Click(); });
}

void Vysvedčenie::Form_Load() {
  centreOnScreen(window());
  cutTo(GetFormRegion(kOutline));
  ShowVýsledok1();
}

void Vysvedčenie::ShowVýsledok1() {
  for (std::size_t number = 0; number < kLines.size(); ++number) {
    const ListedSheet& line = kLines.at(number);
    const int mark = markOnCard(premenné_.*line.percento);
    marks_.at(number)->setText(QString::number(mark));
    marks_.at(number)->setAccessibleName(
        QString(line.title).simplified() + ": " +
        (mark == 0 ? QString("bez známky") : QString::number(mark)));
  }
}

void Vysvedčenie::Command1_Click() {
  forms().drop(names::Vysvedčenie);
  forms().endProgram();
}

}  // namespace ratanka::report
