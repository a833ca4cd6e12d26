#include "desktop/create_sheet.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "app/emulator_location.h"
#include "desktop/plain_text.h"
#include "desktop/texts.h"

namespace desktop {

CreateSheet::CreateSheet(platform::Output& output, Edits& edits, QWidget* parent)
    : QDialog(parent), controller_(output), controls_(edits) {
  setObjectName(QLatin1String("createSheet"));
  setWindowTitle(tr("New Blank Image"));
  setWindowModality(Qt::WindowModal);
  setAttribute(Qt::WA_DeleteOnClose);

  auto* const form = new QFormLayout;
  const QString nameHelp = tr("The name of the image file, without \".dsk\".");
  const QString sizeHelp = tr("The size in megabytes. 100 if this is no whole number.");
  QLineEdit* const name =
      controls_.lineEdit(controller_.createName, nameHelp, PendingEdit::Commits::always);
  name->setAccessibleName(tr("Name"));
  form->addRow(tr("&Name:"), name);
  QLineEdit* const size = controls_.lineEdit(controller_.createSize, sizeHelp);
  size->setAccessibleName(tr("Size in megabytes"));
  size->setPlaceholderText(QLatin1String("100"));
  form->addRow(tr("&Size (MB):"), size);
  QLabel* const place = plainLabel(toQString(app::ownFolder()));
  place->setWordWrap(true);
  place->setAlignment(leadingSide() | Qt::AlignVCenter);
  form->addRow(tr("Folder:"), place);

  QPushButton* const create = controls_.pushButton(
      controller_.createImage, QString(), tr("Makes the image, and then closes this sheet."));
  create->setDefault(true);
  auto* const closing = new QPushButton(tr("C&lose"));
  closing->setObjectName(QLatin1String("closeSheet"));
  closing->setAutoDefault(false);
  connect(closing, &QPushButton::clicked, this, &QDialog::close);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(closing);
  buttons->addWidget(create);

  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(form);
  layout->addWidget(controls_.statusLine(controller_.createStatus));
  layout->addLayout(progressRow());
  layout->addLayout(buttons);
  setMinimumWidth(33 * fontMetrics().lineSpacing());

  controller_.dismiss = [this] { close(); };
  controller_.viewWillAppear();
}

QLayout* CreateSheet::progressRow() {
  const QString help = tr("Only moves the bar; making an image does not.");
  auto* const row = new QHBoxLayout;
  row->addWidget(controls_.progressBar(controller_.createProgressStatus), 1);
  for (const auto& [button, text] : {std::pair(&controller_.startAnim, tr("&Animate")),
                                     std::pair(&controller_.stopAnim, tr("S&top"))}) {
    QPushButton* const widget = controls_.pushButton(*button, text, help);
    widget->setAutoDefault(false);
    row->addWidget(widget);
  }
  return row;
}

}  // namespace desktop
