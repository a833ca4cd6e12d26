#include "desktop/volumes_list.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

#include "desktop/empty_hint.h"
#include "desktop/texts.h"
#include "platform/byte_count.h"

namespace desktop {
namespace {

QString keysText(const QKeySequence& keys) { return keys.toString(QKeySequence::NativeText); }

}  // namespace

VolumesList::VolumesList(const PageContext& context) {
  auto* const table = new VolumeView(context.controller.volumes, context.bundle);
  table->setAccessibleName(tr("Disk images"));
  table->setWhatsThis(tr("The disk images of the Macintosh, in their order."));
  table->setAccessibleDescription(table->whatsThis());
  context.volumesLabel = title(table);
  addWidget(context.volumesLabel);
  addLayout(tableWithHint(table, context), 1);
  addWidget(summary(table));
  addLayout(buttons(table, context));
}

QLabel* VolumesList::title(VolumeView* table) const {
  auto* const title = new QLabel(tr("Disk i&mages:"));
  title->setObjectName(QLatin1String("volumesLabel"));
  title->setBuddy(table);
  title->setAlignment(leadingSide() | Qt::AlignVCenter);
  return title;
}

QLayout* VolumesList::tableWithHint(VolumeView* table, const PageContext& context) const {
  auto* const hint = new EmptyHint(table);
  const auto show = [table, hint] { hint->showFor(table->rows().rowCount() == 0); };
  if (table->rows().rowCount() > 0) {
    hint->hide();
  }
  connect(&table->rows(), &QAbstractItemModel::modelReset, hint, show);
  connect(hint, &EmptyHint::add, hint,
          [&button = context.controller.volumes.browseFile] { button.sendAction(); });
  connect(hint, &EmptyHint::makeNew, hint,
          [&button = context.controller.bitCreate] { button.sendAction(); });
  auto* const place = new QGridLayout;
  place->addWidget(table, 0, 0);
  place->addWidget(hint, 0, 0, Qt::AlignCenter);
  return place;
}

QLabel* VolumesList::summary(VolumeView* table) const {
  auto* const line = new QLabel;
  line->setObjectName(QLatin1String("volumesSummary"));
  line->setTextFormat(Qt::PlainText);
  line->setAlignment(leadingSide() | Qt::AlignVCenter);
  const auto show = [table, line] { line->setText(table->rows().summary()); };
  connect(&table->rows(), &QAbstractItemModel::modelReset, line, show);
  connect(&table->rows(), &QAbstractItemModel::dataChanged, line, show);
  show();
  return line;
}

// A disabled widget passes the focus on to the next one, which would be a button for something
// else: the table takes it instead.
QPushButton* VolumesList::moveButton(VolumeView* table, Controls& controls,
                                     platform::Button& control, const QString& text,
                                     const QString& help, const char* icon) {
  QPushButton* const button = controls.pushButton(control, text, help, icon);
  shown_.push_back(control.attach([table, button, &control] {
    if (!control.isEnabled() && button->hasFocus()) {
      table->setFocus();
    }
    button->setEnabled(control.isEnabled());
  }));
  return button;
}

QLayout* VolumesList::buttons(VolumeView* table, const PageContext& context) {
  Controls& controls = context.controls;
  volumes::VolumeTable& volumes = context.controller.volumes;
  auto* const row = new QHBoxLayout;
  row->addWidget(controls.pushButton(volumes.browseFile, tr("&Add…"),
                                     tr("Adds disk images to the list."), "list-add"));
  row->addWidget(controls.pushButton(
      volumes.removeVol, tr("Remo&ve"),
      tr("Takes the selected disk image off the list. The file stays."), "list-remove"));
  row->addWidget(moveButton(
      table, controls, volumes.moveUp, tr("Move &Up"),
      tr("Moves the selected disk images one place up (%1).").arg(keysText(moveUpKeys)), "go-up"));
  row->addWidget(moveButton(
      table, controls, volumes.moveDown, tr("Move Do&wn"),
      tr("Moves the selected disk images one place down (%1).").arg(keysText(moveDownKeys)),
      "go-down"));
  row->addWidget(controls.pushButton(context.controller.bitCreate, tr("New &Blank Image…"),
                                     tr("Makes an empty disk image. It is not added to the list."),
                                     "document-new"));
  row->addStretch();
  return row;
}

}  // namespace desktop
