// SPDX-License-Identifier: MIT
#include "forms/import_session.h"

#include <new>
#include <utility>

#include "derived/stages.h"

namespace orrerix {

ImportSession::ImportSession(const FormParts& parts, QWidget& form, ImportScreen& screen,
                             const MemoryStatus& start, FolderLock lock)
    : log_(parts.Log),
      host_(form, screen, parts.Messages, parts.Log, start, parts.Paths.Debugging, parts.Speech),
      lock_(std::move(lock)) {}

ImportSession::Result ImportSession::Run(const ImportOrder& order) {
  Database database;
  bool finished = false;
  try {
    finished = ImportGame(log_, host_, database, order, DerivedStages()).Finished;
  } catch (const ImportEnded&) {
    // The form was closed, or the answer to the question about memory was to abort.
    host_.End();
  } catch (const std::bad_alloc&) {
    // There was not even memory for the question.
    host_.End();
  }
  database.Close();
  if (host_.Ended()) return Result::Ended;
  return finished ? Result::Finished : Result::GivenUp;
}

}  // namespace orrerix
