// SPDX-License-Identifier: MIT
#include "support/failing_disk.h"

#include <sqlite3.h>

#ifndef _WIN32
#include <cerrno>

#include <fcntl.h>
#include <stdio.h>
#endif

namespace orrerix {
namespace {

struct Fault {
  DiskTrouble Trouble = DiskTrouble::Error;
  int Left = 0;
  bool Happened = false;

  // What an operation answers in the place of its own answer; SQLITE_OK lets it happen.
  int Answer(int error) {
    if ((Trouble == DiskTrouble::Unreadable) != (error == SQLITE_IOERR_READ)) return SQLITE_OK;
    if (Left-- > 0) return SQLITE_OK;
    Happened = true;
    return Trouble == DiskTrouble::Full ? SQLITE_FULL : error;
  }
};

// The disk that the program asks for: on Windows one that takes paths of any length.
#ifdef _WIN32
constexpr const char* kDisk = "win32-longpath";
#else
constexpr const char* kDisk = nullptr;
#endif

Fault fault;
bool isInFront = false;
sqlite3_vfs* disk = nullptr;
sqlite3_vfs failing;

// A file of the real disk with another table of methods in front.
struct File {
  sqlite3_file Shown;
  sqlite3_file* Real;
};

sqlite3_file* Real(sqlite3_file* file) {
  return reinterpret_cast<File*>(file)->Real;
}

int Close(sqlite3_file* file) {
  return Real(file)->pMethods->xClose(Real(file));
}
int Read(sqlite3_file* file, void* bytes, int size, sqlite3_int64 place) {
  const int answer = fault.Answer(SQLITE_IOERR_READ);
  return answer != SQLITE_OK ? answer : Real(file)->pMethods->xRead(Real(file), bytes, size, place);
}
int Write(sqlite3_file* file, const void* bytes, int size, sqlite3_int64 place) {
  const int answer = fault.Answer(SQLITE_IOERR_WRITE);
  return answer != SQLITE_OK ? answer
                             : Real(file)->pMethods->xWrite(Real(file), bytes, size, place);
}
int Truncate(sqlite3_file* file, sqlite3_int64 size) {
  const int answer = fault.Answer(SQLITE_IOERR_TRUNCATE);
  return answer != SQLITE_OK ? answer : Real(file)->pMethods->xTruncate(Real(file), size);
}
int Sync(sqlite3_file* file, int flags) {
  const int answer = fault.Answer(SQLITE_IOERR_FSYNC);
  return answer != SQLITE_OK ? answer : Real(file)->pMethods->xSync(Real(file), flags);
}
int FileSize(sqlite3_file* file, sqlite3_int64* size) {
  return Real(file)->pMethods->xFileSize(Real(file), size);
}
int Lock(sqlite3_file* file, int level) {
  return Real(file)->pMethods->xLock(Real(file), level);
}
int Unlock(sqlite3_file* file, int level) {
  return Real(file)->pMethods->xUnlock(Real(file), level);
}
int CheckReservedLock(sqlite3_file* file, int* isHeld) {
  return Real(file)->pMethods->xCheckReservedLock(Real(file), isHeld);
}
int FileControl(sqlite3_file* file, int what, void* argument) {
  return Real(file)->pMethods->xFileControl(Real(file), what, argument);
}
int SectorSize(sqlite3_file* file) {
  return Real(file)->pMethods->xSectorSize(Real(file));
}
int DeviceCharacteristics(sqlite3_file* file) {
  return Real(file)->pMethods->xDeviceCharacteristics(Real(file));
}

const sqlite3_io_methods kMethods = [] {
  sqlite3_io_methods methods{};
  methods.iVersion = 1;
  methods.xClose = Close;
  methods.xRead = Read;
  methods.xWrite = Write;
  methods.xTruncate = Truncate;
  methods.xSync = Sync;
  methods.xFileSize = FileSize;
  methods.xLock = Lock;
  methods.xUnlock = Unlock;
  methods.xCheckReservedLock = CheckReservedLock;
  methods.xFileControl = FileControl;
  methods.xSectorSize = SectorSize;
  methods.xDeviceCharacteristics = DeviceCharacteristics;
  return methods;
}();

int Open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
  auto* opened = reinterpret_cast<File*>(file);
  opened->Shown.pMethods = nullptr;
  opened->Real = reinterpret_cast<sqlite3_file*>(opened + 1);
  if ((flags & SQLITE_OPEN_READWRITE) != 0) {
    const int answer = fault.Answer(SQLITE_CANTOPEN);
    if (answer != SQLITE_OK) return answer;
  }
  const int answer = disk->xOpen(disk, name, opened->Real, flags, outFlags);
  if (answer == SQLITE_OK) opened->Shown.pMethods = &kMethods;
  return answer;
}
int Delete(sqlite3_vfs*, const char* name, int syncFolder) {
  const int answer = fault.Answer(SQLITE_IOERR_DELETE);
  return answer != SQLITE_OK ? answer : disk->xDelete(disk, name, syncFolder);
}

}  // namespace

#ifndef _WIN32
bool IsRenamingRefused() {
  if (!isInFront || fault.Answer(SQLITE_IOERR) == SQLITE_OK) return false;
  errno = fault.Trouble == DiskTrouble::Full ? ENOSPC : EIO;
  return true;
}
#endif

FailingDisk::FailingDisk(DiskTrouble trouble, int operationsBefore) {
  fault = {trouble, operationsBefore, false};
  isInFront = true;
  disk = sqlite3_vfs_find(kDisk);
  failing = *disk;  // its name too: of two the one that was registered last is found
  failing.szOsFile = static_cast<int>(sizeof(File)) + disk->szOsFile;
  failing.xOpen = Open;
  failing.xDelete = Delete;
  sqlite3_vfs_register(&failing, kDisk == nullptr ? 1 : 0);
}

FailingDisk::~FailingDisk() {
  isInFront = false;
  sqlite3_vfs_unregister(&failing);
  if (kDisk == nullptr) sqlite3_vfs_register(disk, 1);
}

bool FailingDisk::Happened() const {
  return fault.Happened;
}

}  // namespace orrerix

#ifndef _WIN32
// In front of the system's own.
extern "C" int rename(const char* from, const char* to) noexcept {
  return orrerix::IsRenamingRefused() ? -1 : renameat(AT_FDCWD, from, AT_FDCWD, to);
}
#endif
