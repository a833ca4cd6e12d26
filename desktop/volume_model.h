#pragma once

#include <QAbstractTableModel>
#include <QIcon>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "desktop/checks_runner.h"
#include "platform/bundle.h"
#include "volumes/volume_table.h"

namespace desktop {

/// The rows of the table of disk images for Qt's table view. A cell is asked for when it first
/// becomes visible and kept until the table is reloaded.
class VolumeModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// `images` has the pictures that cells name.
  VolumeModel(volumes::VolumeTable& volumes, platform::Bundle images, QObject* parent);

  void reload();

  /// Marks the images that are missing by these.
  void setFacts(const ImageFacts& facts);

  /// Null while nothing is known of the image.
  [[nodiscard]] const checks::FileFact* factAbout(int row) const;

  /// The path as the preferences file has it.
  [[nodiscard]] std::string pathOf(int row) const;

  /// What is wrong with the image, in few words; empty where nothing is.
  [[nodiscard]] QString troubleOf(int row) const;

  /// How many images there are, how large they are together, and how many are missing or cannot be
  /// looked at, as far as that is known.
  [[nodiscard]] QString summary() const;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  [[nodiscard]] Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
  [[nodiscard]] QStringList mimeTypes() const override;
  [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
  [[nodiscard]] bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row,
                                     int column, const QModelIndex& parent) const override;
  bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                    const QModelIndex& parent) override;

 private:
  using Row = std::vector<std::optional<platform::TableCell>>;

  /// Null where there is no such column.
  [[nodiscard]] const platform::TableColumn* columnAt(int column) const;
  [[nodiscard]] QVariant alignment(int column) const;
  [[nodiscard]] const platform::TableCell* cell(const QModelIndex& index) const;
  [[nodiscard]] const QIcon& image(const std::string& name) const;

  volumes::VolumeTable& volumes_;
  platform::TableView& table_;
  platform::Bundle images_;
  int rows_ = 0;
  ImageFacts facts_;
  mutable std::unordered_map<int, Row> cells_;
  mutable std::unordered_map<std::string, QIcon> icons_;
};

}  // namespace desktop
