// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>

#include "db/values/number_text.h"

namespace orrerix {

// The separators of formatted numbers in the user's locale.
inline NumberSeparators LocaleSigns() {
  const QLocale locale;
  return {locale.groupSeparator().toStdString(), locale.decimalPoint().toStdString()};
}

}  // namespace orrerix
