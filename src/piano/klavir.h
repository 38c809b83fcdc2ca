#pragma once

#include <array>
#include <vector>

#include "piano/rules/piano.h"
#include "platform/forms/form.h"
#include "platform/ports/dialogs.h"

class QAbstractButton;
class QAction;
class QScrollBar;

namespace ratanka::piano {

// A small keyboard for the computer's keys and the mouse, played on a MIDI output.
class Klavír : public Form {
 public:
  Klavír(Forms& forms, Dialogs& dialogs, MidiOut& midiOut);

 protected:
  void build() override;
  void Form_Load() override;
  void Form_Unload() override;
  void Form_KeyDown(int keyCode) override;
  void Form_KeyUp(int keyCode) override;
  void keyboardLeaves() override;

 private:
  void buildKeys();
  void buildVolume();
  void buildMenu();

  void key_Touched(int index, bool isDown);
  void device_Click(int index);
  void chan_Click(int index);
  void base_Click();
  void vol_Change();
  void tellWhetherOpened(bool isOpened);
  void refresh();

  Dialogs& dialogs_;
  Piano piano_;
  std::array<QAbstractButton*, kKeys> key_{};
  std::vector<QAction*> device_;
  std::vector<QAction*> chan_;
  QScrollBar* vol_ = nullptr;
};

}  // namespace ratanka::piano
