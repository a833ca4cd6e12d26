#include "desktop/preview_window.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextBlock>
#include <QVBoxLayout>
#include <optional>
#include <string>

#include "desktop/icons.h"
#include "desktop/texts.h"
#include "platform/files.h"

namespace desktop {
namespace {

using document::ComparedLine;
using Fate = ComparedLine::Fate;

struct Mark {
  QLatin1String sign;  // with the blank behind it
  QColor color;        // laid over the background; none where nothing differs
};

Mark markOf(Fate fate) {
  constexpr int strength = 70;  // of 255: the text stays readable on light and on dark
  switch (fate) {
    case Fate::dropped:
      return {QLatin1String("- "), QColor(220, 40, 40, strength)};
    case Fate::changed:
      return {QLatin1String("* "), QColor(230, 170, 0, strength)};
    case Fate::added:
      return {QLatin1String("+ "), QColor(40, 170, 60, strength)};
    case Fate::kept:
      break;
  }
  return {QLatin1String("  "), QColor()};
}

QString signedText(const std::vector<ComparedLine>& lines) {
  QString text;
  for (const ComparedLine& line : lines) {
    text += markOf(line.fate).sign;
    text += QString::fromUtf8(line.text.data(), static_cast<qsizetype>(line.text.size()));
    text += QLatin1Char('\n');
  }
  text.chop(1);
  return text;
}

QList<QTextEdit::ExtraSelection> marksOf(const QPlainTextEdit& view,
                                         const std::vector<ComparedLine>& lines) {
  QList<QTextEdit::ExtraSelection> marks;
  QTextBlock block = view.document()->begin();
  for (const ComparedLine& line : lines) {
    const QColor color = markOf(line.fate).color;
    if (color.isValid() && block.isValid()) {
      QTextEdit::ExtraSelection mark;
      mark.cursor = QTextCursor(block);
      mark.format.setBackground(color);
      mark.format.setProperty(QTextFormat::FullWidthSelection, true);
      marks.append(mark);
    }
    block = block.next();
  }
  return marks;
}

}  // namespace

PreviewWindow::PreviewWindow(const editor::ViewController& controller, QWidget* parent)
    : QDialog(parent) {
  setObjectName(QLatin1String("previewWindow"));
  setWindowTitle(tr("Preview of the Preferences File"));
  setWindowModality(Qt::WindowModal);
  setAttribute(Qt::WA_DeleteOnClose);

  std::optional<std::string> now;
  QString problem = tr("The typed place names no file.");
  const auto& place = controller.preferences.prefsURL;
  if (place && place->isFile()) {
    std::error_code error;
    now = platform::readTextFile(place->path(), error);
    problem = error == std::errc::no_such_file_or_directory ? tr("There is no file yet.")
              : error == std::errc::illegal_byte_sequence
                  ? tr("The file is not UTF-8 text.")
                  : tr("The file cannot be read: %1").arg(toQString(error.message()));
  }
  const std::string after = controller.textToSave();
  const std::string before = now.value_or(std::string());
  const auto lines = document::compare(before, after);

  auto* const panes = new QHBoxLayout;
  panes->addLayout(
      pane(tr("In the &file now:"), "previewNow", now ? QString() : problem, lines.now));
  panes->addLayout(pane(tr("After a &save:"), "previewAfter", QString(), lines.after));
  auto* const legend = new QLabel(tr("- will be dropped   * will be changed   + will be added"));
  legend->setTextFormat(Qt::PlainText);
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  giveIcon(buttons->button(QDialogButtonBox::Close), "window-close");
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  buttons->button(QDialogButtonBox::Close)->setDefault(true);

  auto* const foot = new QHBoxLayout;
  foot->addWidget(legend, 1);
  foot->addWidget(buttons);
  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(panes, 1);
  layout->addLayout(foot);
  const int line = fontMetrics().lineSpacing();
  resize(QSize(52 * line, 32 * line).boundedTo(parent->size().expandedTo({600, 400})));
}

QLayout* PreviewWindow::pane(const QString& title, const char* name, const QString& text,
                             const std::vector<ComparedLine>& lines) {
  auto* const view = new QPlainTextEdit;
  view->setObjectName(QLatin1String(name));
  view->setReadOnly(true);
  view->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  view->setTabChangesFocus(true);
  view->setLineWrapMode(QPlainTextEdit::NoWrap);
  view->setLayoutDirection(Qt::LeftToRight);
  view->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  view->setPlainText(text.isEmpty() ? signedText(lines) : text);
  view->setExtraSelections(marksOf(*view, lines));

  auto* const label = new QLabel(title);
  label->setBuddy(view);
  auto* const column = new QVBoxLayout;
  column->addWidget(label);
  column->addWidget(view, 1);
  return column;
}

}  // namespace desktop
