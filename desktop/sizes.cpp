#include "desktop/sizes.h"

#include <QCoreApplication>
#include <QLocale>

#include "desktop/texts.h"
#include "platform/translatable.h"

namespace desktop {
namespace {

// Named here for translators only.
[[maybe_unused]] constexpr auto units = {
    platform::translatable("Sizes", "Zero KB"), platform::translatable("Sizes", "byte"),
    platform::translatable("Sizes", "bytes"),   platform::translatable("Sizes", "KB"),
    platform::translatable("Sizes", "MB"),      platform::translatable("Sizes", "GB"),
    platform::translatable("Sizes", "TB")};

QString translated(const QString& text) {
  return QCoreApplication::translate("Sizes", text.toUtf8().constData());
}

}  // namespace

QString translatedSize(const std::string& size) {
  const QString text = toQString(size);
  const auto space = text.lastIndexOf(QLatin1Char(' '));
  QString number = text.left(space);
  if (number.isEmpty() || !number.back().isDigit()) {
    return translated(text);
  }
  const QLocale locale;
  if (locale.zeroDigit() == QLatin1String("0")) {  // another point beside other digits looks wrong
    number.replace(QLatin1Char('.'), locale.decimalPoint());
  }
  return leftToRight(number + QLatin1Char(' ') + translated(text.mid(space + 1)));
}

}  // namespace desktop
