// Shows every form in its telling states, without a display, and writes a picture of each.
//
//   gallery FOLDER SUFFIX     the forms, each as FOLDER/<form>-<state>SUFFIX.png
//   gallery --contact FILE    all pictures of the program side by side, at three sizes
//
// The magnification is the toolkit's own: QT_SCALE_FACTOR=1.5 gallery ...

#include <QDir>
#include <QPainter>

#include "gallery/gallery.h"
#include "platform/controls/controls.h"
#include "platform/controls/pictures.h"
#include "platform/forms/application.h"

namespace ratanka {
namespace {

// Every small picture at one, two and three times its size, on paper and on a button's face.
void writeContactSheet(const QString& file) {
  constexpr int kCell = 32;
  constexpr int kGap = 12;
  const QStringList names = QDir(":/pictures").entryList({"*.svg"}, QDir::Files, QDir::Name);
  QImage sheet(kGap + 6 * (3 * kCell + kGap),
               kGap + static_cast<int>(names.size()) * (3 * kCell + kGap), QImage::Format_RGB32);
  sheet.fill(colour({0xff, 0xfd, 0xf5}));
  QPainter painter(&sheet);
  painter.fillRect(sheet.width() / 2, 0, sheet.width() / 2, sheet.height(), QColor(224, 224, 224));
  int y = kGap;
  for (QString name : names) {
    name.chop(4);
    for (int column = 0; column < 6; ++column) {
      const int size = kCell * (column % 3 + 1);
      painter.drawPixmap(kGap + column * (3 * kCell + kGap), y, picture(name, {size, size}, 1));
    }
    y += 3 * kCell + kGap;
  }
  painter.end();
  sheet.save(file);
}

}  // namespace
}  // namespace ratanka

int main(int argumentCount, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const ratanka::Application application(arguments[0]);
  if (argumentCount != 3) {
    qWarning("usage: gallery FOLDER SUFFIX | gallery --contact FILE");
    return 2;
  }
  const QString first = QString::fromLocal8Bit(arguments[1]);
  const QString second = QString::fromLocal8Bit(arguments[2]);
  if (first == "--contact") {
    ratanka::writeContactSheet(second);
  } else {
    ratanka::Gallery(first, second).show();
  }
  return 0;
}
