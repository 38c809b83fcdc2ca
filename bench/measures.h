#pragma once

#include <functional>
#include <string>

#include "programs.h"

// Each measures one thing, prints its figures, and leaves no program behind.
namespace ratanka::bench {

// From the start of the process to the painted menu, against the bare window in turns.
void measureStart(Robot& robot, const Programs& programs, int pairs);

// With the menu at rest, against the bare window in turns.
void measureMemory(Robot& robot, const Programs& programs, int pairs);

// Start and memory of the menu on Wayland, against those on X11 in turns.
void measureWayland(Robot& robot, const Programs& programs, int pairs);

// A second of a process's life at rest, on the average over so many.
Process::Usage usageASecond(const Process& process, int seconds);

// Of a program whose sheet has earned its reward: opens the reward, plays it, and tells what a
// second costs then beyond what it cost before.
Process::Usage usageBeyondSheet(
    Robot& robot, const OpenWindow& window, int seconds, const std::function<void()>& play = [] {});

// What the program does while the child does nothing. Needs a window manager.
void measureRest(Robot& robot, const Programs& programs, int seconds);

// Goes from the menu to a sheet and stays there, without doing anything; prints under that name.
void measureRestAtSheet(Robot& robot, const OpenWindow& menu, int seconds, const std::string& name);

// From a typed digit to its picture, against the bare window in turns. Needs a window manager.
void measureDigits(Robot& robot, const Programs& programs, int pairs);

// From the release of Enter to the tick of a right answer, nine a set. Needs a window manager.
void measureTicks(Robot& robot, const Programs& programs, int sets);

// From a click on the menu to the first paint of a sheet and back again, over all sheets in turn,
// and what so many visits, three rounds of the sheets at least, leave in memory; what the program
// does at rest after them; and from the card's OK to the end of the process. Needs a window
// manager.
void measureVisits(Robot& robot, const Programs& programs, int visits, int restSeconds);

// What noughts and crosses cost at rest beyond their sheet, and how long a great maze takes to
// open. Needs a window manager.
void measureGames(Robot& robot, const Programs& programs, int seconds);

// What a match against the strongest computer costs beyond its sheet, how soon a key moves a
// player, and how many ticks a second come. Needs a window manager.
void measureSoccer(Robot& robot, const Programs& programs, int seconds);

// What the falling blocks cost beyond their sheet, how soon a key moves a piece, and how evenly it
// falls; the same cost of the puzzle and the piano, how soon their windows stand there, and how
// long the first sound holds up its window. Needs a window manager.
void measureBoards(Robot& robot, const Programs& programs, int seconds);

}  // namespace ratanka::bench
