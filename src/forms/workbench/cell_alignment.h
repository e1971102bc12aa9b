// SPDX-License-Identifier: MIT
#pragma once

#include <QVariant>
#include <Qt>

namespace orrerix {

// What a table answers for Qt::TextAlignmentRole: numbers stand at the right, texts at the left.
inline QVariant CellAlignment(bool isNumber) {
  return int((isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

}  // namespace orrerix
