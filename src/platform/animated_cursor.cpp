#include "platform/animated_cursor.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPaintDevice>
#include <QPainter>
#include <QtEndian>
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

#include "platform/ani_container.h"

namespace ratanka {
namespace {

using Bytes = std::span<const std::byte>;

constexpr std::size_t kMaxPictures = 8;  // in a frame
constexpr std::uint32_t kMaxSide = 64;   // pixels
constexpr std::size_t kDirectoryBytes = 6;
constexpr std::size_t kEntryBytes = 16;
constexpr std::size_t kBitmapHeaderBytes = 40;

// The caller has made sure that the number stands there whole.
template <typename T>
T number(Bytes bytes, std::size_t at) {
  return qFromLittleEndian<T>(bytes.data() + at);
}

// A picture's rows are filled up to four bytes, its colours and its mask alike.
std::size_t rowBytes(std::size_t width, std::size_t bits) { return (width * bits + 31) / 32 * 4; }

// Whether a picture is a plain bitmap of the size that its entry says, with every byte there.
bool isSoundBitmap(Bytes picture, std::uint32_t width, std::uint32_t height) {
  if (picture.size() < kBitmapHeaderBytes) return false;
  const auto bits = number<std::uint16_t>(picture, 14);
  const auto compression = number<std::uint32_t>(picture, 16);
  const auto colours = number<std::uint32_t>(picture, 32);
  if (number<std::uint32_t>(picture, 0) != kBitmapHeaderBytes || compression != 0) return false;
  if (number<std::uint32_t>(picture, 4) != width) return false;
  if (number<std::uint32_t>(picture, 8) != 2 * height) return false;  // the mask counts as well
  if (bits != 1 && bits != 4 && bits != 8 && bits != 24 && bits != 32) return false;

  const std::size_t palette = bits <= 8 ? std::size_t{1} << bits : 0;
  if (colours != 0 && colours != palette) return false;
  const std::size_t rows = height * (rowBytes(width, bits) + rowBytes(width, 1));
  return picture.size() >= kBitmapHeaderBytes + 4 * palette + rows;
}

// How many pictures a frame holds; 0 when one of them isn't what a decoder may be handed.
int countPictures(Bytes frame) {
  if (frame.size() < kDirectoryBytes || number<std::uint16_t>(frame, 0) != 0) return 0;
  const auto type = number<std::uint16_t>(frame, 2);
  const std::size_t count = number<std::uint16_t>(frame, 4);
  const std::size_t directory = kDirectoryBytes + count * kEntryBytes;
  if ((type != 1 && type != 2) || count > kMaxPictures || frame.size() < directory) return 0;

  for (std::size_t i = 0; i < count; ++i) {
    const Bytes entry = frame.subspan(kDirectoryBytes + i * kEntryBytes, kEntryBytes);
    const auto width = std::to_integer<std::uint32_t>(entry[0]);
    const auto height = std::to_integer<std::uint32_t>(entry[1]);
    const std::size_t size = number<std::uint32_t>(entry, 8);
    const std::size_t offset = number<std::uint32_t>(entry, 12);
    if (width < 1 || width > kMaxSide || height < 1 || height > kMaxSide) return 0;
    if (offset < directory || offset > frame.size() || size > frame.size() - offset) return 0;
    if (!isSoundBitmap(frame.subspan(offset, size), width, height)) return 0;
  }
  return static_cast<int>(count);
}

// A frame's pictures from the smallest to the largest; empty when one can't be read.
std::vector<QImage> decode(Bytes frame) {
  const int count = countPictures(frame);
  QByteArray bytes =
      QByteArray::fromRawData(reinterpret_cast<const char*>(frame.data()), frame.size());
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
  const auto container = parseAni(std::as_bytes(std::span(file.constData(), file.size())));
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
