#include "platform/forms/form_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include "platform/base/text.h"
#include "platform/controls/controls.h"
#include "platform/controls/pictures.h"
#include "platform/forms/desktop.h"
#include "platform/forms/free_place.h"
#include "platform/forms/program_state.h"
#include "platform/forms/window_states.h"

namespace ratanka {
namespace {

// The outline's own region and every pixel that touches it: those of a smooth edge.
QRegion grown(const QRegion& region) {
  QRegion result;
  for (const int x : {-1, 0, 1}) {
    for (const int y : {-1, 0, 1}) result |= region.translated(x, y);
  }
  return result;
}

// Whether the window system takes the drag over. Not on X11: its managers follow the left button
// alone, and one that hears of a drag after its release lets the window hang on the pointer.
bool movesByItself(QWindow& window) {
  return QGuiApplication::platformName() != "xcb" && window.startSystemMove();
}

}  // namespace

FormWindow::FormWindow(WindowOwner& owner, ProgramState& state, const FormDesign& design)
    : owner_(&owner), state_(state), design_(design) {
  setObjectName(text(design.name.text()));
  setWindowTitle(design.caption);
  Qt::WindowFlags flags = design.isDialog ? Qt::Dialog : Qt::Window;
  if (!design.hasBorder) flags |= Qt::FramelessWindowHint;
  if (!design.takesKeyboard) flags |= Qt::WindowDoesNotAcceptFocus;
  if (!design.canMinimise || design.isDialog) {
    flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
             Qt::WindowCloseButtonHint;
  }
  setWindowFlags(flags);
  if (design.isDialog) comeBackWhenPutAway(*this);
  setAttribute(Qt::WA_ShowWithoutActivating, !design.takesKeyboard);
  setFixedSize(pixels(design.width), pixels(design.height));
  setAttribute(Qt::WA_OpaquePaintEvent);
  if (design.hasMenu) {
    menuBar_ = new QMenuBar(this);
    menuBar_->setNativeMenuBar(false);
    client_ = new QWidget(this);
    client_->setFixedSize(size());
  }
}

void FormWindow::fitMenuBar() {
  if (menuBar_ == nullptr) return;
  const int height = menuBar_->sizeHint().height();
  menuBar_->setGeometry(0, 0, client_->width(), height);
  client_->move(0, height);
  setFixedSize(client_->width(), height + client_->height());
  for (QMenu* const menu : menuBar_->findChildren<QMenu*>()) {
    connect(menu, &QMenu::aboutToShow, this, [this] { tell(WindowChange::keyboardLeaves); });
  }
}

void FormWindow::setModal(bool modal) {
  setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
  if (!modal) return;
  create();
  // While a menu closes no window is active.
  const QWidget* const active = QApplication::activeWindow();
  const QWidget* const beneath = active != nullptr ? active : windowBefore();
  const bool hasBeneath = beneath != nullptr && beneath != this && beneath->isVisible();
  windowHandle()->setTransientParent(hasBeneath ? beneath->windowHandle() : nullptr);
}

void FormWindow::waitUntilHidden() {
  if (!isVisible()) return;
  QEventLoop loop;
  QEventLoop* const outer = std::exchange(waiting_, &loop);
  loop.exec();
  waiting_ = outer;
  if (outer != nullptr && !isVisible()) outer->quit();
}

void FormWindow::cutTo(const QPolygon& outline) {
  outline_ = outline;
  const QRegion region(outline, Qt::OddEvenFill);
  const bool isSmooth = canDrawTranslucentWindows();
  if (isSmooth) setAttribute(Qt::WA_TranslucentBackground);
  setAttribute(Qt::WA_OpaquePaintEvent, !isSmooth);
  setMask(isSmooth ? grown(region) : region);
  if (!isSmooth) return;
  QPainterPath all;
  // At 150 % a window may end in the middle of a pixel: that one belongs to the outside, too.
  all.addRect(rect().adjusted(-1, -1, 1, 1));
  QPainterPath inside;
  inside.addPolygon(outline);
  inside.closeSubpath();
  outside_ = all - inside;
}

void FormWindow::standBesideControls() {
  constexpr int kOfControls = 16;  // as much worth as so many pixels of the page
  const FormWindow* const before = windowBefore();
  if (before == nullptr || before == this || isWayland()) return;
  const QRect page = before->geometry();
  std::vector<Kept> kept{{page}};
  for (const QWidget* const control : before->findChildren<QWidget*>()) {
    const bool isUsed = qobject_cast<const QAbstractButton*>(control) != nullptr ||
                        qobject_cast<const QLineEdit*>(control) != nullptr;
    const QRect area(control->mapToGlobal(QPoint()), control->size());
    if (isUsed && control->isVisible()) kept.push_back({area, kOfControls});
  }
  const QSize outer = withFrame(size());
  const QPoint middle = page.center() - QRect({}, outer).center();
  move(freePlace(outer, before->screen()->availableGeometry(), kept, middle));
}

// The desktop has found a place by now.
void FormWindow::comeOut() {
  const FormWindow* const before = windowBefore();
  if (before == nullptr || before == this || isWayland()) return;
  move(freePlace(size(), screen()->availableGeometry(), {{before->geometry()}}, pos()));
}

void FormWindow::paintEvent(QPaintEvent*) {
  if (std::exchange(isFresh_, false) && design_.opening == Opening::unhidden) {
    QMetaObject::invokeMethod(
        this, [this] { comeOut(); }, Qt::QueuedConnection);
  }
  QPainter painter(this);
  paintBackground(painter);
  if (outside_.isEmpty()) return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
  painter.fillPath(outside_, Qt::black);
}

void FormWindow::paintBackground(QPainter& painter) {
  const QPoint origin = client_ == nullptr ? QPoint() : client_->pos();
  const QSize size(design_.pictureSize.width, design_.pictureSize.height);
  if (size.width() < width() || size.height() < height()) {
    painter.fillRect(rect(), colour(design_.back));
  }
  if (!design_.picture.isEmpty()) {
    painter.drawPixmap(origin, picture(design_.picture, size, devicePixelRatioF()));
  }
}

void FormWindow::closeEvent(QCloseEvent* event) {
  // Closing is the form's to do: its window goes when its handlers have returned.
  event->ignore();
  tell(WindowChange::closeAsked);
}

void FormWindow::showEvent(QShowEvent*) {
  windowHandle()->installEventFilter(this);
  growWhenMaximised(*this);
}

void FormWindow::hideEvent(QHideEvent* event) {
  if (waiting_ != nullptr && !event->spontaneous()) waiting_->quit();
}

void FormWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange) return;
  const auto before = static_cast<QWindowStateChangeEvent*>(event)->oldState();
  // Not on Wayland: a program isn't told there that its window was put away.
  if (before.testFlag(Qt::WindowMinimized) != isMinimized()) tell(WindowChange::minimisedOrBack);
}

bool FormWindow::event(QEvent* event) {
  const bool isHeard = isVisible() && design_.takesKeyboard;
  if (isHeard && event->type() == QEvent::WindowDeactivate) {
    if (owner_ != nullptr) state_.keyboard().letGo(windowHandle());
    tell(WindowChange::keyboardLeaves);
  }
  if (isHeard && event->type() == QEvent::WindowActivate && owner_ != nullptr) {
    owner_->windowBecameActive();
  }
  if (event->type() == QEvent::WindowActivate && !design_.takesKeyboard) {
    QMetaObject::invokeMethod(
        this, [this] { giveKeyboardBack(); }, Qt::QueuedConnection);
  }
  return QWidget::event(event);
}

// Wayland gives the keyboard to every window that is clicked. One that wants none hands it on to
// the form that had it before: the toolkit takes that one for the active window, and this one
// passes every key.
void FormWindow::giveKeyboardBack() {
  FormWindow* const before = windowBefore();
  if (before != nullptr && isActiveWindow() && QApplication::activeModalWidget() == nullptr) {
    takeForActive(before);
  }
}

FormWindow* FormWindow::windowBefore() const {
  return owner_ == nullptr ? nullptr : state_.active();
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
  const bool isPress = event->type() == QEvent::KeyPress;
  if (watched != windowHandle() || (!isPress && event->type() != QEvent::KeyRelease)) return false;
  // A menu that is open has the keyboard for itself.
  if (owner_ == nullptr || QApplication::activePopupWidget() != nullptr) return false;
  // So has a bar that the Alt key has woken. It may keep the focus after its menu was used, where
  // nothing else wants it.
  const bool isInBar =
      menuBar_ != nullptr && menuBar_->hasFocus() && menuBar_->activeAction() != nullptr;
  if (isPress && isInBar) return false;
  if (!design_.takesKeyboard) {
    const FormWindow* const before = windowBefore();
    return before != nullptr && QCoreApplication::sendEvent(before->windowHandle(), event);
  }
  const auto& key = *static_cast<QKeyEvent*>(event);
  const int code = state_.keyboard().codeOf(key);
  if (isPress) {
    owner_->keyWentDown(code);
  } else if (!key.isAutoRepeat()) {
    owner_->keyCameUp(code);
  }
  return false;
}

void FormWindow::tell(WindowChange change) {
  if (owner_ != nullptr) owner_->windowChanged(change);
}

void FormWindow::mousePressEvent(QMouseEvent* event) {
  // A press that a label or an image doesn't want comes here too.
  const bool isOnBackground = childAt(event->position().toPoint()) == nullptr;
  if (outline_.isEmpty() || !isOnBackground || movesByItself(*windowHandle())) return;
  grip_ = event->position().toPoint();
}

void FormWindow::mouseMoveEvent(QMouseEvent* event) {
  if (grip_) move(event->globalPosition().toPoint() - *grip_);
}

void FormWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (event->buttons() == Qt::NoButton) grip_.reset();
}

}  // namespace ratanka
