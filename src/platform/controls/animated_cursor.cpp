#include "platform/controls/animated_cursor.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPaintDevice>
#include <QPainter>
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

#include "platform/plain/ani_container.h"
#include "platform/plain/riff.h"

namespace ratanka {
namespace {

using riff::number;  // an icon's numbers are laid down in the same way

constexpr std::size_t kMaxPictures = 8;  // in a frame
constexpr std::uint32_t kMaxSide = 64;   // pixels
constexpr std::size_t kDirectoryBytes = 6;
constexpr std::size_t kEntryBytes = 16;
constexpr std::size_t kBitmapHeaderBytes = 40;

// A picture's rows are filled up to four bytes, its colours and its mask alike.
std::size_t rowBytes(std::size_t width, std::size_t bits) { return (width * bits + 31) / 32 * 4; }

// Whether a picture is a plain bitmap of the size that its entry says, with every byte there.
bool isSoundBitmap(std::string_view picture, std::uint32_t width, std::uint32_t height) {
  if (picture.size() < kBitmapHeaderBytes) return false;
  const std::uint32_t bits = number(picture, 14, 2);
  const std::uint32_t compression = number(picture, 16, 4);
  const std::uint32_t colours = number(picture, 32, 4);
  if (number(picture, 0, 4) != kBitmapHeaderBytes || compression != 0) return false;
  if (number(picture, 4, 4) != width) return false;
  if (number(picture, 8, 4) != 2 * height) return false;  // the mask counts as well
  if (bits != 1 && bits != 4 && bits != 8 && bits != 24 && bits != 32) return false;

  const std::size_t palette = bits <= 8 ? std::size_t{1} << bits : 0;
  if (colours != 0 && colours != palette) return false;
  const std::size_t rows = height * (rowBytes(width, bits) + rowBytes(width, 1));
  return picture.size() >= kBitmapHeaderBytes + 4 * palette + rows;
}

// How many pictures a frame holds; 0 when one of them isn't what a decoder may be handed.
int countPictures(std::string_view frame) {
  if (frame.size() < kDirectoryBytes || number(frame, 0, 2) != 0) return 0;
  const std::uint32_t type = number(frame, 2, 2);
  const std::size_t count = number(frame, 4, 2);
  const std::size_t directory = kDirectoryBytes + count * kEntryBytes;
  if ((type != 1 && type != 2) || count > kMaxPictures || frame.size() < directory) return 0;

  for (std::size_t i = 0; i < count; ++i) {
    const std::string_view entry = frame.substr(kDirectoryBytes + i * kEntryBytes, kEntryBytes);
    const std::uint32_t width = number(entry, 0, 1);
    const std::uint32_t height = number(entry, 1, 1);
    const std::size_t size = number(entry, 8, 4);
    const std::size_t offset = number(entry, 12, 4);
    if (width < 1 || width > kMaxSide || height < 1 || height > kMaxSide) return 0;
    if (offset < directory || offset > frame.size() || size > frame.size() - offset) return 0;
    if (!isSoundBitmap(frame.substr(offset, size), width, height)) return 0;
  }
  return static_cast<int>(count);
}

// A frame's pictures from the smallest to the largest; empty when one can't be read.
std::vector<QImage> decode(std::string_view frame) {
  const int count = countPictures(frame);
  QByteArray bytes = QByteArray::fromRawData(frame.data(), frame.size());
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer, "ico");
  reader.setAutoDetectImageFormat(false);
  std::vector<QImage> pictures;
  for (int i = 0; i < count; ++i) {
    QImage picture = reader.jumpToImage(i) ? reader.read() : QImage();
    if (picture.isNull()) return {};
    picture.setDevicePixelRatio(picture.width() / qreal{AnimatedCursor::kSize});
    pictures.push_back(std::move(picture));
  }
  std::ranges::stable_sort(pictures, {}, &QImage::width);
  return pictures;
}

// The pictures of each step; a frame shown twice is decoded once.
std::vector<std::vector<QImage>> decodeSteps(const AniContainer& container) {
  const std::size_t count =
      std::min<std::size_t>(container.steps.size(), AnimatedCursor::kMaxSteps);
  std::vector<std::vector<QImage>> steps;
  for (std::size_t step = 0; step < count; ++step) {
    const auto begin = container.steps.begin();
    const auto here = begin + step;
    const std::size_t seen = std::find(begin, here, *here) - begin;
    steps.push_back(seen < step ? steps[seen] : decode(container.frames[*here]));
    if (steps.back().empty()) return {};
  }
  return steps;
}

}  // namespace

AnimatedCursor AnimatedCursor::load(const QString& path) {
  // Asked before opening: to open a pipe is to wait for its writer.
  if (!QFileInfo(path).isFile()) return {};
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly) || file.size() > qint64{kMaxAniBytes}) return {};
  return fromBytes(file.read(qint64{kMaxAniBytes}));
}

AnimatedCursor AnimatedCursor::fromBytes(const QByteArray& file) {
  AnimatedCursor cursor;
  const auto container = parseAni(std::string_view(file.constData(), file.size()));
  if (container && std::ranges::all_of(container->frames, countPictures)) {
    cursor.steps_ = decodeSteps(*container);
  }
  return cursor;
}

QImage AnimatedCursor::frame(int step, qreal pixelRatio) const {
  if (step < 0 || step >= steps()) return {};
  const Pictures& pictures = steps_[step];
  const auto isSharp = [&](const QImage& picture) { return picture.width() >= kSize * pixelRatio; };
  const auto sharp = std::ranges::find_if(pictures, isSharp);
  return sharp == pictures.end() ? pictures.back() : *sharp;
}

void AnimatedCursor::draw(QPainter& painter, int step) const {
  const QImage picture = frame(step, painter.device()->devicePixelRatioF());
  if (picture.isNull()) return;
  painter.save();
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(QRectF(0, 0, kSize, kSize), picture);
  painter.restore();
}

}  // namespace ratanka
