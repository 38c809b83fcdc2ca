#include "gallery/gallery.h"

#include <QDir>
#include <QKeyEvent>
#include <QWindow>
#include <algorithm>

#include "platform/base/text.h"
#include "platform/controls/controls.h"
#include "sheets/sheets.h"

namespace ratanka {

Gallery::Gallery(QString folder, QString suffix)
    : folder_(std::move(folder)), suffix_(std::move(suffix)) {
  program_.options = {.StartingLevel = 7, .FillLines = true};
}

void Gallery::show() {
  showMenu();
  int mistakes = 0;
  for (const sheets::SheetDesign& design : sheets::allSheets()) showSheet(design, ++mistakes);
  showCard();
  showClock();
  showMaze();
  showPiškôrky();
  showSoccer();
  showBlocks();
  showPuzzle();
  showPiano();
  forms_.endProgram();
}

QWidget& Gallery::window(FormName name) const {
  const auto all = QApplication::topLevelWidgets();
  return **std::find_if(all.begin(), all.end(), [&](const QWidget* widget) {
    return widget->objectName() == text(name.text()) && widget->isVisible();
  });
}

void Gallery::answer(FormName name, int row, const QString& typed) {
  auto& box = control<TextBox>(name, "Text" + QString::number(row));
  box.setText(typed);
  QKeyEvent enter(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier);
  QCoreApplication::sendEvent(&box, &enter);
}

void Gallery::press(FormName name, int key) {
  QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
  QCoreApplication::sendEvent(window(name).windowHandle(), &event);
}

void Gallery::wait(int milliseconds) {
  QTimer::singleShot(milliseconds, qApp, [] { QCoreApplication::exit(0); });
  QCoreApplication::exec();
}

void Gallery::take(FormName name, const QString& state) {
  wait(kPatience);
  save(window(name), text(name.text()) + '-' + state);
}

void Gallery::takeBox(const QString& name) {
  QTimer::singleShot(kPatience, qApp, [this, name] {
    QWidget* const box = QApplication::activeModalWidget();
    save(*box, name);
    box->close();
  });
}

void Gallery::save(QWidget& widget, const QString& name) {
  widget.grab().save(QDir(folder_).filePath(name + suffix_ + ".png"));
}

}  // namespace ratanka
