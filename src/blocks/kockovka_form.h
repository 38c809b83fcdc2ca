#pragma once

#include "blocks/rules/kockovka.h"
#include "platform/forms/form.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/sound.h"

class QAction;
class QLabel;
class QPainter;
class QRect;

namespace ratanka::blocks {

// The window of the falling blocks. A game runs inside the click on its new-game item; whatever
// else happens meanwhile, the end of this window among it, comes from the events that the engine
// lets through.
class frmKockovka : public Form, private Stage {
 public:
  frmKockovka(Forms& forms, const Clock& clock, Random& random, Sound& sound,
              const Options& options);

 protected:
  void build() override;
  void Form_Resize() override;
  void Form_Unload() override;
  void Form_KeyDown(int keyCode) override { game_.keyDown(keyCode); }

 private:
  void buildBoard();
  void buildLabels();
  void buildMenu();
  void paintBoard(QPainter& painter, const QRect& exposed) const;

  void mnuNewGame_Click() { game_.StartGame(); }
  void mnuOptions_Click();
  void mnuExit_Click();

  // What the engine asks for.
  void DrawBoard(const Well& board, const Well& oldBoard) override;
  void repaintBoard() override;
  void showNext(int kind) override;
  void write(Label label, const std::string& text) override;
  void setCaption(std::string_view caption) override;
  void setMenu(bool isInGame) override;
  WindowState windowState() const override;
  void PlayEffect(std::string_view file) override { sound_.PlayWave(file); }
  void MusicOpenAndPlay() override;
  void MusicPlay() override { MusicOpenAndPlay(); }
  void MusicClose() override { sound_.closeMusic(); }
  void letEventsThrough() override;
  void awaitEvents(double seconds) override;
  void endWithTheProgram();

  Sound& sound_;
  Kockovka game_;
  Well drawn_;  // what the board shows
  int next_ = 0;
  QWidget* picBoard_ = nullptr;
  QWidget* picNext_ = nullptr;
  QLabel* lblScore_ = nullptr;
  QLabel* lblLines_ = nullptr;
  QLabel* lblLevel_ = nullptr;
  QAction* mnuNewGame_ = nullptr;
  QAction* mnuPause_ = nullptr;
  QAction* mnuEndGame_ = nullptr;
};

}  // namespace ratanka::blocks
