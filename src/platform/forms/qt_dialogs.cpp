#include "platform/forms/qt_dialogs.h"

#include <QApplication>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QPointer>
#include <QScreen>
#include <QTranslator>

#include "platform/base/text.h"
#include "platform/forms/desktop.h"
#include "platform/forms/forms.h"
#include "platform/forms/free_place.h"
#include "platform/forms/window_states.h"

namespace ratanka {
namespace {

// The toolkit's own Slovak. It has the words of the buttons under the name of the class that
// asked for them in older editions.
class Slovak : public QTranslator {
 public:
  using QTranslator::QTranslator;

  QString translate(const char* context, const char* source, const char* disambiguation,
                    int n) const override {
    QString found = QTranslator::translate(context, source, disambiguation, n);
    if (!found.isEmpty() || qstrcmp(context, "QPlatformTheme") != 0) return found;
    return QTranslator::translate("QDialogButtonBox", source, disambiguation, n);
  }
};

QMessageBox::Icon iconOf(MessageBox::Icon icon) {
  switch (icon) {
    case MessageBox::Icon::information:
      return QMessageBox::Information;
    case MessageBox::Icon::exclamation:
      return QMessageBox::Warning;
    case MessageBox::Icon::none:
      break;
  }
  return QMessageBox::NoIcon;
}

// The toolkit breaks lines at the line feed alone.
QString unixLines(const std::string& utf8) { return text(utf8).replace("\r\n", "\n"); }

// A table, its columns apart by tabs: the toolkit would take a tab for a blank and break the lines.
void makeRoomForTabs(QMessageBox& window) {
  constexpr int kTab = 80;
  auto* const label = window.findChild<QLabel*>("qt_msgbox_label");
  if (label == nullptr || !window.text().contains('\t')) return;
  label->setMinimumWidth(
      label->fontMetrics().size(Qt::TextExpandTabs, window.text(), kTab).width() + kTab);
}

// The frame has a sign and buttons beside the title.
int widthForTitle(const QDialog& window) {
  constexpr int kSignAndButtons = 130;
  QFont bold = window.font();
  bold.setBold(true);
  return QFontMetrics(bold).horizontalAdvance(window.windowTitle()) + kSignAndButtons;
}

// The toolkit gives the box the size of what stands in it.
void makeRoomForTitle(QMessageBox& window) {
  auto* const layout = qobject_cast<QGridLayout*>(window.layout());
  if (layout == nullptr) return;
  layout->addItem(new QSpacerItem(widthForTitle(window), 0), layout->rowCount(), 0, 1,
                  layout->columnCount());
}

void standBeside(QDialog& window, const QWidget& form) {
  if (isWayland()) return;
  const QRect kept = form.frameGeometry();
  const QSize outer = withFrame(window.sizeHint());
  const QPoint middle = kept.center() - QRect({}, outer).center();
  window.move(freePlace(outer, form.screen()->availableGeometry(), {{kept}}, middle));
}

}  // namespace

void QtDialogs::speakSlovak() {
  if (speaksSlovak_) return;
  speaksSlovak_ = true;
  auto* const translator = new Slovak(QCoreApplication::instance());
  if (translator->load("qtbase_sk", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(translator);
  }
}

Dialogs::Answer QtDialogs::message(const MessageBox& box) {
  const bool asks = box.buttons == MessageBox::Buttons::yesNo;
  const Answer unanswered = asks ? Answer::no : Answer::ok;
  if (forms_.isEnding()) return unanswered;
  speakSlovak();

  // The window beneath may go while the box is open, and takes the box with it.
  const QPointer<QMessageBox> window(new QMessageBox(QApplication::activeWindow()));
  window->setObjectName("MsgBox");
  window->setWindowTitle(text(box.title));
  window->setIcon(iconOf(box.icon));
  window->setTextFormat(Qt::PlainText);
  window->setText(unixLines(box.text));
  makeRoomForTabs(*window);
  window->setStandardButtons(asks ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
  if (asks && box.isNoPreset) window->setDefaultButton(QMessageBox::No);
  window->setWindowModality(Qt::ApplicationModal);
  makeRoomForTitle(*window);
  growWhenMaximised(*window);
  comeBackWhenPutAway(*window);
  if (box.isBeside && window->parentWidget() != nullptr) {
    standBeside(*window, *window->parentWidget());
  }

  const int pressed = window->exec();
  delete window;
  if (!asks) return Answer::ok;
  return pressed == QMessageBox::Yes ? Answer::yes : Answer::no;
}

std::optional<std::string> QtDialogs::input(const std::string& title, const std::string& prompt,
                                            const std::string& preset) {
  if (forms_.isEnding()) return std::nullopt;
  speakSlovak();

  const QPointer<QInputDialog> window(new QInputDialog(QApplication::activeWindow()));
  window->setObjectName("InputBox");
  window->setWindowTitle(text(title));
  window->setLabelText(unixLines(prompt));
  window->setTextValue(text(preset));
  window->setWindowModality(Qt::ApplicationModal);
  window->setMinimumWidth(widthForTitle(*window));
  growWhenMaximised(*window);
  comeBackWhenPutAway(*window);

  const bool accepted = window->exec() == QDialog::Accepted;
  std::optional<std::string> entered;
  if (accepted && !window.isNull()) entered = window->textValue().toStdString();
  delete window;
  return entered;
}

}  // namespace ratanka
