#pragma once

#include <string>
#include <string_view>

#include "platform/ports/dialogs.h"
#include "soccer/rules/match.h"

namespace ratanka::soccer {

// The two matches speak differently; both name the winner's goals first.
MessageBox resultOfTwo(const Match& match);
MessageBox resultAgainstComputer(const Match& match, std::string_view opponent);

std::string clockOfTwo(int timeLeft);
std::string clockAgainstComputer(int timeLeft);

// Of the five that a child can choose from, by OpponentIndex 1 to 5; empty for any other.
std::string_view opponentName(int opponentIndex);

}  // namespace ratanka::soccer
