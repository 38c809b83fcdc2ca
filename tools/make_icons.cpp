// make_icons PICTURE FOLDER SIZE...: draws an SVG picture as FOLDER/SIZE.png, for each SIZE given.

#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>
#include <cstdio>

namespace {

bool draw(QSvgRenderer& picture, int size, const QString& file) {
  QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  picture.render(&painter);
  painter.end();
  // Without a mark of the tool in the file: the same picture gives the same bytes.
  return image.convertToFormat(QImage::Format_ARGB32).save(file, "PNG", 0);
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 4) {
    std::fputs("usage: make_icons PICTURE FOLDER SIZE...\n", stderr);
    return 2;
  }
  QSvgRenderer picture(QString::fromLocal8Bit(arguments[1]));
  if (!picture.isValid()) {
    std::fprintf(stderr, "make_icons: %s is no picture\n", arguments[1]);
    return 1;
  }
  for (int i = 3; i < count; ++i) {
    const QString size = QString::fromLocal8Bit(arguments[i]);
    const QString file = QString::fromLocal8Bit(arguments[2]) + '/' + size + ".png";
    if (size.toInt() <= 0 || !draw(picture, size.toInt(), file)) {
      std::fprintf(stderr, "make_icons: can't write %s\n", qPrintable(file));
      return 1;
    }
  }
  return 0;
}
