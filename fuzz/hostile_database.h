// SPDX-License-Identifier: MIT
// Database files as a stranger could have made them.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "support.h"

namespace orrerix {

// Makes hostile files out of one that the program has made.
class HostileDatabase {
 public:
  // Reads a file whole, with the names of its tables and fields.
  explicit HostileDatabase(const std::filesystem::path& sample);

  // Writes the sample to `file`, then spoils it as the input says: tables dropped, renamed, turned
  // into views that never end or into virtual ones; triggers; columns that are missing, calculated
  // or of another type; values of all kinds and sizes; statements out of the input itself; bytes of
  // the file.
  void Write(const std::filesystem::path& file, Steering& input) const;

 private:
  struct Table {
    std::string Name;
    std::vector<std::string> Fields;
  };

  std::string Statement(Steering& input) const;

  std::string bytes_;
  std::vector<Table> tables_;
};

}  // namespace orrerix
