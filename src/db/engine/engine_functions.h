// SPDX-License-Identifier: MIT
// The functions of the engine's language that SQLite lacks or means otherwise.
#pragma once

#include <optional>

struct sqlite3;

namespace orrerix {

// Makes ucase, len, left, right, isnull and the operator like known to a connection. None of them
// is needed to read a finished file: only query texts and indexes of working copies use them.
void RegisterEngineFunctions(sqlite3* connection);

// The code under which SQLite passes on a failure of these functions, and the way back; nothing for
// a code that is SQLite's own.
int EngineCodeOf(int failureNumber);
std::optional<int> FailureNumberOf(int engineCode);

}  // namespace orrerix
