#include <QLabel>
#include <QPushButton>
#include <algorithm>
#include <tuple>

#include "form_driver.h"
#include "platform/forms/form.h"
#include "shell/names.h"
#include "shell/splash.h"
#include "shell/uvod.h"

namespace ratanka {
namespace {

class MenuTest : public FormTest {
 protected:
  MenuTest() {
    forms.setMaker(names::frmSplash, [this] {
      return std::make_shared<frmSplash>(forms, dialogs, desktop, premenné);
    });
    forms.setMaker(names::Úvod, [this] {
      ++menusMade;
      return std::make_shared<Úvod>(forms);
    });
  }

  void start() {
    forms.show(names::frmSplash);
    settle();
  }

  int menusMade = 0;
  FakeDesktop desktop;
  Premenné premenné;
};

TEST_F(MenuTest, StartsWithTheMenuAloneAndRemembersTheScreen) {
  start();
  EXPECT_TRUE(dialogs.shown.empty());
  EXPECT_FALSE(forms.isLoaded(names::frmSplash));
  ASSERT_NE(window(names::Úvod), nullptr);
  EXPECT_TRUE(window(names::Úvod)->isActiveWindow());
  EXPECT_EQ(premenné.ŠírkaObrazovky, 1024);
  EXPECT_EQ(premenné.VýškaObrazovky, 768);
}

TEST_F(MenuTest, AdvisesBeforeTheMenuComes) {
  desktop.mode = {800, 600};
  dialogs.expect("Grafické nastavenie", [] { EXPECT_EQ(window(names::Úvod), nullptr); });
  start();
  ASSERT_EQ(dialogs.shown.size(), 1U);
  EXPECT_EQ(dialogs.shown[0].icon, MessageBox::Icon::information);
  EXPECT_TRUE(dialogs.shown[0].text.find("hodnotu  800 *  600\r\n") != std::string::npos);
  EXPECT_NE(window(names::Úvod), nullptr);
}

TEST_F(MenuTest, SaysWhatEachButtonIsForAndLeadsThere) {
  start();
  const std::tuple<const char*, QRgb, FormName> rows[] = {
      {"Command1", 0xffffffc0, names::Malá},       {"Command2", 0xff80ffff, names::Veľká},
      {"Command3", 0xff00ff00, names::Násobilka},  {"Command4", 0xffff00ff, names::Delenie},
      {"Command5", 0xffffffff, names::Veľkéčísla}, {"Command8", 0xffff0000, names::Zátvorky},
      {"Command9", 0xffffc0c0, names::Hádanka}};
  const QImage seen = window(names::Úvod)->grab().toImage();
  QPoint place(24, 16);
  int label = 2;
  for (const auto& [name, back, sheet] : rows) {
    SCOPED_TRACE(name);
    const auto listed = std::ranges::find(kSheetList, sheet, &ListedSheet::name);
    auto* const button = control<QPushButton>(names::Úvod, name);
    EXPECT_EQ(button->text(), listed->caption);
    EXPECT_EQ(button->toolTip(), listed->tooltip);
    EXPECT_EQ(button->pos(), place);
    EXPECT_EQ(seen.pixel(place + QPoint(4, 8)), back);
    const auto* const beside = control<QLabel>(names::Úvod, "Label" + QString::number(label++));
    EXPECT_EQ(beside->text(), listed->examples);
    EXPECT_EQ(beside->y(), place.y() + 8);
    EXPECT_GT(beside->x(), button->geometry().right());
    EXPECT_LE(beside->fontMetrics().horizontalAdvance(beside->text()), beside->width());
    place.ry() += 32;
    makePlain(sheet);
    click(button);
    settle();
    EXPECT_TRUE(forms.isLoaded(sheet));
    EXPECT_FALSE(forms.isLoaded(names::Úvod));
    forms.show(names::Úvod);
    forms.drop(sheet);
  }
}

TEST_F(MenuTest, IsCutSmoothlyWhereTheDesktopBlendsWindows) {
  start();
  const QImage seen = window(names::Úvod)->grab().toImage();
  EXPECT_EQ(seen.pixelColor(246, 100).alpha(), 0);
  EXPECT_EQ(seen.pixelColor(100, 280).alpha(), 0);
  EXPECT_EQ(seen.pixelColor(120, 14).alpha(), 255);
}

TEST_F(MenuTest, AButtonWithoutAFormDoesNothing) {
  start();
  for (QPushButton* const button : window(names::Úvod)->findChildren<QPushButton*>()) {
    click(button);
    settle();
    ASSERT_NE(window(names::Úvod), nullptr) << button->objectName().toStdString();
  }
  EXPECT_FALSE(forms.isEnding());
}

TEST_F(MenuTest, TheCardClosesAllButTheGames) {
  start();
  for (const FormName& name : {names::Vysvedčenie, names::Malá, names::Hodiny, names::Bludisko}) {
    makePlain(name);
  }
  for (const FormName& name : {names::Malá, names::Hodiny, names::Bludisko}) forms.show(name);
  click(control<QPushButton>(names::Úvod, "Command6"));
  settle();
  EXPECT_TRUE(forms.isLoaded(names::Vysvedčenie));
  EXPECT_TRUE(forms.isLoaded(names::Bludisko));
  for (const FormName& name : {names::Úvod, names::Malá, names::Hodiny}) {
    EXPECT_FALSE(forms.isLoaded(name)) << name.text();
  }
}

TEST_F(MenuTest, BothEnterKeysAndTheSpaceBarPressAButtonWhenTheyAreReleased) {
  for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    makePlain(names::Veľká);
    forms.show(names::Úvod);
    settle();
    control<QPushButton>(names::Úvod, "Command2")->setFocus();
    press(key);
    settle();
    EXPECT_FALSE(forms.isLoaded(names::Veľká));
    release(key);
    settle();
    EXPECT_TRUE(forms.isLoaded(names::Veľká));
    forms.show(names::Úvod);
    forms.drop(names::Veľká);
  }
}

TEST_F(MenuTest, StandsInTheMiddleAgainAfterItWasMoved) {
  start();
  const QPoint middle = window(names::Úvod)->pos();
  window(names::Úvod)->move(3, 4);
  makePlain(names::Malá);
  click(control<QPushButton>(names::Úvod, "Command1"));
  settle();
  forms.show(names::Úvod);
  EXPECT_EQ(window(names::Úvod)->pos(), middle);
  EXPECT_EQ(menusMade, 2);
}

}  // namespace
}  // namespace ratanka
