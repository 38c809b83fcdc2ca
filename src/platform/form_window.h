#pragma once

#include <QPainterPath>
#include <QPolygon>
#include <QWidget>
#include <optional>

#include "platform/form.h"

namespace ratanka {

// The window of one loading of a form: paints the form's background, passes on what the window
// system says, and is dragged where it is cut to an outline.
class FormWindow : public QWidget {
 public:
  FormWindow(Form& form, const FormDesign& design);

  // From now on the form hears nothing of this window.
  void leaveForm() { form_ = nullptr; }

  // Before the window is first shown. Where the desktop draws translucent windows the edge is
  // smooth; elsewhere the region alone cuts.
  void cutTo(const QPolygon& outline);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void paintBackground(QPainter& painter) const;

  Form* form_;
  const FormDesign design_;
  QPolygon outline_;            // empty where the window isn't cut
  QPainterPath outside_;        // what a smooth cut takes away; empty where there is none
  std::optional<QPoint> grip_;  // where the window is held, while we move it
};

}  // namespace ratanka
