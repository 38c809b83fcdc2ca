#pragma once

#include "programs.h"
#include "robot.h"

// Each measures one thing, prints its figures, and leaves no program behind.
namespace ratanka::bench {

// From the start of the process to the painted menu, against the bare window in turns.
void measureStart(Robot& robot, const Programs& programs, int pairs);

// With the menu at rest, against the bare window in turns.
void measureMemory(Robot& robot, const Programs& programs, int pairs);

// What the program does while the child does nothing. Needs a window manager.
void measureRest(Robot& robot, const Programs& programs, int seconds);

// From a typed digit to its picture, against the bare window in turns. Needs a window manager.
void measureDigits(Robot& robot, const Programs& programs, int pairs);

// From the release of Enter to the tick of a right answer, nine a set. Needs a window manager.
void measureTicks(Robot& robot, const Programs& programs, int sets);

}  // namespace ratanka::bench
