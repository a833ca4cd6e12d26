#include "desktop/diagnostics_window.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/icons.h"

namespace desktop {

DiagnosticsWindow::DiagnosticsWindow(volumes::VolumeTable& volumes, Edits& edits, QWidget* parent)
    : QDialog(parent), controls_(edits) {
  setObjectName(QLatin1String("diagnosticsWindow"));
  setWindowTitle(tr("Diagnostics"));
  setAttribute(Qt::WA_DeleteOnClose);

  auto* const use = new QLabel(tr("For finding faults in this program. None of it is saved."));
  use->setWordWrap(true);
  QLabel* const debug = controls_.statusLine(volumes.loCalDebug);
  debug->setMinimumHeight(0);
  auto* const list = controls_.checkBox(
      volumes.ronMode, tr("Read the local l&ist"),
      tr("The table of disk images shows the second of two equal lists. You see no difference."));
  QPushButton* const panel = controls_.pushButton(
      volumes.sheetCreate, tr("Tr&y the save panel…"),
      tr("Shows a panel and writes the chosen place to standard output. Nothing is made."));
  panel->setAutoDefault(false);
  auto* const panelRow = new QHBoxLayout;
  panelRow->addWidget(panel);
  panelRow->addStretch();
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  giveIcon(buttons->button(QDialogButtonBox::Close), "window-close");
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  buttons->button(QDialogButtonBox::Close)->setDefault(true);

  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(use);
  layout->addWidget(debug);
  layout->addWidget(list);
  layout->addLayout(panelRow);
  layout->addStretch();
  layout->addWidget(buttons);
  setMinimumWidth(28 * fontMetrics().lineSpacing());
  list->setFocus();
}

}  // namespace desktop
