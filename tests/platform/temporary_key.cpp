#include "platform/temporary_key.h"

#include <sddl.h>

namespace tavrel::test {
namespace {

HKEY CreateKey(const std::string& path, DWORD& disposition) {
  HKEY key = nullptr;
  ::RegCreateKeyExA(HKEY_LOCAL_MACHINE, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key,
                    &disposition);
  return key;
}

const BYTE* BytesOf(const std::string& bytes) {
  return reinterpret_cast<const BYTE*>(bytes.data());
}

}  // namespace

TemporaryKey::TemporaryKey(const std::string& path) {
  for (std::size_t end = 0; end != std::string::npos;) {
    end = path.find('\\', end + 1);
    const std::string part = path.substr(0, end);
    if (part == "SOFTWARE") continue;
    if (key_ != nullptr) ::RegCloseKey(key_);
    DWORD disposition = 0;
    key_ = CreateKey(part, disposition);
    if (key_ == nullptr) return;
    if (disposition == REG_CREATED_NEW_KEY) made_.push_back(part);
  }
}

TemporaryKey::~TemporaryKey() {
  if (key_ != nullptr) {
    for (auto restore = restores_.rbegin(); restore != restores_.rend(); ++restore) (*restore)();
    ::RegCloseKey(key_);
  }
  for (auto part = made_.rbegin(); part != made_.rend(); ++part) {
    ::RegDeleteKeyA(HKEY_LOCAL_MACHINE, part->c_str());
  }
}

void TemporaryKey::RestoreLater(const std::string& name) {
  DWORD type = 0;
  DWORD size = 0;
  if (::RegQueryValueExA(key_, name.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS) {
    restores_.emplace_back([this, name] { ::RegDeleteValueA(key_, name.c_str()); });
    return;
  }
  std::string old(size, '\0');
  ::RegQueryValueExA(key_, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(old.data()), &size);
  restores_.emplace_back([this, name, type, old] {
    ::RegSetValueExA(key_, name.c_str(), 0, type, BytesOf(old), static_cast<DWORD>(old.size()));
  });
}

void TemporaryKey::Set(const std::string& name, DWORD type, const std::string& bytes) {
  RestoreLater(name);
  ::RegSetValueExA(key_, name.c_str(), 0, type, BytesOf(bytes), static_cast<DWORD>(bytes.size()));
}

void TemporaryKey::Set(const std::string& name, const std::wstring& text) {
  RestoreLater(name);
  const std::wstring wide_name(name.begin(), name.end());
  ::RegSetValueExW(key_, wide_name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                   static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

void TemporaryKey::AllowOnly(const std::wstring& rights) {
  const auto allow = [this](const std::wstring& these) {
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    const std::wstring text = L"D:P(A;;" + these + L";;;WD)";
    ::ConvertStringSecurityDescriptorToSecurityDescriptorW(text.c_str(), SDDL_REVISION_1, &descriptor,
                                                           nullptr);
    ::RegSetKeySecurity(key_, DACL_SECURITY_INFORMATION, descriptor);
    ::LocalFree(descriptor);
  };
  allow(rights);
  restores_.emplace_back([allow] { allow(L"KA"); });
}

}  // namespace tavrel::test
