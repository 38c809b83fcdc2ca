#pragma once

#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>

namespace ratanka {

// The picture of that name (a file of assets/pictures without its ending) at a size in logical
// pixels, drawn for the screen's pixel ratio so that nothing is blurred. Drawn once and kept in the
// toolkit's picture cache. A name that doesn't exist gives an empty picture.
QPixmap picture(const QString& name, QSize size, qreal pixelRatio);

// The same picture as an icon for any size.
QIcon pictureIcon(const QString& name);

}  // namespace ratanka
