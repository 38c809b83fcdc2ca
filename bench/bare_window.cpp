// The least that a window of the toolkit can be, of the menu's size and at the menu's place. With
// the argument `edit` it stands in the screen's corner, has a line to type into as well, and no
// border, like the sheets.

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

int main(int argumentCount, char** arguments) {
  const QApplication application(argumentCount, arguments);
  QWidget window;
  QPushButton button("OK", &window);
  button.setGeometry(24, 208, 57, 25);
  QLabel label("1+1 = ?", &window);
  label.setGeometry(96, 216, 140, 17);
  window.setFixedSize(248, 285);
  window.move(388, 241);
  if (argumentCount > 1) {
    auto* const edit = new QLineEdit(&window);
    edit->setGeometry(24, 16, 39, 24);
    window.setWindowFlags(Qt::FramelessWindowHint);
    window.move(0, 0);
  }
  window.show();
  return QApplication::exec();
}
