#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <memory>

#include "form_driver.h"
#include "platform/controls/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/qt_dialogs.h"

namespace ratanka {
namespace {

constexpr FormName kForm{"form"};
constexpr FormName kOther{"other"};

class BoxForm : public Form {
 public:
  explicit BoxForm(Forms& forms) : Form(forms, {.name = kForm, .width = 3000, .height = 1500}) {}

  std::function<void(int keyCode)> onKeyUp;

 protected:
  void build() override {
    auto* const box =
        addTextBox(window(), {.name = "Text1", .place = {0, 0, 600, 360}, .maxLength = 7});
    on(box, &TextBox::keyUp, [this](int keyCode) {
      if (onKeyUp) onKeyUp(keyCode);
    });
  }
};

class DialogsTest : public FormTest {
 protected:
  DialogsTest() {
    forms.setMaker(kForm, [this] { return form = std::make_shared<BoxForm>(forms); });
    forms.show(kForm);
    control<TextBox>(kForm, "Text1")->setFocus();
    form->onKeyUp = [this](int keyCode) { released.push_back(keyCode); };
    settle();
  }

  // Does something to the box once it is open; a box that stays is a failure.
  void whenOpen(std::function<void(QDialog&)> action) {
    QTimer::singleShot(0, [action = std::move(action)] {
      auto* const box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      activate(*box);
      action(*box);
    });
    watchdog_ = std::make_unique<QObject>();
    QTimer::singleShot(10000, watchdog_.get(), [] {
      ADD_FAILURE() << "a box stayed open";
      while (QWidget* const box = QApplication::activeModalWidget()) box->close();
    });
  }

  QtDialogs boxes{forms};
  std::shared_ptr<BoxForm> form;
  std::vector<int> released;

 private:
  std::unique_ptr<QObject> watchdog_;
};

TEST_F(DialogsTest, AMessageSpeaksSlovakAndTellsItsAnswer) {
  const MessageBox question{
      .title = "Hodiny", .text = "Schovať\r\n hodiny? ", .buttons = MessageBox::Buttons::yesNo};
  whenOpen([](QDialog& dialog) {
    auto& box = static_cast<QMessageBox&>(dialog);
    EXPECT_EQ(box.windowTitle(), "Hodiny");
    EXPECT_EQ(box.text(), "Schovať\n hodiny? ");
    EXPECT_EQ(box.icon(), QMessageBox::Information);
    EXPECT_EQ(box.button(QMessageBox::Yes)->text().remove('&'), "Áno");
    EXPECT_EQ(box.button(QMessageBox::No)->text().remove('&'), "Nie");
    box.showMinimized();  // can't be put away
    settle();
    EXPECT_FALSE(box.isMinimized());
    box.button(QMessageBox::Yes)->click();
  });
  EXPECT_EQ(boxes.message(question), Dialogs::Answer::yes);
  whenOpen([](QDialog& box) { box.reject(); });
  EXPECT_EQ(boxes.message(question), Dialogs::Answer::no);
  MessageBox careful = question;
  careful.isNoPreset = true;
  whenOpen([](QDialog&) { strike(Qt::Key_Return); });
  EXPECT_EQ(boxes.message(careful), Dialogs::Answer::no);
}

TEST_F(DialogsTest, AnInputBoxGivesTheTextOrNothing) {
  whenOpen([](QDialog& dialog) {
    auto& box = static_cast<QInputDialog&>(dialog);
    EXPECT_EQ(box.labelText(), "Zapíš");
    EXPECT_EQ(box.textValue(), "60");
    box.setTextValue("Žofka");
    box.accept();
  });
  EXPECT_EQ(boxes.input("Meno", "Zapíš", "60"), "Žofka");
  whenOpen([](QDialog& box) { box.reject(); });
  EXPECT_EQ(boxes.input("Meno", "Zapíš", "60"), std::nullopt);
}

TEST_F(DialogsTest, TheKeyThatClosedABoxDoesNotReachTheBoxBeneath) {
  for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
    whenOpen([key](QDialog&) { press(key); });
    boxes.message({.title = "x", .text = "y"});
    activate(*window(kForm));
    released.clear();
    release(key);
    EXPECT_TRUE(released.empty());
    strike(key);
    EXPECT_EQ(released.size(), 1U) << "the next stroke counts again";
  }
}

TEST_F(DialogsTest, AKeyThatWasHeldBeforeItsBoxClosesItNotAndReachesNothingBeneath) {
  press(Qt::Key_Return);
  whenOpen([](QDialog& box) {
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QCoreApplication::sendEvent(box.windowHandle(), &repeat);
    EXPECT_TRUE(box.isVisible()) << "nobody could have read it";
    box.accept();
  });
  boxes.message({.title = "x", .text = "y"});
  activate(*window(kForm));
  release(Qt::Key_Return);
  EXPECT_TRUE(released.empty());
}

TEST_F(DialogsTest, AHeldArrowDoesNotWanderOverTheButtons) {
  whenOpen([](QDialog& box) {
    const QWidget* const before = QApplication::focusWidget();
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(box.windowHandle(), &repeat);
    EXPECT_EQ(QApplication::focusWidget(), before);
    press(Qt::Key_Right);
    EXPECT_NE(QApplication::focusWidget(), before) << "a stroke of its own does";
    box.reject();
  });
  boxes.message({.title = "x", .text = "y", .buttons = MessageBox::Buttons::yesNo});
}

TEST_F(DialogsTest, AFreshPressEndsTheWaitForALostRelease) {
  whenOpen([](QDialog&) { press(Qt::Key_Return); });
  boxes.message({.title = "x", .text = "y"});
  activate(*window(kForm));
  released.clear();
  strike(Qt::Key_Return);  // the release of the box's Enter went elsewhere
  EXPECT_EQ(released.size(), 1U);
}

TEST_F(DialogsTest, TheEndOfTheProgramClosesABoxAndShowsNoOther) {
  whenOpen([this](QDialog&) { forms.endProgram(); });
  EXPECT_EQ(boxes.message({.title = "x", .text = "y"}), Dialogs::Answer::ok);
  EXPECT_EQ(boxes.message({.title = "x", .text = "y", .buttons = MessageBox::Buttons::yesNo}),
            Dialogs::Answer::no);
  EXPECT_EQ(boxes.input("x", "y", "z"), std::nullopt);
}

// A form that isn't at work goes at once, and a box over it goes along.
TEST_F(DialogsTest, AFormMayTakeABoxAlong) {
  makePlain(kOther);
  forms.show(kOther);
  settle();
  for (const bool isQuestion : {false, true}) {
    activate(*window(kForm));
    whenOpen([this](QDialog&) {
      form.reset();
      forms.drop(kForm);
      QTimer::singleShot(0, qApp, &FormTest::settle);
    });
    if (isQuestion) {
      EXPECT_EQ(boxes.input("x", "y", "z"), std::nullopt);
    } else {
      EXPECT_EQ(boxes.message({.title = "x", .text = "y"}), Dialogs::Answer::ok);
    }
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_FALSE(forms.isLoaded(kForm));
    forms.show(kForm);
    settle();
  }
}

TEST_F(DialogsTest, ABoxOutlivesTheFormBeneathIt) {
  makePlain(kOther);
  forms.show(kOther);
  activate(*window(kForm));
  form->onKeyUp = [this](int) {
    whenOpen([this](QDialog& box) {
      forms.drop(kForm);
      settle();
      box.accept();
    });
    boxes.message({.title = "x", .text = "y"});
  };
  form.reset();
  strike(Qt::Key_A);
  settle();
  EXPECT_FALSE(forms.isLoaded(kForm));
}

}  // namespace
}  // namespace ratanka
