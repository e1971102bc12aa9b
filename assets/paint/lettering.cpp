// SPDX-License-Identifier: MIT
#include "lettering.h"

#include <QTransform>

namespace orrerix {

namespace {

// A letter in a box of height 1, and how wide it is.
struct Letter {
  QPainterPath Lines;
  double Width;
};

Letter LetterO() {
  QPainterPath path;
  path.addRoundedRect(0, 0, 0.95, 1, 0.36, 0.36);
  return {path, 0.95};
}

Letter LetterR() {
  QPainterPath path({0, 1});
  path.lineTo(0, 0);
  path.lineTo(0.46, 0);
  path.cubicTo(0.86, 0, 0.86, 0.58, 0.46, 0.58);
  path.lineTo(0.18, 0.58);
  path.moveTo(0.42, 0.58);
  path.lineTo(0.76, 1);
  return {path, 0.76};
}

Letter LetterE() {
  QPainterPath path({0.66, 0});
  path.lineTo(0, 0);
  path.lineTo(0, 1);
  path.lineTo(0.66, 1);
  path.moveTo(0.18, 0.5);
  path.lineTo(0.58, 0.5);
  return {path, 0.66};
}

Letter LetterI() {
  QPainterPath path({0, 0});
  path.lineTo(0, 1);
  return {path, 0};
}

Letter LetterX() {
  QPainterPath path({0, 0});
  path.lineTo(0.80, 1);
  path.moveTo(0.80, 0);
  path.lineTo(0, 1);
  return {path, 0.80};
}

Letter LetterFor(QChar character) {
  switch (character.unicode()) {
    case 'O':
      return LetterO();
    case 'R':
      return LetterR();
    case 'E':
      return LetterE();
    case 'I':
      return LetterI();
    case 'X':
      return LetterX();
    default:
      return {{}, 0.4};
  }
}

}  // namespace

QPainterPath Lettering(const QString& text, double height, double gap) {
  QPainterPath all;
  double left = 0;
  for (const QChar character : text) {
    const Letter letter = LetterFor(character);
    all.addPath(QTransform::fromTranslate(left, 0).scale(height, height).map(letter.Lines));
    left += letter.Width * height + gap;
  }
  return all;
}

}  // namespace orrerix
