#include "desktop/agreement_sheet.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace desktop {

AgreementSheet::AgreementSheet(const platform::Host& host, Edits& edits, QWidget* parent)
    : QDialog(parent), controller_(host), controls_(edits) {
  setObjectName(QLatin1String("agreementSheet"));
  setWindowTitle(tr("Beta Agreement"));
  setWindowModality(Qt::WindowModal);
  setWindowFlag(Qt::WindowCloseButtonHint, false);
  setAttribute(Qt::WA_DeleteOnClose);

  auto* const text = new QLabel(
      tr("<p>This program is a beta version. It changes three things on this computer:</p>"
         "<ul><li>Quillon's preferences file, when you press Save, Start or Copy, and once when "
         "there is none yet;</li>"
         "<li>its own settings, when you press Done in its preferences;</li>"
         "<li>the disk images that you ask it to make.</li></ul>"
         "<p>Keep a copy of what you cannot do without. Disagree ends the program at once, without "
         "saving.</p>"));
  text->setObjectName(QLatin1String("agreementText"));
  text->setWordWrap(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);

  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  QPushButton* const disagree = controls_.pushButton(
      controller_.disAgree, tr("&Disagree"), tr("Ends the program at once, without saving."));
  disagree->setAutoDefault(false);
  buttons->addWidget(disagree);
  QPushButton* const agree =
      controls_.pushButton(controller_.Agree, tr("&Agree"), tr("Closes this sheet."));
  agree->setDefault(true);
  buttons->addWidget(agree);

  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(text);
  layout->addLayout(buttons);
  agree->setFocus();  // the other button, which comes first, ends the program
  setMinimumWidth(30 * fontMetrics().lineSpacing());

  controller_.dismiss = [this] { accept(); };
  controller_.viewWillAppear();
}

}  // namespace desktop
