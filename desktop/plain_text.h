#pragma once

#include <QDialog>
#include <QLabel>
#include <QString>

namespace desktop {

/// What comes from a file, a path or the system is shown as it is. Qt takes a text that looks like
/// HTML for HTML, in tool tips, labels and message boxes alike, and loads the files that it names.

/// A text for a tool tip. Tool tips know no format: the text is escaped.
QString plainToolTip(const QString& text);

/// The first sentence of a help for a tool tip. Escaped it is a rich text for Qt, which wraps no
/// other.
QString shortToolTip(const QString& help);

/// A label that shows a text as it is.
QLabel* plainLabel(const QString& text);

/// Has the message boxes that a dialog of Qt shows by itself, of names that were typed or chosen in
/// it, show them as they are.
void keepMessagesPlain(QDialog* dialog);

}  // namespace desktop
