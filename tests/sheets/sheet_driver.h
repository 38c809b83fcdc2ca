#pragma once

#include <QLabel>
#include <QPushButton>

#include "all_forms.h"
#include "platform/controls/controls.h"
#include "platform/forms/timer.h"
#include "soak/reading.h"

namespace ratanka::sheets {

// All sheets with the menu behind them and a plain window for each game, and a child at one sheet.
class SheetTest : public AllFormsTest {
 protected:
  SheetTest() {
    makePlain(names::Hodiny);
    for (const SheetDesign& design : allSheets()) makePlain(design.reward.game);
  }

  void openSheet(FormName name) {
    sheet_ = name;
    forms.show(sheet_);
    settle();
  }

  QLabel* label(int number) const {
    return control<QLabel>(sheet_, "Label" + QString::number(number));
  }
  std::string caption(int number) const { return label(number)->text().toStdString(); }
  bool imageShown(int number) const {
    return control<QWidget>(sheet_, "Image" + QString::number(number))->isVisible();
  }
  TextBox* box(int row) const { return control<TextBox>(sheet_, "Text" + QString::number(row)); }
  QPushButton* button(const char* name) const { return control<QPushButton>(sheet_, name); }
  Timer* pause() const { return control<Timer>(sheet_, "Timer1"); }
  void clickButton(const char* name) const {
    click(button(name));
    settle();
  }
  // The counters of right and wrong answers, and the mark.
  std::string strip() const { return caption(37) + ' ' + caption(38) + ' ' + caption(39); }

  std::string readRow(int row) const { return soak::readRow(*window(sheet_), *box(row)); }
  int result(int row) const { return solve(readRow(row)).value(); }

  // Types into whatever box has the keyboard and presses Enter.
  void answer(const std::string& typed) {
    type(typed);
    strike(Qt::Key_Return);
    settle();
  }
  void answerRight(int row) { answer(std::to_string(result(row))); }
  void answerRow(int row, bool right) {
    click(box(row));
    answer(std::to_string(right ? result(row) : result(row) + 1));
  }
  // The last box first: its digits come all at once, since each key released there asks for a
  // right answer.
  void answerLastRight() {
    click(box(9));
    box(9)->setText(QString::number(result(9)));
    answer("");
  }

  FormName sheet_ = names::Malá;
};

}  // namespace ratanka::sheets
