#include <QLabel>
#include <QPushButton>

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

TEST_F(MenuTest, SaysWhatEachButtonIsFor) {
  start();
  const struct {
    const char *button, *caption, *tooltip;
    QRgb back;
    const char* examples;
    int left;  // of the examples
  } rows[] = {
      {"Command1", "1.....20", " Malé počty ", 0xffffffc0, "1+1 = ?  6 - 2 = ?...", 96},
      {"Command2", "1.....200", " Veľké počty ", 0xff80ffff, "10+25 = ?   37-15 = ?...", 96},
      {"Command3", "A x B", " Násobenie ", 0xff00ff00, "2 x 4 = ?   6 x 5 = ? ...", 96},
      {"Command4", "A : B", " Delenie ", 0xffff00ff, "4 : 2 = ?   8 : 4 = ?...", 96},
      {"Command5", "1......X", " Malá rátanka ", 0xffffffff, "1+1-2+8 - 11 = ?...", 96},
      {"Command8", "1.........X", " Veľká rátanka ", 0xffff0000, "(1+25) - (11-2) + 9 = ?...", 88},
      {"Command9", "1..........?", " Logická rátanka ", 0xffffc0c0, "1 + ? = 5     12 - ? = 2...",
       96}};
  const QImage seen = window(names::Úvod)->grab().toImage();
  QPoint place(24, 16);
  int label = 2;
  for (const auto& row : rows) {
    const auto* const button = control<QPushButton>(names::Úvod, row.button);
    EXPECT_EQ(button->text(), row.caption);
    EXPECT_EQ(button->toolTip(), row.tooltip);
    EXPECT_EQ(button->pos(), place);
    EXPECT_EQ(seen.pixel(place + QPoint(4, 8)), row.back) << row.button;
    const auto* const beside = control<QLabel>(names::Úvod, "Label" + QString::number(label++));
    EXPECT_EQ(beside->text(), row.examples);
    EXPECT_EQ(beside->pos(), QPoint(row.left, place.y() + 8));
    place.ry() += 32;
  }
}

TEST_F(MenuTest, IsCutSmoothlyWhereTheDesktopBlendsWindows) {
  start();
  const QImage seen = window(names::Úvod)->grab().toImage();
  EXPECT_EQ(seen.pixelColor(246, 100).alpha(), 0);
  EXPECT_EQ(seen.pixelColor(100, 280).alpha(), 0);
  EXPECT_EQ(seen.pixelColor(120, 14).alpha(), 255);
}

TEST_F(MenuTest, EachButtonHandsOverToItsSheet) {
  const std::pair<const char*, FormName> sheets[] = {
      {"Command1", names::Malá},    {"Command2", names::Veľká},      {"Command3", names::Násobilka},
      {"Command4", names::Delenie}, {"Command5", names::Veľkéčísla}, {"Command8", names::Zátvorky},
      {"Command9", names::Hádanka}};
  for (const auto& [button, sheet] : sheets) {
    makePlain(sheet);
    forms.show(names::Úvod);
    click(control<QPushButton>(names::Úvod, button));
    settle();
    EXPECT_TRUE(forms.isLoaded(sheet)) << button;
    EXPECT_FALSE(forms.isLoaded(names::Úvod)) << button;
    forms.show(names::Úvod);
    forms.drop(sheet);
  }
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
