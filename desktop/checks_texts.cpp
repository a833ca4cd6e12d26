#include "desktop/checks_texts.h"

#include <QCoreApplication>

#include "desktop/signs.h"
#include "desktop/texts.h"

namespace desktop {
namespace {

// Titles of entries are translated under "Items", "on" and "off" of check boxes under "Help".
QString translatedWord(const std::string& word) {
  const QString ofHelp = QCoreApplication::translate("Help", word.c_str());
  return ofHelp == toQString(word) ? translatedItem(word) : ofHelp;
}

std::string joined(const checks::Argument& argument) {
  QStringList words;
  for (const std::string& word : argument.words) {
    words += argument.areTranslated ? translatedWord(word) : toQString(word);
  }
  return fromQString(words.join(QLatin1String(", ")));
}

}  // namespace

QString textOf(const checks::Finding& finding) {
  const QString format = QCoreApplication::translate(checks::textContext, finding.text.format);
  std::vector<std::string> arguments;
  for (const checks::Argument& argument : finding.text.arguments) {
    arguments.push_back(joined(argument));
  }
  return toQString(checks::filled(fromQString(format), arguments));
}

QString spokenTextOf(const checks::Finding& finding) {
  switch (finding.level) {
    case checks::Level::stops:
      return tr("Problem: %1").arg(textOf(finding));
    case checks::Level::warning:
      return tr("Warning: %1").arg(textOf(finding));
    case checks::Level::note:
      break;
  }
  return tr("Note: %1").arg(textOf(finding));
}

QIcon iconOf(checks::Level level) {
  switch (level) {
    case checks::Level::stops:
      return iconOf(Sign::stop);
    case checks::Level::warning:
      return iconOf(Sign::warning);
    case checks::Level::note:
      break;
  }
  return iconOf(Sign::note);
}

}  // namespace desktop
