// SPDX-License-Identifier: MIT
#include "forms/print_form.h"

#include <QFile>

#include "db/failure.h"
#include "form_fixture.h"
#include "picture/map_scene.h"

namespace orrerix {
namespace {

class PrintFormTest : public FormFixture {
 protected:
  PrintFormTest() {
    MapDrawing drawing;
    drawing.Frame = {0, 0, 6000, 3000};
    drawing.FrameColor = {0xFFFFFF};
    drawing.Controls = {MakePicture(ControlId::MapIcon, 5, {300, 300, 600, 600}, "Jumpgate")};
    scene.Show(drawing);
    form.resize(410, 210);
    map.setFrameShape(QFrame::NoFrame);
    map.setGeometry(3, 3, 400, 200);
    form.show();
  }

  std::string FailureOf(const std::optional<PrintTarget>& target) {
    try {
      PrintForm(form, map, target, Language::English);
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Number, 482);
      return failure.Description;
    }
    return "no failure";
  }

  // The inside of the form on white paper.
  QImage Painted() {
    QImage page(410, 210, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    PaintForm(painter, form, map);
    return page;
  }

  QWidget* Box(const char* color, const QRect& place) {
    auto* box = new QWidget(&map);
    box->setStyleSheet(QStringLiteral("background: %1").arg(color));
    box->setAttribute(Qt::WA_StyledBackground);
    box->setGeometry(place);
    box->show();
    return box;
  }

  MapScene scene{pictures};
  QWidget form;
  QGraphicsView map{&scene, &form};
};

TEST_F(PrintFormTest, TheMapIsPaintedInItsPlaceOnTheForm) {
  const QImage page = Painted();

  // The icon of 600 twips at 300, 300: its middle is 40 pixels off the map's corner.
  EXPECT_NE(page.pixelColor(43, 43), QColor(Qt::white));
  EXPECT_EQ(page.pixelColor(408, 100), QColor(Qt::white));
}

TEST_F(PrintFormTest, WhatStandsOnTheMapIsPaintedInItsOrder) {
  Box("#ff0000", {100, 50, 60, 60});
  Box("#00ff00", {130, 50, 60, 60});
  Box("#0000ff", {300, 100, 50, 50})->hide();

  const QImage page = Painted();

  EXPECT_EQ(page.pixelColor(110, 60), QColor(Qt::red));
  EXPECT_EQ(page.pixelColor(150, 60), QColor(Qt::green));
  EXPECT_EQ(page.pixelColor(325, 125), QColor(Qt::white));
}

TEST_F(PrintFormTest, WhatReachesBeyondTheFormIsCutOff) {
  form.resize(200, 210);
  Box("#ff0000", {150, 50, 200, 60});

  const QImage page = Painted();

  EXPECT_EQ(page.pixelColor(190, 80), QColor(Qt::red));
  EXPECT_EQ(page.pixelColor(210, 80), QColor(Qt::white));
}

TEST_F(PrintFormTest, OnePageIsWritten) {
  const auto file = folder.Path() / "map.pdf";

  PrintForm(form, map, PrintTarget{{}, file}, Language::English);

  QFile pdf(QString::fromStdString(file.string()));
  ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
  const QByteArray bytes = pdf.readAll();
  EXPECT_TRUE(bytes.startsWith("%PDF-"));
  EXPECT_TRUE(bytes.contains("/Count 1"));
}

TEST_F(PrintFormTest, ADeviceOfTheDialogIsPrintedOnAsItWasSetUp) {
  const auto file = folder.Path() / "device.pdf";
  auto device = std::make_shared<QtPrintDevice>();
  device->Printer.setOutputFormat(QPrinter::PdfFormat);
  device->Printer.setOutputFileName(QString::fromStdString(file.string()));

  PrintForm(form, map, PrintTarget{{}, {}, device}, Language::English);

  EXPECT_TRUE(QFile::exists(QString::fromStdString(file.string())));
}

TEST_F(PrintFormTest, AMachineWithoutAPrinterIsAFailureThatSaysSo) {
  EXPECT_EQ(FailureOf(std::nullopt), "The map cannot be printed: this computer has no printer.");
}

TEST_F(PrintFormTest, APrinterThatTakesNoPagesIsAFailureThatNamesIt) {
  EXPECT_EQ(FailureOf(PrintTarget{{}, "/nowhere/at/all.pdf"}),
            "The map cannot be printed: '/nowhere/at/all.pdf' takes no pages.");
}

}  // namespace
}  // namespace orrerix
