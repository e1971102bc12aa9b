// SPDX-License-Identifier: MIT
#include "import/ini/block_text.h"

#include <algorithm>

#include "db/failure.h"
#include "import/ini/ini_text.h"

namespace orrerix {
namespace {

std::optional<std::size_t> FindIn(std::string_view text, std::string_view part) {
  const std::size_t found = FindText(text, part);
  return found == std::string_view::npos ? std::nullopt : std::optional(found);
}

CommaCut Require(std::string_view text) {
  const CommaCut cut = CutAtComma(text);
  if (!cut.Found) throw RuntimeFailure(failure_number::kInvalidProcedureCall);
  return cut;
}

}  // namespace

BlockText::BlockText(std::string_view text) : text_(text), upper_(UpperAscii(text)) {
  constexpr std::size_t mostOfBlocks = 24;
  signs_.reserve(mostOfBlocks);
  for (std::size_t sign = text.find('='); sign != std::string_view::npos;
       sign = text.find('=', sign + 1)) {
    const bool afterBlank = sign > 1 && text[sign - 1] == ' ';
    signs_.push_back(sign);
    keyEnds_.push_back(sign == 0 ? '\0' : upper_[sign - (afterBlank ? 2 : 1)]);
  }
}

std::optional<std::size_t> BlockText::Find(std::string_view upperPart) const {
  return FindIn(Upper(), upperPart);
}

std::optional<std::size_t> BlockText::FindExact(std::string_view part) const {
  return FindIn(Text(), part);
}

bool BlockText::StartsWith(std::string_view upperPart) const {
  return Upper().starts_with(upperPart);
}

std::string_view BlockText::Value(std::string_view upperKey) const {
  INIValueSearch search(Text(), Upper(), upperKey);
  std::size_t i = keyEnds_.find(upperKey.back(), nextSign_);
  while (i != std::string::npos && !search.EndsAt(signs_[i] - begin_)) {
    i = keyEnds_.find(upperKey.back(), i + 1);
  }
  return search.Value();
}

void BlockText::Cut(std::size_t characters) {
  begin_ += std::min(characters, Size());
  while (nextSign_ < signs_.size() && signs_[nextSign_] < begin_) ++nextSign_;
}

CommaCut CutAtComma(std::string_view text) {
  const std::size_t comma = text.find(',');
  if (comma == std::string_view::npos) return {text, {}, false};
  return {text.substr(0, comma), text.substr(comma + 1), true};
}

std::string_view RequireBeforeComma(std::string_view text) {
  return Require(text).Before;
}

std::string_view RequireAfterComma(std::string_view text) {
  return Require(text).After;
}

}  // namespace orrerix
