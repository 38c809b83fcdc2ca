#include "soccer/player2.h"

#include "platform/keyboard/keys.h"
#include "shell/names.h"
#include "soccer/rules/words.h"

namespace ratanka::soccer {
namespace {

constexpr PlayerKey kKeys[] = {
    {'A', &Match::redHeld, &Held::left},         {'D', &Match::redHeld, &Held::right},
    {'W', &Match::redHeld, &Held::up},           {'S', &Match::redHeld, &Held::down},
    {key::kLeft, &Match::blueHeld, &Held::left}, {key::kRight, &Match::blueHeld, &Held::right},
    {key::kUp, &Match::blueHeld, &Held::up},     {key::kDown, &Match::blueHeld, &Held::down}};

}  // namespace

frmPlayer2::frmPlayer2(Forms& forms, Dialogs& dialogs, Declarations& declarations)
    : MatchForm(forms, dialogs, declarations,
                {.name = names::frmPlayer2,
                 .caption = "Mini futbal - 2 hráči",
                 .width = 11880,
                 .height = 8295,
                 .clockLeft = 9720,
                 .keys = kKeys}) {}

MessageBox frmPlayer2::result() const { return resultOfTwo(match()); }

std::string frmPlayer2::clockText() const { return clockOfTwo(declarations().TimeLeft); }

}  // namespace ratanka::soccer
