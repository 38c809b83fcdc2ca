#pragma once

namespace ratanka::soccer {

// What outlives the forms of a match and is shared by both of them.
struct Declarations {
  int TimeLeft = 0;       // seconds, of whichever match was started last
  int OpponentIndex = 0;  // 1 to 5, also the computer's level; 0 before the first choice
};

}  // namespace ratanka::soccer
