#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <csignal>

#include "all_forms.h"
#include "blocks/kockovka_form.h"
#include "hasty_clock.h"
#include "maze/bludisko.h"
#include "platform/controls/controls.h"

namespace ratanka {
namespace {

constexpr FormName kBystander{"bystander"};

class BadMoments;
using Leave = std::function<void()>;

// A form as it waits, or with something of it on the stack: a box, a modal wait, a game.
struct Moment {
  std::string name;
  FormName form;
  // Brings the form there, and leaves while it lasts.
  std::function<void(BadMoments&, const Leave&)> reach;
  bool isUnderBox = false;  // which keeps the child's hands from the form
};

struct Way {
  std::string name;
  std::function<void(BadMoments&, FormName)> leave;
  enum class Leaves { nothingLoaded, nothingSeen, whatItLikes, noProgram } leaves;
  bool isByHand = false;
};

struct Pair {
  Moment moment;
  Way way;
};

// A bystander's window stays open: the program lives on where one form ends.
class BadMoments : public AllFormsTest, public testing::WithParamInterface<Pair> {
 public:
  BadMoments() {
    makePlain(kBystander);
    forms.setMaker(names::frmKockovka, [this] {
      return std::make_shared<blocks::frmKockovka>(forms, hasty_, random, sound, options);
    });
    forms.setMaker(names::Bludisko, [this] {
      return std::make_shared<maze::Bludisko>(forms, dialogs, clock, mazeFile().toStdString());
    });
    options.StartingLevel = 1;
    writeMaze("4,6\n######\n#sf.##\n##...#\n######\n");
    forms.show(kBystander);
  }
  ~BadMoments() override { forms.drop(kBystander); }

  QString mazeFile() const { return folder.filePath("bludisko.txt"); }
  void writeMaze(const QByteArray& maze) const {
    QFile file(mazeFile());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(maze);
  }

  void open(FormName form) {
    forms.show(form);
    settle();
    if (window(form) != nullptr && form != names::Hodiny) activate(*window(form));
  }
  // A box of that title comes up; the child leaves while it is open.
  void atBox(const std::string& title, const Leave& leave, const std::function<void()>& bringUp) {
    dialogs.expect(title, leave);
    bringUp();
  }
  // Goes on in an event of its own, inside the loop that begins meanwhile; a loop that the leaving
  // didn't end is ended after it.
  void insideLoopOf(FormName form, const Leave& leave, const std::function<void()>& begin) {
    QTimer::singleShot(0, qApp, [=, this] {
      leave();
      QTimer::singleShot(0, qApp, [=, this] {
        if (forms.isLoaded(form)) isStillThere_ = true;
        forms.drop(form);
      });
    });
    begin();
  }
  static void choose(FormName form, const char* item) {
    if (auto* const action = control<QAction>(form, item)) action->trigger();
  }
  static void push(FormName form, const char* button) {
    if (auto* const found = control<QWidget>(form, button)) click(found);
  }

  using AllFormsTest::activate;
  using AllFormsTest::advance;
  using AllFormsTest::click;
  using AllFormsTest::control;
  using AllFormsTest::dialogs;
  using AllFormsTest::forms;
  using AllFormsTest::midi;
  using AllFormsTest::random;
  using AllFormsTest::settle;
  using AllFormsTest::strike;
  using AllFormsTest::window;

 private:
  HastyClock hasty_;

 protected:
  bool isStillThere_ = false;  // the leaving left it, in the middle of its loop
};

void finishMaze(BadMoments& child) {
  child.open(names::Bludisko);
  BadMoments::strike(Qt::Key_Right);
}

void winPiškôrky(BadMoments& child) {
  child.open(names::Piškôrky);
  const auto play = [&](int cell, int reply) {
    child.random.draw(reply, 9);
    BadMoments::click(BadMoments::control<QLabel>(names::Piškôrky, QString("s(%1)").arg(cell)));
    child.advance(10);
  };
  play(0, 3);
  play(1, 6);
  BadMoments::click(BadMoments::control<QLabel>(names::Piškôrky, "s(2)"));
  child.advance(10);
}

void solvePuzzle(BadMoments& child) {
  child.open(names::frmPuzzle);
  BadMoments::control<QComboBox>(names::frmPuzzle, "cmbSize")->setCurrentText("3");
  // A walk of the hole up and down in turn, which ends one move from the order.
  for (int draw = 0; draw < 81; ++draw) child.random.draw(draw % 2 == 0 ? 2 : 3, 4);
  BadMoments::push(names::frmPuzzle, "cmdShuffle");
  child.advance(1000);
}

void playMatch(BadMoments& child, FormName form) {
  child.open(form);
  for (int second = 0; second < 91; ++second) child.advance(1000);
}

// Nothing stands between the child and the form.
void addOpenMoments(std::vector<Moment>& all) {
  for (const FormName form : allSeenForms()) {
    all.push_back({"quiet", form, [form](BadMoments& child, const Leave& leave) {
                     child.open(form);
                     child.advance(700);
                     leave();
                   }});
  }
  for (const FormName form : {names::frmOptions, names::frmSelectPlayer}) {
    all.push_back({"modal", form, [form](BadMoments& child, const Leave& leave) {
                     child.insideLoopOf(form, leave, [&] { child.forms.showModal(form); });
                   }});
  }
  all.push_back({"game", names::frmKockovka, [](BadMoments& child, const Leave& leave) {
                   child.open(names::frmKockovka);
                   child.insideLoopOf(names::frmKockovka, leave,
                                      [] { BadMoments::choose(names::frmKockovka, "mnuNewGame"); });
                 }});
}

void addBoxesOfSheets(std::vector<Moment>& all) {
  for (const sheets::SheetDesign& design : sheets::allSheets()) {
    const FormName form = design.name;
    all.push_back({"emptybox", form, [form](BadMoments& child, const Leave& leave) {
                     child.open(form);
                     child.atBox("Chyba - nebolo zadané číslo", leave,
                                 [] { BadMoments::strike(Qt::Key_Return); });
                   }});
    all.push_back({"nothingright", form, [form](BadMoments& child, const Leave& leave) {
                     child.open(form);
                     BadMoments::control<TextBox>(form, "Text9")->setFocus();
                     child.atBox("Rátanka pre najmenších", leave,
                                 [] { BadMoments::strike(Qt::Key_7); });
                   }});
  }
}

void addBoxesOfGames(std::vector<Moment>& all) {
  const auto addBox = [&all](FormName form, const char* title,
                             void (*bringUp)(BadMoments & child)) {
    all.push_back({"box", form, [=](BadMoments& child, const Leave& leave) {
                     child.atBox(title, leave, [&] { bringUp(child); });
                   }});
  };
  addBox(names::Hodiny, "Hodiny", [](BadMoments& child) {
    child.open(names::Hodiny);
    BadMoments::push(names::Hodiny, "picBackGround");
  });
  addBox(names::Bludisko, " Koniec Hry ", finishMaze);
  addBox(names::Bludisko, "Rátanka - hra Bludisko", [](BadMoments& child) {
    child.writeMaze("");
    child.open(names::Bludisko);
  });
  addBox(names::Piškôrky, "Piškôrky", winPiškôrky);
  addBox(names::Klavír, "Rátanka", [](BadMoments& child) {
    child.midi.result = 11;
    child.open(names::Klavír);
  });
  all.push_back({"input", names::Klavír, [](BadMoments& child, const Leave& leave) {
                   child.open(names::Klavír);
                   child.dialogs.expectInput("Výška tónu", "50", leave);
                   BadMoments::choose(names::Klavír, "base");
                 }});
  addBox(names::frmPuzzle, "Výsledková listina", [](BadMoments& child) {
    child.open(names::frmPuzzle);
    BadMoments::choose(names::frmPuzzle, "mnuHighScore");
  });
  all.push_back({"input", names::frmPuzzle, [](BadMoments& child, const Leave& leave) {
                   solvePuzzle(child);
                   child.dialogs.expectInput("Výsledková listina", "Ľubica", leave);
                   QTest::mousePress(BadMoments::control<QWidget>(names::frmPuzzle, "cmdButton(8)"),
                                     Qt::LeftButton);
                 }});
  addBox(names::frmOptions, "Rátanka - hra TETRIS", [](BadMoments& child) {
    child.open(names::frmOptions);
    auto* const level = BadMoments::control<TextBox>(names::frmOptions, "txtStartingLevel");
    level->setText("abc");
    level->setFocus();
    BadMoments::strike(Qt::Key_Return);
  });
  addBox(names::frmPlayer1, "Mini futbal",
         [](BadMoments& child) { playMatch(child, names::frmPlayer1); });
  addBox(names::frmPlayer2, "Duelbal",
         [](BadMoments& child) { playMatch(child, names::frmPlayer2); });
}

std::vector<Moment> moments() {
  std::vector<Moment> all;
  addOpenMoments(all);
  const auto open = static_cast<std::ptrdiff_t>(all.size());
  addBoxesOfSheets(all);
  addBoxesOfGames(all);
  std::for_each(all.begin() + open, all.end(), [](Moment& moment) { moment.isUnderBox = true; });
  return all;
}

// Presses those of the form's controls and menu items that can be pressed, until the form is gone.
// Whether there was one.
bool pushOwn(FormName form, std::initializer_list<const char*> controls) {
  bool isPushed = false;
  for (const char* const name : controls) {
    QWidget* const window = BadMoments::window(form);
    if (window == nullptr) break;
    auto* const item = window->findChild<QAction*>(name);
    auto* const found = window->findChild<QWidget*>(name);
    if (item != nullptr && item->isEnabled()) {
      isPushed = true;
      item->trigger();
    } else if (item == nullptr && found != nullptr && found->isVisible()) {
      isPushed = true;
      BadMoments::click(found);
    }
  }
  return isPushed;
}

// What comes up where the child leaves a form by the form's own exit, if anything does.
std::optional<FormName> afterItsExit(FormName form) {
  if (form == names::Úvod) return names::Vysvedčenie;
  if (form == names::frmPlayer1 || form == names::frmPlayer2) return names::frmStartUp;
  const std::vector<sheets::SheetDesign> all = sheets::allSheets();
  const bool isSheet = std::any_of(all.begin(), all.end(),
                                   [form](const auto& design) { return design.name == form; });
  return isSheet ? std::optional(names::Úvod) : std::nullopt;
}

void leaveByItsExits(BadMoments&, FormName form) {
  const bool hasExit =
      pushOwn(form, {"mnuExit", "imgEnd", "cmdOk", "Command6", "Command5", "Command3", "Command2"});
  if (!hasExit) return;
  EXPECT_EQ(BadMoments::window(form), nullptr);
  const std::optional<FormName> next = afterItsExit(form);
  EXPECT_TRUE(!next || BadMoments::window(*next) != nullptr);
}

const std::vector<Way>& ways() {
  using enum Way::Leaves;
  static const std::vector<Way> kWays{
      {"closed",
       [](BadMoments& child, FormName form) {
         // One that isn't seen yet, because it stands at a box while it loads, has no frame.
         QWidget* const window = BadMoments::window(form);
         if (window == nullptr) return;
         window->close();
         EXPECT_FALSE(child.forms.isLoaded(form));
       },
       whatItLikes},
      {"unloaded", [](BadMoments& child, FormName form) { child.forms.unload(form); },
       nothingLoaded},
      {"dropped", [](BadMoments& child, FormName form) { child.forms.drop(form); }, nothingLoaded},
      {"hidden", [](BadMoments& child, FormName form) { child.forms.hide(form); }, nothingSeen},
      {"minimised",
       [](BadMoments&, FormName form) {
         if (QWidget* const window = BadMoments::window(form)) window->showMinimized();
       },
       whatItLikes},
      {"escaped", [](BadMoments&, FormName) { BadMoments::strike(Qt::Key_Escape); }, whatItLikes,
       true},
      {"byItsExits", leaveByItsExits, whatItLikes, true},
      {"byItsMainButton",
       [](BadMoments&, FormName form) {
         pushOwn(form, {"Command1", "cmd2Player", "picOpponent(2)"});
       },
       whatItLikes, true},
      {"forTheMenu",
       [](BadMoments& child, FormName form) {
         child.forms.show(names::Úvod);
         child.forms.drop(form);
       },
       nothingLoaded},
      {"forTheCard",
       [](BadMoments& child, FormName) {
         child.forms.show(names::Úvod);
         BadMoments::push(names::Úvod, "Command6");
       },
       whatItLikes},
      {"byTheCard",
       [](BadMoments& child, FormName) {
         child.forms.show(names::Vysvedčenie);
         BadMoments::push(names::Vysvedčenie, "Command1");
       },
       noProgram},
      {"withTheProgram", [](BadMoments& child, FormName) { child.forms.endProgram(); }, noProgram},
      {"withTheSession",
       [](BadMoments&, FormName) {
         QEvent quit(QEvent::Quit);  // what the toolkit makes of a session that ends
         QCoreApplication::sendEvent(qApp, &quit);
       },
       noProgram},
      {"bySIGTERM", [](BadMoments&, FormName) { std::raise(SIGTERM); }, noProgram},
  };
  return kWays;
}

bool anyWindow() {
  const QWidgetList all = QApplication::topLevelWidgets();
  return std::any_of(all.begin(), all.end(), [](const QWidget* each) { return each->isVisible(); });
}

TEST_P(BadMoments, MayBeLeft) {
  const auto& [moment, way] = GetParam();
  const FormName form = moment.form;
  bool isReached = false;
  bool wasSeen = false;
  moment.reach(*this, [&, &leaving = way] {
    isReached = true;
    wasSeen = window(form) != nullptr;
    leaving.leave(*this, form);
    advance(5000);
  });
  settle();
  EXPECT_TRUE(isReached);

  using enum Way::Leaves;
  const bool isMenuAgain = way.name == "forTheMenu" && form == names::Úvod;
  if (way.leaves == nothingLoaded && !isMenuAgain) {
    EXPECT_FALSE(forms.isLoaded(form));
    EXPECT_FALSE(isStillThere_);
  }
  if (way.leaves == nothingSeen && wasSeen) {
    EXPECT_EQ(window(form), nullptr);
  }
  EXPECT_TRUE(way.leaves != noProgram || forms.isEnding());
  // What the form likes may be the end of the program.
  if (forms.isEnding()) {
    EXPECT_NE(way.leaves, nothingLoaded);
    EXPECT_NE(way.leaves, nothingSeen);
    EXPECT_FALSE(anyWindow());
    return;
  }
  EXPECT_NE(window(kBystander), nullptr);

  // It comes again as new, and its time goes by.
  if (!QFile(mazeFile()).size()) writeMaze("4,6\n######\n#s.f##\n##...#\n######\n");
  midi.result = 0;
  forms.drop(form);
  settle();
  EXPECT_EQ(window(form), nullptr);
  forms.show(form);
  settle();
  EXPECT_NE(window(form), nullptr);
  advance(1500);
}

// Names of tests are plain letters.
std::string plain(std::string_view name) {
  std::string result;
  for (const char sign : name) {
    if (std::isalnum(static_cast<unsigned char>(sign)) != 0) result += sign;
  }
  return result;
}

std::vector<Pair> pairs() {
  std::vector<Pair> all;
  for (const Moment& moment : moments()) {
    for (const Way& way : ways()) {
      if (!moment.isUnderBox || !way.isByHand) all.push_back({moment, way});
    }
  }
  return all;
}

std::string nameOf(const testing::TestParamInfo<Pair>& each) {
  const Moment& moment = each.param.moment;
  return std::to_string(each.index) + plain(moment.form.text()) + "_" + moment.name + "_" +
         each.param.way.name;
}

INSTANTIATE_TEST_SUITE_P(All, BadMoments, testing::ValuesIn(pairs()), nameOf);

}  // namespace
}  // namespace ratanka
