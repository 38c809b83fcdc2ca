#pragma once

namespace ratanka {

// Slovak school marks: 1 is the best and 5 the worst.

// Percentage of right answers: 100 * (right / (right + wrong)) in double precision, the division
// first, so that a true 20, 40, 60 or 80 comes out exactly. At least one answer.
double percentage(int right, int wrong);

// The nearest whole number, a half to the even neighbour.
double wholePercentage(double percentage);

// The mark for a percentage from 0 to 100. A value on a border takes the better mark: 1 from 80, 2
// from 60, 3 from 40, 4 from 20.
int mark(double percentage);

// The same scale as the report card reads it: 0, which is no mark, below 1 percent.
int markOnCard(double percentage);

// From 80 percent a sheet opens its game.
bool earnsReward(double percentage);

}  // namespace ratanka
