// Any bytes may stand in an animation's file. Whatever they are, reading them ends with a film
// that is empty or whole: every step of it has a picture that can be drawn.
//
// An input is tried twice: as a file, and as the only frame of a sound file, so that a small change
// reaches the pictures as well as the chunks.

#include <QByteArray>
#include <QImage>
#include <QPainter>
#include <QtEndian>
#include <cstddef>
#include <cstdint>

#include "fuzz/law.h"
#include "platform/controls/animated_cursor.h"

namespace {

using ratanka::AnimatedCursor;
using ratanka::hold;

QByteArray u32(qsizetype value) {
  QByteArray bytes(4, '\0');
  qToLittleEndian(static_cast<quint32>(value), bytes.data());
  return bytes;
}

QByteArray chunk(const char* tag, const QByteArray& data) {
  return tag + u32(data.size()) + data + QByteArray(data.size() % 2, '\0');
}

QByteArray fileWith(const QByteArray& frame) {
  const QByteArray header = u32(36) + u32(1) + u32(1) + QByteArray(20, '\0') + u32(1);
  return chunk("RIFF",
               "ACON" + chunk("anih", header) + chunk("LIST", "fram" + chunk("icon", frame)));
}

void tryFile(const QByteArray& file) {
  const AnimatedCursor film = AnimatedCursor::fromBytes(file);
  hold(film.steps() <= AnimatedCursor::kMaxSteps);
  if (film.isNull()) return;

  QImage screen(AnimatedCursor::kSize, AnimatedCursor::kSize, QImage::Format_ARGB32_Premultiplied);
  screen.fill(Qt::white);
  QPainter painter(&screen);
  for (int step = 0; step < film.steps(); ++step) {
    for (const qreal ratio : {1.0, 2.0}) {
      const QImage picture = film.frame(step, ratio);
      hold(!picture.isNull() && picture.width() <= 64 && picture.height() <= 64);
    }
    film.draw(painter, step);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray input(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  tryFile(input);
  tryFile(fileWith(input));
  return 0;
}
