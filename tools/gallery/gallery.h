#pragma once

#include <QApplication>
#include <QString>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <initializer_list>
#include <vector>

#include "platform/base/data_files.h"
#include "platform/forms/qt_dialogs.h"
#include "platform/forms/qt_ticks.h"
#include "platform/plain/twister_random.h"
#include "platform/settings/ini_settings_store.h"
#include "program.h"
#include "sheets/sheet_design.h"

namespace ratanka {

// A clock that somebody has set.
class StandingClock : public Clock {
 public:
  TimeOfDay timeOfDay() const override { return now; }
  double secondsSinceMidnight() const override { return 0; }
  TimeOfDay now;
};

// Chance that picks the told cells of nine.
class ToldReplies : public Random {
 public:
  double next() override {
    const int cell = cells.empty() ? 0 : cells.front();
    if (!cells.empty()) cells.erase(cells.begin());
    return (cell + 0.5) / 9;
  }
  void reseedFromClock() override {}
  std::vector<int> cells;
};

// A machine without sound.
class Silence : public Sound, public MidiOut {
 public:
  void PlayWave(std::string_view) override {}
  void openMusic(std::string_view) override {}
  void playMusic() override {}
  void closeMusic() override {}
  int midiOutGetNumDevs() override { return 0; }
  std::string midiOutGetDevCapsA(int) override { return {}; }
  int midiOutOpen(int) override { return 0; }
  void midiOutShortMsg(std::uint32_t) override {}
  void midiOutClose() override {}
};

inline constexpr int kPatience = 400;  // milliseconds, for the book to have turned to a page

// Shows every form in its telling states and writes a picture of each.
class Gallery {
 public:
  Gallery(QString folder, QString suffix);

  void show();

 private:
  // What a child learns with: menu, sheets, card, clock.
  void showMenu();
  void showSheet(const sheets::SheetDesign& design, int mistakes);
  void showCard();
  void showClock();

  // What a child earns.
  void showMaze();
  void showPiškôrky();
  void playGame(std::initializer_list<int> moves, std::initializer_list<int> replies,
                const QString& end);
  void showSoccer();
  void showBlocks();
  void showPuzzle();
  void showPiano();

  QWidget& window(FormName name) const;
  template <typename Control>
  Control& control(FormName name, const QString& control) const {
    return *window(name).findChild<Control*>(control);
  }
  void answer(FormName name, int row, const QString& typed);
  void press(FormName name, int key);
  void wait(int milliseconds);
  // Of a form, once what moves on it has settled.
  void take(FormName name, const QString& state);
  // Of the box that comes up meanwhile, which is then closed.
  void takeBox(const QString& name);
  void save(QWidget& widget, const QString& name);

  QString folder_;
  QString suffix_;
  QtTicks ticks_;
  Forms forms_{ticks_};
  QtDialogs dialogs_{forms_};
  StandingClock time_;
  const QTemporaryDir home_;
  IniSettingsStore settings_{home_.path()};
  ToldReplies replies_;
  TwisterRandom random_;
  Silence silence_;
  PrimaryScreen desktop_;
  Program program_{forms_,
                   {.dialogs = dialogs_,
                    .desktop = desktop_,
                    .clock = time_,
                    .settings = settings_,
                    .random = random_,
                    .sound = silence_,
                    .midiOut = silence_,
                    .mazeFile = dataFile("bludisko.txt"),
                    .settingsFile = home_.filePath("Kockovka32.ini")}};
};

}  // namespace ratanka
