#include "piano/piano_key.h"

#include <QAbstractButton>
#include <QMouseEvent>
#include <QPainter>

#include "piano/rules/keys.h"
#include "platform/base/text.h"
#include "platform/controls/controls.h"

namespace ratanka::piano {
namespace {

constexpr int kTop = 120;  // twips, as the sizes
constexpr int kWhiteWidth = 495;
constexpr int kWhiteHeight = 2175;
constexpr int kBlackWidth = 255;
constexpr int kBlackHeight = 1335;

constexpr Rgb kPaperShade{0xdc, 0xd3, 0xc0};
constexpr Rgb kPressedPaper{0xff, 0xe3, 0x9a};
constexpr Rgb kPressedEbony{0x8e, 0x5c, 0xb8};
constexpr Rgb kEbonyShade{0x12, 0x1a, 0x2a};

class PianoKey : public QAbstractButton {
 public:
  PianoKey(QWidget* parent, bool isBlack, std::function<void(bool)> whenTouched)
      : QAbstractButton(parent), isBlack_(isBlack), whenTouched_(std::move(whenTouched)) {
    setCheckable(true);
    setFocusPolicy(Qt::NoFocus);
  }

 protected:
  void mousePressEvent(QMouseEvent*) override { whenTouched_(true); }
  void mouseReleaseEvent(QMouseEvent*) override { whenTouched_(false); }
  // A listener's program presses keys without a mouse.
  void nextCheckState() override {
    whenTouched_(true);
    whenTouched_(false);
  }

  void paintEvent(QPaintEvent*) override {
    constexpr qreal kCorner = 4;
    constexpr int kFront = 9;  // what shows of a key's front while it is up
    constexpr int kSunkenFront = 3;
    const int front = isChecked() ? kSunkenFront : kFront;
    const QRectF all = QRectF(rect()).adjusted(0.5, -kCorner, -0.5, -0.5);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour(kInkColour), 1));
    painter.setBrush(colour(isBlack_ ? kEbonyShade : kPaperShade));
    painter.drawRoundedRect(all, kCorner, kCorner);
    painter.setBrush(colour(isChecked() ? (isBlack_ ? kPressedEbony : kPressedPaper)
                                        : (isBlack_ ? kInkColour : kPaper)));
    painter.drawRoundedRect(all.adjusted(0, 0, 0, -front), kCorner, kCorner);
    painter.setPen(isBlack_ ? QColor(Qt::white) : colour(kInkColour));
    painter.setFont(font());
    const int margin = 6 + front;
    painter.drawText(rect().adjusted(0, 0, 0, -margin), Qt::AlignHCenter | Qt::AlignBottom, text());
  }

 private:
  bool isBlack_;
  std::function<void(bool)> whenTouched_;
};

}  // namespace

QAbstractButton* addPianoKey(QWidget& form, const QString& name, const Key& key,
                             std::function<void(bool)> whenTouched) {
  auto* const result = new PianoKey(&form, key.isBlack, std::move(whenTouched));
  const Place place{key.left, kTop, key.isBlack ? kBlackWidth : kWhiteWidth,
                    key.isBlack ? kBlackHeight : kWhiteHeight};
  setUp(*result, name, place);
  result->setText(ratanka::text(key.caption));
  result->setFont(font({.points = 8.25, .bold = key.isBlack}));
  return result;
}

}  // namespace ratanka::piano
