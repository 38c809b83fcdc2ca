#include <QAccessible>
#include <algorithm>

#include "sheets/sheet_driver.h"

namespace ratanka::sheets {
namespace {

class AllSheetsTest : public SheetTest {
 protected:
  AllSheetsTest() { forms.show(names::Úvod); }

  void leave() { clickButton(sheet_ == names::Násobilka ? "Command5" : "Command3"); }

  // The words of the counters' and the mark's tooltips.
  std::string tooltips() const {
    return (label(37)->toolTip() + label(38)->toolTip() + label(39)->toolTip()).toStdString();
  }
};

constexpr auto kSpeaks =
    " Vypočítaných príkladov  Nevypočítaných príkladov  Priebežné hodnotenie  ";
constexpr auto kMute = " Priebežné hodnotenie ";
const QColor kRed(255, 0, 0);

struct Sheet {
  FormName name, game;
  const char* reward;
  const char* tooltips = kMute;
  QColor four{255, 128, 255}, wrong = kRed;
  int signSize = 18;  // pixels
  QRect mark{128, 456, 41, 33}, book{256, 456, 41, 36};
  QPoint place{320, 448};  // of the reward
};

// clang-format off
const Sheet kSheets[] = {
    {.name = names::Delenie, .game = names::frmStartUp, .reward = " Minifutbal ",
     .mark{128, 448, 49, 41}, .book{256, 456, 49, 36}},
    {.name = names::Malá, .game = names::Bludisko, .reward = " Bludisko ", .tooltips = kSpeaks,
     .four = kRed, .book{256, 456, 57, 36}, .place{328, 440}},
    {.name = names::Veľká, .game = names::Klavír, .reward = " Klavír ", .mark{136, 456, 41, 33},
     .place{328, 448}},
    {.name = names::Násobilka, .game = names::frmPuzzle, .reward = " Pucle ", .wrong{192, 0, 0},
     .signSize = 13},
    {.name = names::Hádanka, .game = names::Piškôrky, .reward = "Piškôrky", .tooltips = kSpeaks,
     .four = kRed},
    {.name = names::Veľkéčísla, .game = names::frmKockovka, .reward = " Tetris ",
     .tooltips = kSpeaks, .signSize = 0},
    {.name = names::Zátvorky, .game = names::frmStartUp, .reward = " Minifutbal ",
     .tooltips = kSpeaks, .signSize = 0}};
// clang-format on

TEST_F(AllSheetsTest, FromTheMenuWithAllRightByReadingTheCaptionsToTheCard) {
  for (const SheetDesign& design : allSheets()) {
    SCOPED_TRACE(design.name.text());
    sheet_ = design.name;
    const auto listed = std::ranges::find(kSheetList, sheet_, &ListedSheet::name);
    ASSERT_NE(listed, kSheetList.end());
    click(control<QPushButton>(names::Úvod, listed->button));
    settle();
    ASSERT_TRUE(forms.isLoaded(names::Hodiny));
    EXPECT_TRUE(window(sheet_)->isActiveWindow());
    random.numbers.clear();
    for (int draw = 0; draw < 45; ++draw) random.numbers.push_back((draw * 37 % 100) / 100.0);
    click(control<QPushButton>(sheet_, design.buttons[1]));  // new examples, of mixed numbers
    settle();
    for (int row = 1; row <= kRows; ++row) {
      EXPECT_EQ(QApplication::focusWidget(), box(row));
      answerRight(row);
      EXPECT_TRUE(imageShown(3 * row - 2)) << readRow(row);
    }
    EXPECT_EQ(strip(), "9 0 1");
    EXPECT_EQ(premenné.*ratanka::listed(sheet_).percento, 100);
    auto* const reward = control<QPushButton>(sheet_, design.buttons[0]);
    EXPECT_TRUE(reward->isVisible());
    click(reward);
    settle();
    EXPECT_TRUE(forms.isLoaded(design.reward.game));
    EXPECT_NE(window(sheet_), nullptr);
    leave();
    EXPECT_FALSE(forms.isLoaded(sheet_));
    EXPECT_FALSE(forms.isLoaded(names::Hodiny));
    EXPECT_NE(window(names::Úvod), nullptr);
    // Only the blocks game ends with its sheet.
    EXPECT_EQ(forms.isLoaded(design.reward.game), sheet_ != names::Veľkéčísla);
    forms.drop(design.reward.game);
  }
  forms.show(names::Vysvedčenie);
  for (const ListedSheet& sheet : kSheetList) {
    EXPECT_EQ(control<QLabel>(names::Vysvedčenie, sheet.markLabel)->text(), "1") << sheet.title;
  }
}

TEST_F(AllSheetsTest, WordsPlacesAndColoursOfTheirOwn) {
  for (const Sheet& sheet : kSheets) {
    SCOPED_TRACE(sheet.name.text());
    openSheet(sheet.name);
    for (int row = 1; row <= 3; ++row) answerRow(row, row == 1);
    answerRow(9, false);
    EXPECT_EQ(strip(), "1 3 4");
    EXPECT_EQ(label(39)->palette().color(QPalette::Window), sheet.four);
    EXPECT_EQ(label(38)->palette().color(QPalette::WindowText), sheet.wrong);
    EXPECT_EQ(tooltips(), sheet.tooltips);
    EXPECT_EQ(label(39)->geometry(), sheet.mark);
    EXPECT_EQ(control<QWidget>(sheet_, "Picture3")->geometry(), sheet.book);
    QPushButton* const reward = button(sheet_ == names::Násobilka ? "Command3" : "Command1");
    EXPECT_EQ(reward->pos(), sheet.place);
    EXPECT_EQ(reward->toolTip(), sheet.reward);
    reward->click();
    EXPECT_TRUE(forms.isLoaded(sheet.game));
    forms.drop(sheet.game);
    if (sheet.signSize > 0) {
      EXPECT_EQ(label(2)->font().pixelSize(), sheet.signSize);
    }
    leave();
  }
}

TEST_F(AllSheetsTest, HádankaHasItsRowsInTwoOrders) {
  openSheet(names::Hádanka);
  const struct {
    int box, known, sign, right, tick, cross;  // lefts in logical pixels, and labels' numbers
  } rows[] = {{168, 1, 2, 3, 224, 216},    {48, 5, 6, 7, 96, 96},     {168, 9, 10, 11, 224, 216},
              {48, 15, 14, 13, 96, 96},    {48, 19, 18, 17, 96, 96},  {168, 21, 22, 23, 224, 216},
              {168, 25, 26, 27, 224, 216}, {168, 31, 30, 29, 96, 96}, {168, 33, 34, 35, 224, 216}};
  int number = 0;
  for (const auto& row : rows) {
    ++number;
    const auto image = [&](int of) {
      return control<QWidget>(sheet_, "Image" + QString::number(of))->x();
    };
    const std::array seen{box(number)->x(),      label(row.known)->x(), label(row.sign)->x(),
                          label(row.right)->x(), image(3 * number - 2), image(3 * number - 1)};
    EXPECT_EQ(seen, (std::array{row.box, row.box == 48 ? 176 : 72, 136, 312, row.tick, row.cross}))
        << number;
  }
}

TEST_F(AllSheetsTest, TheClockComesWhenTheExamplesStand) {
  QString seen;
  forms.setMaker(names::Hodiny, [&] {
    // The sheet isn't shown yet, but it is laid out.
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
      if (widget->objectName() == "Malá") seen = widget->findChild<QLabel*>("Label1")->text();
    }
    return std::make_shared<PlainForm>(forms, names::Hodiny);
  });
  openSheet(names::Malá);
  EXPECT_EQ(seen, "0");
}

TEST_F(AllSheetsTest, EveryCaptionFitsItsLabel) {
  // The widest figures: two digits everywhere and subtractions all the way.
  const std::pair<int, int> brackets[] = {{48, 50}, {10, 40}, {28, 30}, {10, 20}, {8, 10}};
  const std::pair<int, int> chain[] = {{24, 25}, {10, 20}, {10, 15}, {8, 10}, {4, 5}};
  for (const SheetDesign& sheet : allSheets()) {
    random.numbers.clear();
    for (int row = 1; row <= kRows; ++row) {
      for (const auto& [number, of] : sheet.name == names::Zátvorky ? brackets : chain) {
        random.draw(number, of);
      }
    }
    openSheet(sheet.name);
    for (const int counter : {36, 37, 38}) label(counter)->setText("188");
    for (const QLabel* const each : window(sheet_)->findChildren<QLabel*>()) {
      EXPECT_LE(each->fontMetrics().horizontalAdvance(each->text()), each->width())
          << sheet.name.text() << ' ' << each->text().toStdString();
    }
    leave();
  }
}

TEST_F(AllSheetsTest, HádankaCountsOnOverItsVisitsBehindZeros) {
  openSheet(names::Hádanka);
  EXPECT_EQ(control<Timer>(names::Hádanka, "Timer2")->interval(), 150);
  for (int row = 1; row <= kRows; ++row) answerRow(row, row <= 5);
  EXPECT_EQ(premenné.PercentoHádanka, 56);  // 55.6
  leave();
  openSheet(names::Hádanka);
  EXPECT_EQ(strip(), "0 0 ");
  answerRow(1, true);
  EXPECT_EQ(strip(), "6 0 ");
}

TEST_F(AllSheetsTest, DelenieGoesOnInItsCycleOverTheVisits) {
  for (const auto& visit : {std::vector{"1 : 1=?", "1 : 1=?", "5 : 5=?"},
                            {"1 : 1=?", "8 : 4=?"},
                            {"1 : 1=?", "1 : 1=?", "1 : 1=?", "5 : 5=?"}}) {
    openSheet(names::Delenie);
    for (const char* first : visit) {
      EXPECT_EQ(readRow(1), first);
      EXPECT_TRUE(box(1)->isEnabled());
      answerRow(1, false);
      if (first != visit.back()) clickButton("Command2");
    }
    leave();
  }
}

TEST_F(AllSheetsTest, TheCalculatorRunsFromThePointer) {
  openSheet(names::Veľkéčísla);
  QPushButton* const left = button("Command4");
  QPushButton* const right = button("Command5");
  EXPECT_EQ(left->geometry(), QRect(80, 384, 73, 25));
  EXPECT_EQ(right->geometry(), QRect(384, 384, 73, 25));
  for (const auto& [caught, other] : {std::pair{right, left}, {left, right}}) {
    QTest::mouseMove(caught, {20, 10});
    QTest::mouseMove(caught, {21, 10});
    settle();
    EXPECT_FALSE(caught->isVisible());
    EXPECT_TRUE(other->isVisible());
  }
  right->click();
  EXPECT_EQ(QApplication::focusWidget(), box(1));
}

std::string heard(QWidget* widget, QAccessible::Text part) {
  return QAccessible::queryAccessibleInterface(widget)->text(part).toStdString();
}

TEST_F(AllSheetsTest, AChildWhoDoesNotSeeCanWorkItOut) {
  for (const SheetDesign& sheet : allSheets()) {
    openSheet(sheet.name);
    for (QWidget* const widget : window(sheet_)->findChildren<QWidget*>()) {
      const bool isMute = widget->objectName().startsWith("Line") || widget->objectName().isEmpty();
      const auto* const text = qobject_cast<QLabel*>(widget);
      if (isMute || (text != nullptr && text->text().isEmpty())) continue;
      EXPECT_NE(heard(widget, QAccessible::Name), "")
          << sheet.name.text() << ' ' << widget->objectName().toStdString();
    }
    leave();
  }
  openSheet(names::Malá);
  EXPECT_EQ(heard(box(1), QAccessible::Name), "Príklad 1: 0 plus 0 rovná sa koľko");
  answer("7");
  EXPECT_EQ(heard(box(1), QAccessible::Description), "nesprávne, správny výsledok je 0");
  EXPECT_EQ(heard(box(2), QAccessible::Description), "Príklad 1: nesprávne, správny výsledok je 0");
  answer("0");
  EXPECT_EQ(heard(box(3), QAccessible::Description), "Príklad 2: správne");
  EXPECT_EQ(heard(label(38), QAccessible::Name), "Nesprávne odpovede: 1");
}

}  // namespace
}  // namespace ratanka::sheets
