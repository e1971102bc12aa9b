// SPDX-License-Identifier: MIT
#include "db/failure.h"

#include <filesystem>
#include <new>
#include <utility>

namespace orrerix {

Failure EngineFailure(int number, std::string description) {
  return {number, std::move(description), "Database engine"};
}

Failure DuplicateKey() {
  return EngineFailure(failure_number::kDuplicateKey,
                       "The changes you requested were not successful because they would create "
                       "duplicate values in the index.");
}

Failure NullInKey() {
  return EngineFailure(failure_number::kNullInKey,
                       "Index or primary key can't contain a Null value.");
}

Failure RuntimeFailure(int number) {
  return {number, std::string(StandardMessage(number)), "Orrerix"};
}

Failure CaughtFailure() {
  try {
    throw;
  } catch (const Failure& failure) {
    return failure;
  } catch (const std::bad_alloc&) {
    return RuntimeFailure(failure_number::kOutOfMemory);
  } catch (const std::filesystem::filesystem_error& error) {
    return {failure_number::kPathFileAccess,
            "Path/File access error: '" + error.path1().string() + "': " + error.code().message()};
  }
}

std::string_view StandardMessage(int number) {
  switch (number) {
    case failure_number::kInvalidProcedureCall:
      return "Invalid procedure call or argument";
    case failure_number::kOverflow:
      return "Overflow";
    case failure_number::kOutOfMemory:
      return "Out of memory";
    case failure_number::kSubscriptOutOfRange:
      return "Subscript out of range";
    case failure_number::kDivisionByZero:
      return "Division by zero";
    case failure_number::kFileNotFound:
      return "File not found";
    case failure_number::kPathFileAccess:
      return "Path/File access error";
    case failure_number::kInvalidPattern:
      return "Invalid pattern string";
    case failure_number::kInvalidUseOfNull:
      return "Invalid use of Null";
    case failure_number::kInvalidPicture:
      return "Invalid picture";
    default:
      return "Application-defined or object-defined error";
  }
}

}  // namespace orrerix
