#include "desktop/key_repeat.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>

namespace desktop {
namespace {

// Whether the key would press something. A held character goes on being typed into fields, and held
// arrows go on moving; both press nothing.
bool acts(const QObject* receiver, int key) {
  const bool isCharacter = key < Qt::Key_Escape;
  const bool takesPresses = qobject_cast<const QAbstractButton*>(receiver) != nullptr ||
                            qobject_cast<const QMenu*>(receiver) != nullptr;
  return key == Qt::Key_Return || key == Qt::Key_Enter || (isCharacter && takesPresses);
}

}  // namespace

KeyRepeat::KeyRepeat() { QCoreApplication::instance()->installEventFilter(this); }

bool KeyRepeat::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      // Comes right before QEvent::Shortcut, which does not tell whether the key is held.
      repeating_ = static_cast<const QKeyEvent*>(event)->isAutoRepeat();
      return false;
    case QEvent::Shortcut:
      return repeating_;
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {  // on which buttons are clicked
      const auto* const key = static_cast<const QKeyEvent*>(event);
      return key->isAutoRepeat() && acts(watched, key->key());
    }
    default:
      return false;
  }
}

}  // namespace desktop
