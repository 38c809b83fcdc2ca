#include "platform/controls/pictures.h"

#include <QIconEngine>
#include <QLibraryInfo>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <QVersionNumber>

namespace ratanka {
namespace {

class PictureIconEngine : public QIconEngine {
 public:
  explicit PictureIconEngine(QString name) : name_(std::move(name)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
    painter->drawPixmap(rect.topLeft(),
                        picture(name_, rect.size(), painter->device()->devicePixelRatioF()));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode, QIcon::State) override {
    return picture(name_, size, 1);
  }

  QPixmap scaledPixmap(const QSize& size, QIcon::Mode, QIcon::State, qreal pixelRatio) override {
    // Before its version 6.8 the toolkit asks in the screen's own pixels.
    static const bool kIsOwn = QLibraryInfo::version() < QVersionNumber(6, 8);
    return picture(name_, kIsOwn ? (QSizeF(size) / pixelRatio).toSize() : size, pixelRatio);
  }

  QIconEngine* clone() const override { return new PictureIconEngine(name_); }

 private:
  QString name_;
};

QPixmap render(const QString& name, QSize size, qreal pixelRatio) {
  QSvgRenderer renderer(":/pictures/" + name + ".svg");
  if (!renderer.isValid()) return {};
  QPixmap result((QSizeF(size) * pixelRatio).toSize());
  result.fill(Qt::transparent);
  QPainter painter(&result);
  renderer.render(&painter);
  painter.end();
  result.setDevicePixelRatio(pixelRatio);
  return result;
}

}  // namespace

QPixmap picture(const QString& name, QSize size, qreal pixelRatio) {
  const QString key =
      QStringLiteral("%1 %2 %3 %4").arg(name).arg(size.width()).arg(size.height()).arg(pixelRatio);
  QPixmap result;
  if (!QPixmapCache::find(key, &result)) {
    result = render(name, size, pixelRatio);
    QPixmapCache::insert(key, result);
  }
  return result;
}

QIcon pictureIcon(const QString& name) { return QIcon(new PictureIconEngine(name)); }

}  // namespace ratanka
