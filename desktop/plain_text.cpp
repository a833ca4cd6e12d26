#include "desktop/plain_text.h"

#include <QChildEvent>
#include <QMessageBox>
#include <QTextBoundaryFinder>
#include <QTextDocument>

namespace desktop {
namespace {

class PlainMessages : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    // QMessageBox loads images that its text names when it is laid out, which is after this event.
    if (event->type() == QEvent::ChildPolished) {
      auto* const child = static_cast<QChildEvent*>(event)->child();
      if (auto* const box = qobject_cast<QMessageBox*>(child)) {
        box->setTextFormat(Qt::PlainText);
      }
    }
    return QObject::eventFilter(watched, event);
  }
};

}  // namespace

QString plainToolTip(const QString& text) { return Qt::convertFromPlainText(text); }

QString shortToolTip(const QString& help) {
  QTextBoundaryFinder finder(QTextBoundaryFinder::Sentence, help);
  const qsizetype end = finder.toNextBoundary();
  // With blanks of the usual kind: the other mode makes them such that no line ends there.
  return end < 0 ? QString()
                 : Qt::convertFromPlainText(help.left(end).trimmed(), Qt::WhiteSpaceNormal);
}

QLabel* plainLabel(const QString& text) {
  auto* const label = new QLabel;
  label->setTextFormat(Qt::PlainText);  // first: the text would be parsed otherwise
  label->setText(text);
  return label;
}

void keepMessagesPlain(QDialog* dialog) { dialog->installEventFilter(new PlainMessages(dialog)); }

}  // namespace desktop
