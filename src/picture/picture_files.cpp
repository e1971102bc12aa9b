// SPDX-License-Identifier: MIT
#include "picture/picture_files.h"

#include <QDir>

namespace orrerix {
namespace {

const QString kBuiltIn = QStringLiteral(":/pictures/");

}  // namespace

QString PictureFile(const Control& control) {
  const QString name = QString::fromStdString(control.Picture.value_or(""));
  if (name.isEmpty()) return {};
  if (QDir::isAbsolutePath(name)) return name;
  if (name.contains('.')) return kBuiltIn + name;
  if (name == "StarMapPic") return kBuiltIn + "star_map.jpg";
  if (name == "Hintergrund") return kBuiltIn + "hintergrund.png";
  if (name == "Blanko") return kBuiltIn + "blanko.jpg";
  if (name == "SysMapGfx") {
    return kBuiltIn +
           QStringLiteral("systems/%1.jpg").arg(control.Index.value_or(0), 2, 10, QLatin1Char('0'));
  }
  // The rest are the icons of the map, each named like its control.
  return kBuiltIn + "icons/" + name.toLower() + ".svg";
}

}  // namespace orrerix
