// SPDX-License-Identifier: MIT
#pragma once

#include "db/database.h"
#include "shell/error_log.h"

namespace orrerix {

// The open universe database with the log that failures go to.
struct Universe {
  ErrorLog& Log;
  Database& DB;
};

}  // namespace orrerix
