#include "platform/forms/forms.h"

#include <QPushButton>

#include "form_driver.h"
#include "platform/controls/controls.h"
#include "platform/controls/menus.h"
#include "platform/forms/desktop.h"
#include "platform/forms/form.h"
#include "platform/forms/timer.h"

namespace ratanka {
namespace {

constexpr FormName kFirst{"first"};
constexpr FormName kSecond{"second"};

// A form whose handlers do what the test says.
class TestForm : public Form {
 public:
  struct Script {
    std::function<void(TestForm&)> load, unload, click, tick, activate;
    std::vector<std::string> events;
    TestForm* form = nullptr;  // the last that was made
  };

  TestForm(Forms& forms, FormName name, Script& script)
      : Form(forms, {.name = name, .width = 3000, .height = 1500, .hasMenu = true}),
        script_(script) {
    script.form = this;
  }
  ~TestForm() override { script_.events.emplace_back("drop"); }

  int variable = 0;
  std::vector<std::string> keys;
  QLabel* label = nullptr;
  Timer* clock = nullptr;

 protected:
  void build() override {
    label = addLabel(client(), {.name = "Label1", .place = {0, 0, 600, 300}, .caption = "0"});
    QPushButton* const button =
        addButton(client(), {.name = "Command1", .place = {0, 300, 600, 600}});
    on(button, &QPushButton::clicked, [this] { run("click", script_.click); });
    clock = timer("Timer1", 100, [this] { run("tick", script_.tick); });
    clock->setEnabled(true);
    QMenu* const menu = addMenu(menuBar(), "mnuFile", "&Menu");
    QAction* const item =
        addMenuItem(*menu, {.name = "mnuItem", .caption = "&Item", .shortcut = Qt::Key_F2});
    on(item, &QAction::triggered, [this] { run("item", {}); });
  }
  void Form_Load() override { run("load", script_.load); }
  void Form_Unload() override { run("unload", script_.unload); }
  void Form_Activate() override {
    if (script_.activate) script_.activate(*this);
  }
  void Form_KeyDown(int keyCode) override { keys.push_back("down " + std::to_string(keyCode)); }
  void Form_KeyUp(int keyCode) override { keys.push_back("up " + std::to_string(keyCode)); }
  void keyboardLeaves() override { keys.emplace_back("leaves"); }

 private:
  void run(const char* event, const std::function<void(TestForm&)>& action) {
    script_.events.emplace_back(event);
    if (action) action(*this);
  }

  Script& script_;
};

using Events = std::vector<std::string>;

class FormsTest : public FormTest {
 protected:
  FormsTest() {
    for (TestForm::Script* const script : {&first, &second}) {
      const FormName name = script == &first ? kFirst : kSecond;
      forms.setMaker(name, [=, this] { return std::make_shared<TestForm>(forms, name, *script); });
    }
  }

  ~FormsTest() override {
    for (const FormName& name : {kFirst, kSecond}) forms.drop(name);
    settle();
  }

  void clickButton(FormName name) {
    click(control<QPushButton>(name, "Command1"));
    settle();
  }

  TestForm::Script first;
  TestForm::Script second;
};

TEST_F(FormsTest, AnUnloadedFormKeepsItsVariablesAndADroppedOneDoesNot) {
  forms.show(kSecond);
  std::vector<int> seen;
  first.load = [&](TestForm& form) {
    seen.push_back(form.variable++);
    EXPECT_EQ(form.label->text(), "0");
    form.label->setText("1");
  };
  forms.show(kFirst);
  forms.show(kFirst);  // is loaded: only comes up
  forms.unload(kFirst);
  forms.unload(kFirst);  // isn't there: passed over
  forms.show(kFirst);
  forms.unload(kFirst);
  forms.drop(kFirst);
  forms.show(kFirst);
  EXPECT_EQ(seen, (std::vector<int>{0, 1, 0}));
  EXPECT_EQ(first.events, (Events{"load", "unload", "load", "unload", "drop", "load"}));
}

TEST_F(FormsTest, AHiddenFormTicksOnFourTimesASecondAtMost) {
  forms.show(kSecond);
  forms.show(kFirst);
  forms.hide(kFirst);
  EXPECT_TRUE(forms.isLoaded(kFirst));
  EXPECT_EQ(window(kFirst), nullptr);
  advance(500);
  EXPECT_EQ(first.events, (Events{"load", "tick", "tick"}));
  forms.show(kFirst);
  advance(200);
  EXPECT_EQ(first.events.size(), 5U);
  forms.unload(kFirst);
  advance(1000);
  EXPECT_EQ(first.events.size(), 6U);
}

TEST_F(FormsTest, AFormIsToldWhenAnotherOfTheProgramWasActiveBeforeIt) {
  int activations = 0;
  first.activate = [&](TestForm&) { ++activations; };
  forms.show(kFirst);
  EXPECT_EQ(activations, 1);
  activate(*window(kFirst));
  QWidget box;  // a box, or another program
  box.show();
  activate(box);
  activate(*window(kFirst));
  EXPECT_EQ(activations, 1);

  forms.show(kSecond);
  activate(*window(kSecond));
  EXPECT_EQ(activations, 1);
  activate(*window(kFirst));
  EXPECT_EQ(activations, 2);
  forms.hide(kFirst);
  forms.show(kFirst);
  EXPECT_EQ(activations, 3);
}

TEST_F(FormsTest, AFormSeesKeysBeforeTheControlThatHasTheKeyboard) {
  first.click = [&](TestForm&) { EXPECT_EQ(first.form->keys, (Events{"down 32", "up 32"})); };
  forms.show(kFirst);
  activate(*window(kFirst));
  control<QPushButton>(kFirst, "Command1")->setFocus();
  strike(Qt::Key_Space);
  EXPECT_EQ(first.events, (Events{"load", "click"}));
}

TEST_F(FormsTest, AFormIsToldThatTheKeyboardLeavesIt) {
  forms.show(kFirst);
  activate(*window(kFirst));
  press(Qt::Key_A);
  QWidget box;
  box.show();
  activate(box);
  EXPECT_EQ(first.form->keys, (Events{"down 65", "leaves"}));
  box.hide();
  activate(*window(kFirst));

  auto* const menu = control<QMenu>(kFirst, "mnuFile");
  first.form->keys.clear();
  menu->popup({});
  strike(Qt::Key_B);  // is the menu's
  EXPECT_EQ(first.form->keys, (Events{"leaves"}));
  menu->close();
}

TEST_F(FormsTest, AMenuStandsAboveTheClientAreaAndAnswersToItsShortcut) {
  forms.show(kFirst);
  activate(*window(kFirst));
  const int bar = window(kFirst)->findChild<QMenuBar*>()->height();
  EXPECT_GT(bar, 10);
  EXPECT_EQ(window(kFirst)->size(), QSize(200, 100 + bar));
  auto* const label = control<QLabel>(kFirst, "Label1");
  EXPECT_EQ(label->mapTo(window(kFirst), QPoint()), QPoint(0, bar));
  strike(Qt::Key_F2);
  EXPECT_EQ(first.events, (Events{"load", "item"}));
}

TEST_F(FormsTest, AModalFormHoldsItsCallerUntilItIsGone) {
  std::vector<std::function<void()>> ends{
      [&] { forms.hide(kFirst); }, [&] { forms.unload(kFirst); }, [&] { window(kFirst)->close(); },
      [&] {
        forms.drop(kFirst);
        forms.drop(kSecond);
        makePlain(kSecond);
        forms.show(kSecond);
      }};
  forms.show(kSecond);
  for (const auto& end : ends) {
    bool isBack = false;
    second.click = [&](TestForm&) {
      QTimer::singleShot(0, qApp, [&] {
        EXPECT_FALSE(isBack);
        EXPECT_EQ(QApplication::activeModalWidget(), window(kFirst));
        end();
      });
      forms.showModal(kFirst);
      isBack = true;
    };
    clickButton(kSecond);
    EXPECT_TRUE(isBack);
    EXPECT_EQ(window(kFirst), nullptr);
    EXPECT_NE(window(kSecond), nullptr);
  }
}

TEST_F(FormsTest, AModalFormLiesOverTheFormBeforeItThoughAMenuThatClosesLeavesNoWindowActive) {
  forms.show(kSecond);
  activate(*window(kSecond));
  takeForActive(nullptr);
  const QWindow* beneath = nullptr;
  QTimer::singleShot(0, qApp, [&] {
    beneath = window(kFirst)->windowHandle()->transientParent();
    forms.hide(kFirst);
  });
  forms.showModal(kFirst);
  EXPECT_EQ(beneath, window(kSecond)->windowHandle());
}

TEST_F(FormsTest, AFormThatIsModalTwiceHoldsBothItsCallers) {
  forms.show(kSecond);
  int back = 0;
  second.click = [&](TestForm&) {
    QTimer::singleShot(0, qApp, [&] {
      QTimer::singleShot(0, qApp, [&] { forms.hide(kFirst); });
      forms.showModal(kFirst);
      ++back;
    });
    forms.showModal(kFirst);
    ++back;
  };
  clickButton(kSecond);
  EXPECT_EQ(back, 2);
}

TEST_F(FormsTest, TheProgramMayEndUnderAModalForm) {
  forms.show(kSecond);
  second.click = [&](TestForm&) {
    QTimer::singleShot(0, qApp, [&] { forms.endProgram(); });
    forms.showModal(kFirst);
    forms.showModal(kFirst);  // nothing more comes up
  };
  clickButton(kSecond);
  EXPECT_EQ(window(kFirst), nullptr);
  EXPECT_EQ(window(kSecond), nullptr);
}

TEST_F(FormsTest, ANameWithoutAMakerDoesNothing) {
  forms.show(kFirst);
  for (const FormName name : {FormName("nobody"), kSecond}) {
    forms.hide(name);
    forms.unload(name);
    forms.drop(name);
    EXPECT_FALSE(forms.isLoaded(name));
  }
  forms.show(FormName("nobody"));
  EXPECT_FALSE(forms.isEnding());
}

TEST_F(FormsTest, AFormThatTakesItselfDownWhileItLoadsIsNeverSeen) {
  first.load = [this](TestForm&) {
    forms.show(kSecond);
    forms.unload(kFirst);
    forms.drop(kFirst);
  };
  forms.show(kFirst);
  settle();
  EXPECT_EQ(window(kFirst), nullptr);
  EXPECT_NE(window(kSecond), nullptr);
  EXPECT_EQ(first.events, (Events{"load", "unload", "drop"}));
}

TEST_F(FormsTest, AHandlerMayDropItsOwnFormAndGoOn) {
  forms.show(kSecond);
  for (auto* const handler : {&first.click, &first.tick}) {
    first = {};
    *handler = [this](TestForm& form) {
      forms.drop(kFirst);
      settle();
      form.label->setText("still here");
      form.clock->setEnabled(true);
      form.variable = 7;
    };
    forms.show(kFirst);
    if (handler == &first.click) clickButton(kFirst);
    if (handler == &first.tick) advance(100);
    advance(1000);
    EXPECT_EQ(window(kFirst), nullptr);
    EXPECT_EQ(first.events.back(), "drop");
  }
}

TEST_F(FormsTest, ATickWaitsForTheEndOfAHandlerOfItsForm) {
  first.click = [this](TestForm& form) {
    advance(350);  // a loop inside the handler lets time pass
    form.variable = 1;
    EXPECT_EQ(first.events, (Events{"load", "click"}));
  };
  first.tick = [](TestForm& form) { EXPECT_EQ(form.variable, 1); };
  forms.show(kFirst);
  forms.show(kSecond);
  clickButton(kFirst);
  EXPECT_EQ(first.events, (Events{"load", "click", "tick"}));  // late ticks come once
  EXPECT_EQ(second.events, (Events{"load", "tick", "tick", "tick"}));
}

TEST_F(FormsTest, ATickThatWaitedDoesNotComeAfterItsTimerWasTurnedOff) {
  first.click = [this](TestForm& form) {
    advance(100);
    form.clock->setEnabled(false);
  };
  forms.show(kFirst);
  clickButton(kFirst);
  advance(500);
  EXPECT_EQ(first.events, (Events{"load", "click"}));
}

TEST_F(FormsTest, TurningATimerOnOrChangingItsIntervalStartsTheWaitAnew) {
  forms.show(kFirst);
  Timer* const clock = first.form->clock;
  advance(90);
  clock->setEnabled(true);  // is on: nothing changes
  advance(10);
  EXPECT_EQ(first.events, (Events{"load", "tick"}));
  advance(90);
  clock->setInterval(200);
  advance(199);
  EXPECT_EQ(first.events.size(), 2U);
  advance(1);
  EXPECT_EQ(first.events.size(), 3U);
  clock->setInterval(0);
  advance(1000);
  EXPECT_EQ(first.events.size(), 3U);
}

TEST_F(FormsTest, TheProgramEndsWithItsLastWindow) {
  forms.show(kFirst);
  forms.show(kSecond);
  window(kFirst)->close();
  settle();
  EXPECT_FALSE(forms.isLoaded(kFirst));
  EXPECT_EQ(first.events.back(), "unload");
  EXPECT_FALSE(forms.isEnding());
  forms.hide(kSecond);
  EXPECT_FALSE(forms.isEnding());  // a handler may be about to show another
  forms.show(kSecond);
  window(kSecond)->close();
  EXPECT_TRUE(forms.isEnding());
}

TEST_F(FormsTest, AnEndedProgramShowsNothingMoreAndStartsNoHandler) {
  forms.setMaker(FormName("third"), [] {
    ADD_FAILURE() << "made after the end";
    return nullptr;
  });
  forms.show(kFirst);
  forms.show(kSecond);
  first.click = [this](TestForm&) {
    forms.endProgram();
    forms.show(FormName("third"));
    advance(500);  // a loop in the handler lets time pass
  };
  clickButton(kFirst);
  EXPECT_EQ(window(kFirst), nullptr);
  EXPECT_EQ(window(kSecond), nullptr);
  EXPECT_EQ(second.events, (Events{"load"}));
}

TEST_F(FormsTest, AFormMayDropItselfWhileItUnloads) {
  forms.show(kSecond);
  forms.show(kFirst);
  first.unload = [this](TestForm&) { forms.drop(kFirst); };
  window(kFirst)->close();
  settle();
  EXPECT_EQ(first.events, (Events{"load", "unload", "drop"}));
}

}  // namespace
}  // namespace ratanka
