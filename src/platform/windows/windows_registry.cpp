// SPDX-License-Identifier: MIT
#include "platform/windows/windows_registry.h"

#include <vector>

#include <windows.h>

#include "platform/path_text.h"
#include "platform/windows/wide_text.h"

namespace orrerix {
namespace {

// An open key, or why it could not be opened.
class OpenKey {
 public:
  OpenKey(HKEY hive, const std::wstring& key, REGSAM view)
      : status_(RegOpenKeyExW(hive, key.c_str(), 0, KEY_QUERY_VALUE | view, &key_)) {}
  OpenKey(const OpenKey&) = delete;
  OpenKey& operator=(const OpenKey&) = delete;
  ~OpenKey() {
    if (status_ == ERROR_SUCCESS) RegCloseKey(key_);
  }

  bool IsDenied() const { return status_ == ERROR_ACCESS_DENIED; }

  std::optional<RegistryValue> Query(const std::wstring& value) const {
    DWORD type = 0;
    DWORD size = 0;
    if (status_ != ERROR_SUCCESS ||
        RegQueryValueExW(key_, value.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS) {
      return std::nullopt;
    }
    std::vector<BYTE> data(size);
    if (RegQueryValueExW(key_, value.c_str(), nullptr, &type, data.data(), &size) !=
        ERROR_SUCCESS) {
      return std::nullopt;
    }
    data.resize(size);
    return Read(type, data);
  }

 private:
  static std::optional<RegistryValue> Read(DWORD type, const std::vector<BYTE>& data) {
    if (type == REG_SZ) {
      const auto* text = reinterpret_cast<const wchar_t*>(data.data());
      return NarrowOf({text, data.size() / sizeof(wchar_t)});
    }
    if (type != REG_DWORD || data.size() != sizeof(std::uint32_t)) return std::nullopt;
    return *reinterpret_cast<const std::uint32_t*>(data.data());
  }

  HKEY key_ = nullptr;
  LSTATUS status_;
};

std::optional<RegistryValue> QueryViews(HKEY hive, const std::wstring& key,
                                        const std::wstring& value) {
  for (const REGSAM view : {KEY_WOW64_64KEY, KEY_WOW64_32KEY}) {
    const OpenKey open(hive, key, view);
    if (auto found = open.Query(value)) return found;
    if (open.IsDenied() && hive == HKEY_LOCAL_MACHINE) {
      return QueryViews(HKEY_CURRENT_USER, key, value);
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<RegistryValue> WindowsRegistry::Query(RegistryHive hive, std::string_view key,
                                                    std::string_view value) const {
  return QueryViews(hive == RegistryHive::LocalMachine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER,
                    WideOf(key), WideOf(value));
}

std::optional<std::string> WindowsRegistry::RealPath(std::string_view path) const {
  const std::wstring wide = WideOf(path);
  const DWORD room = GetShortPathNameW(wide.c_str(), nullptr, 0);
  std::wstring real(room, L'\0');
  const DWORD size = room == 0 ? 0 : GetShortPathNameW(wide.c_str(), real.data(), room);
  if (size == 0 || size >= room) return std::nullopt;
  real.resize(size);
  return NarrowOf(real);
}

}  // namespace orrerix
