// Where everything on a sheet stands, from top to bottom.

#include "platform/controls/shapes.h"
#include "platform/forms/forms.h"
#include "platform/forms/timer.h"
#include "sheets/exercise_sheet.h"
#include "sheets/rules/sums.h"

namespace ratanka::sheets {
namespace {

constexpr int kFirstRowTop = 360;
constexpr int kRowPitch = 600;
constexpr int kRowHeight = 360;  // its foot stands on a ruled line of the page
constexpr int kImageSide = 480;
constexpr int kImageRise = 60;  // centres an image on its row
constexpr int kResultLeft = 6000;
constexpr int kResultTickLeft = 6720;
constexpr int kEqualsWidth = 240;
constexpr int kAnswerLength = 7;
constexpr int kButtonSide = 615;
constexpr int kBookMilliseconds = 150;
constexpr int kPauseMilliseconds = 3000;

constexpr Rgb kGreen{0, 128, 0};

QString numbered(const char* name, int number) { return name + QString::number(number); }

Place imageAt(int left, int top) { return {left, top, kImageSide, kImageSide}; }

template <typename DesignRow>
RowDesigns eachRow(DesignRow designRow) {
  RowDesigns rows;
  int row = 0;
  for (RowDesign& design : rows) design = designRow(++row);
  return rows;
}

}  // namespace

RowDesigns plainRows() {
  return eachRow([](int row) -> RowDesign {
    return {.first = {4 * row - 3, 1080, 705},
            .sign = {4 * row - 2, 1800, 825},
            .second = {4 * row - 1, 2640, 825}};
  });
}

RowDesigns oneLabelRows(int left, int width) {
  return eachRow([=](int row) -> RowDesign { return {.first = {4 * row - 3, left, width}}; });
}

RowDesigns hiddenOperandRows() {
  // Which of a row's three labels holds the known operand; the right side has the opposite one.
  constexpr std::array<int, kRows> kKnownLabel{1, 5, 9, 15, 19, 21, 25, 31, 33};
  return eachRow([&](int row) -> RowDesign {
    const bool hidesFirst = hádanka::hidesFirst(row);
    const bool judgedOnTheLeft = hidesFirst || row == 8;
    const int known = kKnownLabel.at(row - 1);
    const int sign = 4 * row - 2;
    return {.first = {known, hidesFirst ? 2640 : 1080, 705},
            .sign = {sign, 2040, 465},
            .second = {2 * sign - known, 4680, 825},
            .equalsLeft = 4200,
            .boxLeft = hidesFirst ? 720 : 2520,
            .tickLeft = judgedOnTheLeft ? 1440 : 3360,
            .crossLeft = judgedOnTheLeft ? 1440 : 3240};
  });
}

void ExerciseSheet::build() {
  for (int row = 1; row <= kRows; ++row) buildRow(row);
  buildStrip();
  buildButtons();
  buildShyButtons();
  pause_ = timer("Timer1", kPauseMilliseconds, [this] { ShowOpakuj(); });
  timer(design_.bookTimer, kBookMilliseconds, [this] { Timer3_Timer(); })->setEnabled(true);
}

void ExerciseSheet::buildRow(int row) {
  const RowDesign& design = design_.rows.at(row - 1);
  const int top = kFirstRowTop + kRowPitch * (row - 1);
  const auto exampleLabel = [this, top](const RowLabel& label, const Type& type) -> QLabel* {
    if (label.number == 0) return nullptr;
    return addLabel(client(), {.name = numbered("Label", label.number),
                               .place = {label.left, top, label.width, kRowHeight},
                               .type = type,
                               .align = Qt::AlignLeft | Qt::AlignBottom});
  };
  const auto image = [this, row, top](int part, int left, const char* picture,
                                      const QString& spoken) {
    return addImage(client(), {.name = numbered("Image", 3 * row + part),
                               .place = imageAt(left, top - kImageRise),
                               .picture = picture,
                               .visible = false,
                               .accessibleName = spoken});
  };

  RowControls& made = controls(row);
  made.first = exampleLabel(design.first, {.points = 12});
  made.sign = exampleLabel(design.sign, {.points = design_.signPoints, .bold = true});
  made.second = exampleLabel(design.second, {.points = 12});
  for (const int line : {1, 2}) {
    const int y = top + 120 * line;
    addLine(client(), {.name = numbered("Line", 2 * (row - 1) + line),
                       .x1 = design.equalsLeft,
                       .y1 = y,
                       .x2 = design.equalsLeft + kEqualsWidth,
                       .y2 = y,
                       .width = 2});
  }
  made.box = addTextBox(client(), {.name = numbered("Text", row),
                                   .place = {design.boxLeft, top, design.boxWidth, kRowHeight},
                                   .maxLength = kAnswerLength,
                                   .type = {.points = 9.75, .bold = true}});
  made.tick = image(-2, design.tickLeft, "tick", "Správne");
  made.cross = image(-1, design.crossLeft, "cross", "Nesprávne");
  made.result = addLabel(client(), {.name = numbered("Label", 4 * row),
                                    .place = {kResultLeft, top, 705, kRowHeight},
                                    .type = {.points = 12, .bold = true},
                                    .align = Qt::AlignLeft | Qt::AlignBottom});
  made.resultTick = image(0, kResultTickLeft, "tick", "Správny výsledok");

  on(made.box, &TextBox::keyUp, [this, row](int keyCode) { Text_KeyUp(row, keyCode); });
}

void ExerciseSheet::buildShyButtons() {
  std::vector<Button*> buttons;
  for (const ShyButton& shy : design_.shyButtons) {
    buttons.push_back(addButton(client(), {.name = shy.name,
                                           .place = {shy.left, 5760, 1095, 375},
                                           .caption = "Kalkulačka",
                                           .visible = shy.visible,
                                           .isShy = true}));
  }
  for (Button* const button : buttons) {
    on(button, &Button::pointerMoved, [button, buttons] {
      for (Button* const each : buttons) each->setVisible(each != button);
    });
  }
}

void ExerciseSheet::buildStrip() {
  const auto image = [this](const char* name, int left, int top, const char* picture,
                            const char* spoken) {
    addImage(
        client(),
        {.name = name, .place = imageAt(left, top), .picture = picture, .accessibleName = spoken});
  };
  const auto counter = [this](const char* name, int left, const Rgb& fore, const char* tooltip) {
    return addLabel(client(), {.name = name,
                               .place = {left, 6960, 360, 240},
                               .caption = "0",
                               .type = {.points = 9, .bold = true},
                               .fore = fore,
                               .tooltip = design_.countersHaveTooltips ? tooltip : ""});
  };
  image("Image28", 1200, 6360, "face-happy", "Správne odpovede");
  image("Image30", 1560, 6840, "tick", "Správne");
  správne_ = counter("Label37", 1320, kGreen, " Vypočítaných príkladov ");
  image("Image29", 2760, 6360, "face-sad", "Nesprávne odpovede");
  image("Image31", 3120, 6840, "cross", "Nesprávne");
  nesprávne_ = counter("Label38", 2880, design_.wrongColour, " Nevypočítaných príkladov ");
  mark_ = addLabel(client(), {.name = "Label39",
                              .place = design_.markPlace,
                              .type = {.family = "Courier New", .points = 27.75, .bold = true},
                              .back = kWhite,
                              .align = Qt::AlignCenter,
                              .tooltip = design_.countersHaveTooltips ? " Priebežné hodnotenie  "
                                                                      : " Priebežné hodnotenie "});
  // The mark is higher than its field and a digit has no descender: puts it in the middle.
  mark_->setContentsMargins(0, 4, 0, 0);
  book_ = addPictureBox(client(), "Picture3", {3840, 6840, design_.bookWidth, 540});
  book_->setAccessibleName("Kniha");
}

void ExerciseSheet::buildButtons() {
  const auto& [rewardName, freshName, backName] = design_.buttons;
  const RewardDesign& reward = design_.reward;
  const auto button = [this](const ButtonDesign& design) { return addButton(client(), design); };
  reward_ = button({.name = rewardName,
                    .place = {reward.left, reward.top, kButtonSide, kButtonSide},
                    .tooltip = reward.tooltip,
                    .back = reward.back,
                    .icon = reward.icon,
                    .visible = false});
  QPushButton* const fresh = button({.name = freshName,
                                     .place = {6000, 6600, kButtonSide, kButtonSide},
                                     .tooltip = " Nové príklady ",
                                     .icon = "icon-fresh"});
  QPushButton* const back = button({.name = backName,
                                    .place = {6840, 6600, kButtonSide, kButtonSide},
                                    .tooltip = " Návrat do MENU ",
                                    .icon = "icon-home"});
  on(reward_, &QPushButton::clicked, [this] { forms().show(design_.reward.game); });
  on(fresh, &QPushButton::clicked, [this] { ShowOpakuj(); });
  on(back, &QPushButton::clicked, [this] { backToMenu(); });
}

}  // namespace ratanka::sheets
