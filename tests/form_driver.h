#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QPaintEvent>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include "fakes.h"
#include "platform/base/text.h"
#include "platform/forms/form.h"
#include "platform/forms/forms.h"

namespace ratanka {

// A form with nothing on it.
class PlainForm : public Form {
 public:
  PlainForm(Forms& forms, FormName name)
      : Form(forms, {.name = name, .width = 3000, .height = 3000}) {}

 protected:
  void build() override {}
};

// How often a widget is painted, and what of it.
class Paints : public QObject {
 public:
  explicit Paints(QWidget& widget) { widget.installEventFilter(this); }
  int count = 0;
  QRegion region;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    ++count;
    region |= static_cast<QPaintEvent*>(event)->region();
    return false;
  }
};

// A child's hands at forms without a display, and steered services around them.
class FormTest : public testing::Test {
 protected:
  FormTest() {
    // A program that ended in an earlier test would let no box wait in this one.
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
  }

  // Lets a plain form stand for the one of that name.
  void makePlain(FormName name) {
    forms.setMaker(name, [this, name] { return std::make_shared<PlainForm>(forms, name); });
  }

  // The window of a loaded form; null where there is none.
  static QWidget* window(FormName name) {
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
      if (widget->objectName() == text(name.text()) && widget->isVisible()) return widget;
    }
    return nullptr;
  }

  template <typename Control>
  static Control* control(FormName form, const QString& name) {
    QWidget* const found = window(form);
    Control* const result = found == nullptr ? nullptr : found->findChild<Control*>(name);
    if (result == nullptr) ADD_FAILURE() << "no " << name.toStdString();
    return result;
  }

  // Without a display nobody hands the keyboard on when a window closes.
  static void activate(QWidget& target) {
    target.activateWindow();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return QGuiApplication::focusWindow() == target.windowHandle(); }, 5000));
  }

  // Lets everything through that waits in the event loop, deferred ends of windows too.
  static void settle() {
    for (int pass = 0; pass < 3; ++pass) {
      QCoreApplication::processEvents();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
  }

  void advance(int milliseconds) {
    ticks.advance(std::chrono::milliseconds(milliseconds));
    settle();
  }

  // Keys go to whatever has the keyboard in the active window, as on a desktop.
  static void press(int key) {
    if (QWindow* const active = QGuiApplication::focusWindow()) {
      QTest::keyPress(active, static_cast<Qt::Key>(key));
    }
  }
  static void release(int key) {
    if (QWindow* const active = QGuiApplication::focusWindow()) {
      QTest::keyRelease(active, static_cast<Qt::Key>(key));
    }
  }
  static void strike(int key) {
    press(key);
    release(key);
  }
  static void type(const std::string& typed) {
    for (const char sign : typed) {
      if (QWindow* const active = QGuiApplication::focusWindow()) QTest::keyClick(active, sign);
    }
  }
  static void click(QWidget* control) { QTest::mouseClick(control, Qt::LeftButton); }

  FakeTicks ticks;
  Forms forms{ticks};
  FakeDialogs dialogs;
};

}  // namespace ratanka
