#include "clock/hodiny.h"

#include <QPainter>

#include "clock/rules/outline.h"
#include "platform/controls/controls.h"
#include "platform/controls/pictures.h"
#include "platform/forms/forms.h"
#include "platform/forms/timer.h"
#include "shell/names.h"

namespace ratanka::clock {
namespace {

constexpr PixelSize kPicture{239, 190};
constexpr int kHandWidth = 5;  // logical pixels

}  // namespace

Hodiny::Hodiny(Forms& forms, Dialogs& dialogs, const Clock& clock, SettingsStore& settings)
    : Form(forms, {.name = names::Hodiny,
                   .caption = "Hodiny",
                   .width = twips(kPicture.width),
                   .height = twips(kPicture.height),
                   .hasBorder = false,
                   .back = kInkColour,
                   .takesKeyboard = false,
                   .opening = Opening::unhidden}),
      dialogs_(dialogs),
      clock_(clock),
      settings_(settings) {}

void Hodiny::build() {
  picBackGround_ =
      addCanvas(client(), {.name = "picBackGround",
                           .place = {0, 0, twips(kPicture.width), twips(kPicture.height)},
                           .paint = [this](QPainter& painter, const QRect&) { paint(painter); },
                           .accessibleName = "Hodiny"});
  const auto counter = [this](const char* name, int left, std::optional<Rgb> back) {
    return addLabel(*picBackGround_, {.name = name,
                                      .place = {left, 1920, 255, 255},
                                      .caption = "0",
                                      .type = {.bold = true},
                                      .back = back,
                                      .align = Qt::AlignCenter});
  };
  counters_ = {counter("Label1", 1200, {}), counter("Label2", 1560, kWhite),
               counter("Label3", 2040, kWhite)};
  on(new Clicks(*picBackGround_), &Clicks::clicked, [this] { picBackGround_Click(); });
  for (Timer* const each : {timer("tmrClock", 100, [this] { tmrClock_Timer(); }),
                            timer("tmr", 1000, [this] { tmr_Timer(); })}) {
    each->setImpatient();  // time doesn't stop at a question
    each->setEnabled(true);
  }
}

void Hodiny::Form_Load() {
  cutTo(GetFormRegion(kOutline));
  lastSecond_ = 0;
  shown_.reset();
  elapsed_ = {};
  handColours_ = readHandColours(settings_);
}

void Hodiny::Form_Unload() { writeHandColours(settings_, handColours_); }

void Hodiny::tmrClock_Timer() {
  const TimeOfDay now = clock_.timeOfDay();
  if (now.second == lastSecond_) return;
  lastSecond_ = now.second;
  shown_ = now;
  picBackGround_->update();
}

void Hodiny::tmr_Timer() {
  elapsed_.tick();
  counters_[0]->setText(QString::number(elapsed_.hours()));
  counters_[1]->setText(QString::number(elapsed_.minutes()));
  counters_[2]->setText(QString::number(elapsed_.seconds()));
}

void Hodiny::picBackGround_Click() {
  const Dialogs::Answer answer = dialogs_.message(
      {.title = "Hodiny",
       .text = "Schovať hodiny?",
       .buttons = MessageBox::Buttons::yesNo,
       .isNoPreset = true});  // an Enter that was meant for the sheet hides nothing
  if (answer == Dialogs::Answer::yes) forms().drop(names::Hodiny);
}

void Hodiny::paint(QPainter& painter) const {
  const QSize size(kPicture.width, kPicture.height);
  painter.drawPixmap(0, 0, picture("clock", size, painter.device()->devicePixelRatioF()));
  if (!shown_) return;

  const QPointF middle(kPicture.width / 2.0, kPicture.height / 2.0);
  const auto draw = [&](double length, double angle, int colourIndex) {
    const Tip tip = handTip(length, angle);
    const QPointF end(middle.x() + tip.x * middle.x() / kFaceReach,
                      middle.y() + tip.y * middle.y() / kFaceReach);
    painter.setPen(
        QPen(colour(paletteColour(colourIndex)), kHandWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(middle, end);
  };
  const Angles angles = handAngles(*shown_);
  painter.setRenderHint(QPainter::Antialiasing);
  draw(kMinuteHand, angles.minute, handColours_[1]);
  draw(kHourHand, angles.hour, handColours_[0]);
  draw(kSecondHand, angles.second, handColours_[2]);
}

}  // namespace ratanka::clock
