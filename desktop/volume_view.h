#pragma once

#include <QTableView>

#include "desktop/volume_model.h"
#include "platform/bundle.h"
#include "volumes/volume_table.h"

namespace desktop {

/// The table of disk images: shows the core's table and passes on selection, drags and keys.
class VolumeView : public QTableView {
  Q_OBJECT

 public:
  VolumeView(volumes::VolumeTable& volumes, const platform::Bundle& images);

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  [[nodiscard]] int sizeHintForColumn(int column) const override;

 private:
  void showState();
  void removeRow();
  void rememberSelection(const QItemSelection& selected, const QItemSelection& deselected);
  void paintHint();
  void paintDropLine();

  volumes::VolumeTable& volumes_;
  VolumeModel model_;
  std::size_t revision_ = 0;
  QModelIndex hovered_;  // the cell that a drag is over
  bool showing_ = false;
  platform::Subscription shown_;
};

}  // namespace desktop
