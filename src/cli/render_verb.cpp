// SPDX-License-Identifier: MIT
// render: the map as a picture file.
#include <QApplication>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <memory>

#ifdef ORRERIX_WITH_SVG_OUTPUT
#include <QSvgGenerator>
#endif

#include <fmt/format.h>

#include "cli/scene.h"
#include "cli/verbs.h"
#include "picture/map_scene.h"
#include "picture/twips.h"

namespace orrerix {
namespace {

struct RenderOptions {
  SceneOptions Scene;
  std::string File;
  std::optional<std::string> Pixels;
};

// Qt's fonts and pictures need an application, but no display. An existing one serves as well.
class OffscreenQt {
 public:
  OffscreenQt() {
    if (QCoreApplication::instance() != nullptr) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(argc_, argv_);
  }

 private:
  char name_[12] = "orrerix-cli";
  char* argv_[2] = {name_, nullptr};
  int argc_ = 1;
  std::unique_ptr<QApplication> application_;
};

// Where the frame stands in a picture: pixel for pixel in one that was made for it, else as large
// as its proportions allow, in the middle.
QRectF PlaceOfFrame(const MapScene& scene, QSize size) {
  const QSizeF frame = scene.sceneRect().size();
  if (size == frame.toSize()) return {QPointF(0, 0), frame};
  QRectF place(QPointF(0, 0), frame.scaled(size, Qt::KeepAspectRatio));
  place.moveCenter(QRectF(QPointF(0, 0), size).center());
  return place;
}

// The frame's colour fills the rest of the picture.
void Paint(MapScene& scene, QPaintDevice& device, QSize size) {
  QPainter painter(&device);
  // First, for the pixels that the frame's edges cover in part.
  painter.fillRect(QRect(QPoint(0, 0), size), scene.backgroundBrush());
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF frame = PlaceOfFrame(scene, size);
  scene.render(&painter, frame, scene.sceneRect());
  // Again: not every kind of file clips what leaves the frame.
  painter.setRenderHint(QPainter::Antialiasing, false);
  const QRectF whole(QPointF(0, 0), size);
  for (const QRectF& rest : {QRectF(whole.topLeft(), QPointF(frame.left(), whole.bottom())),
                             QRectF(QPointF(frame.right(), 0), whole.bottomRight()),
                             QRectF(whole.topLeft(), QPointF(whole.right(), frame.top())),
                             QRectF(QPointF(0, frame.bottom()), whole.bottomRight())}) {
    if (!rest.isEmpty()) painter.fillRect(rest, scene.backgroundBrush());
  }
}

void WritePng(MapScene& scene, const QString& file, QSize size) {
  QImage image(size, QImage::Format_RGB32);
  if (image.isNull()) throw CouldNot("the picture is too large");
  Paint(scene, image, size);
  if (!image.save(file, "PNG")) throw CouldNot("cannot write '" + file.toStdString() + "'");
}

#ifdef ORRERIX_WITH_SVG_OUTPUT
void WriteSvg(MapScene& scene, const QString& file, QSize size) {
  QSvgGenerator generator;
  generator.setFileName(file);
  generator.setSize(size);
  generator.setViewBox(QRect(QPoint(0, 0), size));
  generator.setTitle("FL Orrerix");
  Paint(scene, generator, size);
}
#endif

void WritePdf(MapScene& scene, const QString& file, QSize size) {
  constexpr int dotsPerInch = 96;  // a logical pixel is 15 twips of 1440 an inch
  constexpr double pointsPerPixel = 72.0 / dotsPerInch;
  QPdfWriter writer(file);
  writer.setResolution(dotsPerInch);
  writer.setPageSize(
      QPageSize(QSizeF(size) * pointsPerPixel, QPageSize::Point, {}, QPageSize::ExactMatch));
  writer.setPageMargins({});
  writer.setTitle("FL Orrerix");
  Paint(scene, writer, size);
}

void RequireWritable(const QString& file) {
  QFile probe(file);
  if (!probe.open(QIODevice::WriteOnly)) {
    throw CouldNot(fmt::format("cannot write '{}'", file.toStdString()));
  }
}

using Writer = void (*)(MapScene&, const QString&, QSize);

Writer SvgWriter() {
#ifdef ORRERIX_WITH_SVG_OUTPUT
  return WriteSvg;
#else
  throw CouldNot("this program was built without Qt Svg and writes no .svg; .pdf is as sharp");
#endif
}

Writer WriterOf(const QString& file) {
  if (file.endsWith(".png", Qt::CaseInsensitive)) return WritePng;
  if (file.endsWith(".svg", Qt::CaseInsensitive)) return SvgWriter();
  if (file.endsWith(".pdf", Qt::CaseInsensitive)) return WritePdf;
  throw WrongUsage(fmt::format("'{}' ends neither in .png, .svg nor .pdf", file.toStdString()));
}

QSize SizeOf(const RenderOptions& words, const MapScene& scene) {
  if (!words.Pixels) return scene.sceneRect().size().toSize();
  const Extent extent = ParseExtent(*words.Pixels);
  return {extent.Width, extent.Height};
}

int RunRender(const CommonOptions& options, const RenderOptions& words) {
  const QString file = QString::fromStdString(words.File);
  const Writer write = WriterOf(file);
  ParseFormSize(words.Scene.Size);
  if (words.Pixels) ParseExtent(*words.Pixels);
  Database database = OpenUniverse(options);
  PolicyMessageBoxes messages(options);
  ErrorLog log(messages, CurrentVersion());
  Universe universe{log, database};
  const OffscreenQt qt;
  PictureStore pictures;
  MapScene scene(pictures);
  scene.Show(DrawScene(universe, options, words.Scene).Drawing);
  const QSize size = SizeOf(words, scene);
  if (size.isEmpty()) throw WrongUsage("the picture would have no pixels");
  RequireWritable(file);
  write(scene, file, size);
  return kDone;
}

}  // namespace

void AddRenderVerb(CLI::App& app, const CommonOptions& options, Verb& run) {
  auto words = std::make_shared<RenderOptions>();
  CLI::App* verb = app.add_subcommand("render", "The map as a picture");
  verb->add_option("FILE", words->File, "A file that ends in .png, .svg or .pdf")->required();
  AddText(*verb, "--pixels", words->Pixels, "Size of the picture");
  AddSceneOptions(*verb, words->Scene);
  verb->callback(
      [&options, &run, words] { run = [&options, words] { return RunRender(options, *words); }; });
}

}  // namespace orrerix
