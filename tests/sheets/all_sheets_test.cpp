#include <QAccessible>

#include "sheets/sheet_driver.h"

namespace ratanka::sheets {
namespace {

class AllSheetsTest : public SheetTest {
 protected:
  AllSheetsTest() : SheetTest(names::Malá) { forms.show(names::Úvod); }

  void leave() {
    click(button(sheet_ == names::Násobilka ? "Command5" : "Command3"));
    settle();
  }
};

TEST_F(AllSheetsTest, AVisitWithAllRightByReadingTheCaptions) {
  for (const SheetDesign& design : allSheets()) {
    SCOPED_TRACE(design.name.text());
    openSheet(design.name);
    EXPECT_TRUE(forms.isLoaded(names::Hodiny));
    EXPECT_TRUE(window(design.name)->isActiveWindow());
    for (int draw = 0; draw < 45; ++draw) random.numbers.push_back((draw * 37 % 100) / 100.0);
    click(button(design.buttons[1].toUtf8()));  // new examples, of mixed numbers
    for (int row = 1; row <= kRows; ++row) {
      EXPECT_EQ(QApplication::focusWidget(), box(row));
      answerRight(row);
      EXPECT_TRUE(imageShown(3 * row - 2)) << readRow(row);
    }
    EXPECT_EQ(caption(37), "9");
    EXPECT_EQ(caption(39), "1");
    EXPECT_EQ(premenné.*design.percento, 100);
    QPushButton* const reward = button(design.buttons[0].toUtf8());
    EXPECT_TRUE(reward->isVisible());
    EXPECT_EQ(reward->toolTip(), design.reward.tooltip);
    click(reward);
    settle();
    EXPECT_TRUE(forms.isLoaded(design.reward.game));
    EXPECT_NE(window(design.name), nullptr);
    leave();
    EXPECT_FALSE(forms.isLoaded(design.name));
    EXPECT_FALSE(forms.isLoaded(names::Hodiny));
    EXPECT_NE(window(names::Úvod), nullptr);
    // Only the blocks game ends with its sheet.
    EXPECT_EQ(forms.isLoaded(design.reward.game), design.name != names::Veľkéčísla);
    random.numbers.clear();
  }
}

TEST_F(AllSheetsTest, WordsAndColoursOfTheirOwn) {
  for (const SheetDesign& design : allSheets()) {
    SCOPED_TRACE(design.name.text());
    openSheet(design.name);
    const bool speaks = design.name == names::Malá || design.name == names::Hádanka ||
                        design.name == names::Veľkéčísla || design.name == names::Zátvorky;
    EXPECT_EQ(label(37)->toolTip(), speaks ? " Vypočítaných príkladov " : "");
    EXPECT_EQ(label(38)->toolTip(), speaks ? " Nevypočítaných príkladov " : "");
    EXPECT_EQ(label(39)->toolTip(), speaks ? " Priebežné hodnotenie  " : " Priebežné hodnotenie ");
    EXPECT_EQ(label(38)->palette().color(QPalette::WindowText),
              design.name == names::Násobilka ? QColor(192, 0, 0) : QColor(255, 0, 0));
    leave();
  }
}

TEST_F(AllSheetsTest, PlacesAndColoursOfTheirOwn) {
  const struct {
    FormName name;
    QRect mark, book;
    QPoint reward;
    int signSize;
    QColor four;
  } sheets[] = {
      {names::Delenie, {128, 448, 49, 41}, {256, 456, 49, 36}, {320, 448}, 18, {255, 128, 255}},
      {names::Malá, {128, 456, 41, 33}, {256, 456, 57, 36}, {328, 440}, 18, {255, 0, 0}},
      {names::Veľká, {136, 456, 41, 33}, {256, 456, 41, 36}, {328, 448}, 18, {255, 128, 255}},
      {names::Násobilka, {128, 456, 41, 33}, {256, 456, 41, 36}, {320, 448}, 13, {255, 128, 255}},
      {names::Hádanka, {128, 456, 41, 33}, {256, 456, 41, 36}, {320, 448}, 18, {255, 0, 0}},
      {names::Veľkéčísla, {128, 456, 41, 33}, {256, 456, 41, 36}, {320, 448}, 0, {255, 128, 255}},
      {names::Zátvorky, {128, 456, 41, 33}, {256, 456, 41, 36}, {320, 448}, 0, {255, 128, 255}}};
  for (const auto& sheet : sheets) {
    SCOPED_TRACE(sheet.name.text());
    openSheet(sheet.name);
    for (int row = 1; row <= 3; ++row) answerRow(row, row == 1);
    answerRow(9, false);  // 1 of 4
    EXPECT_EQ(caption(39), "4");
    EXPECT_EQ(label(39)->palette().color(QPalette::Window), sheet.four);
    EXPECT_EQ(label(39)->geometry(), sheet.mark);
    EXPECT_EQ(control<QWidget>(sheet_, "Picture3")->geometry(), sheet.book);
    EXPECT_EQ(button(sheet_ == names::Násobilka ? "Command3" : "Command1")->pos(), sheet.reward);
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
    EXPECT_EQ(box(number)->x(), row.box) << number;
    EXPECT_EQ(label(row.known)->x(), row.box == 48 ? 176 : 72) << number;
    EXPECT_EQ(label(row.sign)->x(), 136) << number;
    EXPECT_EQ(label(row.right)->x(), 312) << number;
    const auto image = [&](int of) {
      return control<QWidget>(sheet_, "Image" + QString::number(of))->x();
    };
    EXPECT_EQ(image(3 * number - 2), row.tick) << number;
    EXPECT_EQ(image(3 * number - 1), row.cross) << number;
  }
}

TEST_F(AllSheetsTest, TheClockComesWhenTheExamplesStand) {
  std::string seen;
  forms.setMaker(names::Hodiny, [&] {
    // The sheet isn't shown yet, but it is laid out.
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
      if (widget->objectName() == "Malá")
        seen = widget->findChild<QLabel*>("Label1")->text().toStdString();
    }
    return std::make_shared<PlainForm>(forms, names::Hodiny);
  });
  openSheet(names::Malá);
  EXPECT_EQ(seen, "0");
}

TEST_F(AllSheetsTest, EveryCaptionFitsItsLabel) {
  const auto fits = [](const QLabel& label) {
    return label.fontMetrics().horizontalAdvance(label.text()) <= label.width();
  };
  for (const SheetDesign& design : allSheets()) {
    openSheet(design.name);
    const bool hasBrackets = design.name == names::Zátvorky;
    // The widest figures: two digits everywhere and subtractions all the way.
    const std::pair<int, int> brackets[] = {{48, 50}, {10, 40}, {28, 30}, {10, 20}, {8, 10}};
    const std::pair<int, int> chain[] = {{24, 25}, {10, 20}, {10, 15}, {8, 10}, {4, 5}};
    for (int row = 1; row <= kRows; ++row) {
      for (const auto& [number, numbers] : hasBrackets ? brackets : chain) {
        random.draw(number, numbers);
      }
    }
    click(button(design.buttons[1].toUtf8()));
    label(37)->setText("188");
    label(38)->setText("188");
    label(36)->setText("198");
    for (const QLabel* const each : window(sheet_)->findChildren<QLabel*>()) {
      EXPECT_TRUE(fits(*each)) << design.name.text() << ' ' << each->text().toStdString();
    }
    leave();
    random.numbers.clear();
  }
}

TEST_F(AllSheetsTest, HádankaCountsOnOverItsVisitsBehindZeros) {
  openSheet(names::Hádanka);
  for (int row = 1; row <= kRows; ++row) answerRow(row, row <= 5);
  EXPECT_EQ(premenné.PercentoHádanka, 56);  // 55.6
  leave();
  openSheet();
  EXPECT_EQ(caption(37), "0");
  EXPECT_EQ(caption(38), "0");
  EXPECT_EQ(caption(39), "");
  answerRow(1, true);
  EXPECT_EQ(caption(37), "6");
  EXPECT_EQ(caption(38), "0");
  answerRow(2, false);
  EXPECT_EQ(caption(38), "5");
  EXPECT_EQ(control<Timer>(names::Hádanka, "Timer2")->interval(), 150);
}

TEST_F(AllSheetsTest, DelenieGoesOnInItsCycleOverTheVisits) {
  const auto first = [this] { return readRow(1); };
  const auto fresh = [this] {
    click(button("Command2"));
    settle();
  };
  openSheet(names::Delenie);
  EXPECT_EQ(first(), "1 : 1=?");
  fresh();
  EXPECT_EQ(first(), "1 : 1=?");
  fresh();
  EXPECT_EQ(first(), "5 : 5=?");
  leave();
  openSheet();
  EXPECT_EQ(first(), "1 : 1=?");
  fresh();
  EXPECT_EQ(first(), "8 : 4=?");
  answerRow(1, false);
  leave();
  openSheet();
  EXPECT_EQ(first(), "1 : 1=?");
  fresh();
  EXPECT_EQ(first(), "1 : 1=?");  // none in its turn: the last one is asked again
  EXPECT_TRUE(box(1)->isEnabled());
  fresh();
  EXPECT_EQ(first(), "1 : 1=?");
}

TEST_F(AllSheetsTest, TheCalculatorRunsFromThePointer) {
  openSheet(names::Veľkéčísla);
  QPushButton* const left = button("Command4");
  QPushButton* const right = button("Command5");
  EXPECT_EQ(left->geometry(), QRect(80, 384, 73, 25));
  EXPECT_EQ(right->geometry(), QRect(384, 384, 73, 25));
  QTest::mouseMove(right, {20, 10});
  QTest::mouseMove(right, {21, 10});
  settle();
  EXPECT_TRUE(left->isVisible());
  EXPECT_FALSE(right->isVisible());
  QTest::mouseMove(left, {20, 10});
  QTest::mouseMove(left, {21, 10});
  settle();
  EXPECT_FALSE(left->isVisible());
  EXPECT_TRUE(right->isVisible());
  right->click();
  EXPECT_EQ(QApplication::focusWidget(), box(1));
}

QString heard(QWidget* widget, QAccessible::Text part) {
  return QAccessible::queryAccessibleInterface(widget)->text(part);
}

TEST_F(AllSheetsTest, AChildWhoDoesNotSeeCanWorkItOut) {
  for (const SheetDesign& design : allSheets()) {
    openSheet(design.name);
    for (QWidget* const widget : window(sheet_)->findChildren<QWidget*>()) {
      const bool isMute = widget->objectName().startsWith("Line") || widget->objectName().isEmpty();
      const auto* const text = qobject_cast<QLabel*>(widget);
      if (isMute || (text != nullptr && text->text().isEmpty())) continue;
      EXPECT_FALSE(heard(widget, QAccessible::Name).isEmpty())
          << design.name.text() << ' ' << widget->objectName().toStdString();
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
