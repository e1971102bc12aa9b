// SPDX-License-Identifier: MIT
#include "check/model/definitions.h"

#include <algorithm>

namespace orrerix::check {
namespace {

// Stands for objects by the file that they are in.
constexpr std::uint32_t kObjectInFile = kKindCount;

std::int32_t ScopeOf(KindScope scope, const IniSection& section) {
  switch (scope) {
    case KindScope::File:
      return section.File->Number();
    case KindScope::MBase:
      return section.MBase;
    default:
      return 0;
  }
}

bool IsCompleteKind(const GameFiles& files, const KindInfo& kind) {
  for (int role = 0; role < kRoleCount; ++role) {
    if (kind.Roles.Has(static_cast<Role>(role)) && !files.IsComplete(static_cast<Role>(role))) {
      return false;
    }
  }
  return true;
}

}  // namespace

Definitions::Definitions(GameFiles& files) : files_(files), all_(kKindCount) {
  for (IniFile* file : files.ReadInis()) TakeFile(*file);
  for (const KindInfo& kind : AllKinds()) isComplete_.push_back(IsCompleteKind(files, kind));
  for (const IniSection* system : All(Kind::System)) {
    if (const IniFile* file = files.FileOfSystem(*system)) systemsOf_[file].push_back(system);
  }
}

void Definitions::TakeFile(IniFile& file) {
  const RoleSet roles = files_.RolesOf(file);
  if (!roles.Meets(kKnownRoles)) return;
  int mbase = roles.Has(Role::MBases) ? ++lastMBase_ : 0;
  const NameId mbaseName = files_.Names().Intern("MBase");
  for (IniSection& section : file.Sections()) {
    if (mbase != 0 && section.Id == mbaseName) mbase = ++lastMBase_;
    section.MBase = mbase;
    const KindInfo* kind = KindOfSection(roles, files_.Names().Text(section.Id));
    if (kind != nullptr) Take(*kind, section);
  }
}

void Definitions::Take(const KindInfo& kind, const IniSection& section) {
  all_[static_cast<std::size_t>(kind.Kind)].push_back(&section);
  const std::string_view nickname = section.Nickname();
  if (nickname.empty()) {
    if (!kind.MayRepeatOrLackNickname) nameless_.push_back(&section);
    return;
  }
  const NameId name = files_.Names().Intern(nickname);
  const Key key{static_cast<std::uint32_t>(kind.Kind), ScopeOf(kind.Scope, section), name};
  const auto [known, isNew] = first_.emplace(key, &section);
  if (!isNew && !kind.MayRepeatOrLackNickname) duplicates_.push_back({&section, known->second});
  if (kind.Kind == Kind::Object) {
    first_.emplace(Key{kObjectInFile, section.File->Number(), name}, &section);
  }
}

const IniSection* Definitions::Find(Kind kind, std::string_view nickname,
                                    const IniSection* near) const {
  const KindScope scope = InfoOf(kind).Scope;
  const std::int32_t scopeNumber = near == nullptr ? 0 : ScopeOf(scope, *near);
  const auto found =
      first_.find({static_cast<std::uint32_t>(kind), scopeNumber, files_.Names().Find(nickname)});
  return found == first_.end() ? nullptr : found->second;
}

const IniSection* Definitions::FindObjectIn(const IniFile& file, std::string_view nickname) const {
  const auto found = first_.find({kObjectInFile, file.Number(), files_.Names().Find(nickname)});
  return found == first_.end() ? nullptr : found->second;
}

const std::vector<const IniSection*>& Definitions::SystemsOf(const IniFile& file) const {
  static const std::vector<const IniSection*> none;
  const auto found = systemsOf_.find(&file);
  return found == systemsOf_.end() ? none : found->second;
}

}  // namespace orrerix::check
