#pragma once

#include <QPainterPath>
#include <QPointer>
#include <QPolygon>
#include <QWidget>
#include <optional>

#include "platform/forms/form_design.h"
#include "platform/forms/window_owner.h"

class QEventLoop;
class QMenuBar;

namespace ratanka {

class ProgramState;

// The window of one loading of a form: paints the form's background, passes on what the window
// system says, and is dragged where it is cut to an outline.
class FormWindow : public QWidget {
 public:
  FormWindow(WindowOwner& owner, ProgramState& state, const FormDesign& design);

  // From now on the owner hears nothing of this window.
  void leaveOwner() { owner_ = nullptr; }

  // Before the window is first shown. Where the desktop draws translucent windows the edge is
  // smooth; elsewhere the region alone cuts.
  void cutTo(const QPolygon& outline);

  QWidget& client() { return client_ == nullptr ? *this : *client_; }
  QMenuBar& menuBar() { return *menuBar_; }
  // Once the menus are there: the window grows by the height of their bar.
  void fitMenuBar();

  // Before the window is first shown.
  void standBesideControls();

  // Stops the child from using any other window of the program while this one is to be seen.
  void setModal(bool modal);
  void waitUntilHidden();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void paintBackground(QPainter& painter);
  void tell(WindowChange change);
  void giveKeyboardBack();
  void comeOut();
  FormWindow* windowBefore() const;

  WindowOwner* owner_;
  ProgramState& state_;
  const FormDesign design_;
  QMenuBar* menuBar_ = nullptr;  // these two only where there are menus
  QWidget* client_ = nullptr;
  QEventLoop* waiting_ = nullptr;
  QPolygon outline_;            // empty where the window isn't cut
  QPainterPath outside_;        // what a smooth cut takes away; empty where there is none
  bool isFresh_ = true;         // not painted yet
  std::optional<QPoint> grip_;  // where the window is held, while we move it
};

}  // namespace ratanka
