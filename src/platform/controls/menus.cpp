#include "platform/controls/menus.h"

namespace ratanka {

QMenu* addMenu(QMenuBar& bar, const QString& name, const QString& caption) {
  QMenu* const menu = bar.addMenu(caption);
  menu->setObjectName(name);
  menu->menuAction()->setObjectName(name);
  return menu;
}

QAction* addMenuItem(QWidget& menu, const MenuItemDesign& design) {
  const bool isSeparator = design.caption == "-";
  auto* const item = new QAction(isSeparator ? QString() : design.caption, &menu);
  item->setObjectName(design.name);
  item->setSeparator(isSeparator);
  if (design.shortcut != Qt::Key_unknown) item->setShortcut(design.shortcut);
  // A held key is pressed once.
  item->setAutoRepeat(false);
  item->setEnabled(design.enabled);
  item->setVisible(design.visible);
  item->setCheckable(design.checkable);
  item->setChecked(design.checked);
  menu.addAction(item);
  return item;
}

}  // namespace ratanka
