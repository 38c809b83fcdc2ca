#include "platform/forms.h"

#include <QPushButton>

#include "form_driver.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/timer.h"

namespace ratanka {
namespace {

constexpr FormName kFirst{"first"};
constexpr FormName kSecond{"second"};

// A form whose handlers do what the test says.
class TestForm : public Form {
 public:
  struct Script {
    std::function<void(TestForm&)> load, unload, click, tick;
    int interval = 100;
    std::vector<std::string> events;
  };

  TestForm(Forms& forms, FormName name, Script& script)
      : Form(forms, {.name = name, .width = 3000, .height = 1500}), script_(script) {}
  ~TestForm() override { script_.events.emplace_back("drop"); }

  int variable = 0;
  QLabel* label = nullptr;
  Timer* clock = nullptr;

 protected:
  void build() override {
    label = addLabel(window(), {.name = "Label1", .place = {0, 0, 600, 300}, .caption = "0"});
    QPushButton* const button =
        addButton(window(), {.name = "Command1", .place = {0, 300, 600, 600}});
    on(button, &QPushButton::clicked, [this] { run("click", script_.click); });
    clock = timer("Timer1", script_.interval, [this] { run("tick", script_.tick); });
    clock->setEnabled(true);
  }
  void Form_Load() override { run("load", script_.load); }
  void Form_Unload() override { run("unload", script_.unload); }

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
    for (const auto& [name, script] : {std::pair{kFirst, &first}, {kSecond, &second}}) {
      forms.setMaker(name, [this, name = name, script = script] {
        return std::make_shared<TestForm>(forms, name, *script);
      });
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

TEST_F(FormsTest, AHiddenFormTicksOn) {
  forms.show(kSecond);
  forms.show(kFirst);
  forms.hide(kFirst);
  EXPECT_TRUE(forms.isLoaded(kFirst));
  EXPECT_EQ(window(kFirst), nullptr);
  advance(200);
  EXPECT_EQ(first.events, (Events{"load", "tick", "tick"}));
  forms.unload(kFirst);
  advance(200);
  EXPECT_EQ(first.events, (Events{"load", "tick", "tick", "unload"}));
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
  Timer* clock = nullptr;
  first.load = [&](TestForm& form) { clock = form.clock; };
  forms.show(kFirst);
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
