#include "report/vysvedcenie.h"

#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "form_driver.h"
#include "shell/names.h"
#include "shell/uvod.h"

namespace ratanka::report {
namespace {

class CardTest : public FormTest {
 protected:
  CardTest() {
    forms.setMaker(names::Vysvedčenie,
                   [this] { return std::make_shared<Vysvedčenie>(forms, premenné); });
    forms.setMaker(names::Úvod, [this] { return std::make_shared<Úvod>(forms); });
  }

  // The marks of the card from its first line to its last, as they stand on it.
  static std::string marks() {
    std::map<int, std::string> lines;
    for (const QLabel* const label : window(names::Vysvedčenie)->findChildren<QLabel*>()) {
      if (label->text().size() == 1) lines[label->y()] += label->text().toStdString();
    }
    std::string all;
    for (const auto& line : lines) all += line.second;
    return all;
  }

  Premenné premenné;
};

TEST_F(CardTest, IsEmptyAtFirst) {
  forms.show(names::Vysvedčenie);
  EXPECT_EQ(marks(), "0000000");
  EXPECT_EQ(control<QLabel>(names::Vysvedčenie, "Label14")->accessibleName(),
            "Logická rátanka: bez známky");
}

TEST_F(CardTest, ReadsEachSheetIntoItsLine) {
  premenné = {.PercentoDelenie = 19.99,
              .PercentoMalá = 20,
              .PercentoNásobilka = 60,
              .PercentoVeľká = 40,
              .PercentoVeľkéčísla = 100,
              .PercentoZátvorky = 0.99,
              .PercentoHádanka = 79};
  forms.show(names::Úvod);
  click(control<QPushButton>(names::Úvod, "Command6"));
  settle();
  EXPECT_EQ(window(names::Úvod), nullptr);
  EXPECT_EQ(marks(), "5432102");
  int above = 0;
  for (const char* name : {"Label1", "Label2", "Label4", "Label3", "Label5", "Label6", "Label13"}) {
    const auto listed =
        std::ranges::find(kSheetList, std::string_view(name), &ListedSheet::titleLabel);
    const QLabel* const line = control<QLabel>(names::Vysvedčenie, name);
    // A sheet is called as in the menu.
    EXPECT_TRUE(line->text().startsWith(QString(listed->tooltip).trimmed())) << name;
    EXPECT_GT(line->y(), above);
    above = line->y();
  }
  premenné.PercentoDelenie = 100;  // read once
  EXPECT_EQ(marks(), "5432102");
}

TEST_F(CardTest, TheDesktopClosesTheMenuForTheCardAndTheCardForGood) {
  forms.show(names::Úvod);
  window(names::Úvod)->close();
  settle();
  EXPECT_EQ(window(names::Úvod), nullptr);
  ASSERT_NE(window(names::Vysvedčenie), nullptr);
  forms.show(names::Úvod);
  window(names::Vysvedčenie)->close();
  EXPECT_TRUE(forms.isEnding());
}

TEST_F(CardTest, ItsButtonEndsTheProgramFromAnyState) {
  forms.show(names::Úvod);
  forms.show(names::Vysvedčenie);
  dialogs.expect("box", [this] {
    click(control<QPushButton>(names::Vysvedčenie, "Command1"));
    EXPECT_TRUE(forms.isEnding());
  });
  dialogs.message({.title = "box", .text = ""});
  EXPECT_FALSE(forms.isLoaded(names::Vysvedčenie));
  EXPECT_EQ(window(names::Úvod), nullptr);
}

}  // namespace
}  // namespace ratanka::report
