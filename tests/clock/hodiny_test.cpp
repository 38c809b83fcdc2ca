#include "clock/hodiny.h"

#include <QLabel>

#include "form_driver.h"
#include "platform/controls/controls.h"
#include "shell/names.h"

namespace ratanka::clock {
namespace {

constexpr auto kQuestion = "Hodiny";

class HodinyTest : public FormTest {
 protected:
  HodinyTest() {
    forms.setMaker(names::Hodiny,
                   [this] { return std::make_shared<Hodiny>(forms, dialogs, time, settings); });
    makePlain(names::Malá);
    forms.show(names::Malá);
    forms.show(names::Hodiny);
    settle();
  }

  static Canvas* face() { return control<Canvas>(names::Hodiny, "picBackGround"); }
  static std::string counters() {
    std::string all;
    for (const char* name : {"Label1", "Label2", "Label3"}) {
      all += control<QLabel>(names::Hodiny, name)->text().toStdString() + ' ';
    }
    return all;
  }

  // The colour on the face, that many units from its middle.
  static QColor seen(double x, double y) {
    return face()->grab().toImage().pixelColor(qRound(119.5 + 59.75 * x), qRound(95 + 47.5 * y));
  }

  // A time with the hour hand in red, the minute hand in blue and the second hand in green.
  void showInColours(const TimeOfDay& now) {
    forms.unload(names::Hodiny);
    settings.values["Ciferka/Hands/mlHcolor"] = " 12";
    settings.values["Ciferka/Hands/mlMcolor"] = " 9";
    settings.values["Ciferka/Hands/mlScolor"] = " 10";
    forms.show(names::Hodiny);
    time.now = now;
    advance(100);
  }

  FakeClock time;
  FakeSettings settings;
};

TEST_F(HodinyTest, NeverTakesTheKeyboard) {
  EXPECT_TRUE(window(names::Hodiny)->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
  EXPECT_EQ(window(names::Hodiny)->size(), QSize(239, 190));
}

TEST_F(HodinyTest, CountsHowLongItHasBeenOpen) {
  EXPECT_EQ(counters(), "0 0 0 ");
  advance(59'000);
  EXPECT_EQ(counters(), "0 0 59 ");
  advance(2'000);
  EXPECT_EQ(counters(), "0 1 1 ");
  forms.unload(names::Hodiny);
  forms.show(names::Hodiny);
  EXPECT_EQ(counters(), "0 0 0 ");
}

TEST_F(HodinyTest, AsksBeforeItHidesAndCountsOnMeanwhile) {
  dialogs.expect(
      kQuestion, [this] { advance(5'000); }, Dialogs::Answer::no);
  click(face());
  settle();
  EXPECT_EQ(dialogs.shown.back().text, "Schovať hodiny?");
  EXPECT_TRUE(dialogs.shown.back().isNoPreset);
  EXPECT_EQ(counters(), "0 0 5 ");
  dialogs.expect(kQuestion, {}, Dialogs::Answer::yes);
  QTest::mouseClick(face(), Qt::RightButton);
  settle();
  EXPECT_FALSE(forms.isLoaded(names::Hodiny));
  EXPECT_EQ(ticks.running(), 0U);
  forms.unload(names::Hodiny);  // by the sheet that is left
}

TEST_F(HodinyTest, ShowsTheHandsWhereTheTimeSays) {
  showInColours({9, 0, 15});
  EXPECT_EQ(seen(-0.25, 0), QColor(255, 0, 0));  // the hour to the left, half as long
  EXPECT_NE(seen(-0.6, 0), QColor(255, 0, 0));
  EXPECT_EQ(seen(0, -0.6), QColor(0, 0, 255));  // the minute up
  EXPECT_EQ(seen(0.9, 0), QColor(0, 255, 0));   // the second to the right
  EXPECT_EQ(seen(0, 0), QColor(0, 255, 0));     // on top of all
}

TEST_F(HodinyTest, LaysTheHourOverTheMinuteAndTheSecondOverAll) {
  showInColours({12, 0, 30});
  EXPECT_EQ(seen(0, -0.25), QColor(255, 0, 0));
  EXPECT_EQ(seen(0, -0.75), QColor(0, 0, 255));
  EXPECT_EQ(seen(0, 0.2), QColor(0, 255, 0));
}

TEST_F(HodinyTest, DrawsOnlyWhenTheSecondHasChanged) {
  time.now = {10, 0, 0};  // counts as drawn already
  Paints paints(*face());
  advance(500);
  EXPECT_EQ(paints.count, 0);
  time.now = {10, 0, 1};
  advance(100);
  EXPECT_EQ(paints.count, 1);
  advance(800);
  EXPECT_EQ(paints.count, 1);
}

TEST_F(HodinyTest, PassesItsStoredColoursOnUnchanged) {
  forms.unload(names::Hodiny);
  EXPECT_EQ(settings.values["Ciferka/Hands/mlHcolor"], " 0");
  EXPECT_EQ(settings.values["Ciferka/Hands/mlScolor"], " 0");
  settings.values["Ciferka/Hands/mlHcolor"] = "4711";
  settings.values["Ciferka/Hands/mlMcolor"] = "nonsense";
  settings.values["Ciferka/Hands/mlScolor"] = "-7";
  forms.show(names::Hodiny);
  time.now = {9, 0, 15};
  advance(100);
  EXPECT_EQ(seen(-0.25, 0), QColor(Qt::black));
  forms.unload(names::Hodiny);
  EXPECT_EQ(settings.values["Ciferka/Hands/mlHcolor"], " 4711");
  EXPECT_EQ(settings.values["Ciferka/Hands/mlMcolor"], " 0");
  EXPECT_EQ(settings.values["Ciferka/Hands/mlScolor"], "-7");
}

}  // namespace
}  // namespace ratanka::clock
