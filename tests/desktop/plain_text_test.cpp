#include <QAbstractItemView>
#include <QAccessible>
#include <QLabel>

#include "tests/desktop/window_fixture.h"

namespace {

const QString html = QLatin1String("<img src=\"x\">");

/// Looks at all that is shown, and counts how often the text from outside is.
class PlainText : public tests::WindowTest {
 protected:
  void look() {
    for (QWidget* const widget : QApplication::allWidgets()) {
      SCOPED_TRACE(widget->objectName().toStdString());
      lookAtToolTip(widget->toolTip());
      if (auto* const face = QAccessible::queryAccessibleInterface(widget)) {
        lookAtSpoken(face->text(QAccessible::Name));
        lookAtSpoken(face->text(QAccessible::Description));
        lookAtSpoken(face->text(QAccessible::Value));
      }
      if (const auto* const label = qobject_cast<QLabel*>(widget)) {
        // A status line will show names of files, whatever it shows now.
        const bool fromOutside =
            label->text().contains(html) || label->inherits("desktop::StatusLine");
        EXPECT_TRUE(label->textFormat() == Qt::PlainText || !fromOutside);
      }
      if (const auto* const view = qobject_cast<QAbstractItemView*>(widget)) {
        lookAtCells(*view);
      }
    }
  }

  int seen = 0;

 private:
  void lookAtToolTip(const QString& text) {
    EXPECT_FALSE(text.contains(html)) << text.toStdString();
    seen += text.contains(html.toHtmlEscaped()) ? 1 : 0;
  }
  void lookAtSpoken(const QString& text) {
    EXPECT_FALSE(text.contains(html.toHtmlEscaped())) << text.toStdString();
    seen += text.contains(html) ? 1 : 0;
  }
  void lookAtCells(const QAbstractItemView& view) {
    const QAbstractItemModel* const model = view.model();
    for (int row = 0; model != nullptr && row < model->rowCount(view.rootIndex()); ++row) {
      for (int column = 0; column < model->columnCount(view.rootIndex()); ++column) {
        const QModelIndex cell = model->index(row, column, view.rootIndex());
        lookAtToolTip(cell.data(Qt::ToolTipRole).toString());
        lookAtSpoken(cell.data(Qt::AccessibleTextRole).toString());
      }
    }
  }
};

TEST_F(PlainText, WhatComesFromOutsideIsNeverHtml) {
  std::string lines = "disk /tmp/" + html.toStdString() + ".dsk\n";
  for (const document::KeyRow& row : document::keyTable) {
    lines += std::string(row.text) + html.toStdString() + "\n";
  }
  open(lines);
  window->completePages();
  app::sharedVar::pathToQuil = html.toStdString();
  app::sharedVar::pathToQuilRoot = fake.home.path(html.toStdString() + "/");
  click("openPreferences");
  activate(&*window);
  click("bitCreate");
  look();
  // The path in the table twice, the folder in the sheet, Quillon's place, and most keys.
  EXPECT_GE(seen, 15);
}

}  // namespace
