// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>

#include "db/number_text.h"

namespace orrerix {

// The signs of formatted numbers where the user lives.
inline NumberSeparators LocaleSigns() {
  const QLocale locale;
  return {locale.groupSeparator().toStdString(), locale.decimalPoint().toStdString()};
}

}  // namespace orrerix
