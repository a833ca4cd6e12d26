#include "desktop/preferences_window.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace desktop {

PreferencesWindow::PreferencesWindow(const platform::Host& host, Edits& edits, QWidget* parent)
    : QDialog(parent), controller_(host), controls_(edits) {
  setObjectName(QLatin1String("preferencesWindow"));
  setWindowTitle(tr("Quillon Settings Preferences"));
  setAttribute(Qt::WA_DeleteOnClose);

  auto* const where = new QGroupBox(tr("Where Quillon is"));
  auto* const modes = new QVBoxLayout(where);
  modes->addWidget(controls_.radioButton(controller_.quilOff, tr("&Not set up"),
                                         tr("Start is disabled until a place is chosen.")));
  modes->addWidget(controls_.radioButton(controller_.quilLocal, tr("&Beside this program"),
                                         tr("Quillon.app in the folder of this program.")));
  modes->addWidget(
      controls_.radioButton(controller_.quilCustom, tr("&Somewhere else"),
                            tr("The place named below. \"Quillon\" must be part of the name.")));
  modes->addLayout(locationRow());

  auto* const buttons = new QHBoxLayout;
  QPushButton* const test = controls_.pushButton(controller_.testLaunch, tr("&Test"),
                                                 tr("Starts what the location names, unchecked."));
  // Without focus on a click the button does not end the edit of the location, which would empty a
  // field without "Quillon" in it: Test launches what is typed, whatever it is.
  test->setFocusPolicy(Qt::TabFocus);
  test->setAutoDefault(false);
  QPushButton* const done =
      controls_.pushButton(controller_.Done, tr("&Done"), tr("Applies and stores the choices."));
  done->setDefault(true);
  buttons->addWidget(test);
  buttons->addStretch();
  buttons->addWidget(done);

  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(where);
  layout->addWidget(controls_.checkBox(
      controller_.SCSItab, tr("Show the SCS&I tab"),
      tr("Whether the settings window has a tab for SCSI. It shows up with Done.")));
  layout->addWidget(controls_.checkBox(controller_.quitOnStart, tr("&Quit after Start"),
                                       tr("Whether Start also ends this program.")));
  layout->addStretch();
  layout->addLayout(buttons);

  controller_.dismiss = [this] { close(); };
  controller_.viewWillAppear();
  resize(sizeHint().expandedTo(QSize(34 * fontMetrics().lineSpacing(), 0)));
  for (QRadioButton* const mode : where->findChildren<QRadioButton*>()) {
    if (mode->isChecked()) {
      mode->setFocus();
    }
  }
}

// Return in the location takes in what is typed there, which may turn out to be no place for
// Quillon. Anywhere else it presses Done.
void PreferencesWindow::keyPressEvent(QKeyEvent* event) {
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!isReturn || !location_->hasFocus()) {
    QDialog::keyPressEvent(event);
  }
}

QLayout* PreferencesWindow::locationRow() {
  auto* const row = new QHBoxLayout;
  QLineEdit* const field = controls_.pathField(
      controller_.Quillon,
      tr("The application that Start launches. \"Quillon\" must be part of the name."));
  field->setAccessibleName(tr("Location"));
  field->setPlaceholderText(tr("A path with \"Quillon\" in it, such as /opt/Quillon.app"));
  location_ = field;
  auto* const label = new QLabel(tr("&Location:"));
  label->setBuddy(field);
  QPushButton* const choose = controls_.pushButton(controller_.chooseQuillon, tr("&Choose…"),
                                                   tr("Chooses the application."), "document-open");
  choose->setAutoDefault(false);
  row->addWidget(label);
  row->addWidget(field, 1);
  row->addWidget(choose);
  return row;
}

}  // namespace desktop
