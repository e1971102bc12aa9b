// SPDX-License-Identifier: MIT
#include "forms/layers/universe_snapshot.h"

#include <QFile>

#include "db/engine/engine.h"
#include "platform/path_text.h"

namespace orrerix {

UniverseSnapshot::UniverseSnapshot(FailureSink& sink, const std::filesystem::path& file) {
  QFile original(QString::fromStdString(TextOf(file)));
  if (original.open(QIODevice::ReadOnly) && copy_.open()) {
    copy_.write(original.readAll());
    copy_.close();
  }
  data_ = DBEngine::OpenDatabase(sink, PathOf(copy_.fileName().toStdString()));
}

}  // namespace orrerix
