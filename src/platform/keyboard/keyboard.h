#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QPointer>
#include <map>

class QKeyEvent;
class QWindow;

namespace ratanka {

// The one memory of the keys that are down. A key belongs to the window in which it went down:
// nowhere else do its repeats and its release count. So the Enter that closes a box answers nothing
// beneath it, and the Esc that leaves a match doesn't end the program on the title.
//
// On X11 it has the server tell of a key that is held by its presses alone, without the releases
// between them that a busy machine would take for real ones, and marks those presses as repeats.
class Keyboard : public QObject, private QAbstractNativeEventFilter {
 public:
  // Whether the window system says of a press that it is a repeat. X11 is asked not to.
  enum class Repeats { marked, unmarked };

  Keyboard();
  explicit Keyboard(Repeats repeats);
  ~Keyboard() override;

  // The system's code (platform/keyboard/keys.h) that the key of this press or release went down
  // as: Shift and AltGr may have come or gone meanwhile. Of a key that went down unseen: its code
  // now.
  int codeOf(const QKeyEvent& event) const;

  // The keyboard leaves a window: the keys that are down in it may come up unseen, and their
  // repeats are nobody's from now on.
  void letGo(const QWindow* window);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Key {
    QPointer<QObject> window;
    int code = 0;
    quint64 time = 0;  // ms, of its last press or repeat
    bool isLetGo = false;
    bool isUp = false;         // though the toolkit may have nobody to tell it to
    bool isAnnounced = false;  // asked of menus first: the press itself may be yet to come
  };

  // X11: sees each release that reaches the program.
  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

  bool isRepeat(const QKeyEvent& event) const;
  void keep(QObject* window, const QKeyEvent& event, bool isAnnounced);
  bool keepsFromMenus(QKeyEvent& event);
  bool swallowsPress(QObject& window, const QKeyEvent& event);
  bool swallowsRelease(const QObject& window, const QKeyEvent& event);

  Repeats repeats_;
  std::map<quint32, Key> down_;  // by their place
  quint32 lastDown_ = 0;         // the place of the key that went down last, without modifiers
  quint32 lastUp_ = 0;           // the place of the key that came up last, and what it went down as
  int lastUpCode_ = 0;
  const QEvent* marked_ = nullptr;  // a repeat that is on its way to its window
};

}  // namespace ratanka
