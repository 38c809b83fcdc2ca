#include "soccer/rules/computer.h"

#include "soccer/rules/intelligence.h"

namespace ratanka::soccer {

void Computer::ComputerBrain(Match& match, int level, Random& random) const {
  match.redHeld = decide({match, Tactic_, random}, level);
}

}  // namespace ratanka::soccer
