#pragma once

#include <QCheckBox>
#include <QColor>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QString>
#include <functional>
#include <optional>

#include "platform/controls/fonts.h"
#include "platform/ports/colours.h"
#include "platform/ports/units.h"

// Builders for the controls of a form. Each makes a real widget of the toolkit with the control's
// system name as its object name; a later one stands in front of an earlier one.

namespace ratanka {

inline QColor colour(const Rgb& rgb) { return {rgb.red, rgb.green, rgb.blue}; }

// The name of a control that is one of an array: name(index).
inline QString indexed(const char* name, int index) {
  return QString("%1(%2)").arg(name).arg(index);
}

// In logical pixels.
QRect rectangle(const Place& place);
// Names a control and puts it in its place.
void setUp(QWidget& control, const QString& name, const Place& place);

struct LabelDesign {
  QString name;
  Place place;
  QString caption{};
  Type type{};
  Rgb fore = kInkColour;
  std::optional<Rgb> back{};  // none: what lies behind shows through
  // Round each letter, where what lies behind would swallow it; the text then stands in the middle.
  std::optional<Rgb> rim{};
  // Of a rimmed text, in logical pixels from the place's corner; none: the place's own. The letters
  // may reach over the edge a little.
  std::optional<ScreenPoint> middle{};
  Qt::Alignment align = Qt::AlignLeft | Qt::AlignTop;
  QString tooltip{};
};
QLabel* addLabel(QWidget& form, const LabelDesign& design);
// Fills a label with a colour.
void setBack(QLabel& label, const Rgb& back);
// Fills it and writes on it in ink or in white, whichever reads better there.
void setBackReadably(QLabel& label, const Rgb& back);

// A line of text to type into; tells of each key that is released in it. The digit keys of a
// keyboard that has letters and signs there type digits, and so do those of the keypad, however it
// is switched.
class TextBox : public QLineEdit {
  Q_OBJECT

 public:
  using QLineEdit::QLineEdit;

  // Closed: can't be typed into, without a border. The keyboard stays with the form.
  void setOpen(bool open);

 signals:
  // The system's key code (platform/keyboard/keys.h).
  void keyUp(int keyCode);
  // Another control of the form has the keyboard now.
  void lostFocus();

 protected:
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
};

struct TextBoxDesign {
  QString name;
  Place place;
  int maxLength = 0;  // 0 is without a limit
  Type type{};
};
TextBox* addTextBox(QWidget& form, const TextBoxDesign& design);

struct ImageDesign {
  QString name;
  Place place;
  QString picture;  // as in platform/controls/pictures.h
  bool visible = true;
  QString accessibleName{};
};
QWidget* addImage(QWidget& form, const ImageDesign& design);

// A plain white area with a thin border, painted by the form inside it.
class PictureBox : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  // Paints at the next opportunity; `painting` is kept for later repaints.
  void paint(std::function<void(QPainter&)> painting);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::function<void(QPainter&)> painting_;
};
PictureBox* addPictureBox(QWidget& form, const QString& name, const Place& place);

// Feels the clicks of any mouse button on a control that has none of its own, and the pointer that
// moves over it. Keeps the clicks from the form beneath.
class Clicks : public QObject {
  Q_OBJECT

 public:
  explicit Clicks(QWidget& control);

 signals:
  void clicked();
  void pointerMoved();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

// An area that the form paints whole. Of one that is larger than the screen it is asked for what
// the screen shows, and for more when the window moves.
class Canvas : public QWidget {
  Q_OBJECT

 public:
  using Paint = std::function<void(QPainter&, const QRect& exposed)>;

  Canvas(QWidget* parent, Paint paint);

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Paint paint_;
};

struct CanvasDesign {
  QString name;
  Place place{};
  Canvas::Paint paint;
  bool isOpaque = false;  // paints every pixel
  QString accessibleName{};
};
Canvas* addCanvas(QWidget& form, const CanvasDesign& design);

// Pressed by the mouse, the space bar and both Enter keys, at the release.
class Button : public QPushButton {
  Q_OBJECT

 public:
  Button(const QString& caption, QWidget* parent);

 signals:
  // The pointer moves over a shy button.
  void pointerMoved();
  // Any mouse button goes down on it, or it is pressed by a key or for a listener. A button that
  // hides itself then isn't clicked.
  void wentDown();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  bool isInMousePress_ = false;
};

struct ButtonDesign {
  QString name;
  Place place;
  QString caption{};
  QString tooltip{};
  Rgb back{224, 224, 224};
  QString icon{};     // a picture's name
  int iconSize = 32;  // logical pixels
  Type type{};
  bool visible = true;
  bool isShy = false;  // feels the pointer, never gets the keyboard
};
Button* addButton(QWidget& form, const ButtonDesign& design);
void setFace(Button& button, const Rgb& back);

struct CheckBoxDesign {
  QString name;
  Place place;
  QString caption;
};
QCheckBox* addCheckBox(QWidget& form, const CheckBoxDesign& design);

struct ComboBoxDesign {
  QString name;
  Place place;
  QStringList items;
  int chosen = 0;  // from 0
  QString accessibleName{};
};
QComboBox* addComboBox(QWidget& form, const ComboBoxDesign& design);

}  // namespace ratanka
