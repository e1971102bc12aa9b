// SPDX-License-Identifier: MIT
#include "import/ini/reader_routine.h"

#include <new>

#include <fmt/format.h>

#include "import/resources/windows1252.h"
#include "shell/language_texts.h"

namespace orrerix {
namespace {

constexpr int kMostRetries = 5;

// Bytes that the logs quote of one file beyond its own size, far more than those of any game's
// files come to.
constexpr std::size_t kQuotesBeyondTheFile = 1 << 20;
constexpr std::size_t kLongestQuote = 1 << 18;
constexpr std::size_t kShortQuote = 200;

// The first two lines, without the line end of the second. A line ends at CR LF, CR or LF.
std::string_view FirstTwoLines(std::string_view block) {
  std::size_t end = block.find_first_of("\r\n");
  if (end == std::string_view::npos) return block;
  end += block.substr(end, 2) == "\r\n" ? 2 : 1;
  return block.substr(0, block.find_first_of("\r\n", end));
}

// A text that is longer than any block of a game's files gives its beginning only.
std::string_view QuoteOf(std::string_view text) {
  return text.size() > kLongestQuote ? FirstTwoLines(text).substr(0, kShortQuote) : text;
}

}  // namespace

ReaderRoutine::ReaderRoutine(Import& import, std::string_view file)
    : Routine(import.Target.Log, "OrrerixMain.ReadINI", InfoText([this] { return Info(); })),
      import_(import),
      file_(file) {
  SetFileSize(0);
}

void ReaderRoutine::SetFileSize(std::size_t bytes) {
  quotesLeft_ = kQuotesBeyondTheFile + bytes;
  remarksLeft_ = quotesLeft_;
}

// A block that is too much for what is left of the quotes gives its beginning only.
std::string_view ReaderRoutine::Quoted(std::string_view text) {
  if (text.size() > quotesLeft_) return FirstTwoLines(text).substr(0, kShortQuote);
  const std::string_view quote = QuoteOf(text);
  quotesLeft_ -= quote.size();
  return quote;
}

std::string_view ReaderRoutine::BlockQuote() const {
  return QuoteOf(blockCopy_);
}

std::string ReaderRoutine::Info() {
  std::string info = "While working on - " + FromWindows1252(Quoted(blockCopy_));
  if (key_.empty()) return info;
  return info + "\r\nField: " + std::string(key_) + " Data: " + FromWindows1252(Quoted(value_));
}

void ReaderRoutine::BeginBlock(std::string_view block) {
  blockCopy_ = block;
  currentLine_.clear();
  ClearPair();
  inGeneric_ = false;
}

void ReaderRoutine::SetPair(std::string_view key, std::string_view value) {
  key_ = key;
  value_ = value;
}

void ReaderRoutine::Fail(const Failure& failure) {
  switch (failure.Number) {
    case failure_number::kOutOfMemory:
      return LackOfMemory();
    case failure_number::kDuplicateKey:
    case failure_number::kNoCurrentRecord:
      LogDataError(failure);
      if (inGeneric_) throw NextBlock{};
      return;
    default:
      Routine::Fail(failure);
  }
}

void ReaderRoutine::LackOfMemory() {
  if (retryState_ != RetryState::None && retryCount_ < kMostRetries) {
    ++retryCount_;
    import_.Host.Yield();
    import_.Host.Yield();
    throw BeginAgain{};
  }
  if (retryState_ != RetryState::None) {
    retryState_ = RetryState::None;
    return Routine::Fail(RuntimeFailure(failure_number::kOutOfMemory));
  }
  const Message question{std::string(TextIn(import_.Host.Speech(), TextId::OutOfMemory)), "",
                         MessageButtons::AbortRetryIgnore, MessageIcon::None};
  if (import_.Host.Show(question) == MessageAnswer::Abort) throw ImportEnded{};
}

void ReaderRoutine::LogDataError(const Failure& failure) {
  if (remarksEnded_) return;
  std::string text;
  if (currentLine_.empty()) {
    text = BlockQuote();
  } else {
    text = fmt::format("{}\n-> {}", QuoteOf(FirstTwoLines(blockCopy_)), QuoteOf(currentLine_));
  }
  Remark(fmt::format(
      "{}--- Error in FL-MOD-File:\r\n{}\r\nCant add to Database (cause of allready exist):\r\n{}"
      "\r\n---.",
      failure.Number == failure_number::kNoCurrentRecord ? '*' : '#', file_,
      FromWindows1252(text)));
}

void ReaderRoutine::Remark(std::string_view remark) {
  if (remarksEnded_) return;
  remarksEnded_ = remark.size() > remarksLeft_;
  if (remarksEnded_) {
    import_.Target.Log.AddErrorLine(
        fmt::format("--- Too many remarks on [{}]; the others are left out.", file_));
    return;
  }
  remarksLeft_ -= remark.size();
  import_.Target.Log.AddErrorLine(remark);
}

void ReaderRoutine::BeginRecord(RetryState state, const std::function<void()>& addNew) {
  retryState_ = state;
  for (bool begun = false; !begun;) {
    try {
      Try(addNew);
      begun = true;
    } catch (const BeginAgain&) {
      begun = false;
    }
  }
  retryState_ = RetryState::None;
  retryCount_ = 0;
}

void ReaderRoutine::AddNew(Recordset& recordset, RetryState state) {
  BeginRecord(state, [&recordset] { recordset.AddNew(); });
}

}  // namespace orrerix
