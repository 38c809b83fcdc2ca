#pragma once

#include <array>
#include <optional>

#include "clock/rules/elapsed_time.h"
#include "clock/rules/hands.h"
#include "platform/forms/form.h"
#include "platform/ports/clock.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/settings_store.h"

class QLabel;
class QPainter;

namespace ratanka {
class Canvas;
}

namespace ratanka::clock {

// The companion of the sheets: the time of the day on a face, and how long it has been open. It
// never takes the keyboard from the sheet.
class Hodiny : public Form {
 public:
  Hodiny(Forms& forms, Dialogs& dialogs, const Clock& clock, SettingsStore& settings);

 protected:
  void build() override;
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void tmrClock_Timer();
  void tmr_Timer();
  void picBackGround_Click();
  void paint(QPainter& painter) const;

  Dialogs& dialogs_;
  const Clock& clock_;
  SettingsStore& settings_;

  HandColours handColours_{};
  int lastSecond_ = 0;
  std::optional<TimeOfDay> shown_;  // nothing before the first drawing
  ElapsedTime elapsed_;

  Canvas* picBackGround_ = nullptr;
  std::array<QLabel*, 3> counters_{};  // hours, minutes, seconds
};

}  // namespace ratanka::clock
