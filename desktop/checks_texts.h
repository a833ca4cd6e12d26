#pragma once

#include <QIcon>
#include <QString>

#include "checks/finding.h"

namespace desktop {

/// The sentence of a finding in the person's language.
QString textOf(const checks::Finding& finding);

/// The sentence behind a word for the level, for those who do not see the icon.
QString spokenTextOf(const checks::Finding& finding);

QIcon iconOf(checks::Level level);

}  // namespace desktop
