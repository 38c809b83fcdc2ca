#pragma once

#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "form_driver.h"
#include "platform/controls.h"
#include "platform/timer.h"
#include "sheets/exercise_sheet.h"
#include "sheets/reckon.h"
#include "sheets/sheets.h"
#include "shell/names.h"
#include "shell/uvod.h"

namespace ratanka::sheets {

// All sheets with the menu behind them and a plain window for each game, and a child at one sheet.
class SheetTest : public FormTest {
 protected:
  explicit SheetTest(FormName sheet) : sheet_(sheet) {
    forms.setMaker(names::Úvod, [this] { return std::make_shared<Úvod>(forms); });
    makePlain(names::Hodiny);
    for (const SheetDesign& design : allSheets()) {
      forms.setMaker(design.name,
                     [this, design] { return std::make_shared<ExerciseSheet>(services, design); });
      makePlain(design.reward.game);
    }
  }

  void openSheet() {
    forms.show(sheet_);
    settle();
  }
  void openSheet(FormName name) {
    sheet_ = name;
    openSheet();
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

  // What stands in a row, from left to right, with "?" for the box.
  std::string readRow(int row) const {
    const int top = box(row)->y();
    std::vector<std::pair<int, std::string>> pieces{{box(row)->x(), "?"}};
    const QWidget* const equals = control<QWidget>(sheet_, "Line" + QString::number(2 * row - 1));
    pieces.emplace_back(equals->x(), "=");
    for (const QLabel* const piece : window(sheet_)->findChildren<QLabel*>()) {
      const bool isCorrection = piece->objectName() == "Label" + QString::number(4 * row);
      if (piece->y() != top || isCorrection || piece->text().isEmpty()) continue;
      pieces.emplace_back(piece->x(), piece->text().toStdString());
    }
    std::sort(pieces.begin(), pieces.end());
    std::string read;
    for (const auto& piece : pieces) read += piece.second;
    return read;
  }
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

  FormName sheet_;
  FakeRandom random;
  Premenné premenné;
  SheetServices services{forms, dialogs, random, premenné};
};

}  // namespace ratanka::sheets
