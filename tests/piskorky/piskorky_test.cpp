#include <QLabel>
#include <QLineF>
#include <QPushButton>

#include "all_forms.h"
#include "piskorky/rules/board.h"
#include "platform/forms/timer.h"

namespace ratanka::piskorky {
namespace {

constexpr auto kBox = "Piškôrky";

class PiškôrkyTest : public AllFormsTest {
 protected:
  PiškôrkyTest() {
    forms.show(names::Úvod);
    open();
  }

  void open() {
    forms.show(names::Piškôrky);
    settle();
  }

  static QLabel* cell(int index) {
    return control<QLabel>(names::Piškôrky, QString("s(%1)").arg(index));
  }
  static QWidget* stroke(int index) {
    return control<QWidget>(names::Piškôrky, QString("Line5(%1)").arg(index));
  }
  static void push(const char* button) {
    click(control<QPushButton>(names::Piškôrky, button));
    settle();
  }

  // Nine signs row by row, "." for an empty cell; then lblnum, the turn, the lines struck through,
  // and the games won and lost.
  static std::string seen() {
    QString all;
    for (int index = 0; index < kCells; ++index) {
      const QString mark = cell(index)->text();
      all += mark.isEmpty() ? "." : mark;
    }
    for (const char* name : {"lblnum", "turn"}) {
      all += ' ' + control<QLabel>(names::Piškôrky, name)->text();
    }
    all += " /";
    for (int index = 0; index < kLines; ++index) {
      if (stroke(index)->isVisible()) all += QString::number(index);
    }
    for (const char* name : {"Label1(2)", "Label1(3)"}) {
      all += ' ' + control<QLabel>(names::Piškôrky, name)->text();
    }
    return all.toStdString();
  }

  // The child's moves; where chance replies, it tries these cells.
  void play(const std::vector<int>& moves, const std::vector<int>& chance) {
    for (const int tried : chance) random.draw(tried, kCells);
    for (const int move : moves) {
      click(cell(move));
      advance(10);
    }
  }
};

TEST_F(PiškôrkyTest, EveryEndIsStruckToldAndCounted) {
  using Cells = std::vector<int>;
  const struct {
    Cells moves, chance;
    const char *before, *under, *after, *word;
  } games[] = {{{0, 1, 2},
                {3, 0, 1, 6},
                "XX.O..O.. 5 X / 0 0",
                "XXXO..O.. 7 O /0 0 0",
                "XXXO..O.. 7  /0 1 0",
                "Výborne!\r\n Vyhral si."},
               {{0, 1, 8, 7},
                {3, 4},
                "XXOOO...X 7 X / 1 0",
                "XXOOOO.XX 9 X /1 1 0",
                "XXOOOO.XX 9  /1 1 1",
                "Prehral si.\r\n Nevadí, skús to znova!"},
               {{0, 4, 5, 6, 7},
                {1, 8},
                "XOOOXXX.O 9 X / 1 1",
                "XOOOXXXXO 11 O / 1 1",
                "XOOOXXXXO 11  / 1 1",
                "Si úplne slabý hráč!\r\nUž to radšej vzdaj a venuj sa rátanke."}};
  for (const auto& game : games) {
    const int last = game.moves.back();
    play(Cells(game.moves.begin(), game.moves.end() - 1), game.chance);
    EXPECT_EQ(seen(), game.before);
    dialogs.expect(kBox, [&] { EXPECT_EQ(seen(), game.under); });
    for (const int move : {last, 4}) {  // the second one comes too late
      play({move}, {});
      EXPECT_EQ(seen(), game.after);
    }
    EXPECT_EQ(dialogs.shown.back().text, game.word);
    const bool isTied = game.moves.size() == 5;
    EXPECT_EQ(dialogs.shown.back().icon == MessageBox::Icon::exclamation, isTied);
    push("Command1");
  }
  EXPECT_EQ(seen(), "......... 1 X / 1 1");
  EXPECT_EQ(random.reseeded, 8);
}

TEST_F(PiškôrkyTest, CostsNothingWhileItWaitsForTheChild) {
  const auto* const poll = control<Timer>(names::Piškôrky, "Timer1");
  advance(5);
  EXPECT_FALSE(poll->isEnabled());
  click(cell(4));
  EXPECT_TRUE(poll->isEnabled());
  advance(10);
  EXPECT_FALSE(poll->isEnabled());
}

TEST_F(PiškôrkyTest, ComesBackAfreshHoweverItWasLeft) {
  for (const bool byItsFrame : {false, true}) {
    dialogs.expect(kBox);
    play({0, 1, 2}, {3, 6});
    if (byItsFrame) window(names::Piškôrky)->close();
    if (!byItsFrame) push("Command2");
    EXPECT_FALSE(forms.isLoaded(names::Piškôrky));
    open();
    EXPECT_EQ(seen(), "......... 1 X / 0 0");
  }
}

// The middle of what differs between two pictures.
QPointF middleOfChange(const QImage& before, const QImage& after) {
  QRect changed;
  for (int y = 0; y < after.height(); ++y) {
    for (int x = 0; x < after.width(); ++x) {
      if (before.pixel(x, y) != after.pixel(x, y)) changed |= QRect(x, y, 1, 1);
    }
  }
  return QRectF(changed).center();
}

TEST_F(PiškôrkyTest, EachStrokeCrossesItsThreeMarksInTheMiddle) {
  const auto seen = [] { return window(names::Piškôrky)->grab().toImage(); };
  const QImage empty = seen();
  for (int index = 0; index < kLines; ++index) {
    stroke(index)->show();
    const QImage struck = seen();
    stroke(index)->hide();
    for (const int each : kLineCells.at(static_cast<std::size_t>(index))) {
      for (const char* const mark : {"X", "O"}) {
        cell(each)->setText(mark);
        const QPointF middle = middleOfChange(empty, seen());
        cell(each)->setText({});
        double nearest = 1000;
        for (int y = 0; y < struck.height(); ++y) {
          for (int x = 0; x < struck.width(); ++x) {
            if (struck.pixel(x, y) == empty.pixel(x, y)) continue;
            nearest = std::min(nearest, QLineF(middle, QPointF(x + 0.5, y + 0.5)).length());
          }
        }
        // From the edge of a stroke of four pixels. Those of the last cell don't meet in a point.
        EXPECT_LE(nearest, each == 8 ? 3.6 : 1.6) << mark << " in " << each << " by " << index;
      }
    }
  }
}

}  // namespace
}  // namespace ratanka::piskorky
