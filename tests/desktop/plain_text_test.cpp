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
        for (const auto part : {QAccessible::Name, QAccessible::Description, QAccessible::Value}) {
          lookAtSpoken(face->text(part));
        }
      }
      if (const auto* const label = qobject_cast<QLabel*>(widget)) {
        // A status line will show names of files, whatever it shows now.
        const bool fromOutside =
            label->text().contains(html) || label->inherits("desktop::StatusLine");
        EXPECT_TRUE(label->textFormat() == Qt::PlainText || !fromOutside);
      }
      if (widget->objectName() == QLatin1String("tableView")) {
        const auto cell = qobject_cast<QAbstractItemView*>(widget)->model()->index(0, 0);
        lookAtToolTip(cell.data(Qt::ToolTipRole).toString());
        lookAtSpoken(cell.data(Qt::AccessibleTextRole).toString());
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
};

TEST_F(PlainText, WhatComesFromOutsideIsNeverHtml) {
  std::string lines = "disk /tmp/" + html.toStdString() + ".dsk\n";
  for (const document::KeyRow& row : document::keyTable) {
    lines += std::string(row.text) + html.toStdString() + "\n";
  }
  open(lines);
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
