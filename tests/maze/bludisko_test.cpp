#include "maze/bludisko.h"

#include <QFile>
#include <QTemporaryDir>

#include "form_driver.h"
#include "shell/names.h"

namespace ratanka::maze {
namespace {

constexpr auto kBox = "Rátanka - hra Bludisko";
constexpr auto kEnd = " Koniec Hry ";

constexpr auto kMaze =
    "4,6\n"
    "######\n"
    "#s..##\n"
    "##.f.#\n"
    "######\n";

class BludiskoTest : public FormTest {
 protected:
  BludiskoTest() {
    forms.setMaker(names::Bludisko, [this] {
      return std::make_shared<Bludisko>(forms, dialogs, time, path().toStdString());
    });
    makePlain(names::Malá);
    forms.show(names::Malá);
    write(kMaze);
  }

  QString path() const { return folder_.filePath("bludisko.txt"); }

  void write(const QByteArray& maze) const {
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(maze);
  }

  void open() {
    forms.show(names::Bludisko);
    settle();
  }

  void walk(std::initializer_list<int> keys) {
    for (const int key : keys) {
      press(key);
      release(key);
    }
    settle();
  }

  // The colour in the middle of a cell, or at a point of its 20 x 20 pixels.
  static QColor seen(int row, int col, QPoint at = {10, 10}) {
    return window(names::Bludisko)
        ->grab()
        .toImage()
        .pixelColor(QPoint((col - 1) * 20, (row - 1) * 20) + at);
  }

  FakeClock time;

 private:
  QTemporaryDir folder_;
};

constexpr QRgb kWall = qRgb(128, 128, 128);
constexpr QRgb kGoal = qRgb(255, 255, 0);
constexpr QRgb kWhite = qRgb(255, 255, 255);

TEST_F(BludiskoTest, TakesTheSizeOfTheMazeAndPaintsItsCells) {
  open();
  EXPECT_EQ(window(names::Bludisko)->size(), QSize(120, 80));
  EXPECT_EQ(window(names::Bludisko)->windowTitle(), "Rátanka - hra Bludisko");
  EXPECT_EQ(seen(4, 6).rgb(), kWall);
  EXPECT_EQ(seen(2, 4).rgb(), kWhite);
  EXPECT_EQ(seen(3, 4).rgb(), kGoal);
  EXPECT_NE(seen(2, 2).rgb(), kWhite) << "the figure";
}

TEST_F(BludiskoTest, LeavesBitesWhereItWalked) {
  open();
  walk({Qt::Key_Right});
  EXPECT_EQ(seen(2, 2).rgb(), kWhite);
  // Seven pixels into the wall before it, six into the one behind.
  EXPECT_EQ(seen(2, 1, {13, 10}).rgb(), kWhite);
  EXPECT_EQ(seen(2, 1, {12, 10}).rgb(), kWall);
  EXPECT_EQ(seen(3, 2, {1, 5}).rgb(), kWhite);
  EXPECT_EQ(seen(3, 2, {1, 6}).rgb(), kWall);
  walk({Qt::Key_Up, Qt::Key_A, Qt::Key_Return});  // a wall, and keys that are none of the maze's
  EXPECT_NE(seen(2, 3).rgb(), kWhite);
}

TEST_F(BludiskoTest, PaintsOnlyWhatAStepHasChanged) {
  open();
  Paints paints(*control<QWidget>(names::Bludisko, "picMaze"));
  walk({Qt::Key_Right});
  EXPECT_TRUE(paints.region.contains(QRect(14, 14, 32, 32))) << "where it was";
  EXPECT_TRUE(paints.region.contains(QRect(34, 14, 32, 32))) << "where it is";
  EXPECT_FALSE(paints.region.contains(QPoint(100, 60)));
}

TEST_F(BludiskoTest, TellsTheWholeSecondsAndPlaysAgainOrGoes) {
  time.now = {23, 59, 58};
  open();
  time.now = {0, 0, 5};
  dialogs.expect(kEnd, {}, Dialogs::Answer::yes);
  walk({Qt::Key_Right, Qt::Key_Down, Qt::Key_Right});
  EXPECT_EQ(dialogs.shown.back().text, "Zvíťazil si  za 7 sekúnd.\r\nChceš hrať znova?");
  EXPECT_EQ(dialogs.shown.back().icon, MessageBox::Icon::none);
  EXPECT_EQ(dialogs.shown.back().buttons, MessageBox::Buttons::yesNo);
  EXPECT_EQ(seen(2, 1, {13, 5}).rgb(), kWhite) << "only the bite of the start";
  EXPECT_EQ(seen(1, 3, {10, 17}).rgb(), kWall);
  EXPECT_EQ(seen(3, 4).rgb(), kGoal);

  dialogs.expect(kEnd, {}, Dialogs::Answer::no);
  walk({Qt::Key_Right, Qt::Key_Down, Qt::Key_Right});
  EXPECT_EQ(dialogs.shown.back().text, "Zvíťazil si  za 0 sekúnd.\r\nChceš hrať znova?");
  EXPECT_FALSE(forms.isLoaded(names::Bludisko));
}

TEST_F(BludiskoTest, AFileThatIsNoMazeIsToldAndTheFormCloses) {
  QFile::remove(path());
  dialogs.expect(kBox);
  open();
  EXPECT_FALSE(forms.isLoaded(names::Bludisko));
  write("veľa, málo\n");
  dialogs.expect(kBox);
  open();
  EXPECT_FALSE(forms.isLoaded(names::Bludisko));
  for (const MessageBox& box : dialogs.shown) {
    EXPECT_NE(box.text.find("bludisko.txt"), std::string::npos) << box.text;
  }
  write(kMaze);
  open();
  EXPECT_TRUE(forms.isLoaded(names::Bludisko));
}

TEST_F(BludiskoTest, GoingUnderItsOwnBoxIsHarmless) {
  for (const bool ends : {false, true}) {
    open();
    dialogs.expect(
        kEnd,
        [this, ends] {
          if (ends) forms.endProgram();
          forms.drop(names::Bludisko);
          settle();
        },
        Dialogs::Answer::yes);
    walk({Qt::Key_Right, Qt::Key_Down, Qt::Key_Right});
    EXPECT_FALSE(forms.isLoaded(names::Bludisko));
  }
}

}  // namespace
}  // namespace ratanka::maze
