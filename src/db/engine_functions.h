// SPDX-License-Identifier: MIT
// The functions of the engine's language that SQLite lacks or means otherwise.
#pragma once

struct sqlite3;

namespace orrerix {

// Makes ucase, len, left, right, isnull and the operator like known to a connection, and fitlong
// and fitbyte, which give what a Long and a Byte field of an append query keep. None of them is
// needed to read a finished file: only query texts and indexes of working copies use them.
void RegisterEngineFunctions(sqlite3* connection);

}  // namespace orrerix
