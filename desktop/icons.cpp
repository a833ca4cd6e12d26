#include "desktop/icons.h"

#include <QApplication>
#include <QEvent>
#include <QIcon>
#include <QPixmap>
#include <QStyle>
#include <QTimer>

namespace desktop {
namespace {

class IconWhenSeen : public QObject {
 public:
  IconWhenSeen(QPushButton* button, const char* name) : QObject(button), name_(name) {
    button->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      watched->removeEventFilter(this);
      auto* const button = static_cast<QPushButton*>(watched);
      QTimer::singleShot(0, button, [button, name = QLatin1String(name_)] {
        button->setIcon(QIcon::fromTheme(name));
      });
      deleteLater();
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  const char* name_;
};

// Qt's fallback, which has no pictures of commands.
bool hasIconTheme() {
  const QString theme = QIcon::themeName();
  return !theme.isEmpty() && theme != QLatin1String("hicolor");
}

}  // namespace

void giveIcon(QPushButton* button, const char* name) {
  const QStyle& style = *button->style();
  if (hasIconTheme() &&
      style.styleHint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons, nullptr, button) != 0) {
    // The button must not grow when the picture comes.
    QPixmap room(button->iconSize());
    room.fill(Qt::transparent);
    button->setIcon(room);
    new IconWhenSeen(button, name);
  } else {
    button->setIcon(
        {});  // QDialogButtonBox gives some buttons, and not others, a picture of Qt's own
  }
}

void giveIcon(QAction* entry, QMenu* menu, const char* name) {
  if (!QApplication::testAttribute(Qt::AA_DontShowIconsInMenus)) {
    QObject::connect(menu, &QMenu::aboutToShow, entry, [entry, name = QLatin1String(name)] {
      if (entry->icon().isNull()) {
        entry->setIcon(QIcon::fromTheme(name));
      }
    });
  }
}

}  // namespace desktop
