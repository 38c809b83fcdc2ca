#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "blocks/rules/stage.h"
#include "platform/ports/clock.h"

namespace ratanka::blocks {

// The well as one reads it, from its first row that isn't empty to the bottom.
inline std::string picture(const Well& well) {
  std::string text;
  for (int row = 1; row <= kRows; ++row) {
    if (text.empty() && std::ranges::count(well.row(row), 0) == kColumns) continue;
    for (const int cell : well.row(row)) text += cell == 0 ? '.' : static_cast<char>('0' + cell);
    text += '\n';
  }
  return text;
}

inline void expectSame(const Well& well, const Well& expected) {
  if (well == expected) return;  // pictures take their time
  EXPECT_EQ(picture(well), picture(expected));
}

// A piece as a referee knows it: how it comes in, and the law of its turns.
struct Piece {
  struct Square {
    int column, row;
  };

  int kind = 0;
  Square pivot{};
  std::array<Square, 4> cells{};  // from the pivot
  int turns = 0;

  static Piece fresh(int kind) {
    static constexpr std::array<Square, 4> kCells[] = {
        {{{-1, 0}, {0, 0}, {1, 0}, {2, 0}}},   {{{-1, -1}, {-1, 0}, {0, 0}, {1, 0}}},
        {{{1, -1}, {-1, 0}, {0, 0}, {1, 0}}},  {{{-1, -1}, {0, -1}, {0, 0}, {1, 0}}},
        {{{0, -1}, {1, -1}, {-1, 0}, {0, 0}}}, {{{0, -1}, {-1, 0}, {0, 0}, {1, 0}}},
        {{{0, -1}, {1, -1}, {0, 0}, {1, 0}}}};
    return {kind, {5, kind == 1 ? 1 : 2}, kCells[kind - 1], 0};
  }

  Piece moved(int columns, int rows) const {
    Piece piece = *this;
    piece.pivot = {pivot.column + columns, pivot.row + rows};
    return piece;
  }

  Piece turned() const {
    Piece piece = *this;
    if (kind == 7) return piece;
    const bool isBack = (kind == 1 || kind == 4 || kind == 5) && turns % 2 == 1;
    const int sign = isBack ? -1 : 1;
    for (Square& cell : piece.cells) cell = {-sign * cell.row, sign * cell.column};
    ++piece.turns;
    return piece;
  }

  bool fits(const Well& well) const {
    return std::ranges::all_of(cells, [&](const Square& cell) {
      const int column = pivot.column + cell.column;
      const int row = pivot.row + cell.row;
      return column >= 1 && column <= 10 && row >= 1 && row <= 18 && well.at(column, row) == 0;
    });
  }

  Piece dropped(const Well& well) const {
    const Piece next = moved(0, 1);
    return next.fits(well) ? next.dropped(well) : *this;
  }

  Well in(Well well) const {
    for (const Square& cell : cells)
      well.at(pivot.column + cell.column, pivot.row + cell.row) = kind;
    return well;
  }
};

// A window that nobody sees, and a clock that moves only while the engine sleeps. It notes what it
// is asked for, and shows what a screen would that is painted only where a cell has changed.
class FakeStage : public Stage, public Clock {
 public:
  // What happens so many seconds after the beginning.
  void at(double seconds, std::function<void()> act) {
    script_.emplace(microseconds(seconds), std::move(act));
  }

  double seconds() const { return static_cast<double>(now_) / 1e6; }  // since the beginning

  // The notes that contain a word.
  std::vector<std::string> notes(std::string_view word) const {
    std::vector<std::string> found;
    std::ranges::copy_if(log, std::back_inserter(found), [&](const std::string& note) {
      return note.find(word) != std::string::npos;
    });
    return found;
  }

  void DrawBoard(const Well& board, const Well& oldBoard) override {
    paint(board, oldBoard);
    if (board != oldBoard) note("draw");
  }
  void repaintBoard() override { note("repaint"); }
  void showNext(int kind) override { note("next " + std::to_string(kind)); }
  void write(Label label, const std::string& text) override { labels[label] = text; }
  void setCaption(std::string_view text) override { note("caption " + std::string(text)); }
  void setMenu(bool isInGame) override { note(isInGame ? "menu in game" : "menu at rest"); }
  WindowState windowState() const override { return state; }
  void PlayEffect(std::string_view file) override { note(std::string(file)); }
  void MusicOpenAndPlay() override { note("music open"); }
  void MusicPlay() override { note("music play"); }
  void MusicClose() override { note("music close"); }

  void letEventsThrough() override { runDue(); }
  void awaitEvents(double seconds) override {
    EXPECT_GT(seconds, 0);
    if (++awaits > kPatience) throw std::runtime_error("a game without an end");
    const std::int64_t until = now_ + std::max<std::int64_t>(1, microseconds(seconds));
    now_ = script_.empty() ? until : std::min(until, std::max(now_, script_.begin()->first));
    runDue();
  }

  TimeOfDay timeOfDay() const override { return {}; }
  double secondsSinceMidnight() const override { return std::fmod(beginning + seconds(), 86400); }

  double beginning = 36000;  // seconds after a midnight
  WindowState state = WindowState::normal;
  std::map<Label, std::string> labels;
  std::vector<std::string> log;  // "1.500 Tetris2.wav": the seconds, and what was asked for
  Well screen;
  int awaits = 0;

 protected:
  void paint(const Well& board, const Well& oldBoard) {
    for (int row = 1; row <= kRows; ++row) {
      for (int column = 1; column <= kColumns; ++column) {
        const int cell = board.at(column, row);
        if (cell != oldBoard.at(column, row)) screen.at(column, row) = cell;
      }
    }
    expectSame(screen, board);
  }

 private:
  static constexpr int kPatience = 100000;

  static std::int64_t microseconds(double seconds) { return std::llround(seconds * 1e6); }

  void note(const std::string& what) {
    char time[32];
    std::snprintf(time, sizeof time, "%.3f ", seconds());
    log.push_back(time + what);
  }

  void runDue() {
    while (!script_.empty() && script_.begin()->first <= now_) {
      const std::function<void()> act = script_.begin()->second;
      script_.erase(script_.begin());
      act();
    }
  }

  std::int64_t now_ = 0;                                       // microseconds
  std::multimap<std::int64_t, std::function<void()>> script_;  // those of one moment in their order
};

}  // namespace ratanka::blocks
