// SPDX-License-Identifier: MIT
#include "platform/shortcut.h"

#include <objbase.h>
#include <shlobj.h>
#include <windows.h>

namespace orrerix {
namespace fs = std::filesystem;
namespace {

// COM for the time of one shortcut; a thread that has it already in another way keeps that.
class ComUse {
 public:
  ComUse() : result_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
  ComUse(const ComUse&) = delete;
  ComUse& operator=(const ComUse&) = delete;
  ~ComUse() {
    if (SUCCEEDED(result_)) CoUninitialize();
  }

 private:
  HRESULT result_;
};

// A reference to a COM object.
template <typename Interface>
class ComReference {
 public:
  ComReference() = default;
  ComReference(const ComReference&) = delete;
  ComReference& operator=(const ComReference&) = delete;
  ~ComReference() {
    if (object_ != nullptr) object_->Release();
  }
  void** Place() { return reinterpret_cast<void**>(&object_); }
  Interface* operator->() const { return object_; }

 private:
  Interface* object_ = nullptr;
};

}  // namespace

bool WriteShortcut(const fs::path& target, const fs::path& link) {
  const ComUse com;
  ComReference<IShellLinkW> shortcut;
  if (FAILED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                              shortcut.Place()))) {
    return false;
  }
  ComReference<IPersistFile> file;
  return SUCCEEDED(shortcut->SetPath(target.c_str())) &&
         SUCCEEDED(shortcut->SetWorkingDirectory(target.parent_path().c_str())) &&
         SUCCEEDED(shortcut->QueryInterface(IID_IPersistFile, file.Place())) &&
         SUCCEEDED(file->Save(link.c_str(), TRUE));
}

}  // namespace orrerix
