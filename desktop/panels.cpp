#include "desktop/panels.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLayout>
#include <memory>
#include <utility>

#include "desktop/plain_text.h"
#include "desktop/texts.h"

namespace desktop {
namespace {

using platform::Location;

std::vector<Location> locationsOf(const QFileDialog& dialog) {
  std::vector<Location> locations;
  for (const QString& file : dialog.selectedFiles()) {
    locations.push_back(Location::fromPath(fromQString(file)));
  }
  return locations;
}

// Qt makes the widgets of its own dialog at once, and none where the desktop shows one.
bool isNative(const QFileDialog& dialog) { return dialog.layout() == nullptr; }

// Qt's own dialog matches endings without regard to case; for those of desktops each letter has to
// stand in the pattern in both.
QString patternFor(const std::string& type, bool bothCases) {
  QString pattern = QLatin1String("*.");
  for (const QChar letter : toQString(type)) {
    if (bothCases && letter.isLetter()) {
      pattern += QLatin1Char('[') + letter.toLower() + letter.toUpper() + QLatin1Char(']');
    } else {
      pattern += letter;
    }
  }
  return pattern;
}

QString filterOf(const QString& name, const QStringList& patterns) {
  return QLatin1String("%1 (%2)").arg(name, patterns.join(QLatin1Char(' ')));
}

void setTypes(QFileDialog& dialog, const std::vector<std::string>& types) {
  QStringList patterns;
  for (const std::string& type : types) {
    patterns.append(patternFor(type, isNative(dialog)));
  }
  dialog.setNameFilter(filterOf(tr("Disk images"), patterns));
  dialog.setOption(QFileDialog::HideNameFilterDetails);
}

// Chooses a folder or a file. Qt's own dialog knows no such mode: in that for folders it shows
// files and only refuses to take them.
class AnyDialog : public QFileDialog {
 public:
  AnyDialog(QWidget* window, const QString& title) : QFileDialog(window, title) {
    connect(this, &QFileDialog::currentChanged, this, &AnyDialog::allowFile, Qt::QueuedConnection);
  }

 protected:
  void accept() override {
    const QStringList files = selectedFiles();
    if (files.size() == 1 && QFileInfo(files.front()).isFile()) {
      done(Accepted);
    } else {
      QFileDialog::accept();
    }
  }

 private:
  void allowFile(const QString& path) {
    const auto* const buttons = findChild<QDialogButtonBox*>();
    if (buttons != nullptr && QFileInfo(path).isFile()) {
      for (QAbstractButton* const button : buttons->buttons()) {
        button->setEnabled(true);
      }
    }
  }
};

template <typename Dialog = QFileDialog>
std::unique_ptr<QFileDialog> makeDialog(QWidget* window, const std::string& title) {
  auto dialog =
      std::make_unique<Dialog>(window, QCoreApplication::translate("Panels", title.c_str()));
  // The dialog of KDE would also take what is on servers or in the trash, and give an address in
  // place of a path. The last two are its recent files, which it gives as paths.
  dialog->setSupportedSchemes(
      {QLatin1String("file"), QLatin1String("timeline"), QLatin1String("recentlyused")});
  keepMessagesPlain(dialog.get());
  return dialog;
}

// For what the dialogs of desktops cannot do.
template <typename Dialog = QFileDialog>
std::unique_ptr<QFileDialog> makeOwnDialog(QWidget* window, const std::string& title) {
  auto dialog = makeDialog<Dialog>(window, title);
  dialog->setOption(QFileDialog::DontUseNativeDialog);
  return dialog;
}

std::unique_ptr<QFileDialog> makeDialog(QWidget* window, const platform::OpenPanel& panel) {
  const bool both = panel.canChooseDirectories && panel.canChooseFiles;
  auto dialog =
      both ? makeOwnDialog<AnyDialog>(window, panel.title) : makeDialog(window, panel.title);
  dialog->setAcceptMode(QFileDialog::AcceptOpen);
  if (panel.canChooseDirectories) {
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly, !both);
  } else {
    dialog->setFileMode(panel.allowsMultipleSelection ? QFileDialog::ExistingFiles
                                                      : QFileDialog::ExistingFile);
  }
  dialog->setOption(QFileDialog::ReadOnly, !panel.canCreateDirectories);
  if (!panel.allowedFileTypes.empty()) {
    setTypes(*dialog, panel.allowedFileTypes);
    dialog->setNameFilters(dialog->nameFilters()
                           << filterOf(tr("All files"), {QLatin1String("*")}));
  }
  return dialog;
}

// Shows a dialog that tells the completion once and then goes away by itself.
QFileDialog* begin(std::unique_ptr<QFileDialog> owned, Qt::WindowModality modality,
                   platform::Panels::Chosen completion) {
  QFileDialog* const dialog = owned.release();
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setWindowModality(modality);
  QObject::connect(
      dialog, &QDialog::finished, [dialog, completion = std::move(completion)](int result) {
        completion(result == QDialog::Accepted ? locationsOf(*dialog) : std::vector<Location>());
      });
  dialog->show();
  return dialog;
}

}  // namespace

// The window in which a person asked for the panel. Where none is active, as on a display without a
// window manager, it is one that lies on the settings window, if there is any.
QWidget* Panels::front() const {
  if (QWidget* const active = QApplication::activeWindow()) {
    return active;
  }
  for (QWidget* const child : window_->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (child->isWindow() && child->isVisible()) {
      return child;
    }
  }
  return window_;
}

// Where nothing is set it opens in the folder in which something was chosen last.
std::unique_ptr<QFileDialog> Panels::prepare(const platform::OpenPanel& panel) {
  auto dialog = makeDialog(front(), panel);
  if (!panel.directory.empty()) {
    dialog->setDirectory(toQString(panel.directory));
  } else {
    dialog->setDirectory(folder_->isEmpty() ? QDir::homePath() : *folder_);
  }
  if (!panel.chosenFile.empty()) {  // in a folder of its own
    dialog->selectFile(QFile::decodeName(QByteArray::fromStdString(panel.chosenFile)));
  }
  // fileSelected() would tell of one file only, and not of what AnyDialog takes.
  QObject::connect(dialog.get(), &QDialog::accepted, [folder = folder_, dialog = dialog.get()] {
    *folder = QFileInfo(dialog->selectedFiles().value(0)).path();
  });
  return dialog;
}

std::vector<Location> Panels::runModal(const platform::OpenPanel& panel) {
  const auto dialog = prepare(panel);
  return dialog->exec() == QDialog::Accepted ? locationsOf(*dialog) : std::vector<Location>();
}

void Panels::begin(const platform::OpenPanel& panel, Chosen completion) {
  QPointer<QFileDialog>& open = open_[panel.asker];
  if (open == nullptr || !open->isVisible()) {
    open = desktop::begin(prepare(panel), Qt::NonModal, std::move(completion));
  }
  open->setWindowState(open->windowState() & ~Qt::WindowMinimized);
  open->raise();
  open->activateWindow();
}

void Panels::beginSheet(const platform::OpenPanel& panel, Chosen completion) {
  desktop::begin(prepare(panel), Qt::WindowModal, std::move(completion));
}

void Panels::beginSheet(const platform::SavePanel& panel, Chosen completion) {
  auto dialog = makeOwnDialog(front(), panel.title);
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setFileMode(QFileDialog::AnyFile);
  setTypes(*dialog, panel.allowedFileTypes);
  dialog->setDefaultSuffix(toQString(panel.allowedFileTypes.front()));
  dialog->selectFile(toQString(panel.nameFieldStringValue));
  auto* const message = new QLabel(QCoreApplication::translate("Panels", panel.message.c_str()));
  message->setObjectName(QLatin1String("bitView"));
  dialog->layout()->addWidget(message);
  desktop::begin(std::move(dialog), Qt::WindowModal, std::move(completion));
}

}  // namespace desktop
