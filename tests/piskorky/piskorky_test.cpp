#include "piskorky/piskorky.h"

#include <QLabel>
#include <QPushButton>

#include "form_driver.h"
#include "platform/controls.h"
#include "platform/timer.h"
#include "shell/names.h"

namespace ratanka::piskorky {
namespace {

constexpr auto kBox = "Piškôrky";

class PiškôrkyTest : public FormTest {
 protected:
  PiškôrkyTest() {
    forms.setMaker(names::Piškôrky,
                   [this] { return std::make_shared<Piškôrky>(forms, dialogs, random); });
    makePlain(names::Hádanka);
    forms.show(names::Hádanka);
    open();
  }

  void open() {
    forms.show(names::Piškôrky);
    settle();
  }

  static QString textOf(const QString& name) {
    return control<QLabel>(names::Piškôrky, name)->text();
  }

  // Nine signs row by row, "." for an empty cell.
  static std::string board() {
    std::string all;
    for (int cell = 0; cell < kCells; ++cell) {
      const std::string mark = textOf(QString("s(%1)").arg(cell)).toStdString();
      all += mark.empty() ? "." : mark;
    }
    return all;
  }
  static std::string strokes() {
    std::string all;
    for (int index = 0; index < kLines; ++index) {
      const bool isSeen =
          control<QWidget>(names::Piškôrky, QString("Line5(%1)").arg(index))->isVisible();
      if (isSeen) all += std::to_string(index);
    }
    return all;
  }

  // The child's move; where chance replies, it tries these cells.
  void play(int cell, std::initializer_list<int> chance = {}) {
    for (const int tried : chance) random.draw(tried, kCells);
    click(control<QLabel>(names::Piškôrky, QString("s(%1)").arg(cell)));
    advance(10);
  }

  FakeRandom random;
};

TEST_F(PiškôrkyTest, AWonGame) {
  play(0, {3});
  EXPECT_EQ(board(), "X..O.....");
  EXPECT_EQ(textOf("turn"), "X");
  EXPECT_EQ(textOf("lblnum"), "3");
  play(1, {0, 1, 6});  // filled cells are tried in vain
  EXPECT_EQ(board(), "XX.O..O..");
  EXPECT_EQ(random.reseeded, 4);
  dialogs.expect(kBox, [] {
    EXPECT_EQ(strokes(), "0");
    EXPECT_EQ(textOf("Label1(2)"), "0");
    EXPECT_EQ(textOf("turn"), "O");
  });
  play(2);
  EXPECT_EQ(dialogs.shown.back().text, "Výborne!\r\n Vyhral si.");
  EXPECT_EQ(textOf("Label1(2)"), "1");
  EXPECT_EQ(textOf("Label1(3)"), "0");
  EXPECT_EQ(textOf("turn"), "");
  play(4);
  EXPECT_EQ(board(), "XXXO..O..");

  click(control<QPushButton>(names::Piškôrky, "Command1"));
  settle();
  EXPECT_EQ(board(), ".........");
  EXPECT_EQ(strokes(), "");
  EXPECT_EQ(textOf("Label1(2)"), "1");
  EXPECT_EQ(textOf("turn"), "X");
}

TEST_F(PiškôrkyTest, TwoLinesAtOnceAreOneGame) {
  play(0, {1});
  play(2, {7});
  play(4);
  play(3);
  EXPECT_EQ(board(), "XOXXXO.OO");
  dialogs.expect(kBox, [] { EXPECT_EQ(strokes(), "37"); });
  play(6);
  EXPECT_EQ(textOf("Label1(2)"), "1");
}

TEST_F(PiškôrkyTest, ALostGame) {
  play(0, {3});
  play(1, {4});
  dialogs.expect(kBox, [] { EXPECT_EQ(strokes(), "1"); });
  play(8);  // the block at 2 stands before the win at 5
  EXPECT_EQ(board(), "XXOOO...X");
  play(7);
  EXPECT_EQ(board(), "XXOOOO.XX");
  EXPECT_EQ(dialogs.shown.back().text, "Prehral si.\r\n Nevadí, skús to znova!");
  EXPECT_EQ(textOf("Label1(3)"), "1");
  EXPECT_EQ(textOf("Label1(2)"), "0");
}

TEST_F(PiškôrkyTest, ATiedGame) {
  play(0, {1});
  play(4, {8});
  play(5);
  EXPECT_EQ(board(), "XO.OXX..O");
  play(6);
  EXPECT_EQ(board(), "XOOOXXX.O");
  dialogs.expect(kBox);
  play(7);
  EXPECT_EQ(board(), "XOOOXXXXO");
  EXPECT_EQ(dialogs.shown.back().text,
            "Si úplne slabý hráč!\r\nUž to radšej vzdaj a venuj sa rátanke.");
  EXPECT_EQ(dialogs.shown.back().icon, MessageBox::Icon::exclamation);
  EXPECT_EQ(textOf("Label1(2)") + textOf("Label1(3)"), "00");
}

TEST_F(PiškôrkyTest, CostsNothingWhileItWaitsForTheChild) {
  const auto* const poll = control<Timer>(names::Piškôrky, "Timer1");
  advance(5);
  EXPECT_FALSE(poll->isEnabled());
  click(control<QLabel>(names::Piškôrky, "s(4)"));
  EXPECT_TRUE(poll->isEnabled());
  advance(10);
  EXPECT_FALSE(poll->isEnabled());
}

TEST_F(PiškôrkyTest, LeavesAndComesBackWithItsCountersAtZero) {
  play(0, {3});
  play(1, {6});
  dialogs.expect(kBox);
  play(2);
  EXPECT_EQ(textOf("Label1(2)"), "1");
  click(control<QPushButton>(names::Piškôrky, "Command2"));
  settle();
  EXPECT_FALSE(forms.isLoaded(names::Piškôrky));
  open();
  EXPECT_EQ(textOf("Label1(2)"), "0");
  EXPECT_EQ(board(), ".........");
}

TEST_F(PiškôrkyTest, ClosedByItsFrameItStartsAnew) {
  play(0, {3});
  window(names::Piškôrky)->close();
  settle();
  open();
  EXPECT_EQ(board(), ".........");
  EXPECT_EQ(textOf("turn"), "X");
}

TEST_F(PiškôrkyTest, EachStrokeCrossesItsThreeCells) {
  for (int index = 0; index < kLines; ++index) {
    const QRect stroke =
        control<QWidget>(names::Piškôrky, QString("Line5(%1)").arg(index))->geometry();
    int crossed = 0;
    for (const int cell : kLineCells.at(static_cast<std::size_t>(index))) {
      const auto* const each = control<QLabel>(names::Piškôrky, QString("s(%1)").arg(cell));
      crossed += stroke.intersects(each->geometry()) ? 1 : 0;
      EXPECT_EQ(each->font().pixelSize(), 32);
    }
    EXPECT_EQ(crossed, 3) << index;
    const bool isStraight = index < 6;
    EXPECT_EQ(std::min(stroke.width(), stroke.height()) == 4, isStraight) << index;
  }
}

TEST_F(PiškôrkyTest, GoingUnderItsOwnBoxIsHarmless) {
  for (const bool ends : {false, true}) {
    open();
    play(0, {3});
    play(1, {6});
    dialogs.expect(kBox, [this, ends] {
      if (ends) forms.endProgram();
      forms.drop(names::Piškôrky);
      settle();
    });
    play(2);
    EXPECT_FALSE(forms.isLoaded(names::Piškôrky));
    random.numbers.clear();
  }
}

}  // namespace
}  // namespace ratanka::piskorky
