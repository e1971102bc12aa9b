// SPDX-License-Identifier: MIT
#include "picture/picture_files.h"

#include <QDir>

namespace orrerix {
namespace {

const QString kBuiltIn = QStringLiteral(":/pictures/");

// The picture of a control that carries one itself.
QString OwnPicture(const Control& control) {
  switch (control.Id) {
    case ControlId::PaintedUniverse:
      return kBuiltIn + "star_map.jpg";
    case ControlId::BackgroundTile:
      return kBuiltIn + "hintergrund.png";
    case ControlId::EmptyCell:
      return kBuiltIn + "blanko.jpg";
    case ControlId::SystemPicture:
      return kBuiltIn + QStringLiteral("systems/%1.jpg")
                            .arg(control.Index.value_or(0), 2, 10, QLatin1Char('0'));
    default:
      return {};
  }
}

}  // namespace

QString PictureFile(const Control& control) {
  if (control.Picture == PrintedName(control.Id)) return OwnPicture(control);
  QString name = QString::fromStdString(control.Picture.value_or(""));
  if (name.isEmpty()) return {};
  if (QDir::isAbsolutePath(name)) return name;
  if (name.contains('.')) return kBuiltIn + name;
  // The rest are the icons of the map, each named like its control.
  return kBuiltIn + "icons/" + name.toLower() + ".svg";
}

}  // namespace orrerix
