#pragma once

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QString>

// Builders for the menus of a form. Each item is a real action of the toolkit with its system name
// as its object name; `triggered` is its click, `isChecked` its check mark.

namespace ratanka {

// A "&" stands before the letter that opens it together with Alt.
QMenu* addMenu(QMenuBar& bar, const QString& name, const QString& caption);

struct MenuItemDesign {
  QString name;
  QString caption{};  // "-" is a line between items
  Qt::Key shortcut = Qt::Key_unknown;
  bool enabled = true;
  bool visible = true;
  bool checkable = false;  // shows a mark where it is checked; the form sets it
  bool checked = false;
};
// Of a menu, or of the bar itself.
QAction* addMenuItem(QWidget& menu, const MenuItemDesign& design);

}  // namespace ratanka
