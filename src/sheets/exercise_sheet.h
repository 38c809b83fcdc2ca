#pragma once

#include <array>

#include "platform/controls/animated_cursor.h"
#include "platform/forms/form.h"
#include "platform/ports/dialogs.h"
#include "sheets/sheet_design.h"
#include "shell/rules/premenne.h"

namespace ratanka {
class Timer;
}

namespace ratanka::sheets {

// What the sheets share with the rest of the program.
struct SheetServices {
  Forms& forms;
  Dialogs& dialogs;
  Random& random;
  Premenné& premenné;
};

// The form of every exercise sheet: nine rows, the strip with counters, mark and book, three
// buttons. Its design says which sheet it is.
class ExerciseSheet : public Form {
 public:
  ExerciseSheet(const SheetServices& services, SheetDesign design);

 protected:
  void build() override;
  void Form_Load() override;
  void Form_Unload() override;
  void closeAsked() override { backToMenu(); }

 private:
  struct RowControls {
    QLabel* first = nullptr;
    QLabel* sign = nullptr;
    QLabel* second = nullptr;
    TextBox* box = nullptr;
    QWidget* tick = nullptr;
    QWidget* cross = nullptr;
    QLabel* result = nullptr;
    QWidget* resultTick = nullptr;
  };

  void buildRow(int row);
  void buildStrip();
  void buildButtons();
  void buildShyButtons();

  void Text_KeyUp(int row, int keyCode);
  void answer(int row);
  void ShowVysvedčenie();
  void ShowOpakuj();
  void Timer3_Timer();
  void backToMenu();

  // Copies what the rules say to the controls.
  void refresh();
  void refreshRow(int row);
  // Lets a listener hear how a row was judged.
  void tell(int row);

  RowControls& controls(int row) { return rows_.at(row - 1); }

  SheetServices services_;
  SheetDesign design_;
  Worksheet worksheet_;
  AnimatedCursor kniha_;
  int políčko_ = 0;  // the next frame of the book

  std::array<RowControls, kRows> rows_;
  QLabel* správne_ = nullptr;
  QLabel* nesprávne_ = nullptr;
  QLabel* mark_ = nullptr;
  PictureBox* book_ = nullptr;
  QPushButton* reward_ = nullptr;
  Timer* pause_ = nullptr;
};

}  // namespace ratanka::sheets
