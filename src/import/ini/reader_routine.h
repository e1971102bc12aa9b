// SPDX-License-Identifier: MIT
// How the ini reader takes its failures.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "db/rows/recordset.h"
#include "import/import_state.h"
#include "shell/routine.h"

namespace orrerix {

// The records that can be begun afresh when memory runs out.
enum class RetryState {
  None = 0,
  Systems = 1,
  Commodity,
  Objects,
  Goods,
  Packages,
  BaseGoods,
  Resources,
  DataFiles,
  GF_NPC,
  Groups,
  Ships,
  Ships_Hardpoints,
  Loadout_Cargo_Cargo,
  Loadout_Cargo_Equip,
  GenericTable
};

// Thrown out of a generic block that is given up; the reader catches it and takes the next block.
struct NextBlock {};

// The reader's frame. Doubled keys and rows that are not there are faults of the game's files: they
// go to the data log, and a generic block is given up. Lack of memory begins the record afresh, at
// most five times, and asks outside a record. All else is a failure like any other.
class ReaderRoutine : public Routine {
 public:
  ReaderRoutine(Import& import, std::string_view file);

  void Fail(const Failure& failure) override;

  // Begins a row, again and again if memory is short.
  void BeginRecord(RetryState state, const std::function<void()>& addNew);
  void AddNew(Recordset& recordset, RetryState state);

  // What messages quote of the place: the untouched block and the last line taken from it.
  void BeginBlock(std::string_view block);
  std::string_view BlockCopy() const { return blockCopy_; }
  // The block as the logs quote it: whole, or the beginning of a very long one.
  std::string_view BlockQuote() const;
  // How long the file is, before its first block. What the logs quote of a file is bounded by it: a
  // block whose every line is at fault would be quoted as often as it has lines.
  void SetFileSize(std::size_t bytes);

  // Adds a remark to the data log. One that would be too much for its file is left out, and so are
  // all that follow; the log says that once.
  void Remark(std::string_view remark);
  bool TakesRemarks() const { return !remarksEnded_; }

  void SetCurrentLine(std::string_view line) { currentLine_ = line; }

  void SetInGeneric(bool inGeneric) { inGeneric_ = inGeneric; }
  // The key (as the table has it) and the value (as the file has it) being stored in a generic
  // table; empty after that. Both must live until they are cleared.
  void SetPair(std::string_view key, std::string_view value);
  void ClearPair() { key_ = {}; }

 private:
  struct BeginAgain {};

  std::string Info();
  std::string_view Quoted(std::string_view text);
  void LackOfMemory();
  void LogDataError(const Failure& failure);

  Import& import_;
  std::string_view file_;
  std::size_t quotesLeft_ = 0;   // bytes
  std::size_t remarksLeft_ = 0;  // bytes
  bool remarksEnded_ = false;
  std::string_view blockCopy_;
  std::string currentLine_;
  std::string_view key_;
  std::string_view value_;
  bool inGeneric_ = false;
  RetryState retryState_ = RetryState::None;
  int retryCount_ = 0;
};

}  // namespace orrerix
