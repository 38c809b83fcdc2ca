#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QTemporaryDir>
#include <set>

#include "blocks/kockovka_form.h"
#include "blocks/options_form.h"
#include "blocks/pics.h"
#include "blocks/rules/tiles.h"
#include "form_driver.h"
#include "platform/controls.h"
#include "shell/names.h"

namespace ratanka::blocks {
namespace {

constexpr FormName kSheet{"sheet"};
constexpr FormName kGame = names::frmKockovka;
constexpr FormName kDialog = names::frmOptions;

// Seconds that pass as fast as the loop asks for them.
class HastyClock : public Clock {
 public:
  TimeOfDay timeOfDay() const override { return {}; }
  double secondsSinceMidnight() const override { return now_ += 0.02; }

 private:
  mutable double now_ = 0;
};

class BlocksTest : public FormTest {
 protected:
  BlocksTest() {
    forms.setMaker(kGame, [this] {
      return std::make_shared<frmKockovka>(forms, clock, random, sound, options);
    });
    forms.setMaker(kDialog, [this] {
      return std::make_shared<frmOptions>(forms, dialogs, options, settingsFile());
    });
    makePlain(kSheet);
    forms.show(kSheet);
    forms.show(kGame);
    activate(*window(kGame));
  }
  ~BlocksTest() override {
    for (const FormName name : {kDialog, kGame, kSheet}) forms.drop(name);
    settle();
  }

  QString settingsFile() const { return folder.filePath("Kockovka32.ini"); }

  static QAction* item(const char* name) { return control<QAction>(kGame, name); }
  static std::string label(const char* name) {
    return control<QLabel>(kGame, name)->text().toStdString();
  }
  static std::string caption() { return window(kGame)->windowTitle().toStdString(); }

  // What the child does while the game is on, step by step, each in an event of its own. The game
  // ends with the last one.
  void playGame(std::vector<std::function<void()>> steps) {
    steps_ = std::move(steps);
    QTimer child;
    std::size_t next = 0;
    QObject::connect(&child, &QTimer::timeout, [&] {
      if (next < steps_.size()) steps_[next++]();
    });
    child.start(0);
    item("mnuNewGame")->trigger();
    EXPECT_EQ(next, steps_.size()) << "the game ended too early";
    settle();
  }
  // An empty step: time goes by.
  static std::vector<std::function<void()>> waiting(int events) {
    return std::vector<std::function<void()>>(static_cast<std::size_t>(events), [] {});
  }

  QColor boardPixel(int column, int row) const {
    QWidget* const board = control<QWidget>(kGame, "picBoard");
    return board->grab().toImage().pixelColor(2 + 16 * (column - 1) + 3, 2 + 16 * (row - 1) + 3);
  }

  void openOptions(const std::function<void()>& child) {
    activate(*window(kGame));
    QTimer::singleShot(0, qApp, [this, child] {
      activate(*window(kDialog));
      child();
    });
    item("mnuOptions")->trigger();
    settle();
    EXPECT_EQ(window(kDialog), nullptr);
  }
  static TextBox* level() { return control<TextBox>(kDialog, "txtStartingLevel"); }

  HastyClock clock;
  FakeRandom random;
  FakeSound sound;
  Options options;
  QTemporaryDir folder;

 private:
  std::vector<std::function<void()>> steps_;
};

TEST_F(BlocksTest, AGameIsSeenAndSteeredInItsWindow) {
  random.numbers = {0.9, 0.9, 0.0};  // squares, and the bar after them
  EXPECT_FALSE(item("mnuEndGame")->isEnabled());
  playGame({[] {},
            [this] {
              EXPECT_EQ(boardPixel(5, 1), QColor(170, 43, 213));
              EXPECT_EQ(boardPixel(6, 1), QColor(170, 43, 213));
              EXPECT_EQ(boardPixel(4, 1), QColor(192, 192, 192));
              EXPECT_FALSE(item("mnuNewGame")->isEnabled());
              EXPECT_TRUE(item("mnuPause")->isEnabled());
              QWidget* const next = control<QWidget>(kGame, "picNext");
              EXPECT_EQ(next->grab().toImage().pixelColor(37, 21), QColor(170, 43, 213));
            },
            [] { strike(Qt::Key_Left); },
            [this] {
              EXPECT_EQ(boardPixel(4, 2), QColor(170, 43, 213));
              EXPECT_EQ(boardPixel(6, 2), QColor(192, 192, 192));
            },
            [this] { strike(Qt::Key_Down); },
            [this] {
              EXPECT_EQ(boardPixel(4, 18), QColor(170, 43, 213));
              EXPECT_NE(label("lblScore"), "0");
              item("mnuEndGame")->trigger();
            }});
  EXPECT_TRUE(item("mnuNewGame")->isEnabled());
  EXPECT_FALSE(item("mnuPause")->isEnabled());
  EXPECT_EQ(sound.played, (std::vector<std::string>{}));  // off at first

  // A window that comes up anew shows nothing of the old game.
  window(kGame)->close();
  forms.show(kGame);
  EXPECT_EQ(boardPixel(4, 18), QColor(192, 192, 192));
}

TEST_F(BlocksTest, SoundsAreSwitchedOnAndOffInMidGame) {
  playGame({[] {}, [this] { options.PlaySounds = true; }, [] {},
            [this] { options.PlaySounds = false; }, [] {},
            [this] {
              EXPECT_EQ(sound.played.front(), "open Tetris.mid");
              EXPECT_EQ(sound.played.back(), "close");
              item("mnuEndGame")->trigger();
            }});
}

TEST_F(BlocksTest, APauseShowsInTheCaptionAndEndsByItsKey) {
  playGame({[] {}, [] { strike(Qt::Key_P); }, [] {},
            [] {
              EXPECT_EQ(caption(), "Rátanka - hra Tetris : Pauza");
              strike(Qt::Key_P);
            },
            [] {}, [] { strike(Qt::Key_F3); }, [] {},
            [this] {
              EXPECT_EQ(caption(), "Rátanka - hra Tetris : Pauza");
              item("mnuEndGame")->trigger();
            }});
  EXPECT_EQ(caption(), "Rátanka - hra Tetris");
}

TEST_F(BlocksTest, ComesBackFromTheTaskBarPaused) {
  playGame({[] { window(kGame)->showMinimized(); },
            [] { EXPECT_NE(caption(), "Rátanka - hra Tetris : Pauza"); },
            [] {
              for (QWidget* const widget : QApplication::topLevelWidgets()) {
                if (widget->isMinimized()) widget->showNormal();
              }
            },
            [] {},
            [this] {
              EXPECT_EQ(caption(), "Rátanka - hra Tetris : Pauza");
              item("mnuEndGame")->trigger();
            }});
}

TEST_F(BlocksTest, AGameEndsWithItsWindowByEachRoad) {
  const std::vector<std::function<void()>> roads{
      [] { window(kGame)->close(); },
      [this] { item("mnuExit")->trigger(); },
      [this] { forms.drop(kGame); },
      [] { strike(Qt::Key_F4); },
  };
  options.PlaySounds = true;
  for (const auto& road : roads) {
    forms.show(kGame);
    activate(*window(kGame));
    sound.played.clear();
    auto steps = waiting(3);
    steps.push_back(road);
    playGame(steps);
    EXPECT_FALSE(forms.isLoaded(kGame));
    EXPECT_EQ(sound.played.front(), "open Tetris.mid");
    EXPECT_EQ(sound.played.back(), "close");
  }
}

TEST_F(BlocksTest, AGameEndsWithItsWindowInAPauseAndUnderItsOptions) {
  playGame({[] { strike(Qt::Key_P); }, [] {}, [] { window(kGame)->close(); }});
  EXPECT_FALSE(forms.isLoaded(kGame));

  forms.show(kGame);
  activate(*window(kGame));
  playGame({[this] {
    openOptions([this] {
      forms.drop(kGame);
      forms.drop(kDialog);
    });
  }});
  EXPECT_FALSE(forms.isLoaded(kGame));
}

TEST_F(BlocksTest, TheProgramMayEndInAGame) {
  playGame({[] {}, [this] { forms.endProgram(); }});
  EXPECT_TRUE(forms.isEnding());
}

TEST_F(BlocksTest, OptionsAreTakenAndWritten) {
  options.FillLines = true;
  openOptions([] {
    EXPECT_EQ(level()->text(), "");
    EXPECT_TRUE(control<QCheckBox>(kDialog, "chkFillLines")->isChecked());
    EXPECT_FALSE(control<QCheckBox>(kDialog, "chkPlaySounds")->isChecked());
    type("2.5");
    click(control<QCheckBox>(kDialog, "chkFillLines"));
    control<QCheckBox>(kDialog, "chkPlaySounds")->setChecked(true);
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
  for (const bool byEsc : {false, true}) {
    openOptions([byEsc] {
      type("3");
      control<QCheckBox>(kDialog, "chkPlaySounds")->setChecked(true);
      if (byEsc) strike(Qt::Key_Escape);
      if (!byEsc) click(control<Button>(kDialog, "Command1"));
    });
    EXPECT_FALSE(options.StartingLevel.has_value());
    EXPECT_FALSE(options.PlaySounds.has_value());
    EXPECT_FALSE(QFile::exists(settingsFile()));
  }
}

TEST_F(BlocksTest, ABadLevelIsToldOnceAndTheOldOneComesBack) {
  options.StartingLevel = 4;
  const std::vector<std::function<void()>> ways{
      [] { click(control<Button>(kDialog, "cmdOk")); },
      [] { strike(Qt::Key_Return); },
      [] {
        strike(Qt::Key_Tab);
        EXPECT_EQ(level()->text(), "4");
        click(control<Button>(kDialog, "cmdOk"));
      },
      [] { click(control<Button>(kDialog, "Command1")); },
  };
  for (const auto& way : ways) {
    for (const auto& [typed, told] : {std::pair{"10", " Číslo musí mať hodnotu medzi 1 a 9"},
                                      {"abc", "V poli LEVEL prosím zadajte číslo medzi 1 a 9"}}) {
      dialogs.shown.clear();
      dialogs.expect("Rátanka - hra TETRIS");
      openOptions([&, typed = typed] {
        level()->selectAll();
        type(typed);
        way();
      });
      ASSERT_EQ(dialogs.shown.size(), 1U);
      EXPECT_EQ(dialogs.shown.back().text, told);
      EXPECT_EQ(options.StartingLevel, 4);
    }
  }
}

TEST_F(BlocksTest, AnyMouseButtonThatLeavesABadLevelBringsItsBox) {
  dialogs.expect("Rátanka - hra TETRIS");
  openOptions([] {
    type("abc");
    QTest::mouseClick(control<QCheckBox>(kDialog, "chkFillLines"), Qt::RightButton);
    strike(Qt::Key_Return);
  });
}

TEST_F(BlocksTest, OptionsPauseAGame) {
  playGame({[this] { openOptions([] { strike(Qt::Key_Escape); }); }, [] {},
            [this] {
              EXPECT_EQ(caption(), "Rátanka - hra Tetris : Pauza");
              item("mnuEndGame")->trigger();
            }});
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
