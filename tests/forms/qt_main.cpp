// SPDX-License-Identifier: MIT
// Runs tests that need fonts, pictures and windows, without a display.
#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
