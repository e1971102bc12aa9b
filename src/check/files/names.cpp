// SPDX-License-Identifier: MIT
#include "check/files/names.h"

#include <array>

namespace orrerix::check {
namespace {

// The lower-case form of a name, without memory of its own for the usual short ASCII name.
class FoldedName {
 public:
  explicit FoldedName(std::string_view name) {
    if (name.size() > short_.size()) {
      long_ = Lcase(name);
      view_ = long_;
      return;
    }
    for (std::size_t i = 0; i < name.size(); ++i) {
      const char c = name[i];
      if (static_cast<signed char>(c) < 0) {
        long_ = Lcase(name);
        view_ = long_;
        return;
      }
      short_[i] = c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
    }
    view_ = std::string_view(short_.data(), name.size());
  }
  FoldedName(const FoldedName&) = delete;
  FoldedName& operator=(const FoldedName&) = delete;

  std::string_view View() const { return view_; }

 private:
  std::array<char, 64> short_;
  std::string long_;
  std::string_view view_;
};

}  // namespace

std::string FoldName(std::string_view name) {
  return std::string(FoldedName(name).View());
}

bool IsSameName(std::string_view a, std::string_view b) {
  return FoldedName(a).View() == FoldedName(b).View();
}

NameId NameTable::Intern(std::string_view name) {
  const FoldedName folded(name);
  if (const auto found = ids_.find(folded.View()); found != ids_.end()) return found->second;
  const auto id = static_cast<NameId>(texts_.size());
  const auto [added, isNew] = ids_.emplace(folded.View(), id);
  texts_.push_back(&added->first);
  return id;
}

NameId NameTable::Find(std::string_view name) const {
  const auto found = ids_.find(FoldedName(name).View());
  return found == ids_.end() ? kUnknownName : found->second;
}

}  // namespace orrerix::check
