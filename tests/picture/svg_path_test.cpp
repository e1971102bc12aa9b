// SPDX-License-Identifier: MIT
#include "picture/svg_path.h"

#include <gmock/gmock.h>

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

QPainterPath Square() {
  QPainterPath path(QPointF(1, 2));
  path.setFillRule(Qt::WindingFill);
  path.lineTo(5, 2);
  path.lineTo(5, 8);
  path.lineTo(1, 8);
  path.closeSubpath();
  return path;
}

TEST(SvgNumbers, AreSeparatedByBlanksAndCommas) {
  EXPECT_THAT(SvgNumbers(u"1 -2.5,3e2\n +4)"), ElementsAre(1, -2.5, 300, 4));
  EXPECT_THAT(SvgNumbers(u"-1.5-1.5"), ElementsAre(-1.5, -1.5));
  EXPECT_THAT(SvgNumbers(u"none"), IsEmpty());
}

TEST(SvgPath, TakesLinesOfAllKinds) {
  EXPECT_EQ(SvgPath(u"M1 2 L5 2 L5 8 L1 8 Z"), Square());
  EXPECT_EQ(SvgPath(u"M1 2H5V8H1Z"), Square());
}

TEST(SvgPath, RepeatsACommandForMoreNumbers) {
  EXPECT_EQ(SvgPath(u"M1 2 5 2 5 8 1 8 Z"), Square());
}

TEST(SvgPath, TakesCurves) {
  QPainterPath curve(QPointF(0, 0));
  curve.setFillRule(Qt::WindingFill);
  curve.cubicTo(1, 2, 3, 4, 5, 6);

  EXPECT_EQ(SvgPath(u"M0 0C1 2 3 4 5 6"), curve);
}

TEST(SvgPath, EndsWhereItIsNotUnderstood) {
  QPainterPath line(QPointF(1, 2));
  line.setFillRule(Qt::WindingFill);
  line.lineTo(5, 2);

  EXPECT_EQ(SvgPath(u"M1 2 L5 2 a1 1 0 0 0 1 1"), line);
  EXPECT_EQ(SvgPath(u"M1 2 L5 2 C1 1 2"), line);
  EXPECT_TRUE(SvgPath(u"nonsense").isEmpty());
  EXPECT_TRUE(SvgPath(u"").isEmpty());
}

}  // namespace
}  // namespace orrerix
