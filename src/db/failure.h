// SPDX-License-Identifier: MIT
// What a failed statement reports, and to whom.
#pragma once

#include <string>
#include <string_view>

namespace orrerix {

// Numbers of the failures that the program itself raises or distinguishes.
namespace failure_number {
inline constexpr int kInvalidProcedureCall = 5;
inline constexpr int kOverflow = 6;
inline constexpr int kOutOfMemory = 7;
inline constexpr int kSubscriptOutOfRange = 9;
inline constexpr int kDivisionByZero = 11;
inline constexpr int kFileNotFound = 53;
inline constexpr int kPathFileAccess = 75;
inline constexpr int kInvalidPattern = 93;
inline constexpr int kInvalidUseOfNull = 94;
inline constexpr int kInvalidPicture = 481;
inline constexpr int kTableExists = 3010;
inline constexpr int kNotBeingEdited = 3020;
inline constexpr int kNoCurrentRecord = 3021;
inline constexpr int kDuplicateKey = 3022;
inline constexpr int kCannotOpenFile = 3024;
inline constexpr int kDiskFull = 3026;
inline constexpr int kReadOnly = 3027;
inline constexpr int kFileInUse = 3045;
inline constexpr int kNullInKey = 3058;
inline constexpr int kSyntaxError = 3075;
inline constexpr int kNoSuchTable = 3078;
inline constexpr int kInvalidName = 3125;
inline constexpr int kFieldTooSmall = 3163;
inline constexpr int kTooManyFields = 3190;
inline constexpr int kFieldDefinedTwice = 3191;
inline constexpr int kDatabaseExists = 3204;
inline constexpr int kNoSuchItem = 3265;
inline constexpr int kZeroLength = 3315;
inline constexpr int kUnrecognizedFormat = 3343;
inline constexpr int kObjectClosed = 3420;
inline constexpr int kEngineError = 3000;
}  // namespace failure_number

// A failed operation. Thrown only within one routine, from a step to that routine's frame.
struct Failure {
  int Number = 0;
  std::string Description;
  std::string Source = "Orrerix";  // who raised it: the program, or its database engine
};

// A failure raised by the database engine's layer.
Failure EngineFailure(int number, std::string description);

// A row that would break its table's key: 3022 for a double, 3058 for Null.
Failure DuplicateKey();
Failure NullInKey();

// A failure of the language's own operations, with its standard description (Overflow, Division by
// zero and so on).
Failure RuntimeFailure(int number);

// The exception being handled, as a failure: a Failure itself, lack of memory, or what the file
// system refused. Throws any other exception again. Called within a catch block only.
Failure CaughtFailure();

// The standard message for a failure number; numbers that are not the language's own share one.
std::string_view StandardMessage(int number);

// Code that works with the database hands each failed operation to the routine it works for.
class FailureSink {
 public:
  virtual ~FailureSink() = default;

  // Returns if the work is to go on as if the operation had not been there; otherwise it leaves by
  // an exception that only the routine's own frame catches.
  virtual void Fail(const Failure& failure) = 0;
};

// For operations whose outcome is answer enough: what fails counts as not done, unreported.
class IgnoreFailures : public FailureSink {
 public:
  void Fail(const Failure&) override {}
};

}  // namespace orrerix
