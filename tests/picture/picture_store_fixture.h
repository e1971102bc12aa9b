// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include "picture/picture_store.h"
#include "support/temp_folder.h"

namespace orrerix {

// A picture file of one colour.
class PictureStoreTest : public ::testing::Test {
 protected:
  QString Plain(QColor color, QSize size = {10, 10}) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    const QString file =
        QString::fromStdString((folder.Path() / (color.name().toStdString() + ".png")).string());
    image.save(file);
    return file;
  }

  QImage Canvas(double devicePixelRatio = 1) const {
    QImage image(QSize(60, 60) * devicePixelRatio, QImage::Format_RGB32);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::black);
    return image;
  }

  TempFolder folder;
  PictureStore store;
};

}  // namespace orrerix
