// SPDX-License-Identifier: MIT
#include "picture/svg_path.h"

#include <optional>

namespace orrerix {
namespace {

bool IsSeparator(QChar c) {
  return c.isSpace() || c == u',';
}

// Takes an attribute's text apart.
class Scanner {
 public:
  explicit Scanner(QStringView text) : text_(text) {}

  std::optional<double> Number() {
    SkipSeparators();
    qsizetype end = 0;
    while (end < text_.size() && BelongsToNumber(end)) ++end;
    bool isNumber = false;
    const double number = text_.first(end).toDouble(&isNumber);
    if (!isNumber) return std::nullopt;
    text_ = text_.sliced(end);
    return number;
  }

  std::optional<QPointF> Point() {
    const auto x = Number();
    const auto y = x ? Number() : std::nullopt;
    return y ? std::optional(QPointF(*x, *y)) : std::nullopt;
  }

  // The letter that comes next; nothing if it is none.
  QChar Letter() {
    SkipSeparators();
    if (text_.isEmpty() || !text_.front().isLetter()) return {};
    const QChar letter = text_.front();
    text_ = text_.sliced(1);
    return letter;
  }

 private:
  void SkipSeparators() {
    while (!text_.isEmpty() && IsSeparator(text_.front())) text_ = text_.sliced(1);
  }

  bool BelongsToNumber(qsizetype at) const {
    const QChar c = text_[at];
    const bool isAfterExponent = at > 0 && text_[at - 1].toLower() == u'e';
    if (c == u'-' || c == u'+') return at == 0 || isAfterExponent;
    return c.isDigit() || c == u'.' || c.toLower() == u'e';
  }

  QStringView text_;
};

// Adds one step of a command. False if its numbers are not all there.
bool AddStep(QPainterPath& path, QChar command, Scanner& scanner) {
  const QPointF at = path.currentPosition();
  if (command == u'H' || command == u'V') {
    const auto number = scanner.Number();
    if (number) path.lineTo(command == u'H' ? QPointF(*number, at.y()) : QPointF(at.x(), *number));
    return number.has_value();
  }
  const auto point = scanner.Point();
  if (!point) return false;
  if (command == u'M') {
    path.moveTo(*point);
  } else if (command == u'L') {
    path.lineTo(*point);
  } else {
    const auto second = scanner.Point();
    const auto end = second ? scanner.Point() : std::nullopt;
    if (!end) return false;
    path.cubicTo(*point, *second, *end);
  }
  return true;
}

}  // namespace

std::vector<double> SvgNumbers(QStringView text) {
  Scanner scanner(text);
  std::vector<double> numbers;
  while (const auto number = scanner.Number()) numbers.push_back(*number);
  return numbers;
}

QPainterPath SvgPath(QStringView text) {
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  Scanner scanner(text);
  for (QChar command = scanner.Letter(); !command.isNull(); command = scanner.Letter()) {
    if (command == u'Z') {
      path.closeSubpath();
      continue;
    }
    if (!QStringView(u"MLHVC").contains(command) || !AddStep(path, command, scanner)) break;
    // More numbers repeat the command; after a move they are lines.
    if (command == u'M') command = u'L';
    while (AddStep(path, command, scanner)) {
    }
  }
  return path;
}

}  // namespace orrerix
