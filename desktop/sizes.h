#pragma once

#include <QString>
#include <string>

namespace desktop {

/// A size as platform::ByteCountFormatter writes it, with the decimal point and the units of the
/// person's language.
QString translatedSize(const std::string& size);

}  // namespace desktop
