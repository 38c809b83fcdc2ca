// make_book OUTPUT: draws an exercise book whose page turns and writes it as an animated cursor.
//
// The book is a little model: a page is a sheet hinged at the spine and bent along its width, seen
// from above and in front. Every frame is drawn big, without smoothing, and averaged down to each
// size, so edges are crisp in both and each run writes the same bytes.

#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <numbers>

namespace {

constexpr int kFrames = 11;
constexpr int kRate = 9;            // sixtieths of a second a frame
constexpr int kSize = 32;           // the drawing's own units
constexpr int kSizes[] = {32, 64};  // pixels
constexpr int kCanvas = 1024;       // pixels, a multiple of each size

constexpr QRgb kInk = 0xff22304a;
constexpr QRgb kPaper = 0xfffffdf5;
constexpr QRgb kPaperShade = 0xffe6dfcf;
constexpr QRgb kRule = 0xffa9cfec;
constexpr QRgb kCover = 0xffd8433b;
constexpr QRgb kTick = 0xff2e9e4f;
constexpr double kOutline = 1.5;
constexpr double kPageOutline = 1.2;

constexpr double kPageWidth = 13.0;
constexpr double kNear = 26.3;   // y of the edge towards us
constexpr double kDepth = 16.0;  // from there to the far edge
constexpr double kTaper = 0.10;  // how much narrower the far edge is
constexpr double kLift = 0.66;   // how much of a height is seen

constexpr double kEase = 0.5;  // 0 turns evenly, 1 rests at both ends
constexpr double kCurl = 3.3;  // radians from spine to edge

// A place of the model: x to the right of the spine, height above the table, depth 0 near to 1 far.
QPointF seen(double x, double height, double depth) {
  const double scale = 1 - kTaper * depth;
  return {kSize / 2.0 + x * scale, kNear - depth * kDepth - height * kLift * scale};
}

// A page's cut across the spine: points at equal distances from the spine to the outer edge.
struct Bend {
  static constexpr int kPoints = 61;
  std::array<double, kPoints> x{};
  std::array<double, kPoints> height{};
  std::array<double, kPoints> angle{};  // 0 lies to the right, pi to the left

  static double alongAt(std::size_t point) { return static_cast<double>(point) / (kPoints - 1); }

  bool showsBack(std::size_t point) const { return angle[point] > std::numbers::pi / 2; }

  // `along` 0 is the spine, 1 the outer edge.
  QPointF at(double along, double depth) const {
    const double place = std::clamp(along, 0.0, 1.0) * (kPoints - 1);
    const auto i = std::min(static_cast<std::size_t>(place), std::size_t{kPoints - 2});
    const double part = place - static_cast<double>(i);
    return seen(std::lerp(x[i], x[i + 1], part), std::lerp(height[i], height[i + 1], part), depth);
  }
};

// How an open book's pages lie: steep at the spine, falling a little towards the edge.
double restingAngle(double along) { return 0.95 * std::pow(1 - along, 2.2) - 0.14 * along; }

// `turned` 0 is a page resting on the right, 1 one resting on the left. Halfway the page curls
// over, or it would be seen on edge, as a line. It never goes through the page below.
Bend bend(double turned) {
  const double half = std::numbers::pi * turned;
  const double eased = turned - kEase * std::sin(2 * half) / (2 * std::numbers::pi);
  const double curl = kCurl * std::pow(std::sin(half), 6);
  Bend page;
  double x = 0;
  double height = 0;
  for (std::size_t i = 0; i < Bend::kPoints; ++i) {
    const double along = Bend::alongAt(i);
    const double rest = restingAngle(along);
    page.x[i] = x;
    page.height[i] = height;
    const double angle = std::lerp(rest, std::numbers::pi - rest, eased) + curl * (along - 0.45);
    page.angle[i] = std::max(angle, rest);
    x += std::cos(page.angle[i]) * kPageWidth / (Bend::kPoints - 1);
    height += std::sin(page.angle[i]) * kPageWidth / (Bend::kPoints - 1);
  }
  return page;
}

void stroke(QPainter& painter, const QPainterPath& path, QRgb colour, double width) {
  painter.strokePath(
      path, QPen(QColor::fromRgba(colour), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void fill(QPainter& painter, const QPainterPath& path, QRgb colour) {
  painter.fillPath(path, QColor::fromRgba(colour));
}

// The line that `depth` is written on, from one place along the page to another.
QPainterPath lineAt(const Bend& page, double from, double to, double depth) {
  QPainterPath path(page.at(from, depth));
  for (int i = 1; i <= 24; ++i) path.lineTo(page.at(std::lerp(from, to, i / 24.0), depth));
  return path;
}

QPainterPath sheet(const Bend& page, double from, double to) {
  QPainterPath path = lineAt(page, from, to, 0);
  path.connectPath(lineAt(page, to, from, 1));
  path.closeSubpath();
  return path;
}

// What stands on a page between two places along it; a left page has been marked with a tick.
void drawWriting(QPainter& painter, const Bend& page, double from, double to, bool left) {
  const auto line = [&](double begin, double end, double depth) {
    const double first = std::max(from, begin);
    const double last = std::min(to, end);
    if (first < last) stroke(painter, lineAt(page, first, last, depth), kRule, 1.0);
  };
  for (const double depth : {0.24, 0.50, 0.76}) line(0.1, 0.94, depth);
  if (!left || from > 0.35 || to < 0.75) return;
  QPainterPath tick(page.at(0.72, 0.55));
  tick.lineTo(page.at(0.56, 0.34));
  tick.lineTo(page.at(0.30, 0.74));
  stroke(painter, tick, kTick, 1.8);
}

void drawSide(QPainter& painter, const Bend& page, double from, double to, bool left, QRgb paper) {
  const QPainterPath shape = sheet(page, from, to);
  fill(painter, shape, paper);
  drawWriting(painter, page, from, to, left);
  stroke(painter, shape, kInk, kPageOutline);
}

QRgb blend(QRgb from, QRgb to, double part) {
  const auto mix = [part](int a, int b) {
    return static_cast<int>(std::lround(std::lerp(a, b, part)));
  };
  return qRgb(mix(qRed(from), qRed(to)), mix(qGreen(from), qGreen(to)),
              mix(qBlue(from), qBlue(to)));
}

// Near the spine the page may still show its face while its edge already shows its back. The back
// is turned away from the light until it lies.
void drawTurningPage(QPainter& painter, double turned) {
  const Bend page = bend(turned);
  const QRgb back = blend(kPaperShade, kPaper, std::pow(turned, 4));
  double from = 0;
  for (std::size_t i = 1; i < Bend::kPoints; ++i) {
    const bool left = page.showsBack(i - 1);
    const bool last = i + 1 == Bend::kPoints;
    if (!last && left == page.showsBack(i)) continue;
    const double to = Bend::alongAt(i);
    drawSide(painter, page, from, to, left, left ? back : kPaper);
    from = to;
  }
}

// The light comes from the left: the page's shadow lies on the page to the right of its foot.
void drawRightPage(QPainter& painter, double turned) {
  const Bend page = bend(0);
  drawSide(painter, page, 0, 1, false, kPaper);
  if (turned == 0) return;
  fill(painter, sheet(page, 0, 0.75 * std::sin(std::numbers::pi * turned)), kPaperShade);
  drawWriting(painter, page, 0, 1, false);
  stroke(painter, sheet(page, 0, 1), kInk, kPageOutline);
}

void drawCover(QPainter& painter) {
  QPainterPath board;
  board.addRoundedRect(QRectF(0.75, 12.25, 30.5, 17), 2.2, 2.2);
  fill(painter, board, kCover);
  stroke(painter, board, kInk, kOutline);
}

void drawFrame(QPainter& painter, double turned) {
  drawCover(painter);
  drawSide(painter, bend(1), 0, 1, true, kPaper);
  drawRightPage(painter, turned);
  if (turned > 0) drawTurningPage(painter, turned);
}

QImage drawn(int frame) {
  QImage canvas(kCanvas, kCanvas, QImage::Format_ARGB32);
  canvas.fill(Qt::transparent);
  QPainter painter(&canvas);
  painter.scale(double{kCanvas} / kSize, double{kCanvas} / kSize);
  drawFrame(painter, static_cast<double>(frame) / kFrames);
  return canvas;
}

// The mean of a square of the canvas, whose pixels are opaque or clear.
QRgb mean(const QImage& canvas, int left, int top, int side) {
  int opaque = 0;
  int red = 0;
  int green = 0;
  int blue = 0;
  for (int y = top; y < top + side; ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(canvas.constScanLine(y));
    for (int x = left; x < left + side; ++x) {
      if (qAlpha(line[x]) == 0) continue;
      ++opaque;
      red += qRed(line[x]);
      green += qGreen(line[x]);
      blue += qBlue(line[x]);
    }
  }
  if (opaque == 0) return 0;
  const auto rounded = [](int sum, int count) { return (sum + count / 2) / count; };
  return qRgba(rounded(red, opaque), rounded(green, opaque), rounded(blue, opaque),
               rounded(255 * opaque, side * side));
}

template <typename T>
void put(QByteArray& out, T value) {
  char bytes[sizeof(T)];
  qToLittleEndian(value, bytes);
  out.append(bytes, sizeof(T));
}

void put16(QByteArray& out, qsizetype value) { put(out, static_cast<std::uint16_t>(value)); }
void put32(QByteArray& out, qsizetype value) { put(out, static_cast<std::uint32_t>(value)); }

// A picture as a cursor keeps it: header, colours from the bottom line up, and the old mask that
// says where nothing is drawn.
QByteArray bitmap(const QImage& canvas, int size) {
  QByteArray out;
  QByteArray mask;
  for (const int field : {40, size, 2 * size}) put32(out, field);
  put16(out, 1);
  put16(out, 32);
  for (int i = 0; i < 6; ++i) put32(out, 0);
  const int side = kCanvas / size;
  for (int y = size - 1; y >= 0; --y) {
    QByteArray maskLine(qsizetype{4} * ((size + 31) / 32), '\0');
    for (int x = 0; x < size; ++x) {
      const QRgb pixel = mean(canvas, x * side, y * side, side);
      put32(out, pixel);
      if (qAlpha(pixel) == 0) maskLine[x / 8] = static_cast<char>(maskLine[x / 8] | 0x80 >> x % 8);
    }
    mask += maskLine;
  }
  return out + mask;
}

QByteArray cursor(int frame) {
  const QImage canvas = drawn(frame);
  const qsizetype count = std::ssize(kSizes);
  QByteArray directory;
  for (const qsizetype field : {qsizetype{0}, qsizetype{2}, count}) put16(directory, field);
  QByteArray pictures;
  for (const int size : kSizes) {
    const QByteArray picture = bitmap(canvas, size);
    for (const int field : {size, size, 0, 0}) directory.append(static_cast<char>(field));
    for (const int hotSpot : {0, 0}) put16(directory, hotSpot);
    put32(directory, picture.size());
    put32(directory, 6 + 16 * count + pictures.size());
    pictures += picture;
  }
  return directory + pictures;
}

QByteArray chunk(const char* tag, const QByteArray& data) {
  QByteArray out(tag);
  put32(out, data.size());
  out += data;
  if (data.size() % 2) out += '\0';
  return out;
}

QByteArray book() {
  QByteArray header;
  const int framesAreIcons = 1;
  for (const int field : {36, kFrames, kFrames, 0, 0, 0, 0, kRate, framesAreIcons}) {
    put32(header, field);
  }
  QByteArray frames("fram");
  for (int i = 0; i < kFrames; ++i) frames += chunk("icon", cursor(i));
  return chunk("RIFF", "ACON" + chunk("anih", header) + chunk("LIST", frames));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: make_book OUTPUT\n", stderr);
    return 2;
  }
  QFile file(QFile::decodeName(argv[1]));
  const QByteArray bytes = book();
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
    std::fprintf(stderr, "make_book: %s: %s\n", argv[1], qPrintable(file.errorString()));
    return 1;
  }
  return 0;
}
