#include "platform/forms/form.h"

#include <QApplication>
#include <QWidget>
#include <utility>

#include "platform/forms/form_window.h"
#include "platform/forms/forms.h"
#include "platform/forms/program_state.h"
#include "platform/forms/timer.h"

namespace ratanka {

Form::Form(Forms& forms, FormDesign design) : forms_(forms), design_(std::move(design)) {}

Form::~Form() {
  connections_.reset();
  endTimers();
  if (window_ != nullptr) leaving_.push_back(std::exchange(window_, nullptr));
  for (FormWindow* const window : leaving_) window->leaveOwner();
  letGo();
}

QWidget& Form::window() const { return *window_; }

QWidget& Form::client() const { return window_->client(); }

QMenuBar& Form::menuBar() const { return window_->menuBar(); }

bool Form::isMinimised() const { return isLoaded() && window_->isMinimized(); }

void Form::cutTo(const std::vector<ScreenPoint>& outline) {
  QPolygon polygon;
  for (const ScreenPoint& point : outline) polygon << QPoint(point.x, point.y);
  window_->cutTo(polygon);
}

void Form::setClientSize(const PixelSize& size) { window_->setFixedSize(size.width, size.height); }

ProgramState& Form::state() const { return forms_.state(); }

bool Form::hasEnded() const { return state().isEnding(); }

void Form::load() {
  if (isLoaded()) return;
  const HandlerScope scope(*this);
  connections_ = std::make_unique<QObject>();
  window_ = new FormWindow(*this, state(), design_);
  build();
  window_->fitMenuBar();
  Form_Load();
  if (isLoaded() && design_.opening == Opening::besideControls) window_->standBesideControls();
}

void Form::unload() {
  if (!isLoaded() || isUnloading_) return;
  const HandlerScope scope(*this);
  isUnloading_ = true;
  Form_Unload();
  isUnloading_ = false;
  connections_.reset();
  FormWindow* const window = std::exchange(window_, nullptr);
  window->leaveOwner();
  endTimers();
  window->hide();
  state().leave(*window);
  leaving_.push_back(window);
}

void Form::bringUp() {
  const bool wasVisible = window_->isVisible();
  for (Timer* const timer : timers_) timer->setEasy(false);
  if (window_->isMinimized()) window_->showNormal();
  window_->show();
  window_->raise();
  if (design_.takesKeyboard) window_->activateWindow();
  const HandlerScope scope(*this);
  if (!wasVisible) Form_Resize();
  if (design_.takesKeyboard && isLoaded()) windowBecameActive();
}

void Form::windowBecameActive() {
  if (!state().makeActive(*window_)) return;
  const HandlerScope scope(*this);
  Form_Activate();
}

void Form::windowChanged(WindowChange change) {
  if (hasEnded()) return;
  const HandlerScope scope(*this);
  switch (change) {
    case WindowChange::closeAsked:
      closeAsked();
      break;
    case WindowChange::minimisedOrBack:
      Form_Resize();
      break;
    case WindowChange::keyboardLeaves:
      keyboardLeaves();
      break;
  }
}

void Form::keyWentDown(int keyCode) {
  if (hasEnded()) return;
  const HandlerScope scope(*this);
  Form_KeyDown(keyCode);
}

void Form::keyCameUp(int keyCode) {
  if (hasEnded()) return;
  const HandlerScope scope(*this);
  Form_KeyUp(keyCode);
}

void Form::runModally() {
  FormWindow* const window = window_;
  const HandlerScope scope(*this);
  window->setModal(true);
  bringUp();
  window->waitUntilHidden();
  window->setModal(false);
}

void Form::hide() {
  if (!isLoaded()) return;
  for (Timer* const timer : timers_) timer->setEasy(true);
  window_->hide();
  state().leave(*window_);
}

void Form::giveFocus(QWidget& control) {
  control.setFocus();
  const QWidget* const active = QApplication::activeWindow();
  const bool isElsewhere = active != nullptr && active != control.window();
  if (isElsewhere && QApplication::activeModalWidget() == nullptr) {
    control.window()->raise();
    control.window()->activateWindow();
  }
}

Timer* Form::timer(const QString& name, int milliseconds, std::function<void()> handler) {
  auto* const result = new Timer(
      window_, state().ticks(), [this] { return handlersRunning_ == 0; },
      [this, handler = std::move(handler)] {
        if (hasEnded()) return;
        const HandlerScope scope(*this);
        handler();
      });
  timers_.push_back(result);
  result->setObjectName(name);
  result->setInterval(milliseconds);
  return result;
}

void Form::endTimers() {
  for (Timer* const timer : std::exchange(timers_, {})) timer->end();
}

void Form::deliverTicks() {
  for (Timer* const timer : timers_) timer->deliver();
}

void Form::letGo() {
  // The window may be in the middle of passing on the event that ended it.
  for (FormWindow* const window : std::exchange(leaving_, {})) window->deleteLater();
}

Form::HandlerScope::HandlerScope(Form& form) : form_(form.shared_from_this()) {
  ++form_->handlersRunning_;
  form_->state().handlerStarted();
}

Form::HandlerScope::~HandlerScope() {
  if (--form_->handlersRunning_ == 0) {
    form_->letGo();
    form_->deliverTicks();
  }
  form_->state().handlerReturned();
}

}  // namespace ratanka
