#pragma once

#include <QString>
#include <span>
#include <string>

#include "platform/forms/form.h"
#include "platform/ports/dialogs.h"
#include "soccer/rules/match.h"

class QAction;
class QLabel;

namespace ratanka::soccer {

// A key that holds a direction of one of the players.
struct PlayerKey {
  int code;  // platform/keyboard/keys.h
  Held Match::*player;
  bool Held::*direction;
};

// The window of a match: the pitch, the pieces, the goals, the clock and the menu. What the two
// kinds of match add, their keys, their words and the computer, stands with them.
class MatchForm : public Form {
 protected:
  struct MatchDesign {
    FormName name;
    QString caption;
    int width = 0;  // twips, of the client area
    int height = 0;
    int clockLeft = 0;
    std::span<const PlayerKey> keys;
  };

  MatchForm(Forms& forms, Dialogs& dialogs, Declarations& declarations, const MatchDesign& design);

  void build() override;
  void Form_Load() override;
  void Form_Activate() override { mnuNewGame_Click(); }
  void Form_KeyDown(int keyCode) override;
  void Form_KeyUp(int keyCode) override;
  void keyboardLeaves() override;

  virtual void StartMatch();
  // The kick-off after a goal.
  virtual void kickedOff() {}
  virtual MessageBox result() const = 0;
  virtual std::string clockText() const = 0;

  Match& match() { return match_; }
  const Match& match() const { return match_; }
  const Declarations& declarations() const { return declarations_; }

 private:
  void buildPitch();
  void buildPieces();
  void buildLabels();
  void buildMenu();
  void buildTimers();
  void hold(int keyCode, bool isDown);

  void tmrMovePlayers_Timer();
  void tmrMoveBall_Timer();
  void tmrCountdown_Timer();
  void mnuNewGame_Click();
  void mnuPause_Click();
  void mnuExit_Click();
  void startCountdown();
  void refreshPieces();
  void refresh();

  Dialogs& dialogs_;
  Declarations& declarations_;
  FormName name_;
  int clockLeft_;
  std::span<const PlayerKey> keys_;
  Match match_;
  QWidget* red_ = nullptr;
  QWidget* blue_ = nullptr;
  QWidget* ball_ = nullptr;
  QLabel* redGoals_ = nullptr;
  QLabel* blueGoals_ = nullptr;
  QLabel* lblTime_ = nullptr;
  QAction* mnuPause_ = nullptr;
  Timer* tmrCountdown_ = nullptr;
};

}  // namespace ratanka::soccer
