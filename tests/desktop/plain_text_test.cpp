#include <QAbstractItemView>
#include <QAccessible>
#include <QLabel>

#include "tests/desktop/window_fixture.h"

namespace {

const QString html = QLatin1String("<img src=\"x\">");

class PlainText : public tests::WindowTest {
 protected:
  /// Looks at all that is shown, and returns how often the text from outside is.
  static int look() {
    int seen = 0;
    for (QWidget* const widget : QApplication::allWidgets()) {
      SCOPED_TRACE(widget->objectName().toStdString());
      QStringList toolTips(widget->toolTip());
      QStringList spoken;
      if (const auto* const face = QAccessible::queryAccessibleInterface(widget)) {
        spoken = {face->text(QAccessible::Name), face->text(QAccessible::Description),
                  face->text(QAccessible::Value)};
      }
      if (widget->objectName() == QLatin1String("tableView")) {
        const auto cell = qobject_cast<QAbstractItemView*>(widget)->model()->index(0, 0);
        toolTips += cell.data(Qt::ToolTipRole).toString();
        spoken += cell.data(Qt::AccessibleTextRole).toString();
      }
      if (const auto* const label = qobject_cast<QLabel*>(widget)) {
        // A status line will show names of files, whatever it shows now.
        const bool fromOutside =
            label->text().contains(html) || label->inherits("desktop::StatusLine");
        EXPECT_TRUE(label->textFormat() == Qt::PlainText || !fromOutside);
      }
      const QString escaped = html.toHtmlEscaped();
      EXPECT_TRUE(toolTips.filter(html).empty()) << toolTips.join('\n').toStdString();
      EXPECT_TRUE(spoken.filter(escaped).empty()) << spoken.join('\n').toStdString();
      seen += static_cast<int>(toolTips.filter(escaped).size() + spoken.filter(html).size());
    }
    return seen;
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
  // The path in the table twice, the folder in the sheet, Quillon's place, and most keys.
  EXPECT_GE(look(), 15);
}

}  // namespace
