#include "soccer/start_up.h"

#include "platform/controls/controls.h"
#include "platform/forms/forms.h"
#include "platform/keyboard/keys.h"
#include "shell/names.h"

namespace ratanka::soccer {
namespace {

constexpr Rgb kLightRed{255, 80, 72};  // both light enough to read on black
constexpr Rgb kLightBlue{104, 168, 255};
constexpr Rgb kRedButton{255, 112, 104};
constexpr Rgb kBlueButton{124, 180, 255};

constexpr int kHeadings = 600;  // twips, as all places here
constexpr int kRows[] = {960, 1440, 1920, 2400};

struct Text {
  const char* name;
  int left;
  int top;
  const char* caption;
  Rgb fore;
};
constexpr Text kTexts[] = {{"lControls(1)", 345, kHeadings, "2 hráči proti sebe", kLightRed},
                           {"lControls(5)", 480, kRows[0], "Hore:", kLightRed},
                           {"lControls(4)", 480, kRows[1], "Dole:", kLightRed},
                           {"lControls(3)", 480, kRows[2], "V ľavo:", kLightRed},
                           {"lControls(6)", 480, kRows[3], "V pravo:", kLightRed},
                           {"lControls(9)", 1845, kRows[0], "W", kLightRed},
                           {"lControls(10)", 1890, kRows[1], "S", kLightRed},
                           {"lControls(12)", 1890, kRows[2], "A", kLightRed},
                           {"lControls(11)", 1890, kRows[3], "D", kLightRed},
                           {"lControls(2)", 3480, kHeadings, "1 hráč proti počítaču", kLightBlue},
                           {"lControls(0)", 3600, kRows[0], "Hore:", kLightBlue},
                           {"lControls(25)", 3600, kRows[1], "Dole:", kLightBlue},
                           {"lControls(26)", 3600, kRows[2], "V pravo:", kLightBlue},
                           {"lControls(23)", 3600, kRows[3], "V ľavo:", kLightBlue}};

struct Arrow {
  const char* name;
  int top;
  const char* picture;
  const char* spoken;
};
constexpr Arrow kArrows[] = {{"Image1(1)", kRows[0], "key-up", "Šípka hore"},
                             {"Image2(1)", kRows[1], "key-down", "Šípka dole"},
                             {"Image3(0)", kRows[2], "key-right", "Šípka vpravo"},
                             {"Image4(0)", kRows[3], "key-left", "Šípka vľavo"}};

Type comic(double points) { return {.family = "Comic Sans MS", .points = points, .bold = true}; }

}  // namespace

frmStartUp::frmStartUp(Forms& forms)
    : Form(forms, {.name = names::frmStartUp,
                   .caption = "Mini futbal - hra len pre tých najlepších",
                   .width = 6240,
                   .height = 4560,
                   .back = kBlack,
                   .opening = Opening::besideControls}) {}

void frmStartUp::build() {
  buildControls();
  buildButtons();
  buildTitle();
}

void frmStartUp::buildControls() {
  addLabel(client(), {.name = "Label1(1)",
                      .place = {2040, 120, 2160, 420},
                      .caption = "Ovládanie hry",
                      .type = comic(14),
                      .fore = kYellow});
  for (const Text& text : kTexts) {
    addLabel(client(), {.name = text.name,
                        .place = {text.left, text.top, 2700, 330},
                        .caption = text.caption,
                        .type = {.points = 12, .bold = true},
                        .fore = text.fore});
  }
  for (const Arrow& arrow : kArrows) {
    addImage(client(), {.name = arrow.name,
                        .place = {5280, arrow.top, 300, 300},
                        .picture = arrow.picture,
                        .accessibleName = arrow.spoken});
  }
}

void frmStartUp::buildButtons() {
  const auto button = [this](const char* name, int left, const Rgb& back) {
    return addButton(client(), {.name = name,
                                .place = {left, 2880, 1920, 420},
                                .caption = "Hra",
                                .back = back,
                                .type = {.points = 9.75, .bold = true}});
  };
  Button* const cmd1Player = button("cmd1Player", 3720, kBlueButton);
  Button* const cmd2Player = button("cmd2Player", 600, kRedButton);
  cmd1Player->setAccessibleName("Hra: 1 hráč proti počítaču");
  cmd2Player->setAccessibleName("Hra: 2 hráči proti sebe");
  on(cmd1Player, &Button::clicked, [this] { cmd1Player_Click(); });
  on(cmd2Player, &Button::clicked, [this] { cmd2Player_Click(); });
  cmd1Player_ = cmd1Player;
  cmd2Player_ = cmd2Player;
}

void frmStartUp::buildTitle() {
  addLabel(client(), {.name = "Label1(0)",
                      .place = {480, 3360, 1320, 720},
                      .caption = "Mini",
                      .type = comic(22),
                      .fore = kYellow});
  addLabel(client(), {.name = "Label2",
                      .place = {1800, 3600, 2520, 900},
                      .caption = "FUTBAL",
                      .type = comic(28),
                      .fore = kYellow});
  addImage(client(),
           {.name = "Image2(0)", .place = {4320, 3960, 495, 495}, .picture = "soccer-ball"});
  QWidget* const imgEnd = addImage(client(), {.name = "imgEnd",
                                              .place = {5040, 4080, 765, 360},
                                              .picture = "plate-koniec",
                                              .accessibleName = "Koniec"});
  imgEnd->setCursor(Qt::PointingHandCursor);
  on(new Clicks(*imgEnd), &Clicks::clicked, [this] { imgEnd_Click(); });
}

// Who comes back from a match by Esc and presses it once more stays in the program.
void frmStartUp::Form_Activate() { cmd1Player_->setFocus(); }

void frmStartUp::Form_KeyDown(int keyCode) {
  // The two buttons differ: Esc on this one ends everything at once.
  if (keyCode == key::kEscape && cmd2Player_->hasFocus()) forms().endProgram();
}

void frmStartUp::cmd2Player_Click() { forms().show(names::frmPlayer2); }

void frmStartUp::cmd1Player_Click() {
  forms().hide(names::frmStartUp);
  forms().showModal(names::frmSelectPlayer);
}

void frmStartUp::imgEnd_Click() { forms().unload(names::frmStartUp); }

void frmStartUp::Form_Unload() { forms().drop(names::frmStartUp); }

}  // namespace ratanka::soccer
