// SPDX-License-Identifier: MIT
// Steps of routines on single files. What fails goes to the routine as failure 75.
#pragma once

#include <filesystem>
#include <functional>

#include "db/failure.h"
#include "shell/error_log.h"

namespace orrerix {

// Whether there is such a file or folder. One that cannot be looked at counts as missing.
bool FileExists(FailureSink& routine, const std::filesystem::path& path);

// Deletes a file; that there is none is no failure.
void DeleteFile(FailureSink& routine, const std::filesystem::path& path);

void RenameFile(FailureSink& routine, const std::filesystem::path& from,
                const std::filesystem::path& to);

// Has `build` make a database file beside its place, and puts it there if nothing was logged as
// failed meanwhile; else nothing is left of it. A program that dies on the way leaves no file that
// looks finished.
void BuildWhole(FailureSink& routine, const ErrorLog& log, const std::filesystem::path& path,
                const std::function<void(const std::filesystem::path&)>& build);

// Makes a folder with those above it. False if it is not there afterwards.
bool MakeFolder(FailureSink& routine, const std::filesystem::path& folder);

}  // namespace orrerix
