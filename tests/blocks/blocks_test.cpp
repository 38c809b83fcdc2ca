#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <set>

#include "all_forms.h"
#include "blocks/kockovka_form.h"
#include "blocks/pics.h"
#include "blocks/rules/tiles.h"
#include "hasty_clock.h"
#include "platform/controls/controls.h"

namespace ratanka::blocks {
namespace {

constexpr FormName kGame = names::frmKockovka;
constexpr FormName kDialog = names::frmOptions;

class BlocksTest : public AllFormsTest {
 protected:
  BlocksTest() {
    forms.setMaker(kGame, [this] {
      return std::make_shared<frmKockovka>(forms, hasty, random, sound, options);
    });
    forms.show(names::Úvod);
    forms.show(kGame);
    activate(*window(kGame));
  }

  QString settingsFile() const { return folder.filePath("Kockovka32.ini"); }

  static QAction* item(const char* name) { return control<QAction>(kGame, name); }
  static std::string label(const char* name) {
    return control<QLabel>(kGame, name)->text().toStdString();
  }
  static std::string caption() { return window(kGame)->windowTitle().toStdString(); }

  // What the child does while the game is on, step by step, each in an event of its own; an empty
  // step lets time go by. The game ends with the last one.
  using Steps = std::vector<std::function<void()>>;
  static void playGame(const Steps& steps) {
    QTimer child;
    std::size_t next = 0;
    QObject::connect(&child, &QTimer::timeout, [&] {
      if (next < steps.size()) steps[next++]();
    });
    child.start(0);
    item("mnuNewGame")->trigger();
    EXPECT_EQ(next, steps.size()) << "the game ended too early";
    settle();
  }
  static void endGame() { item("mnuEndGame")->trigger(); }

  static QColor boardPixel(int column, int row) {
    QWidget* const board = control<QWidget>(kGame, "picBoard");
    return board->grab().toImage().pixelColor(2 + 16 * (column - 1) + 3, 2 + 16 * (row - 1) + 3);
  }

  static QColor nextPixel() {
    return control<QWidget>(kGame, "picNext")->grab().toImage().pixelColor(37, 21);
  }

  void openOptions(const std::function<void()>& child) {
    activate(*window(kGame));
    QTimer::singleShot(0, qApp, [child] {
      activate(*window(kDialog));
      child();
    });
    item("mnuOptions")->trigger();
    settle();
    EXPECT_EQ(window(kDialog), nullptr);
  }
  static TextBox* level() { return control<TextBox>(kDialog, "txtStartingLevel"); }
  static void typeLevel(const std::string& typed) {
    level()->setFocus(Qt::TabFocusReason);
    type(typed);
  }

  HastyClock hasty;
};

const QColor kSquare(170, 43, 213);
const QColor kEmpty(192, 192, 192);
constexpr auto kPause = "Rátanka - hra Tetris : Pauza";

TEST_F(BlocksTest, AGameIsSeenAndSteeredInItsWindow) {
  random.numbers = {0.9, 0.9, 0.0};  // squares, and the bar after them
  EXPECT_FALSE(item("mnuEndGame")->isEnabled());
  playGame({[] {},
            [] {
              EXPECT_EQ(boardPixel(5, 1), kSquare);
              EXPECT_EQ(boardPixel(6, 1), kSquare);
              EXPECT_EQ(boardPixel(4, 1), kEmpty);
              EXPECT_FALSE(item("mnuNewGame")->isEnabled());
              EXPECT_TRUE(item("mnuPause")->isEnabled());
              EXPECT_EQ(nextPixel(), kSquare);
              strike(Qt::Key_Left);
            },
            [] {
              EXPECT_EQ(boardPixel(4, 2), kSquare);
              EXPECT_EQ(boardPixel(6, 2), kEmpty);
              strike(Qt::Key_Down);
            },
            [] {
              EXPECT_EQ(boardPixel(4, 18), kSquare);
              EXPECT_NE(label("lblScore"), "0");
              EXPECT_EQ(label("lblLines"), "0");
              endGame();
            }});
  EXPECT_TRUE(item("mnuNewGame")->isEnabled());
  EXPECT_FALSE(item("mnuPause")->isEnabled());
  EXPECT_TRUE(sound.played.empty());  // off at first

  // A window that comes up anew shows nothing of the old game.
  window(kGame)->close();
  forms.show(kGame);
  EXPECT_EQ(boardPixel(4, 18), kEmpty);
  EXPECT_EQ(nextPixel(), kEmpty);
  options.StartingLevel = 3;
  playGame({[] {
    EXPECT_EQ(label("lblLevel"), "3");
    endGame();
  }});
}

TEST_F(BlocksTest, SoundsAreSwitchedOnAndOffInMidGame) {
  playGame({[] {}, [this] { options.PlaySounds = true; }, [] {},
            [this] { options.PlaySounds = false; }, [] {},
            [this] {
              EXPECT_EQ(sound.played.front(), "open Tetris.mid");
              EXPECT_EQ(sound.played.back(), "close");
              endGame();
            }});
}

TEST_F(BlocksTest, APauseByAKeyTheOptionsOrTheTaskBarShowsInTheCaption) {
  const Steps byP{[] { strike(Qt::Key_P); }};
  const Steps byMenu{[] { strike(Qt::Key_F3); }};
  const Steps byOptions{[this] { openOptions([] { strike(Qt::Key_Escape); }); }};
  const Steps byTaskBar{[] { window(kGame)->showMinimized(); },
                        [] { EXPECT_NE(caption(), kPause); },
                        [] {
                          for (QWidget* const widget : QApplication::topLevelWidgets()) {
                            if (widget->isMinimized()) widget->showNormal();
                          }
                        }};
  for (const Steps& road : {byP, byMenu, byOptions, byTaskBar}) {
    Steps steps = road;
    steps.insert(steps.begin(), [] {});  // the first piece comes
    steps.insert(steps.end(), {[] {},
                               [] {
                                 EXPECT_EQ(caption(), kPause);
                                 strike(Qt::Key_P);
                               },
                               [] {}, [] { strike(Qt::Key_F3); }, [] {},
                               [] {
                                 EXPECT_EQ(caption(), kPause);
                                 endGame();
                               }});
    playGame(steps);
    EXPECT_EQ(caption(), "Rátanka - hra Tetris");
  }
}

TEST_F(BlocksTest, AGameEndsWithItsWindowByEachRoad) {
  options.PlaySounds = true;
  const auto closeIt = [] { window(kGame)->close(); };
  for (const Steps& road :
       {Steps{[] {}, closeIt}, Steps{[] {}, [] { item("mnuExit")->trigger(); }},
        Steps{[] {}, [this] { forms.drop(kGame); }}, Steps{[] { strike(Qt::Key_F4); }},
        Steps{[] {}, [] { strike(Qt::Key_P); }, [] {}, closeIt}, Steps{[this] {
          openOptions([this] {
            forms.drop(kGame);
            forms.drop(kDialog);
          });
        }}}) {
    forms.show(kGame);
    activate(*window(kGame));
    sound.played.clear();
    playGame(road);
    EXPECT_FALSE(forms.isLoaded(kGame));
    EXPECT_EQ(sound.played.front(), "open Tetris.mid");
    EXPECT_EQ(sound.played.back(), "close");
  }
}

TEST_F(BlocksTest, TheProgramMayEndInAGame) {
  playGame({[] {}, [this] { forms.endProgram(); }});
  EXPECT_TRUE(forms.isEnding());
}

TEST_F(BlocksTest, OptionsAreTakenAndWritten) {
  options = {.StartingLevel = 4, .FillLines = true};
  openOptions([] {
    EXPECT_EQ(level()->text(), "4");
    EXPECT_TRUE(control<QCheckBox>(kDialog, "chkFillLines")->isChecked());
    auto* const sounds = control<QCheckBox>(kDialog, "chkPlaySounds");
    EXPECT_FALSE(sounds->isChecked());
    typeLevel("2.5");
    click(control<QCheckBox>(kDialog, "chkFillLines"));
    QTest::mouseClick(sounds, Qt::LeftButton, {}, {sounds->width() - 5, 5});  // right of its words
    click(control<Button>(kDialog, "cmdOk"));
  });
  EXPECT_EQ(options.StartingLevel, 2.5);
  EXPECT_EQ(options.FillLines, false);
  EXPECT_EQ(options.PlaySounds, true);
  QFile file(settingsFile());
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(),
            "[Kockovka32]\nStarting Level=2.5\nFill Lines=False\nPlay Sounds=True\nHide Splash=\n");
}

TEST_F(BlocksTest, ZrušiťAndEscChangeNothing) {
  for (const auto& way :
       Steps{[] { strike(Qt::Key_Escape); }, [] { click(control<Button>(kDialog, "Command1")); },
             [] {
               control<Button>(kDialog, "Command1")->setFocus();
               strike(Qt::Key_Return);
             }}) {
    for (const bool isLevelGiven : {true, false}) {
      openOptions([&way, isLevelGiven] {
        if (isLevelGiven) typeLevel("3");
        click(control<QCheckBox>(kDialog, "chkPlaySounds"));
        way();
      });
      EXPECT_FALSE(options.StartingLevel.has_value());
      EXPECT_FALSE(options.PlaySounds.has_value());
      EXPECT_FALSE(QFile::exists(settingsFile()));
    }
  }
}

TEST_F(BlocksTest, ABadLevelIsToldOnceAndTheOldOneComesBack) {
  options.StartingLevel = 4;
  const auto ok = [] { click(control<Button>(kDialog, "cmdOk")); };
  const Steps ways{ok, [] { strike(Qt::Key_Return); },
                   [&] {
                     strike(Qt::Key_Tab);
                     EXPECT_EQ(level()->text(), "4");
                     ok();
                   },
                   [] { click(control<Button>(kDialog, "Command1")); },
                   [] {
                     QTest::mouseClick(control<QCheckBox>(kDialog, "chkFillLines"),
                                       Qt::RightButton);
                     strike(Qt::Key_Return);
                   }};
  for (const auto& way : ways) {
    for (const auto& [typed, told] : {std::pair{"10", " Číslo musí mať hodnotu medzi 1 a 9"},
                                      {"abc", "V poli LEVEL prosím zadajte číslo medzi 1 a 9"}}) {
      dialogs.shown.clear();
      dialogs.expect("Rátanka - hra TETRIS");
      openOptions([&, refused = typed] {
        typeLevel(refused);
        way();
      });
      ASSERT_EQ(dialogs.shown.size(), 1U);
      EXPECT_EQ(dialogs.shown.back().text, told);
      EXPECT_EQ(options.StartingLevel, 4);
    }
  }
}

// Tiles at every magnification: each pixel of the device is one of the tile's own colours.
TEST(BlocksPictures, AreSharpAtEveryPixelRatio) {
  for (const qreal ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
    for (int kind = 0; kind <= kKinds; ++kind) {
      const int side = static_cast<int>(32 * ratio);
      QImage image(side, side, QImage::Format_RGB32);
      image.setDevicePixelRatio(ratio);
      image.fill(Qt::white);
      QPainter painter(&image);
      paintTile(painter, kind, 8, 8);
      painter.end();
      std::set<QRgb> own{QColor(Qt::white).rgb()};
      for (const Stroke& stroke : tile(kind)) own.insert(colour(stroke.colour).rgb());
      int strange = 0;
      for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) strange += own.contains(image.pixel(x, y)) ? 0 : 1;
      }
      EXPECT_EQ(strange, 0) << "kind " << kind << " at " << ratio;
    }
  }
}

}  // namespace
}  // namespace ratanka::blocks
