#include "desktop/file_drop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <utility>

namespace desktop {
namespace {

// The path of the one file that is dragged; empty when a field cannot take it.
QString pathOf(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  if (urls.size() != 1 || !urls.front().isLocalFile() || !urls.front().host().isEmpty()) {
    return {};
  }
  const QString path = urls.front().toLocalFile();
  return path.contains(QLatin1Char('\n')) ? QString() : path;
}

class FileDrop : public QObject {
 public:
  FileDrop(QLineEdit* field, std::function<void()> dropped)
      : QObject(field), field_(field), dropped_(std::move(dropped)) {}

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop) {
      return QObject::eventFilter(watched, event);
    }
    auto* const drop = static_cast<QDropEvent*>(event);
    if (!drop->mimeData()->hasUrls()) {
      return QObject::eventFilter(watched, event);  // a text, which the field takes as ever
    }
    const QString path = pathOf(*drop->mimeData());
    if (path.isEmpty() || field_->isReadOnly()) {
      event->ignore();
      return true;
    }
    // Whatever is proposed: after a move a file manager would delete the file.
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    if (type == QEvent::Drop) {
      field_->selectAll();
      field_->insert(path);
      dropped_();
    }
    return true;
  }

 private:
  QLineEdit* field_;
  std::function<void()> dropped_;
};

}  // namespace

void takeDroppedFiles(QLineEdit* field, std::function<void()> dropped) {
  field->installEventFilter(new FileDrop(field, std::move(dropped)));
}

}  // namespace desktop
