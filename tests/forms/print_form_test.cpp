// SPDX-License-Identifier: MIT
#include "forms/print_form.h"

#include <QFile>

#include "db/failure.h"
#include "form_fixture.h"

namespace orrerix {
namespace {

class PrintFormTest : public FormFixture {
 protected:
  PrintFormTest() {
    MapDrawing drawing;
    drawing.Frame = {0, 0, 6000, 3000};
    drawing.FrameColor = {0xFFFFFF};
    drawing.Controls = {MakePicture("Image1", 5, {300, 300, 600, 600}, "Jumpgate")};
    scene.Show(drawing);
  }

  std::string FailureOf(const std::optional<PrintTarget>& target) {
    try {
      PrintForm(scene, target);
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Number, 482);
      return failure.Description;
    }
    return "no failure";
  }

  MapScene scene{pictures};
};

TEST_F(PrintFormTest, OnePageIsWritten) {
  const auto file = folder.Path() / "map.pdf";

  PrintForm(scene, PrintTarget{{}, file});

  QFile pdf(QString::fromStdString(file.string()));
  ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
  const QByteArray bytes = pdf.readAll();
  EXPECT_TRUE(bytes.startsWith("%PDF-"));
  EXPECT_TRUE(bytes.contains("/Count 1"));
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
