#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

namespace {

QWidget* tablePage() {
  auto* const table = new QTableView;
  auto* const model = new QStandardItemModel(6, 3, table);
  for (int cell = 0; cell < 18; ++cell) {
    model->setItem(cell / 3, cell % 3, new QStandardItem(QStringLiteral("Cell %1").arg(cell)));
  }
  table->setModel(model);
  auto* const page = new QWidget;
  auto* const layout = new QVBoxLayout(page);
  layout->addWidget(table);
  for (const char* const text : {"Add", "Remove", "New"}) {
    layout->addWidget(new QPushButton(QLatin1String(text)));
  }
  return page;
}

// Seven controls of the usual kinds.
QWidget* formPage() {
  auto* const page = new QWidget;
  auto* const form = new QFormLayout(page);
  auto* const choice = new QComboBox;
  choice->addItems({QStringLiteral("One"), QStringLiteral("Two"), QStringLiteral("Three")});
  form->addRow(QStringLiteral("Path:"), new QLineEdit);
  form->addRow(QStringLiteral("Name:"), new QLineEdit);
  form->addRow(QStringLiteral("Choice:"), choice);
  form->addRow(QStringLiteral("Number:"), new QSpinBox);
  form->addRow(QString(), new QCheckBox(QStringLiteral("Option")));
  form->addRow(QString(), new QCheckBox(QStringLiteral("Another option")));
  form->addRow(QString(), new QPushButton(QStringLiteral("Browse")));
  return page;
}

}  // namespace

// A window with seven tabs and 45 controls that do nothing: what the toolkit takes to show a
// window of that kind, whatever its program does.
int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QMainWindow window;
  auto* const tabs = new QTabWidget;
  for (int number = 1; number <= 7; ++number) {
    tabs->addTab(number == 1 ? tablePage() : formPage(), QStringLiteral("Page %1").arg(number));
  }
  window.setCentralWidget(tabs);
  for (const char* const name : {"File", "Edit", "Help"}) {
    window.menuBar()->addMenu(QLatin1String(name))->addAction(QStringLiteral("Entry"));
  }
  window.resize(720, 560);
  window.show();
  return QApplication::exec();
}
