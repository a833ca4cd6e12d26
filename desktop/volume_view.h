#pragma once

#include <QKeySequence>
#include <QTableView>

#include "desktop/volume_delegate.h"
#include "desktop/volume_model.h"
#include "platform/bundle.h"
#include "volumes/volume_table.h"

namespace desktop {

/// The keys that move the selected rows.
inline constexpr auto moveUpKeys = Qt::ALT | Qt::Key_Up;
inline constexpr auto moveDownKeys = Qt::ALT | Qt::Key_Down;

/// The table of disk images: shows the core's table and passes on selection, drags and keys.
class VolumeView : public QTableView {
  Q_OBJECT

 public:
  VolumeView(volumes::VolumeTable& volumes, const platform::Bundle& images);

  /// The rows as they are shown.
  [[nodiscard]] VolumeModel& rows() { return model_; }

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void startDrag(Qt::DropActions supportedActions) override;
  [[nodiscard]] int sizeHintForColumn(int column) const override;

 private:
  void showState();
  void openMenu(const QPoint& place);
  void removeRow();
  void rememberSelection(const QItemSelection& selected, const QItemSelection& deselected);
  void selectAdded();
  [[nodiscard]] QPixmap dragPicture(std::size_t rows) const;
  void paintDropLine();

  volumes::VolumeTable& volumes_;
  VolumeModel model_;
  VolumeDelegate* delegate_;
  std::size_t revision_ = 0;
  QModelIndex hovered_;  // the cell that a drag is over
  bool showing_ = false;
  bool wasEntered_ = false;  // by the keyboard
  platform::Subscription shown_;
  platform::Subscription added_;
};

}  // namespace desktop
