#include "desktop/create_sheet.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "app/emulator_location.h"
#include "desktop/sizes.h"
#include "desktop/texts.h"
#include "platform/byte_count.h"

namespace desktop {

namespace {

// QFormLayout keeps a label lower than a tall field, and its text above that of the field.
void centreLabels(const QFormLayout& form) {
  for (int row = 0; row < form.rowCount(); ++row) {
    const QLayoutItem* const label = form.itemAt(row, QFormLayout::LabelRole);
    if (label != nullptr) {
      label->widget()->setMinimumHeight(
          form.itemAt(row, QFormLayout::FieldRole)->sizeHint().height());
    }
  }
}

}  // namespace

CreateSheet::CreateSheet(const platform::Host& host, volumes::ImageFolder& folder, Edits& edits,
                         AddToList add, QWidget* parent)
    : QDialog(parent),
      controller_(host.output, host.panels, folder),
      controls_(edits),
      folderNote_(new StatusLine),
      add_(std::move(add)) {
  setObjectName(QLatin1String("createSheet"));
  setWindowTitle(tr("New Blank Image"));
  setWindowModality(Qt::WindowModal);
  setAttribute(Qt::WA_DeleteOnClose);

  auto* const form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  const QString nameHelp = tr("The name of the disk image, without \".dsk\".");
  QLineEdit* const name =
      controls_.lineEdit(controller_.createName, nameHelp, PendingEdit::Commits::always);
  name->setAccessibleName(tr("Name"));
  form->addRow(tr("&Name:"), name);
  addSize(*form);
  addFolder(*form);

  QPushButton* const create = controls_.pushButton(
      controller_.createImage, QString(), tr("Makes the image, and then closes this sheet."));
  create->setDefault(true);
  auto* const closing = new QPushButton(tr("C&lose"));
  closing->setObjectName(QLatin1String("closeSheet"));
  closing->setAutoDefault(false);
  connect(closing, &QPushButton::clicked, this, &QDialog::close);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(addButton());
  buttons->addWidget(closing);
  buttons->addWidget(create);

  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(form);
  centreLabels(*form);  // widgets that have no parent yet take no room in a layout
  layout->addLayout(statusRow());
  layout->addLayout(buttons);
  setMinimumWidth(33 * fontMetrics().lineSpacing());

  controller_.dismiss = [this] { close(); };
  controller_.showFolder = [this] { showFolder(); };
  controller_.viewWillAppear();
}

void CreateSheet::addSize(QFormLayout& form) {
  QComboBox* const box = controls_.lineEditWithChoices(
      controller_.createSize, tr("The size in megabytes. 100 if this is no whole number."),
      {"20", "100", "500", "1000", "2000"});
  for (QWidget* const named :
       {static_cast<QWidget*>(box), static_cast<QWidget*>(box->lineEdit())}) {
    named->setAccessibleName(tr("Size in megabytes"));
  }
  box->lineEdit()->setPlaceholderText(QLatin1String("100"));
  form.addRow(tr("&Size (MB):"), box);
}

// Hidden until an image has been made. The panel opens when this sheet has been deleted: Panels
// makes the active window its parent, and that would still be this sheet, which deletes it.
QPushButton* CreateSheet::addButton() {
  QPushButton* const button =
      controls_.pushButton(controller_.addToList, tr("Add to the L&ist…"),
                           tr("Closes this sheet and opens Add… at the new disk image."));
  button->setAutoDefault(false);
  addShown_ = controller_.addToList.attach([this, button] {
    button->setEnabled(controller_.addToList.isEnabled());
    button->setVisible(controller_.addToList.isEnabled());
  });
  controller_.add = [this](const std::string& path) {
    connect(this, &QObject::destroyed, parentWidget(), [add = add_, path] { add(path); });
    close();
  };
  return button;
}

void CreateSheet::addFolder(QFormLayout& form) {
  QLineEdit* const path =
      controls_.lineEdit(controller_.imageFolder, tr("The folder that the disk image goes to."));
  path->setAccessibleName(tr("Folder"));
  QPushButton* const choose = controls_.pushButton(
      controller_.chooseImageFolder, tr("C&hoose…"),
      tr("Chooses the folder for this and later images, until you quit."), "folder-open");
  choose->setAutoDefault(false);
  auto* const row = new QHBoxLayout;
  row->addWidget(path, 1);
  row->addWidget(choose);
  auto* const label = new QLabel(tr("&Folder:"));
  label->setBuddy(path);
  form.addRow(label, row);
  folderNote_->setObjectName(QLatin1String("imageFolderNote"));
  form.addRow(QString(), folderNote_);
}

void CreateSheet::showFolder() {
  using Place = volumes::ImageFolder::Place;
  const volumes::ImageFolder::State& folder = controller_.folderState();
  QStringList sentences;
  if (!folder.isWritable) {
    sentences += tr("You cannot write to this folder. Please choose another one.");
  }
  if (folder.place == Place::dataFolder) {
    sentences +=
        tr("Images go here because you cannot write to the folder of this program, \"%1\".")
            .arg(toQString(app::ownFolder()));
  }
  if (folder.freeBytes) {
    // In the units of the size field.
    platform::ByteCountFormatter formatter;
    formatter.countStyle = platform::ByteCountFormatter::CountStyle::memory;
    const auto bytes = static_cast<std::int64_t>(*folder.freeBytes);
    sentences += tr("Free space: %1").arg(translatedSize(formatter.stringFromByteCount(bytes)));
  }
  folderNote_->show(sentences.join(QLatin1Char('\n')),
                    folder.isWritable ? platform::TextColor::gray : platform::TextColor::red);
}

// startAnim and stopAnim move the indicator; making an image leaves it alone.
QLayout* CreateSheet::statusRow() {
  const QString help = tr("Only moves the indicator; making an image does not.");
  auto* const row = new QHBoxLayout;
  row->addWidget(controls_.statusLine(controller_.createStatus), 1);
  row->addWidget(controls_.busyIndicator(controller_.createProgressStatus));
  row->addWidget(controls_.smallButton(controller_.startAnim, tr("&Animate"), help));
  row->addWidget(controls_.smallButton(controller_.stopAnim, tr("S&top"), help));
  return row;
}

}  // namespace desktop
