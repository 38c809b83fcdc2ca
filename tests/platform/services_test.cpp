#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <iostream>

#include "platform/forms/desktop.h"
#include "platform/forms/end_requests.h"
#include "platform/forms/free_place.h"
#include "platform/forms/qt_ticks.h"
#include "platform/forms/system_clock.h"
#include "platform/settings/ini_settings_store.h"

namespace ratanka {
namespace {

class SettingsTest : public testing::Test {
 protected:
  // What a program started later reads.
  std::string readAnew(std::string_view key, std::string_view fallback = "none") const {
    return IniSettingsStore(folder.path()).read("Rátanka - hra Pucle", "Pucle", key, fallback);
  }
  QString file() const { return folder.filePath("Rátanka - hra Pucle.ini"); }

  QTemporaryDir folder;
  IniSettingsStore store{folder.path()};
};

TEST_F(SettingsTest, KeepsTextsAsTheyAre) {
  for (const char* value : {" 0", "", "Žofka, Ľubo; \"a\" = %1\\", "17 ", "1,2", "@x", "a\nb"}) {
    store.write("Rátanka - hra Pucle", "Pucle", "3Hráč", value);
    EXPECT_EQ(readAnew("3Hráč"), value);
  }
  EXPECT_EQ(readAnew("3"), "none");
  EXPECT_EQ(readAnew("4", ""), "");
  EXPECT_EQ(store.read("Ciferka", "Pucle", "3Hráč", "none"), "none");
  EXPECT_EQ(store.read("Rátanka - hra Pucle", "Hands", "3Hráč", "none"), "none");
}

TEST_F(SettingsTest, AReadCreatesNothing) {
  EXPECT_EQ(readAnew("3"), "none");
  EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(SettingsTest, NonsenseInTheFileIsReadAsFarAsItGoes) {
  QFile nonsense(file());
  ASSERT_TRUE(nonsense.open(QIODevice::WriteOnly));
  nonsense.write(QByteArrayLiteral("[Pucle]\n3=a, b\n=\n]][\0\xff\xfe[Pucle\n5\n6=@Variant("));
  // A list in a list in a list, for a toolkit that would unpack them.
  nonsense.write(QByteArray("\0\0\0\x9\0\0\0\x1", 8).repeated(50000) + ")\n");
  nonsense.close();
  EXPECT_EQ(readAnew("3"), "a, b");
  EXPECT_EQ(readAnew("4"), "none");
  store.write("Rátanka - hra Pucle", "Pucle", "4", "20");
  EXPECT_EQ(readAnew("4"), "20");
  EXPECT_EQ(readAnew("3"), "a, b");
  EXPECT_TRUE(readAnew("6").starts_with("@Variant("));
}

TEST_F(SettingsTest, AFolderThatCannotBeWrittenForgetsInSilence) {
  // A file where the folder should be: not even an administrator writes below it.
  QFile obstacle(folder.filePath("obstacle"));
  ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
  obstacle.close();
  IniSettingsStore blocked(folder.filePath("obstacle/ratanka"));
  blocked.write("Ciferka", "Hands", "mlHcolor", " 4");
  EXPECT_EQ(blocked.read("Ciferka", "Hands", "mlHcolor", "none"), "none");
}

TEST(Screen, ModesComeOutInTheirOwnPixels) {
  for (const int length : {480, 600, 768, 800, 864, 900, 1024, 1050, 1080, 1280, 1366, 1440, 1600,
                           1680, 1920, 2160, 2560, 3840}) {
    for (const double magnification : {1.0, 1.25, 1.5, 1.75, 2.0}) {
      const int logical = qRound(length / magnification);
      EXPECT_EQ(modeLength(logical, magnification), length) << magnification;
    }
  }
  EXPECT_EQ(modeLength(1023, 1), 1023);
}

TEST(Screen, WindowsGrowWithTheTextsAsLongAsTheyFit) {
  const struct {
    double wanted;
    PixelSize area;
    double found;
  } cases[] = {{1, {640, 480}, 1},       {1.5, {640, 480}, 1},    {1.1, {1024, 768}, 1.1},
               {1.5, {1024, 768}, 1.25}, {2, {1024, 740}, 1.125}, {1.5, {1280, 1024}, 1.5},
               {2.5, {1280, 1024}, 1.5}};
  for (const auto& [wanted, area, found] : cases) {
    EXPECT_EQ(fittingMagnification(wanted, area), found) << wanted << " of " << area.width;
  }
}

TEST(Screen, AFreePlaceHidesLeastAndIsNearTheWish) {
  const QRect screen(0, 0, 1000, 800);
  const QRect page(300, 100, 400, 600);
  const struct {
    QSize size;
    std::vector<Kept> kept;
    QPoint wish, found;
  } cases[] = {{{200, 100}, {{page}}, {50, 350}, {50, 350}},    // hides nothing
               {{200, 100}, {{page}}, {450, 350}, {700, 350}},  // beside
               {{400, 100}, {{page}}, {310, 350}, {310, 0}},    // above
               {{500, 700}, {{page}, {{600, 300, 50, 50}, 16}}, {250, 50}, {0, 50}},
               {{500, 700}, {{page}, {{350, 300, 50, 50}, 16}}, {250, 50}, {500, 50}},
               {{1200, 900}, {{page}}, {-100, -50}, {0, 0}}};
  for (const auto& [size, kept, wish, found] : cases) {
    EXPECT_EQ(freePlace(size, screen, kept, wish), found) << size.width();
  }
}

TEST(SystemClock, SpeaksOfTheSameMoment) {
  const SystemClock clock;
  const double before = clock.secondsSinceMidnight();
  const TimeOfDay now = clock.timeOfDay();
  const double after = clock.secondsSinceMidnight();
  const int seconds = (now.hour * 60 + now.minute) * 60 + now.second;
  if (after < before) GTEST_SKIP() << "midnight";
  EXPECT_GE(seconds + 1, before);
  EXPECT_LE(seconds, after);
}

TEST(EndRequests, ASecondSignalEndsAProgramThatDoesNotFollowTheFirst) {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    const auto hang = [&] {
      const EndRequests requests([] {});
      raise(signal);
      std::cerr << "goes on";
      raise(signal);
    };
    EXPECT_EXIT(hang(), testing::KilledBySignal(signal), "goes on");
  }
}

TEST(QtTicks, TickUntilTheirSourceIsGoneWhichMayBeInATick) {
  QtTicks ticks;
  int count = 0;
  std::unique_ptr<Ticks::Source> source;
  source = ticks.every(std::chrono::milliseconds(2), Ticks::Precision::any, [&] {
    if (++count == 3) source.reset();
  });
  EXPECT_TRUE(QTest::qWaitFor([&] { return count == 3; }, 5000));
  QTest::qWait(20);
  EXPECT_EQ(count, 3);
}

}  // namespace
}  // namespace ratanka
