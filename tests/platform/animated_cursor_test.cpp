#include "platform/controls/animated_cursor.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <QtEndian>
#include <chrono>
#include <initializer_list>

namespace ratanka {
namespace {

template <typename T>
QByteArray number(T value) {
  QByteArray bytes(sizeof(T), '\0');
  qToLittleEndian(value, bytes.data());
  return bytes;
}
QByteArray u16(qsizetype value) { return number(static_cast<quint16>(value)); }
QByteArray u32(qsizetype value) { return number(static_cast<quint32>(value)); }

// A picture of one colour, opaque, without its entry in the directory.
struct Picture {
  qsizetype width = 32;
  qsizetype height = 32;
  QRgb colour = qRgb(255, 0, 0);
  int bits = 32;

  QByteArray bytes() const {
    QByteArray out =
        u32(40) + u32(width) + u32(2 * height) + u16(1) + u16(bits) + QByteArray(24, '\0');
    const QByteArray bgra = u32(static_cast<qsizetype>(colour));
    if (bits == 32) return out + bgra.repeated(width * height) + zeros(1);
    if (bits == 24) {
      const QByteArray row = bgra.first(3).repeated(width);
      const auto fill = static_cast<qsizetype>(rowBytes(24)) - row.size();
      return out + (row + QByteArray(fill, '\0')).repeated(height) + zeros(1);
    }
    return out + bgra.repeated(1 << bits) + zeros(bits) + zeros(1);
  }
  qsizetype rowBytes(int depth) const { return (width * depth + 31) / 32 * 4; }
  QByteArray zeros(int depth) const { return QByteArray(rowBytes(depth) * height, '\0'); }
};

QByteArray icon(std::initializer_list<Picture> pictures, int type = 1) {
  QByteArray out = u16(0) + u16(type) + u16(static_cast<qsizetype>(pictures.size()));
  QByteArray data;
  for (const Picture& picture : pictures) {
    const qsizetype offset = 6 + 16 * static_cast<qsizetype>(pictures.size()) + data.size();
    data += picture.bytes();
    out += static_cast<char>(picture.width);
    out += static_cast<char>(picture.height);
    out += u16(0) + u32(0) + u32(picture.bytes().size()) + u32(offset);
  }
  return out + data;
}

QByteArray chunk(const char* tag, const QByteArray& data) {
  return tag + u32(data.size()) + data + QByteArray(data.size() % 2, '\0');
}

QByteArray ani(const QList<QByteArray>& icons, const QList<int>& steps) {
  QByteArray frames("fram");
  for (const QByteArray& bytes : icons) frames += chunk("icon", bytes);
  QByteArray sequence;
  for (const int step : steps) sequence += u32(step);
  const QByteArray header =
      u32(36) + u32(icons.size()) + u32(steps.size()) + QByteArray(20, '\0') + u32(1);
  return chunk("RIFF",
               "ACON" + chunk("anih", header) + chunk("seq ", sequence) + chunk("LIST", frames));
}

int stepsOf(const QByteArray& file) { return AnimatedCursor::fromBytes(file).steps(); }
int stepsOfIcon(const QByteArray& bytes) { return stepsOf(ani({bytes}, {0})); }

QRgb centre(const QImage& image) { return image.pixel(image.width() / 2, image.height() / 2); }

constexpr qsizetype kEntry = 6;    // where a lone picture's entry stands in its frame
constexpr qsizetype kBitmap = 22;  // and where its header does

const QRgb kRed = qRgb(255, 0, 0);
const QRgb kGreen = qRgb(0, 255, 0);
const QRgb kBlue = qRgb(0, 0, 255);

// Nothing here may say a word, whatever it is given.
class AnimatedCursorTest : public testing::Test {
 protected:
  void SetUp() override { before_ = qInstallMessageHandler(fail); }
  void TearDown() override { qInstallMessageHandler(before_); }

 private:
  static void fail(QtMsgType, const QMessageLogContext&, const QString& text) {
    ADD_FAILURE() << text.toStdString();
  }
  QtMessageHandler before_ = nullptr;
};

TEST_F(AnimatedCursorTest, PlaysTheSequence) {
  const QByteArray red = icon({{.colour = kRed}});
  const QByteArray green = icon({{.colour = kGreen}}, 2);
  const auto film = AnimatedCursor::fromBytes(ani({red, green}, {1, 0, 0, 1}));
  ASSERT_EQ(film.steps(), 4);
  int step = 0;
  for (const QRgb colour : {kGreen, kRed, kRed, kGreen}) {
    EXPECT_EQ(centre(film.frame(step++, 1)), colour);
  }
  EXPECT_EQ(stepsOf(ani({red}, QList<int>(12, 0))), AnimatedCursor::kMaxSteps);
}

TEST_F(AnimatedCursorTest, ReadsEveryDepthAndMissesEveryMissingByte) {
  for (const int bits : {1, 4, 8, 24, 32}) {
    QByteArray frame = icon({{.width = 17, .height = 9, .colour = kBlue, .bits = bits}});
    const auto film = AnimatedCursor::fromBytes(ani({frame}, {0}));
    ASSERT_EQ(film.steps(), 1) << bits;
    EXPECT_EQ(centre(film.frame(0, 1)), kBlue) << bits;

    frame.replace(kEntry + 8, 4, u32(frame.size() - kBitmap - 1));
    EXPECT_EQ(stepsOfIcon(frame), 0) << bits;
    EXPECT_EQ(stepsOfIcon(frame.chopped(1)), 0) << bits;
  }
}

TEST_F(AnimatedCursorTest, PicksThePictureForThePixelRatio) {
  const auto film = AnimatedCursor::fromBytes(
      ani({icon({{64, 64, kBlue}, {16, 16, kGreen}, {32, 32, kRed}})}, {0}));
  const auto width = [&](qreal ratio) { return film.frame(0, ratio).width(); };
  EXPECT_EQ(width(0.5), 16);
  EXPECT_EQ(width(1), 32);
  EXPECT_EQ(width(1.25), 64);
  EXPECT_EQ(width(2), 64);
  EXPECT_EQ(width(3), 64);
  for (const qreal ratio : {0.5, 1.0, 2.0}) {
    EXPECT_EQ(film.frame(0, ratio).deviceIndependentSize(), QSizeF(32, 32)) << ratio;
  }
}

TEST_F(AnimatedCursorTest, DrawsThirtyTwoLogicalPixelsAndNothingForAStepThatIsnt) {
  const auto film = AnimatedCursor::fromBytes(ani({icon({{32, 32, kRed}, {64, 64, kBlue}})}, {0}));
  for (const int ratio : {1, 2}) {
    QImage screen(40 * ratio, 40 * ratio, QImage::Format_ARGB32);
    screen.setDevicePixelRatio(ratio);
    screen.fill(Qt::white);
    const QImage untouched = screen;
    QPainter painter(&screen);
    painter.translate(4, 4);
    for (const int step : {-1, 1, 1000}) film.draw(painter, step);
    AnimatedCursor().draw(painter, 0);
    EXPECT_EQ(screen, untouched);

    film.draw(painter, 0);
    const QRgb expected = ratio == 1 ? kRed : kBlue;
    EXPECT_EQ(screen.pixel(4 * ratio, 4 * ratio), expected);
    EXPECT_EQ(screen.pixel(36 * ratio - 1, 36 * ratio - 1), expected);
    EXPECT_EQ(screen.pixel(4 * ratio - 1, 20 * ratio), qRgb(255, 255, 255));
    EXPECT_EQ(screen.pixel(36 * ratio, 20 * ratio), qRgb(255, 255, 255));
  }
  EXPECT_TRUE(film.frame(1, 1).isNull());
}

TEST_F(AnimatedCursorTest, ACutFileIsEmpty) {
  const QByteArray file = ani({icon({{4, 4}, {8, 8, kRed, 4}}), icon({{3, 3}})}, {0, 1});
  ASSERT_EQ(stepsOf(file), 2);
  for (qsizetype length = 0; length < file.size(); ++length) {
    EXPECT_EQ(stepsOf(file.first(length)), 0) << length;
  }
  const QByteArray frame = icon({{4, 4}, {8, 8, kRed, 4}});
  for (qsizetype length = 0; length < frame.size(); ++length) {
    EXPECT_EQ(stepsOfIcon(frame.first(length)), 0) << length;
  }
}

TEST_F(AnimatedCursorTest, OneBrokenFrameEmptiesTheWhole) {
  const QByteArray good = icon({{}});
  ASSERT_EQ(stepsOf(ani({good, good}, {0, 0})), 2);
  for (const QByteArray& broken : {QByteArray(), QByteArray("no icon"), good.first(100)}) {
    EXPECT_EQ(stepsOf(ani({good, broken}, {0, 1})), 0);
    EXPECT_EQ(stepsOf(ani({good, broken}, {0, 0})), 0);
  }
}

// The steps of a film whose only frame is a good one with `bytes` written over it.
int stepsChanged(qsizetype place, const QByteArray& bytes) {
  QByteArray frame = icon({{}});
  return stepsOfIcon(frame.replace(place, bytes.size(), bytes));
}

TEST_F(AnimatedCursorTest, RefusesADirectoryThatLies) {
  const qsizetype whole = icon({{}}).size();
  ASSERT_EQ(stepsChanged(0, u16(0)), 1);
  EXPECT_EQ(stepsChanged(0, u16(1)), 0);
  for (const int type : {0, 3}) EXPECT_EQ(stepsChanged(2, u16(type)), 0) << type;
  for (const int count : {0, 2, 9, 65535}) EXPECT_EQ(stepsChanged(4, u16(count)), 0) << count;
  for (const int side : {0, 31, 33, 65}) {  // 0 stands for 256
    EXPECT_EQ(stepsChanged(kEntry, u16(32 << 8 | side)), 0) << side;
    EXPECT_EQ(stepsChanged(kEntry, u16(side << 8 | 32)), 0) << side;
  }
  for (const qsizetype size : {0LL, 39LL, whole - kBitmap - 1, whole - kBitmap + 1, 0xffffffffLL}) {
    EXPECT_EQ(stepsChanged(kEntry + 8, u32(size)), 0) << size;
  }
  for (const qsizetype offset : {0LL, kBitmap - 1, kBitmap + 1, whole, 0xffffffffLL}) {
    EXPECT_EQ(stepsChanged(kEntry + 12, u32(offset)), 0) << offset;
  }
  EXPECT_EQ(stepsOfIcon(icon({{}, {}, {}, {}, {}, {}, {}, {}})), 1);
  EXPECT_EQ(stepsOfIcon(icon({{}, {}, {}, {}, {}, {}, {}, {}, {}})), 0);
}

TEST_F(AnimatedCursorTest, RefusesAPictureThatIsNoPlainSmallBitmap) {
  EXPECT_EQ(stepsChanged(kBitmap, "\x89PNG\r\n\x1a\n"), 0);
  for (const qsizetype side : {0LL, 1LL, 31LL, 33LL, 100000LL, 0x7fffffffLL, -32LL}) {
    EXPECT_EQ(stepsChanged(kBitmap + 4, u32(side)), 0) << side;
    EXPECT_EQ(stepsChanged(kBitmap + 8, u32(2 * side)), 0) << side;
  }
  for (const int bits : {0, 2, 16, 48}) EXPECT_EQ(stepsChanged(kBitmap + 14, u16(bits)), 0) << bits;
  EXPECT_EQ(stepsChanged(kBitmap + 16, u32(3)), 0);  // compressed
  for (const qsizetype used : {1LL, 0xffffffffLL}) {
    EXPECT_EQ(stepsChanged(kBitmap + 32, u32(used)), 0) << used;
  }
  EXPECT_EQ(stepsOfIcon(icon({{64, 64}})), 1);
  for (const int side : {65, 128, 255}) {
    EXPECT_EQ(stepsOfIcon(icon({{side, 64}})), 0) << side;
    EXPECT_EQ(stepsOfIcon(icon({{64, side}})), 0) << side;
  }
}

TEST_F(AnimatedCursorTest, LoadsRegularFilesOnlyAndAtOnce) {
  const QTemporaryDir folder;
  const auto write = [&](const char* name, const QByteArray& bytes) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return file.fileName();
  };
  const QByteArray good = ani({icon({{}})}, {0});
  const QString whole = write("žltá.ANI", good);
  const QByteArray filled = good + QByteArray((1 << 20) - good.size(), '\0');
  EXPECT_EQ(AnimatedCursor::load(whole).steps(), 1);
  EXPECT_EQ(AnimatedCursor::load(write("full.ANI", filled)).steps(), 1);

  const auto start = std::chrono::steady_clock::now();
  const QString pipe = folder.filePath("pipe.ANI");
  ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  ASSERT_TRUE(QFile::link(pipe, folder.filePath("link.ANI")));
  for (const QString& path :
       {pipe, folder.filePath("link.ANI"), folder.path(), folder.filePath("none.ANI"), QString(),
        QString("/dev/zero"), write("empty.ANI", ""), write("large.ANI", filled + '\0')}) {
    EXPECT_TRUE(AnimatedCursor::load(path).isNull()) << path.toStdString();
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST_F(AnimatedCursorTest, TheBookTurnsItsPage) {
  const auto book = AnimatedCursor::load(RATANKA_BOOK_FILE);
  ASSERT_EQ(book.steps(), 11);
  for (const int ratio : {1, 2}) {
    for (int step = 0; step < book.steps(); ++step) {
      const QImage image = book.frame(step, ratio);
      ASSERT_EQ(image.size(), QSize(32, 32) * ratio);
      EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0);
      EXPECT_EQ(qAlpha(centre(image)), 255);
      EXPECT_NE(image, book.frame((step + 1) % book.steps(), ratio)) << step;
    }
    EXPECT_NE(book.frame(0, ratio), book.frame(5, ratio));
  }
}

}  // namespace
}  // namespace ratanka
