// SPDX-License-Identifier: MIT
// Trouble with the disk on demand, for test programs that are linked with failing_disk.cpp.
#pragma once

namespace orrerix {

// With Unreadable it is reading that fails, else all that changes the disk.
enum class DiskTrouble { Error, Full, Unreadable };

// While it lives, the database files' operation after so many others fails, and with it all that
// follow: opening a file to write, writing, truncating, flushing, deleting, and, where the system
// lets a program stand in front, any file's renaming. Files that are open when it begins are not
// counted.
class FailingDisk {
 public:
  FailingDisk(DiskTrouble trouble, int operationsBefore);
  FailingDisk(const FailingDisk&) = delete;
  FailingDisk& operator=(const FailingDisk&) = delete;
  ~FailingDisk();

  bool Happened() const;
};

}  // namespace orrerix
