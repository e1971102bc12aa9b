// SPDX-License-Identifier: MIT
// Steps of routines on single files. What fails goes to the routine as failure 75.
#pragma once

#include <filesystem>

#include "db/failure.h"

namespace orrerix {

// Whether there is such a file or folder. One that cannot be looked at counts as missing.
bool FileExists(FailureSink& routine, const std::filesystem::path& path);

// Deletes a file; that there is none is no failure.
void DeleteFile(FailureSink& routine, const std::filesystem::path& path);

void RenameFile(FailureSink& routine, const std::filesystem::path& from,
                const std::filesystem::path& to);

// Makes a folder with those above it. False if it is not there afterwards.
bool MakeFolder(FailureSink& routine, const std::filesystem::path& folder);

}  // namespace orrerix
