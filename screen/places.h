#pragma once

#include "screen/robot.h"

// The program's windows on a screen of the advised size, before anybody has moved them.
namespace ratanka::screen {

inline constexpr PixelSize kAdvisedSize{1024, 768};

inline constexpr auto kMenuTitle = "Rátanka Menu";
inline constexpr auto kSheetTitle = "Malá Rátanka";  // of all sheets
inline constexpr auto kCardTitle = "Vysvedčenie";

// Places in the exercise sheet; rows are numbered from 1.
inline constexpr Area kSheet{{244, 133}, 536, 501};
inline constexpr Area kSheetEdge{{264, 613}, 60, 10};  // where no menu ever stands
inline constexpr Point kReward{244 + 348, 133 + 468};
inline constexpr Point kFreshExamples{244 + 420, 133 + 460};
inline constexpr Point kBackToMenu{244 + 476, 133 + 460};

constexpr Area inRow(int row, const Area& inFirstRow) {
  constexpr int kPitch = 40;
  return shifted(inFirstRow, {kSheet.at.x, kSheet.at.y + kPitch * (row - 1)});
}
// Of every sheet; the others are of those with the box behind the example.
constexpr Area wholeRow(int row) { return inRow(row, {{24, 20}, 480, 32}); }
constexpr Area answerBox(int row) { return inRow(row, {{304, 24}, 39, 24}); }
constexpr Area tick(int row) { return inRow(row, {{352, 20}, 32, 32}); }
// Empty unless the answer was wrong.
constexpr Area shownResult(int row) { return inRow(row, {{400, 24}, 47, 24}); }

// Places in the menu and in the report card.
inline constexpr Area kMenu{{388, 241}, 248, 285};
inline constexpr int kSheetButtons = 7;
// 0 to kSheetButtons - 1, from top to bottom
constexpr Point sheetButton(int number) { return {kMenu.at.x + 52, kMenu.at.y + 28 + 32 * number}; }
inline constexpr Point kCardButton{388 + 120, 241 + 252};
inline constexpr Area kCard{{332, 152}, 359, 464};
inline constexpr Area kCardEdge{{345, 560}, 30, 10};  // where no menu ever stands
inline constexpr Point kCardOk{332 + 181, 152 + 430};

}  // namespace ratanka::screen
