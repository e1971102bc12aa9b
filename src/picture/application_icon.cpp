// SPDX-License-Identifier: MIT
#include "picture/application_icon.h"

#include "picture/picture_store.h"

namespace orrerix {

QIcon ApplicationIcon() {
  PictureStore pictures;
  QIcon icon;
  for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
    icon.addPixmap(pictures.Scaled(":/pictures/application.svg", {side, side}));
  }
  return icon;
}

}  // namespace orrerix
